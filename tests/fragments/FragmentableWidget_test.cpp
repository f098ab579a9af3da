#include "support/Hands.h"
#include "support/Pictures.h"

#include <ZelCommonView/fragments/FragmentableWidget.h>
#include <ZelCommonView/plot/Series.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using ZelView::FragmentableWidget;

Zel::Series makeSeries(const std::string& name, Zel::Color color) {
    Zel::Series series;
    series.name = name;
    series.color = color;
    return series;
}

/// The colour of the row beside its text, on a window that is green.
class Row {
public:
    explicit Row(const Zel::IFragmentable& fragmentable) : widget(fragmentable) {
        Gdk::RGBA green("#00ff00");
        host.window.override_background_color(green);
    }

    std::vector<int> color() {
        std::vector<int> channels = test::pictureOf(host.picture()).at(1, 1);
        channels.resize(3);
        return channels;
    }

    test::Picture picture() { return test::pictureOf(host.picture()); }

    FragmentableWidget widget;
    test::OffscreenHost host{widget, 120, 30};
};

using Channels = std::vector<int>;

} // namespace

TEST(FragmentableWidgetTest, ShowsTheNameWithTheStyleClassOfTheTheme) {
    const Zel::Series series = makeSeries("_U & <I>", {1, 2, 3, 255});
    FragmentableWidget row(series);
    EXPECT_EQ(&row.fragmentable, &series);
    EXPECT_EQ(row.get_child(), &row.label);
    EXPECT_EQ(row.label.get_text(), "_U & <I>");
    EXPECT_FALSE(row.label.get_use_underline());
    EXPECT_FALSE(row.label.get_use_markup());
    EXPECT_TRUE(row.label.get_style_context()->has_class("legend"));
    EXPECT_TRUE(row.get_visible());
    EXPECT_TRUE(row.label.get_visible());
    EXPECT_FALSE(row.highlighted);
    const void* const fields[] = {&row.label, &row.highlighted, &row.connections};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
    EXPECT_EQ(row.connections.connections.count(static_cast<const Zel::IFragmentable*>(&series)), 1u);
}

TEST(FragmentableWidgetTest, HasTheColourAsBackground) {
    const Zel::Series series = makeSeries("name", {10, 200, 30, 255});
    Row row(series);
    EXPECT_EQ(row.color(), (Channels{10, 200, 30}));
}

TEST(FragmentableWidgetTest, ATranslucentColourLetsTheWindowThroughUntilTheFirstChange) {
    Zel::Series series = makeSeries("name", {255, 0, 0, 51});
    Row row(series);
    const Channels blended = row.color();
    EXPECT_NEAR(blended[0], 51, 1);
    EXPECT_NEAR(blended[1], 204, 1);
    EXPECT_EQ(blended[2], 0);
    series.changed.emit();
    EXPECT_EQ(row.color(), (Channels{255, 0, 0}));
}

TEST(FragmentableWidgetTest, IsRepaintedWithANewColourAndKeepsItsText) {
    Zel::Series series = makeSeries("name", {255, 0, 0, 255});
    Row row(series);
    EXPECT_EQ(row.color(), (Channels{255, 0, 0}));
    series.color = {0, 0, 255, 10};
    series.name = "another";
    series.changed.emit();
    EXPECT_EQ(row.color(), (Channels{0, 0, 255}));
    EXPECT_EQ(row.widget.label.get_text(), "name");
    series.color = {0, 7, 255, 255};
    series.changed.emit();
    EXPECT_EQ(row.color(), (Channels{0, 7, 255}));
}

TEST(FragmentableWidgetTest, HighlightingIsNotedAndNotSeen) {
    const Zel::Series series = makeSeries("name", {200, 100, 0, 255});
    Row row(series);
    const test::Picture before = row.picture();
    row.widget.highlight();
    EXPECT_TRUE(row.widget.highlighted);
    test::expectSame(row.picture(), before);
    row.widget.unhighlight();
    EXPECT_FALSE(row.widget.highlighted);
    test::expectSame(row.picture(), before);
}

TEST(FragmentableWidgetTest, HighlightingTakesTheOpacityToo) {
    for (const bool highlights : {true, false}) {
        const Zel::Series series = makeSeries("name", {255, 0, 0, 51});
        Row row(series);
        EXPECT_NE(row.color(), (Channels{255, 0, 0}));
        if (highlights)
            row.widget.highlight();
        else
            row.widget.unhighlight();
        EXPECT_EQ(row.color(), (Channels{255, 0, 0}));
    }
}

TEST(FragmentableWidgetTest, KnowsTheMarkupOfBothStates) {
    const Zel::Series series = makeSeries("U<a>", {1, 16, 255, 10});
    const FragmentableWidget row(series);
    EXPECT_EQ(row._getHighlightedMarkup(),
              "<span underline='single' bgcolor='#000000' foreground='#ffffff'><b>U<a></b></span>");
    EXPECT_EQ(row._getNormalMarkup(), "<span underline='none' background='#0110ff0a'>U<a></span>");
}

TEST(FragmentableWidgetTest, ARowThatIsGoneHearsNoMore) {
    const Zel::Series series = makeSeries("name", {1, 2, 3, 255});
    std::make_unique<FragmentableWidget>(series).reset();
    EXPECT_TRUE(series.changed.empty());
    series.changed.emit();
}

TEST(FragmentableWidgetTest, AThousandLivesLeaveNoWidgetBehind) {
    const Zel::Series series = makeSeries("name", {1, 2, 3, 255});
    int finalised = 0;
    const auto count = [](gpointer counter, GObject*) { ++*static_cast<int*>(counter); };
    for (int i = 0; i < 1000; ++i) {
        FragmentableWidget row(series);
        g_object_weak_ref(G_OBJECT(row.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(row.label.gobj()), count, &finalised);
        g_object_weak_ref(G_OBJECT(row.label.get_style_context()->gobj()), count, &finalised);
    }
    EXPECT_EQ(finalised, 3000);
}
