// The size of the text in the gallery, by real keys.
#include "GalleryWindow.h"
#include "Search.h"

#include "support/Hands.h"
#include "support/Keyboard.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtest/gtest.h>

namespace {

using ZelView::StyleZoomHelper;

class GalleryTextZoom : public testing::Test {
protected:
    GalleryTextZoom() { StyleZoomHelper::zoomDefault(); }

    ~GalleryTextZoom() override { StyleZoomHelper::zoomDefault(); }

    bool says(const std::string& text) {
        return test::waitFor([&] {
            for (Gtk::Label* label : test::findAll<Gtk::Label>(window))
                if (label->get_mapped() && label->get_text() == text)
                    return true;
            return false;
        });
    }

    gallery::GalleryWindow window{"texts"};
};

} // namespace

TEST_F(GalleryTextZoom, CtrlWithPlusMinusAndZero) {
    test::present(window);
    EXPECT_TRUE(says("Size: 14 pixels"));
    const test::HeldKey control(GDK_KEY_Control_L);
    test::pressKey(GDK_KEY_plus);
    EXPECT_TRUE(says("Size: 15 pixels"));
    test::pressKey(GDK_KEY_plus);
    EXPECT_TRUE(says("Size: 16 pixels"));
    test::pressKey(GDK_KEY_minus);
    EXPECT_TRUE(says("Size: 15 pixels"));
    test::pressKey(GDK_KEY_0);
    EXPECT_TRUE(says("Size: 14 pixels"));
}

TEST_F(GalleryTextZoom, CtrlWithTheWheel) {
    test::present(window);
    test::movePointer(window, 600, 400);
    test::settle();
    const test::HeldKey control(GDK_KEY_Control_L);
    test::pressButton(4);
    test::releaseButton(4);
    EXPECT_TRUE(says("Size: 15 pixels"));
    test::pressButton(5);
    test::releaseButton(5);
    EXPECT_TRUE(says("Size: 14 pixels"));
}

TEST_F(GalleryTextZoom, ThePageHasButtonsForIt) {
    test::present(window);
    for (const auto& [button, size] :
         {std::make_pair("Larger", "Size: 15 pixels"), std::make_pair("Smaller", "Size: 14 pixels"),
          std::make_pair("Smaller", "Size: 13 pixels"), std::make_pair("Usual", "Size: 14 pixels")}) {
        auto* const found = test::findLabelled<Gtk::Button>(window, button);
        ASSERT_NE(found, nullptr) << button;
        test::click(*found);
        EXPECT_TRUE(says(size)) << button;
    }
}
