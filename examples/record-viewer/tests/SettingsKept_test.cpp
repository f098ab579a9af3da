// What was set holds for the next start, and for nothing else.
#include "SettingsHands.h"
#include "reader/Reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/wait.h>

namespace {

using testing::HasSubstr;
using testing::Not;
using viewer::Field;
using viewer::Group;
using viewer::MainWindow;

using SettingsKeptTest = test::SettingsHands;

} // namespace

TEST_F(SettingsKeptTest, TheNextWindowBeginsWithThem) {
    show(test::soloRecord());
    open();
    tick(Group::Line);
    enter(Field::Z1, "8.125");
    pressOk();
    ASSERT_TRUE(isClosed());
    window->close();
    test::settle();
    makeAnew(0);
    // The place of the window stands beside them and has not pushed them out.
    EXPECT_THAT(test::readFile(file), HasSubstr("[window]\n"));
    EXPECT_THAT(test::readFile(file), HasSubstr("[impedance]\nz1-ohms=8.125\nz1-degrees=75\n"));
    show(test::soloRecord());
    EXPECT_THAT(window->plane.status.get_text().raw(), HasSubstr("a line of 8.12 ohm at 75°"));
    EXPECT_EQ(zones().size(), 3u);
    open();
    EXPECT_TRUE(form().givenButtons[0].get_active());
    EXPECT_EQ(form()._entryOf(Field::Z1).get_text(), "8.125");
}

TEST_F(SettingsKeptTest, TheProgramKeepsThemInTheFolderOfTheUser) {
    // Where the button stands in a window at a known place.
    const std::filesystem::path config = folder.path / "user";
    const std::filesystem::path kept = config / "record-viewer" / "window.ini";
    std::filesystem::create_directories(kept.parent_path());
    const std::string place = "[window]\nx=120\ny=80\nwidth=1280\nheight=860\n";
    test::writeFile(kept, place + "[impedance]\nk0=absurd\n");
    int x = 0;
    int y = 0;
    {
        MainWindow model("test", kept);
        record::Record record = record::open(DEMO_RECORD);
        viewer::Impedances impedances = viewer::computeImpedances(record);
        model.setRecord(std::move(record), std::move(impedances));
        test::present(model);
        int left = 0;
        int top = 0;
        model.settingsButton.get_window()->get_origin(left, top);
        const Gtk::Allocation button = model.settingsButton.get_allocation();
        x = left + button.get_x() + button.get_width() / 2;
        y = top + button.get_y() + button.get_height() / 2;
    }
    test::writeFile(kept, place + "[impedance]\nk0=absurd\n");
    window->hide();
    test::settle();

    const std::string errors = folder.path / "errors";
    FILE* const program =
        popen(("XDG_CONFIG_HOME='" + config.string() + "' timeout " + std::to_string(12 * test::patience) +
               " '" + VIEWER + "' '" + DEMO_RECORD + "' 2>'" + errors + "'")
                  .c_str(),
              "r");
    ASSERT_NE(program, nullptr);
    test::wait(3000 * test::patience);
    test::movePointer(x, y);
    test::wait(100);
    test::pressButton();
    test::releaseButton();
    test::wait(1500 * test::patience);
    test::pressKey(GDK_KEY_space); // the line is known
    test::pressKey(GDK_KEY_Tab);
    test::wait(200 * test::patience);
    test::type("6.5");
    test::pressKey(GDK_KEY_Return);
    const bool isKept = test::waitFor(
        [&] { return test::readFile(kept).find("z1-ohms=6.5\nz1-degrees=75\n") != std::string::npos; });
    EXPECT_TRUE(isKept) << test::readFile(kept);
    EXPECT_EQ(WEXITSTATUS(pclose(program)), 124) << "it ended by itself";
    EXPECT_EQ(test::readFile(errors), "");
    EXPECT_THAT(test::readFile(kept), HasSubstr("x=120"));
    EXPECT_THAT(test::readFile(kept), Not(HasSubstr("k0")));
}

TEST(SettingsAndPictures, PicturesFollowTheRecordAlone) {
    const test::TemporaryFolder folder;
    const std::filesystem::path kept = folder.path / "record-viewer" / "window.ini";
    const auto paint = [&](const std::string& name) {
        const std::filesystem::path pictures = folder.path / name;
        EXPECT_NE(test::outputOf("XDG_CONFIG_HOME='" + folder.path.string() + "' '" + VIEWER + "' --png '" +
                                 pictures.string() + "' '" + DEMO_RECORD + "' 2>/dev/null"),
                  "");
        return test::readFile(pictures / "line-fault-zplane.png");
    };
    const std::string without = paint("without");
    EXPECT_NE(without, "");
    std::filesystem::create_directories(kept.parent_path());
    test::writeFile(kept, "[impedance]\nz1-ohms=8\nk0=0.7\nzone-1-percent=30\n");
    EXPECT_EQ(paint("with"), without);
    EXPECT_EQ(test::readFile(kept), "[impedance]\nz1-ohms=8\nk0=0.7\nzone-1-percent=30\n");
}
