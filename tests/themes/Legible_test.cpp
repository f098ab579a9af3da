// The texts of the library's widgets can be read with the ready-made theme, whatever GTK's theme and the size
// of the text, and what plots paint takes nothing from it.
#include "support/Hands.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"
#include "themes/Legibility.h"

#include <ZelCommonView/collections/PagedContentView.h>
#include <ZelCommonView/collections/SelectionManagerView.h>
#include <ZelCommonView/collections/SelectionView.h>
#include <ZelCommonView/collections/TableCellView.h>
#include <ZelCommonView/collections/VirtualizationListView.h>
#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/containers/ResultStateView.h>
#include <ZelCommonView/diagrams/StyleZoomHelper.h>
#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/dialogs/WaitingDialog.h>
#include <ZelCommonView/oscillogram/SeriesGroupDrawArea.h>
#include <ZelCommonView/plot/CoordsDrawer.h>
#include <ZelCommonView/plot/SeriesDrawer.h>
#include <ZelCommonView/windows/PanelManagerPresenter.h>
#include <ZelCommonView/windows/Window.h>

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace {

/// A label as the content of views.
struct Note : Gtk::Label, Zel::IView {
    Note() : Gtk::Label("Note") {}
};

/// One of each kind of widget that the theme gives colours to and that stands in a window.
struct Samples : Gtk::Box {
    Samples() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 4) {
        header.setHeader(true);
        cell.setHeader(false);
        for (Zel::TableCellView* const view : {&header, &cell})
            view->setTitle("Voltage");
        plain.setContent(&plainNote);
        selected.setContent(&selectedNote);
        items.add(plain);
        items.add(selected);
        manager.add(items);
        pages.addPage("Page");
        pages.setPageContent(0, &pageNote);
        unknown.setText("unknown");
        good.setText("good");
        good.setIsValid(true);
        bad.setText("bad");
        bad.setIsValid(false);
        bad.setExtendedText("why");
        unknown.setIsValid({});
        about.setProgramName("Program");
        for (Gtk::Widget* const widget :
             std::initializer_list<Gtk::Widget*>{&header, &cell, &manager, &pages, &good, &bad, &unknown,
                                                 &about, &dynamic_cast<Gtk::Widget&>(*panels.getView())})
            pack_start(*widget, Gtk::PACK_SHRINK);
        auto* const panel = panels.newPanel("Panel", Zel::Positions::Left, panelNote, nullptr);
        auto* const other = panels.newPanel("In tabs", Zel::Positions::Center, otherNote, panel);
        for (Zel::IPanelView* const each : {panel, other}) {
            each->setProperties(true, true);
            dynamic_cast<Gtk::Widget&>(*each).show_all();
        }
        show_all();
    }

    Zel::TableCellView header;
    Zel::TableCellView cell;
    Note plainNote;
    Note selectedNote;
    Note pageNote;
    Note panelNote;
    Note otherNote;
    Zel::SelectionView plain{true};
    Zel::SelectionView selected{true};
    Gtk::Box items{Gtk::ORIENTATION_VERTICAL};
    Zel::SelectionManagerView manager;
    Zel::PagedContentView pages;
    Zel::ResultStateView unknown;
    Zel::ResultStateView good;
    Zel::ResultStateView bad;
    Zel::AboutView about;
    Zel::PanelManagerPresenter panels;
};

/// The theme's sheet for the whole screen as long as it lives, above the size of the text as in `Style`.
struct Sheet {
    Sheet() {
        provider->load_from_path(std::string(THEMES) + "/style.css");
        Gtk::StyleContext::add_provider_for_screen(screen, provider, 1000);
    }

    ~Sheet() { Gtk::StyleContext::remove_provider_for_screen(screen, provider); }

    Glib::RefPtr<Gtk::CssProvider> provider = Gtk::CssProvider::create();
    Glib::RefPtr<Gdk::Screen> screen = Gdk::Screen::get_default();
};

