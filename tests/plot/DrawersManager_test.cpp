#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/plot/DrawersManager.h>
#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <string>
#include <vector>

namespace {

using namespace ZelView;
using Context = Cairo::RefPtr<Cairo::Context>;

std::vector<std::string> calls;

struct Layer : InfoDrawer {
    explicit Layer(std::string value) : name(std::move(value)) {}

    void draw(const Context&) override { calls.push_back(name); }

    std::string name;
};

/// Notes the line width that it finds and leaves another one behind.
struct Spoiler : BaseFragmentableDrawer {
    explicit Spoiler(std::string value) : name(std::move(value)) {}

    void drawFragmentable(const Context& context, const Zel::IFragmentable& fragmentable) override {
        calls.push_back(name + ":" + fragmentable.getName());
        widths.push_back(context->get_line_width());
        context->set_line_width(17);
    }

    std::string name;
    std::vector<double> widths;
};

class DrawersManagerTest : public testing::Test {
protected:
    DrawersManagerTest() {
        calls.clear();
        a.name = "a";
        b.name = "b";
        test::allocate(area, 20, 10);
    }

    void paint() { area.on_draw(Cairo::Context::create(test::makeSurface(20, 10))); }

    FragmentsDrawArea area;
    DrawersManager manager{area};
    Zel::Series a;
    Zel::Series b;
};

} // namespace

TEST_F(DrawersManagerTest, StartsEmpty) {
    EXPECT_TRUE(manager.getDrawers().empty());
}

TEST_F(DrawersManagerTest, ListsLayersFirstThenFragmentDrawersEachInTheOrderOfAdding) {
    auto fragment1 = std::make_unique<Spoiler>("1");
    auto layer1 = std::make_unique<Layer>("1");
    auto fragment2 = std::make_unique<Spoiler>("2");
    auto layer2 = std::make_unique<Layer>("2");
    const std::vector<Drawer*> expected{layer1.get(), layer2.get(), fragment1.get(), fragment2.get()};
    manager.addDrawer(std::move(fragment1));
    manager.addDrawer(std::move(layer1), DrawerPosition::End);
    manager.addDrawer(std::move(fragment2));
    manager.addDrawer(std::move(layer2), DrawerPosition::Start);
    EXPECT_EQ(manager.getDrawers(), expected);
}

TEST_F(DrawersManagerTest, PaintsLayersAtTheirPositions) {
    manager.addDrawer(std::make_unique<Layer>("end"), DrawerPosition::End);
    manager.addDrawer(std::make_unique<Layer>("after"), DrawerPosition::AfterFragments);
    manager.addDrawer(std::make_unique<Layer>("before"), DrawerPosition::BeforeFragments);
    manager.addDrawer(std::make_unique<Layer>("start"), DrawerPosition::Start);
    manager.addDrawer(std::make_unique<Spoiler>("draw"));
    manager.addFragmentable(a);
    paint();
    EXPECT_EQ(calls, (std::vector<std::string>{"start", "before", "draw:a", "after", "end"}));
}

TEST_F(DrawersManagerTest, EveryDrawerOfAFragmentStartsFromTheSameState) {
    auto first = std::make_unique<Spoiler>("first");
    auto second = std::make_unique<Spoiler>("second");
    const Spoiler& seenFirst = *first;
    const Spoiler& seenSecond = *second;
    manager.addDrawer(std::move(first));
    manager.addDrawer(std::move(second));
    manager.addFragmentable(a);
    paint();
    EXPECT_EQ(calls, (std::vector<std::string>{"first:a", "second:a"}));
    EXPECT_EQ(seenFirst.widths, std::vector<double>{2.0});
    EXPECT_EQ(seenSecond.widths, std::vector<double>{2.0});
}

TEST_F(DrawersManagerTest, KeysFragmentsByTheAddressOfTheFragmentable) {
    manager.addFragmentable(a);
    ASSERT_EQ(area.fragments.size(), 1u);
    EXPECT_EQ(area.fragments.begin()->first, static_cast<const Zel::IFragmentable*>(&a));
    EXPECT_NE(area.fragments.begin()->first, static_cast<const void*>(&a));
}

TEST_F(DrawersManagerTest, EqualSeriesAtTwoAddressesAreTwoFragments) {
    b = a;
    manager.addDrawer(std::make_unique<Spoiler>("draw"));
    manager.addFragmentable(a);
    manager.addFragmentable(b);
    manager.addFragmentable(a); // a second time: replaces itself
    EXPECT_EQ(area.fragments.size(), 2u);
    paint();
    EXPECT_EQ(calls.size(), 2u);
}

TEST_F(DrawersManagerTest, ForgetsFragments) {
    manager.addDrawer(std::make_unique<Spoiler>("draw"));
    manager.addFragmentable(a);
    manager.addFragmentable(b);
    manager.deleteFragmentable(a);
    manager.deleteFragmentable(a); // an unknown one is no error
    paint();
    EXPECT_EQ(calls, std::vector<std::string>{"draw:b"});
    manager.clearFragmentables();
    calls.clear();
    paint();
    EXPECT_TRUE(calls.empty());
}

TEST(DrawersManager, MayGoBeforeTheCanvas) {
    calls.clear();
    FragmentsDrawArea area;
    test::allocate(area, 20, 10);
    const Zel::Series series;
    {
        DrawersManager manager(area);
        manager.addDrawer(std::make_unique<Layer>("layer"), DrawerPosition::End);
        manager.addDrawer(std::make_unique<Spoiler>("draw"));
        manager.addFragmentable(series);
    }
    area.on_draw(Cairo::Context::create(test::makeSurface(20, 10)));
    EXPECT_TRUE(calls.empty());
}
