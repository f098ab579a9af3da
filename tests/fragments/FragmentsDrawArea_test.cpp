#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

constexpr int width = 40;
constexpr int height = 30;

class FragmentsDrawAreaTest : public testing::Test {
protected:
    FragmentsDrawAreaTest() { test::allocate(area, width, height); }

    /// Paints the area on a white surface and returns what is seen.
    test::Picture paint() {
        calls.clear();
        return test::paint(width, height,
                           [this](const Context& context) { EXPECT_TRUE(area.on_draw(context)); });
    }

    std::function<void(const Context&)> note(std::string name) {
        return [this, name](const Context&) { calls.push_back(name); };
    }

    /// A function that notes its call and fills a box of one grey.
    std::function<void(const Context&)> box(std::string name, int x, double grey) {
        return [this, name, x, grey](const Context& context) {
            calls.push_back(name);
            context->set_source_rgb(grey, grey, grey);
            context->rectangle(x, 5, 10, 10);
            context->fill();
        };
    }

    void* key(int i) { return keys + i; }

    char keys[4] = {};
    FragmentsDrawArea area;
    std::vector<std::string> calls;
};

const std::vector<int> white{255, 255, 255, 255};
const std::vector<int> black{0, 0, 0, 255};

using Calls = std::vector<std::string>;

} // namespace

TEST_F(FragmentsDrawAreaTest, StartsWithTheDescribedState) {
    EXPECT_TRUE(area.get_hexpand());
    EXPECT_TRUE(area.get_vexpand());
    EXPECT_TRUE(area.property_expand().get_value());
    EXPECT_FALSE(area.isFreezed);
    EXPECT_FALSE(area.redrawAll);
    EXPECT_TRUE(area.fragments.empty());
    const void* const fields[] = {&area.helper,     &area.fragments,     &area.startDrawers,
                                  &area.endDrawers, &area.beforeDrawers, &area.afterDrawers,
                                  &area.isFreezed,  &area.frozenImage,   &area.redrawAll};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}

TEST_F(FragmentsDrawAreaTest, PaintsLayersByPositionAndInTheOrderOfAdding) {
    area.addPositionDrawer(note("end1"), DrawerPosition::End);
    area.addPositionDrawer(note("after1"), DrawerPosition::AfterFragments);
    area.addPositionDrawer(note("before1"), DrawerPosition::BeforeFragments);
    area.addPositionDrawer(note("start1"), DrawerPosition::Start);
    area.addPositionDrawer(note("start2"), DrawerPosition::Start);
    area.addPositionDrawer(note("before2"), DrawerPosition::BeforeFragments);
    area.addPositionDrawer(note("after2"), DrawerPosition::AfterFragments);
    area.addPositionDrawer(note("end2"), DrawerPosition::End);
    area.addFragment(key(1), note("fragment1"));
    area.addFragment(key(0), note("fragment0"));
    paint();
    EXPECT_EQ(calls, (Calls{"start1", "start2", "before1", "before2", "fragment0", "fragment1", "after1",
                            "after2", "end1", "end2"}));
}

TEST_F(FragmentsDrawAreaTest, AnotherPositionIsIgnored) {
    area.addPositionDrawer(note("nowhere"), static_cast<DrawerPosition>(7));
    paint();
    EXPECT_TRUE(calls.empty());
}

TEST_F(FragmentsDrawAreaTest, WithoutFragmentsPaintsTheBackgroundAndTheLayers) {
    area.setBackgroundColor({0, 0, 255, 255});
    area.addPositionDrawer(box("before", 5, 0), DrawerPosition::BeforeFragments);
    area.addPositionDrawer(box("end", 20, 0.5), DrawerPosition::End);
    const auto picture = paint();
    EXPECT_EQ(picture.at(0, 0), (std::vector<int>{0, 0, 255, 255}));
    EXPECT_EQ(picture.at(6, 6), black);
    EXPECT_EQ(picture.at(21, 6), (std::vector<int>{128, 128, 128, 255}));
}

TEST_F(FragmentsDrawAreaTest, WhatStartPaintsIsCoveredWhereTheBackgroundIsOpaque) {
    area.addPositionDrawer(box("start", 5, 0), DrawerPosition::Start);
    EXPECT_EQ(paint().at(6, 6), white);
    area.setBackgroundColor({255, 255, 255, 0});
    EXPECT_EQ(paint().at(6, 6), black);
}