struct ThemeTest : testing::TestWithParam<const char*> {
    ThemeTest() {
        Zel::setThemesDir(THEMES);
        test::setTheme(GetParam());
    }

    ~ThemeTest() override {
        ZelView::StyleZoomHelper::zoomDefault();
        test::setTheme("Adwaita");
    }

    Sheet sheet;

    /// Looks at the texts of every size, and last at how they stand out.
    static void expectLegible(Gtk::Window& window, const std::set<std::string>& texts) {
        for (int size : {10, 24, 16}) {
            ZelView::StyleZoomHelper::setFontSize(size);
            test::settle();
            EXPECT_EQ(test::findClipped(test::readableLabels(window)), "") << size;
        }
        const auto labels = test::readableLabels(window);
        std::set<std::string> missing = texts;
        for (const Gtk::Label* label : labels)
            missing.erase(label->get_text());
        EXPECT_EQ(missing, std::set<std::string>{}) << "not seen";
        EXPECT_EQ(test::findFaint(window, labels), "");
    }
};

} // namespace

TEST_P(ThemeTest, WidgetsAreLegible) {
    Samples samples;
    test::OffscreenHost host(samples, 700, 700);
    samples.selected.setIsSelected(true);
    ASSERT_TRUE(samples.selected.get_style_context()->has_class("Selected"));
    expectLegible(host.window, {"Voltage", "Note", "Page", "unknown", "good", "bad", "?", "Program",
                                "License agreement", "In tabs"});
}

TEST_P(ThemeTest, AWindowWithABarOfItsOwnIsLegible) {
    Zel::Window window;
    Note note;
    note.get_style_context()->add_class("StandartContent"); // as `WindowView` does
    Gtk::ToggleButton button("Pin");
    window.set_title("The title");
    window.add(note);
    window.setUserButtons(&button);
    window.show_all();
    test::settle();
    expectLegible(window, {"The title", "Pin", "Note"});
}

TEST_P(ThemeTest, AQuestionIsLegible) {
    using Zel::DialogResult;
    const auto dialog = Zel::DialogView::_createDialog(
        nullptr, "A question", "Title",
        DialogResult::Yes | DialogResult::No | DialogResult::Apply | DialogResult::Ok | DialogResult::Cancel);
    test::settle();
    expectLegible(*dialog, {"A question", "Yes", "No", "Apply", "OK", "Cancel"});
}

TEST_P(ThemeTest, AWaitingDialogIsLegible) {
    Zel::WaitingDialog dialog(nullptr, "Title", "It takes a while");
    dialog.setCancelable(true);
    dialog.show();
    test::settle();
    expectLegible(dialog, {"It takes a while", "Cancel"});
}

TEST_P(ThemeTest, RowsOfALongListAreLegible) {
    Zel::VirtualizationListView list;
    const auto context = list.get_style_context();
    const auto colorOf = [&](Gtk::StateFlags state) {
        context->set_state(state);
        return context->get_color(state);
    };
    const auto backgroundOf = [&](Gtk::StateFlags state) {
        const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_RGB24, 20, 20);
        const auto painter = Cairo::Context::create(surface);
        for (const Gtk::StateFlags each : {Gtk::STATE_FLAG_NORMAL, state}) {
            context->set_state(each);
            context->render_background(painter, 0, 0, 20, 20);
        }
        const auto pixel = test::pictureOf(surface).at(10, 10);
        Gdk::RGBA color;
        color.set_rgba(pixel[0] / 255.0, pixel[1] / 255.0, pixel[2] / 255.0);
        return color;
    };
    const Gdk::RGBA usual = backgroundOf(Gtk::STATE_FLAG_NORMAL);
    const Gdk::RGBA selected = backgroundOf(Gtk::STATE_FLAG_SELECTED);
    EXPECT_GE(test::contrastOf(colorOf(Gtk::STATE_FLAG_NORMAL), usual), test::enoughContrast);
    EXPECT_GE(test::contrastOf(colorOf(Gtk::STATE_FLAG_SELECTED), selected), test::enoughContrast);
    EXPECT_FALSE(usual == selected) << "the selected row doesn't stand out";
}

