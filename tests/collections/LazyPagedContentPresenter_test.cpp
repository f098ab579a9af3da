#include <ZelCommonView/collections/LazyPagedContentPresenter.h>
#include <ZelCommonView/collections/PagedContentView.h>

#include "support/Finalised.h"
#include "support/Hands.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <functional>
#include <memory>
#include <stdexcept>

namespace {

using namespace Zel;

class EntryAsView : public Gtk::Entry, public IView {};

class NoWidget : public IView {};

class PagePresenter : public IPresenter {
public:
    IView* getView() override { return &entry; }

    EntryAsView entry;
};

class ViewlessPresenter : public IPresenter {
public:
    IView* getView() override { return nullptr; }
};

class LazyPagesTest : public testing::Test {
protected:
    /// Adds a page whose factory notes that it ran.
    int add(const std::string& title) {
        return pages->addPage(title, [this, title]() -> std::unique_ptr<IPresenter> {
            made.push_back(title);
            auto presenter = std::make_unique<PagePresenter>();
            entries[title] = &presenter->entry;
            return presenter;
        });
    }

    PagedContentView& view() { return dynamic_cast<PagedContentView&>(*pages->getView()); }

    /// What the box of a page holds; null if nothing.
    Gtk::Widget* contentOf(int page) {
        const auto children = dynamic_cast<Gtk::Container&>(*view().get_nth_page(page)).get_children();
        EXPECT_LE(children.size(), 1u);
        return children.empty() ? nullptr : children.front();
    }

    std::vector<std::string> made;
    std::map<std::string, Gtk::Entry*> entries;
    std::unique_ptr<LazyPagedContentPresenter> pages = std::make_unique<LazyPagedContentPresenter>();
};

using Names = std::vector<std::string>;

} // namespace

TEST(PagedContentView, IsANotebookThatTakesTheRoom) {
    PagedContentView view;
    for (const char* const name : {"PagedContentView", "standartSmallContentMargin", "panelTabs"})
        EXPECT_TRUE(view.get_style_context()->has_class(name)) << name;
    EXPECT_TRUE(view.get_hexpand());
    EXPECT_TRUE(view.get_vexpand());
    EXPECT_TRUE(view.get_visible());
}

TEST(PagedContentView, ItsPagesAreVisibleBoxes) {
    PagedContentView view;
    view.addPage("_title");
    auto* const page = dynamic_cast<Gtk::Box*>(view.get_nth_page(0));
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(page->get_orientation(), Gtk::ORIENTATION_VERTICAL);
    EXPECT_FALSE(page->get_homogeneous());
    EXPECT_EQ(page->get_spacing(), 0);
    EXPECT_TRUE(page->get_hexpand());
    EXPECT_TRUE(page->get_vexpand());
    EXPECT_TRUE(page->get_visible());
    EXPECT_EQ(view.get_tab_label_text(*page), "_title");
}

TEST(PagedContentView, ReportsOnlyRealSwitches) {
    PagedContentView view;
    std::vector<int> switches;
    view.signalPageSwitched().connect([&switches](int page) { switches.push_back(page); });
    view.addPage("a");
    view.addPage("b");
    view.addPage("c");
    EXPECT_EQ(switches, std::vector<int>{0});
    view.set_current_page(2);
    view.set_current_page(2);
    view.set_current_page(1);
    EXPECT_EQ(switches, (std::vector<int>{0, 2, 1}));
}

TEST(PagedContentView, SwapsTheContentOfAPage) {
    PagedContentView view;
    view.addPage("a");
    EntryAsView first;
    EntryAsView second;
    NoWidget noWidget;
    view.setPageContent(0, &first);
    auto& box = dynamic_cast<Gtk::Box&>(*view.get_nth_page(0));
    EXPECT_EQ(box.get_children(), std::vector<Gtk::Widget*>{&first});
    EXPECT_TRUE(first.get_visible());
    view.setPageContent(0, &second);
    EXPECT_EQ(box.get_children(), std::vector<Gtk::Widget*>{&second});
    EXPECT_EQ(first.get_parent(), nullptr);
    view.setPageContent(0, &noWidget);
    EXPECT_TRUE(box.get_children().empty());
    view.setPageContent(0, &first);
    view.setPageContent(0, nullptr);
    EXPECT_TRUE(box.get_children().empty());
    view.setPageContent(7, &first);
    view.setIsPageVisible(7, false);
    EXPECT_EQ(first.get_parent(), nullptr);
}

TEST(PagedContentView, AHiddenPageStaysHiddenInAShowAll) {
    PagedContentView view;
    view.addPage("a");
    view.addPage("b");
    view.setIsPageVisible(1, false);
    view.show_all();
    EXPECT_FALSE(view.get_nth_page(1)->get_visible());
    view.setIsPageVisible(1, true);
    EXPECT_TRUE(view.get_nth_page(1)->get_visible());
    EXPECT_FALSE(view.get_nth_page(1)->get_no_show_all());
}

TEST(PagedContentView, DiesQuietlyWithManyPages) {
    test::Finalised finalised;
    int switches = 0;
    for (int i = 0; i < 300; ++i) {
        PagedContentView view;
        for (const char* const title : {"a", "b", "c"})
            view.addPage(title);
        view.set_current_page(1);
        finalised.watch(view);
        view.signalPageSwitched().connect([&switches](int) { ++switches; });
    }
    EXPECT_EQ(switches, 0);
    EXPECT_TRUE(finalised.all());
}