TEST_F(FragmentsDrawAreaTest, SavesTheLayersAroundTheFragmentsButNotEnd) {
    const test::TemporaryFolder folder;
    area.addPositionDrawer(box("before", 0, 0), DrawerPosition::BeforeFragments);
    area.addFragment(key(0), box("fragment", 10, 0));
    area.addPositionDrawer(box("after", 20, 0), DrawerPosition::AfterFragments);
    area.addPositionDrawer(box("end", 30, 0), DrawerPosition::End);
    const auto seen = paint();
    area.saveSummaryImage(folder.path / "all.png", "png");
    const auto saved = test::pictureOfFile(folder.path / "all.png");
    EXPECT_EQ(saved.width, width);
    EXPECT_EQ(saved.height, height);
    for (int x : {1, 11, 21})
        EXPECT_EQ(saved.at(x, 6), black) << x;
    EXPECT_EQ(saved.at(31, 6), white);
    EXPECT_EQ(seen.at(31, 6), black);
}

TEST_F(FragmentsDrawAreaTest, SavingBeforeTheFirstPaintWritesNothing) {
    const test::TemporaryFolder folder;
    area.saveSummaryImage(folder.path / "none.png", "png");
    EXPECT_FALSE(Glib::file_test(folder.path / "none.png", Glib::FILE_TEST_EXISTS));
    area.addFragment(key(0), note("f"));
    area.saveFragment(key(0), folder.path / "none.png", "png");
    EXPECT_FALSE(Glib::file_test(folder.path / "none.png", Glib::FILE_TEST_EXISTS));
}

TEST_F(FragmentsDrawAreaTest, ABadPathOrTypeReachesTheCaller) {
    const test::TemporaryFolder folder;
    area.addFragment(key(0), box("f", 5, 0));
    paint();
    EXPECT_THROW(area.saveSummaryImage("/nowhere/at/all.png", "png"), Glib::Error);
    EXPECT_THROW(area.saveSummaryImage(folder.path / "a", "no such type"), Glib::Error);
    EXPECT_THROW(area.saveFragment(key(0), "/nowhere/at/all.png", "png"), Glib::Error);
    EXPECT_THROW(area.saveFragment(key(0), folder.path / "a", "no such type"), Glib::Error);
}

TEST_F(FragmentsDrawAreaTest, SavesTheImageOfOneFragment) {
    const test::TemporaryFolder folder;
    area.addFragment(key(0), box("f", 5, 0));
    area.addFragment(key(1), box("g", 20, 0));
    paint();
    area.saveFragment(key(0), folder.path / "one.png", "png");
    const auto saved = test::pictureOfFile(folder.path / "one.png");
    EXPECT_EQ(saved.at(6, 6), black);
    EXPECT_EQ(saved.at(21, 6), (std::vector<int>{255, 255, 255, 0}));
}

TEST_F(FragmentsDrawAreaTest, SavingAnUnknownFragmentCreatesAnEmptyEntry) {
    const test::TemporaryFolder folder;
    area.saveFragment(key(3), folder.path / "none.png", "png");
    EXPECT_EQ(area.fragments.count(key(3)), 1u);
    EXPECT_FALSE(Glib::file_test(folder.path / "none.png", Glib::FILE_TEST_EXISTS));
}

TEST_F(FragmentsDrawAreaTest, OnlyTheMarkedFragmentIsPaintedAgain) {
    area.addFragment(key(0), box("a", 0, 0));
    area.addFragment(key(1), box("b", 15, 0));
    const auto first = paint();
    EXPECT_EQ(calls, (Calls{"a", "b"}));
    test::expectSame(paint(), first);
    EXPECT_TRUE(calls.empty());
    area.redraw(key(1));
    test::expectSame(paint(), first);
    EXPECT_EQ(calls, Calls{"b"});
}

