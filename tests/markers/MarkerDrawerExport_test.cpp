// The export of the picture from the marker menu, with the file dialog answered as a person does.
#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/markers/MarkerWords.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace ZelView;

constexpr int width = 300;
constexpr int height = 200;

class MarkerDrawerExportTest : public testing::Test {
protected:
    MarkerDrawerExportTest() {
        converter.widgetWidth = width;
        converter.widgetHeight = height;
        converter.recalc();
        drawer.converter = &converter;
        drawer.drawArea = &area;
        drawer.initDrawArea();
        area.addPositionDrawer([this](const auto& context) { drawer.draw(context); },
                               DrawerPosition::AfterFragments);
        area.addPositionDrawer(
            [](const auto& context) {
                context->set_source_rgb(1, 0, 0);
                context->rectangle(0, 0, 20, 20);
                context->fill();
            },
            DrawerPosition::End);
        area.set_size_request(width, height);
        window.add(area);
        test::present(window);
        drawer.manager->createMarker(Orientation::Vertical, MarkerType::Single, {60, 50});
        test::settle();
    }

    /// Right click, left click on the last item, which exports; then does `act` with the dialog and waits for
    /// its end.
    void exportTo(const std::function<void(Gtk::Dialog&)>& act) {
        test::click(area, 150, 100, 3);
        ASSERT_TRUE(test::waitFor([this] { return drawer.contextMenu->menu.get_mapped(); }));
        Gtk::MenuItem& item = drawer.contextMenu->items.back();
        ASSERT_EQ(item.get_label(), lngExportPng());
        // From here on the main loop never rests: the answer looks for the dialog, and it moved the pointer
        // away.
        test::Answer person(act);
        test::movePointer(item, 20, 5);
        test::wait(200);
        test::pressButton();
        test::releaseButton();
        EXPECT_TRUE(test::waitFor([&] { return person.hasActed() && test::findDialogs().empty(); }, 20000));
    }

    /// Types a name in the test's folder. The folder is shown without typing it: each one that Gtk offers to
    /// complete costs it a few bytes that it never releases.
    void enterName(Gtk::Dialog& dialog) {
        auto& chooser = dynamic_cast<Gtk::FileChooserDialog&>(dialog);
        chooser.set_current_folder(folder.path.string());
        EXPECT_TRUE(test::waitFor([&] { return chooser.get_current_folder() == folder.path.string(); }));
        test::wait(200);
        test::type("plot");
        test::wait(200);
    }

    StretchableCoordsConverter converter;
    FragmentsDrawArea area;
    MarkerDrawer drawer;
    Gtk::Window window;
    test::TemporaryFolder folder;
};

} // namespace

TEST_F(MarkerDrawerExportTest, WritesThePictureWithMarkersButWithoutWhatLiesOnTop) {
    exportTo([this](Gtk::Dialog& dialog) {
        EXPECT_EQ(dialog.get_title(), lngExportPng());
        enterName(dialog);
        // By key: the list of names that begin alike may cover the button.
        test::acceptByKey(dialog);
    });
    const test::Picture picture = test::pictureOfFile(folder.path / "plot.png");
    EXPECT_EQ(picture.width, width);
    EXPECT_EQ(picture.height, height);
    EXPECT_EQ(picture.at(60, 150), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_EQ(picture.at(5, 5), (std::vector<int>{255, 255, 255, 255}));
}

TEST_F(MarkerDrawerExportTest, CancellingWritesNothing) {
    exportTo([this](Gtk::Dialog& dialog) {
        enterName(dialog);
        test::clickButton(dialog, "Cancel");
    });
    EXPECT_TRUE(std::filesystem::is_empty(folder.path));
}