TEST_F(LazyPagesTest, NothingIsBuiltBeforeAPersonSwitches) {
    for (const char* const title : {"a", "b", "c"})
        add(title);
    EXPECT_EQ(view().get_n_pages(), 3);
    view().show_all();
    EXPECT_EQ(made, Names());
    EXPECT_EQ(view().get_current_page(), 0);
    EXPECT_EQ(contentOf(0), nullptr);
    view().set_current_page(1);
    view().set_current_page(0);
    EXPECT_EQ(made, (Names{"b", "a"}));
    EXPECT_EQ(contentOf(0), entries["a"]);
}

TEST_F(LazyPagesTest, PagesAreBuiltOnceAndKeepTheirState) {
    for (const char* const title : {"a", "b", "c"})
        add(title);
    view().set_current_page(2);
    entries["c"]->set_text("typed");
    view().set_current_page(0);
    EXPECT_EQ(contentOf(2), nullptr);
    view().set_current_page(2);
    EXPECT_EQ(made, (Names{"c", "a"}));
    EXPECT_EQ(contentOf(2), entries["c"]);
    EXPECT_EQ(contentOf(0), nullptr);
    EXPECT_EQ(entries["c"]->get_text(), "typed");
}

TEST_F(LazyPagesTest, ThePageAddedFirstToTheViewIsBuiltAtOnce) {
    EXPECT_EQ(view().get_n_pages(), 0);
    EXPECT_EQ(add("a"), 0);
    EXPECT_EQ(made, Names{"a"});
    EXPECT_EQ(contentOf(0), entries["a"]);
    EXPECT_EQ(add("b"), 1);
    EXPECT_EQ(view().get_n_pages(), 2);
    EXPECT_EQ(made, Names{"a"});
}

TEST_F(LazyPagesTest, HidesPagesBeforeAndAfterThereIsAView) {
    for (const char* const title : {"a", "b", "c"})
        add(title);
    pages->setIsPageVisible(1, false);
    EXPECT_FALSE(view().get_nth_page(1)->get_visible());
    EXPECT_TRUE(view().get_nth_page(2)->get_visible());
    pages->setIsPageVisible(1, true);
    EXPECT_TRUE(view().get_nth_page(1)->get_visible());
    pages->setIsPageVisible(2, false);
    EXPECT_FALSE(view().get_nth_page(2)->get_visible());
    EXPECT_EQ(made, Names());
}

TEST_F(LazyPagesTest, HidingAPageThatIsNotThereIsAnError) {
    add("a");
    for (const int page : {1, -1}) {
        try {
            pages->setIsPageVisible(page, true);
            FAIL() << page;
        } catch (const std::out_of_range& error) {
            EXPECT_EQ(std::string(error.what()).find("vector<bool>::_M_range_check: __n (which is "), 0u);
            EXPECT_NE(std::string(error.what()).find(") >= this->size() (which is 1)"), std::string::npos);
        }
    }
}

TEST_F(LazyPagesTest, APageWithoutAFactoryIsAnError) {
    add("a");
    pages->addPage("b", nullptr);
    view();
    // It comes out of a signal of Gtk, so the handlers of the main loop hear of it.
    int caught = 0;
    sigc::connection handler = Glib::add_exception_handler([&caught] {
        try {
            throw;
        } catch (const std::bad_function_call&) {
            ++caught;
        }
    });
    view().set_current_page(1);
    handler.disconnect();
    EXPECT_EQ(caught, 1);
    view().set_current_page(0);
    EXPECT_EQ(contentOf(0), entries["a"]);
}

TEST_F(LazyPagesTest, APageWithoutAViewStaysEmpty) {
    int asked = 0;
    view();
    pages->addPage("viewless", [] { return std::make_unique<ViewlessPresenter>(); });
    pages->addPage("nothing", [&asked] {
        ++asked;
        return std::unique_ptr<IPresenter>();
    });
    EXPECT_EQ(contentOf(0), nullptr);
    view().set_current_page(1);
    EXPECT_EQ(contentOf(1), nullptr);
    view().set_current_page(0);
    view().set_current_page(1);
    EXPECT_EQ(asked, 2);
}

TEST_F(LazyPagesTest, AClickOnATabBuildsItsPage) {
    for (const char* const title : {"first", "second"})
        add(title);
    Gtk::Window window;
    window.set_default_size(300, 200);
    window.add(view());
    window.show_all();
    test::present(window);
    EXPECT_EQ(made, Names());
    Gtk::Widget& tab = *view().get_tab_label(*view().get_nth_page(1));
    test::click(tab);
    EXPECT_TRUE(test::waitFor([this] { return made == Names{"second"}; }));
    test::settle();
    EXPECT_TRUE(entries["second"]->get_mapped());
}

TEST_F(LazyPagesTest, AThousandOfThemLeaveNothing) {
    test::Finalised finalised;
    for (int i = 0; i < 1000; ++i) {
        pages = std::make_unique<LazyPagedContentPresenter>();
        add("a");
        add("b");
        view().set_current_page(1);
        finalised.watch(view());
        finalised.watch(*entries["b"]);
    }
    pages.reset();
    EXPECT_TRUE(finalised.all());
}