TEST_F(FragmentsDrawAreaTest, RedrawPutsAllIntoOneImageAtEachPaintUntilOneIsMarked) {
    area.addFragment(key(0), box("a", 0, 0));
    area.addFragment(key(1), box("b", 15, 0));
    paint();
    const auto image = area.fragments[key(0)].image;
    area.redraw();
    EXPECT_TRUE(area.redrawAll);
    for (int i = 0; i < 3; ++i) {
        paint();
        EXPECT_EQ(calls, (Calls{"a", "b"})) << i;
        // Own images are neither used nor refreshed, and the flags stay.
        EXPECT_EQ(area.fragments[key(0)].image, image);
        EXPECT_TRUE(area.fragments[key(0)].needRedraw);
        EXPECT_TRUE(area.fragments[key(1)].needRedraw);
    }
    area.redraw(key(1));
    EXPECT_FALSE(area.redrawAll);
    paint();
    EXPECT_EQ(calls, (Calls{"a", "b"})); // all flags were still set
    EXPECT_NE(area.fragments[key(0)].image, image);
    paint();
    EXPECT_TRUE(calls.empty());
}

TEST_F(FragmentsDrawAreaTest, InOneImageALaterFragmentMayHideAnEarlierOneInTheBackgroundColour) {
    area.addFragment(key(0), box("a", 0, 0));
    area.addFragment(key(1), box("b", 0, 1)); // white on white
    EXPECT_EQ(paint().at(5, 6), black);
    area.redraw();
    EXPECT_EQ(paint().at(5, 6), white);
}

TEST_F(FragmentsDrawAreaTest, AddingAgainReplacesFunctionAndImage) {
    area.addFragment(key(0), box("old", 0, 0));
    paint();
    area.addFragment(key(0), box("new", 20, 0));
    EXPECT_FALSE(area.fragments[key(0)].image);
    EXPECT_TRUE(area.fragments[key(0)].needRedraw);
    const auto picture = paint();
    EXPECT_EQ(calls, Calls{"new"});
    EXPECT_EQ(picture.at(5, 6), white);
    EXPECT_EQ(picture.at(25, 6), black);
}

TEST_F(FragmentsDrawAreaTest, RemovesFragments) {
    area.addFragment(key(0), box("a", 0, 0));
    area.addFragment(key(1), box("b", 15, 0));
    area.addFragment(key(2), box("c", 30, 0));
    paint();
    area.removeFragment(key(1));
    area.removeFragment(key(3)); // unknown
    auto picture = paint();
    EXPECT_TRUE(calls.empty()); // the others keep their images
    EXPECT_EQ(picture.at(5, 6), black);
    EXPECT_EQ(picture.at(18, 6), white);
    area.removeFragments();
    picture = paint();
    EXPECT_EQ(picture.countPainted(), 0);
}

TEST_F(FragmentsDrawAreaTest, AnUnknownKeyGetsAnEntryWhosePaintThrows) {
    area.redraw(key(0));
    EXPECT_EQ(area.fragments.size(), 1u);
    const auto context = Cairo::Context::create(test::makeSurface(width, height));
    EXPECT_THROW(area.on_draw(context), std::bad_function_call);
    area.redraw();
    EXPECT_THROW(area.on_draw(context), std::bad_function_call);
    area.addFragment(key(0), box("a", 0, 0));
    EXPECT_EQ(paint().at(5, 6), black);
}

TEST_F(FragmentsDrawAreaTest, AFrozenAreaShowsTheLastPictureAndPaintsNoLayer) {
    area.addFragment(key(0), box("a", 0, 0));
    area.addPositionDrawer(box("end", 20, 0), DrawerPosition::End);
    paint();
    area.setIsFreezed(true);
    area.addFragment(key(0), box("b", 10, 0));
    const auto frozen = paint();
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(frozen.at(5, 6), black);
    EXPECT_EQ(frozen.at(15, 6), white);
    EXPECT_EQ(frozen.at(25, 6), white); // End is not part of the picture
    area.setIsFreezed(false);
    EXPECT_EQ(paint().at(15, 6), black);
}

TEST_F(FragmentsDrawAreaTest, FreezingBeforeTheFirstPaintFreezesNothing) {
    area.addFragment(key(0), box("a", 0, 0));
    area.setIsFreezed(true);
    EXPECT_EQ(paint().countPainted(), 0);
    EXPECT_TRUE(calls.empty());
}

