// The window of the gallery, and the frame around each page.
#include "GalleryWindow.h"
#include "PageView.h"
#include "Search.h"
#include "common/Look.h"

#include "support/Hands.h"
#include "support/Pictures.h"

#include <gtest/gtest.h>

using gallery::allPages;
using gallery::GalleryWindow;
using gallery::PageView;

TEST(GalleryWindow, ShowsTheFirstPageUnlessAnotherIsNamed) {
    EXPECT_EQ(GalleryWindow("").getPageName(), allPages().front().name);
    EXPECT_EQ(GalleryWindow("words").getPageName(), "words");
}

TEST(GalleryWindow, NamesEveryPageAtTheSideInTheCurrentLanguage) {
    for (unsigned char language : {0, 1}) {
        lng::language = language;
        GalleryWindow window("");
        for (const gallery::Page& page : allPages()) {
            bool isNamed = false;
            // The rows of the sidebar are GTK's own.
            for (Gtk::Label* label : test::findAll<Gtk::Label>(window.sidebar))
                isNamed = isNamed || label->get_text() == page.titles[language];
            EXPECT_TRUE(isNamed) << page.titles[language];
        }
    }
    lng::language = 0;
}

TEST(GalleryWindow, MakesAPageWhenItIsOpened) {
    GalleryWindow window("");
    EXPECT_EQ(window.views.size(), 1u);
    const std::string first = window.getPageName();
    window.stack.set_visible_child("words");
    EXPECT_EQ(window.views.size(), 2u);
    window.stack.set_visible_child(first);
    EXPECT_EQ(window.views.size(), 2u);
    EXPECT_EQ(GalleryWindow("words").views.size(), 1u);
}

TEST(GalleryWindow, AllPagesLiveInOneWindow) {
    int finalised = 0;
    for (int i = 0; i < 5; ++i) {
        GalleryWindow window("");
        g_object_weak_ref(
            G_OBJECT(window.gobj()), [](gpointer count, GObject*) { ++*static_cast<int*>(count); },
            &finalised);
        for (const gallery::Page& page : allPages())
            window.stack.set_visible_child(page.name);
        EXPECT_EQ(window.views.size(), allPages().size());
    }
    EXPECT_EQ(finalised, 5);
}

TEST(GalleryWindow, TheBoxAtTheSideMakesAllDarkAndLightAgain) {
    examples::setDark(false);
    GalleryWindow window("words");
    EXPECT_FALSE(window.darkButton.get_active());
    window.darkButton.set_active(true);
    EXPECT_TRUE(examples::isDark());
    EXPECT_TRUE(GalleryWindow("").darkButton.get_active()) << "a new window knows";
    window.darkButton.set_active(false);
    EXPECT_FALSE(examples::isDark());
}

TEST(GalleryWindow, TheButtonAtTheSideChangesTheLanguageOfAll) {
    lng::language = 0;
    GalleryWindow window("");
    window.stack.set_visible_child("words");
    window.show();
    test::settle();
    for (unsigned char language : {1, 0}) {
        window.languageButton.clicked();
        test::settle();
        EXPECT_EQ(lng::language, language);
        EXPECT_EQ(window.get_title(), language == 0 ? "Gallery of widgets" : "Галерея виджетов");
        EXPECT_EQ(window.languageButton.get_label(), language == 0 ? "Русский" : "English");
        EXPECT_EQ(window.getPageName(), "words") << "the same page stays open";
        EXPECT_EQ(window.views.size(), 1u) << "the other pages are made when they are opened";
        EXPECT_EQ(window.views.back().title.get_text(), gallery::findPage("words")->titles[language]);
        EXPECT_TRUE(window.views.back().get_mapped());
        for (const gallery::Page& page : allPages()) {
            bool isNamed = false;
            for (Gtk::Label* label : test::findAll<Gtk::Label>(window.sidebar))
                isNamed = isNamed || label->get_text() == page.titles[language];
            EXPECT_TRUE(isNamed) << page.titles[language];
        }
    }
}

TEST(PageView, ShowsThePageUntilItsSourceIsAskedFor) {
    PageView view(allPages().front());
    test::OffscreenHost host(view, 800, 500);
    EXPECT_TRUE(view.getContent().get_child_visible());
    const test::Picture before = test::pictureOf(host.picture());

    view.sourceButton.set_active(true);
    const test::Picture shown = test::pictureOf(host.picture());
    EXPECT_FALSE(view.getContent().get_mapped());
    EXPECT_TRUE(view.source.get_mapped());
    EXPECT_FALSE(shown == before);

    view.sourceButton.set_active(false);
    test::settle();
    EXPECT_TRUE(view.getContent().get_mapped());
    EXPECT_FALSE(view.source.get_mapped());
}

TEST(PageView, ShowsTheWholeSourceOfEachPageAndNobodyCanEditIt) {
    for (const gallery::Page& page : allPages()) {
        PageView view(page);
        EXPECT_EQ(view.source.get_buffer()->get_text().raw(), page.source) << page.name;
        EXPECT_FALSE(view.source.get_editable());
    }
}