INSTANTIATE_TEST_SUITE_P(Themes, ThemeTest,
                         testing::Values("Adwaita", "Adwaita:dark", "HighContrast", "HighContrastInverse"),
                         [](const auto& test) {
                             std::string name = test.param;
                             name.erase(std::remove(name.begin(), name.end(), ':'), name.end());
                             return name;
                         });

TEST(Contrast, IsThatOfTheGuidelines) {
    const Gdk::RGBA black("#000000");
    const Gdk::RGBA white("#ffffff");
    EXPECT_NEAR(test::contrastOf(black, white), 21, 1e-9);
    EXPECT_NEAR(test::contrastOf(white, black), 21, 1e-9);
    EXPECT_NEAR(test::contrastOf(white, white), 1, 1e-9);
    // The lightest grey that is enough on white, and the next one.
    EXPECT_GE(test::contrastOf(Gdk::RGBA("#767676"), white), test::enoughContrast);
    EXPECT_LT(test::contrastOf(Gdk::RGBA("#777777"), white), test::enoughContrast);
}

TEST(Contrast, FaintAndClippedTextsAreFound) {
    Gtk::Box box(Gtk::ORIENTATION_VERTICAL);
    Gtk::Label faint("faint");
    Gtk::Label clear("clear");
    faint.get_style_context()->add_class("faint");
    const auto provider = Gtk::CssProvider::create();
    provider->load_from_data(".faint { color: #999999; background-color: #bbbbbb; }");
    faint.get_style_context()->add_provider(provider, 2000);
    box.add(faint);
    box.add(clear);
    test::OffscreenHost host(box, 200, 100);
    test::settle();
    const auto labels = test::readableLabels(host.window);
    EXPECT_EQ(labels.size(), 2u);
    EXPECT_EQ(test::findClipped(labels), "");
    // Less than it asks for, as by a fixed size.
    Gtk::Allocation allocation = clear.get_allocation();
    allocation.set_height(4);
    clear.size_allocate(allocation);
    EXPECT_EQ(test::findClipped(labels), "\"clear\" goes beyond its gtkmm__GtkLabel\n");
    const std::string found = test::findFaint(host.window, labels);
    EXPECT_EQ(found.find("\"faint\" has 1.4"), 0u) << found;
    EXPECT_EQ(found.find("clear"), std::string::npos);
}

TEST(Plot, IsPaintedTheSameWithAndWithoutTheTheme) {
    Zel::setThemesDir(THEMES);
    Zel::Series series;
    series.name = "Signal";
    series.color = {200, 60, 20, 255};
    for (int i = 0; i <= 200; ++i)
        series.points.push_back({static_cast<float>(i) / 20, std::sin(static_cast<float>(i) / 10)});
    const auto picture = [&series] {
        ZelView::SeriesGroupDrawArea plot;
        plot.addDrawer(std::make_unique<ZelView::CoordsDrawer>(), ZelView::DrawerPosition::BeforeFragments);
        plot.addDrawer(std::make_unique<ZelView::AnalogSeriesDrawer>());
        plot.addBorderable(series);
        plot.addFragmentable(series);
        test::OffscreenHost host(plot, 500, 300);
        test::TemporaryFolder folder;
        const std::string path = folder.path / "plot.png";
        host.picture();
        // The canvas alone: the legend beside it is a widget like others.
        plot.getFragmensDrawArea().saveSummaryImage(path, "png");
        return test::pictureOfFile(path);
    };
    const test::Picture before = picture();
    EXPECT_GT(before.countPainted(), 1000);
    const Sheet sheet;
    for (const char* const theme : {"Adwaita", "Adwaita:dark"}) {
        test::setTheme(theme);
        test::expectSame(picture(), before);
    }
    test::setTheme("Adwaita");
}