TEST_F(FragmentsDrawAreaTest, ABackgroundColourLeavesCachedImagesAsTheyAre) {
    area.addFragment(key(0), box("a", 0, 0));
    paint();
    area.setBackgroundColor({0, 255, 0, 255});
    const auto picture = paint();
    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(picture.at(5, 6), black);
    EXPECT_EQ(picture.at(35, 25), (std::vector<int>{0, 255, 0, 255}));
}

TEST_F(FragmentsDrawAreaTest, StateOfTheContextIsKeptAroundEachFunction) {
    std::vector<double> widths;
    const auto spoil = [&](const Context& context) {
        widths.push_back(context->get_line_width());
        context->set_line_width(50);
    };
    for (DrawerPosition position : {DrawerPosition::Start, DrawerPosition::BeforeFragments,
                                    DrawerPosition::AfterFragments, DrawerPosition::End})
        area.addPositionDrawer(spoil, position);
    area.addFragment(key(0), spoil);
    area.addFragment(key(1), spoil);
    paint();
    EXPECT_EQ(widths, std::vector<double>(6, 2.0));
}

TEST(FragmentsDrawAreaOnScreen, AConfigureEventMarksEverything) {
    FragmentsDrawArea area;
    int key = 0;
    int painted = 0;
    test::OffscreenHost host(area, 60, 40);
    area.addFragment(&key, [&](const Context&) { ++painted; });
    test::settle();
    EXPECT_FALSE(area.redrawAll);
    EXPECT_FALSE(area.fragments[&key].needRedraw);
    EXPECT_EQ(painted, 1);
    area.set_size_request(80, 50);
    test::settle();
    EXPECT_TRUE(area.redrawAll);
    EXPECT_TRUE(area.fragments[&key].needRedraw);
    EXPECT_EQ(painted, 2);
}

TEST(FragmentsDrawAreaOnScreen, RequestsRepaintsByItself) {
    FragmentsDrawArea area;
    int key = 0;
    int painted = 0;
    area.addPositionDrawer([&](const Context&) { ++painted; }, DrawerPosition::End);
    test::OffscreenHost host(area, 60, 40);
    const auto paintsAfter = [&](const std::function<void()>& action) {
        test::settle();
        painted = 0;
        action();
        test::settle();
        return painted;
    };
    EXPECT_EQ(paintsAfter([] {}), 0);
    EXPECT_EQ(paintsAfter([&] { area.addFragment(&key, [](const Context&) {}); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.redraw(&key); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.redraw(); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.removeFragment(&key); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.removeFragment(&key); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.removeFragments(); }), 1);
    EXPECT_EQ(paintsAfter([&] { area.setBackgroundColor({1, 2, 3, 255}); }), 0);
    EXPECT_EQ(paintsAfter([&] { area.setIsFreezed(true); }), 0);
    EXPECT_EQ(paintsAfter([&] { area.setIsFreezed(false); }), 0);
    EXPECT_EQ(paintsAfter([&] { area.addPositionDrawer([](const Context&) {}, DrawerPosition::Start); }), 0);
}

TEST(FragmentsDrawAreaOnScreen, AnExceptionInAPaintReachesTheApplicationsHandler) {
    FragmentsDrawArea area;
    int key = 0;
    std::string caught;
    const auto connection = Glib::add_exception_handler([&] {
        try {
            throw;
        } catch (const std::bad_function_call& error) {
            caught = error.what();
        }
    });
    {
        test::OffscreenHost host(area, 60, 40);
        area.redraw(&key);
        test::settle();
        EXPECT_EQ(caught, std::bad_function_call().what());
        area.removeFragment(&key);
        int painted = 0;
        area.addPositionDrawer([&](const Context&) { ++painted; }, DrawerPosition::End);
        area.queue_draw();
        test::settle();
        EXPECT_EQ(painted, 1); // and the area lives on
    }
    sigc::connection(connection).disconnect();
}

TEST(FragmentsDrawAreaOnScreen, AThousandLivesLeaveNoWidgetBehind) {
    int finalised = 0;
    for (int i = 0; i < 1000; ++i) {
        auto area = std::make_unique<FragmentsDrawArea>();
        g_object_weak_ref(
            G_OBJECT(area->gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
        area->addFragment(&i, [](const Context&) {});
        test::allocate(*area, 10, 10);
        area->on_draw(Cairo::Context::create(test::makeSurface(10, 10)));
    }
    EXPECT_EQ(finalised, 1000);
}
