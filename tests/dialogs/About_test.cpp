#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/common/ErrBuf.h>
#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/dialogs/AboutView.h>
#include <ZelCommonView/dialogs/AboutWindowActivatorPresenter.h>
#include <ZelCommonView/dialogs/AboutWords.h>
#include <ZelCommonView/dialogs/HelpView.h>
#include <ZelCommonView/dialogs/ShellDescriptor.h>
#include <ZelCommonView/windows/WindowPresenter.h>

#include "support/Answer.h"
#include "support/Finalised.h"
#include "support/Hands.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <csignal>
#include <memory>

namespace {

using namespace Zel;
namespace fs = std::filesystem;
namespace Words = lng::View::About;

const AboutContacts contacts{"https://example.org", "mail@example.org", "+0 000 000",
                             "https://example.org/entry"};

/// With the desktop's opener replaced by one that notes what it was given.
class AboutTest : public testing::Test {
protected:
    AboutTest() {
        test::writeFile(folder.path / "xdg-open", "#!/bin/sh\nprintf '%s\\n' \"$1\" >>\"$ZEL_TEST_LOG\"\n");
        fs::permissions(folder.path / "xdg-open", fs::perms::owner_all);
        setAboutContacts(contacts);
    }

    ~AboutTest() override {
        lng::language = 0;
        setAboutContacts({});
    }

    std::string opened() const { return test::readFile(log); }

    test::TemporaryFolder folder;
    fs::path log = folder.path / "log";
    test::EnvironmentVariable path{"PATH", folder.path.string() + ":" + std::getenv("PATH")};
    test::EnvironmentVariable logName{"ZEL_TEST_LOG", log.string()};
};

std::vector<Gtk::Widget*> childrenOf(Gtk::Container& container) {
    return container.get_children();
}

} // namespace

TEST_F(AboutTest, HasItsWordsInBothLanguages) {
    const std::tuple<const char* (*)(), std::string, std::string> words[] = {
        {Words::about, "About", "О программе"},
        {Words::version, "Version:", "Версия:"},
        {Words::site, "Site:", "Сайт:"},
        {Words::email, "e-mail:", "e-mail:"},
        {Words::phone, "Phone:", "Телефон:"},
        {Words::registry, "Software registry", "Реестр программного обеспечения"},
        {Words::eula, "License agreement", "Лицензионное соглашение"},
        {Words::thirdParty, "Third party components", "Компоненты третьих сторон"},
        {Words::organizationValue, "SPE «Quilver»", "ООО «НПП «Квилвер»"},
        {Words::siteValue, contacts.site, contacts.site},
        {Words::emailValue, contacts.email, contacts.email},
        {Words::emailUri, "mailto:" + contacts.email, "mailto:" + contacts.email},
        {Words::phoneValue, contacts.phone, contacts.phone}};
    for (const auto& [word, english, russian] : words) {
        lng::language = 0;
        EXPECT_EQ(word(), english);
        lng::language = 1;
        EXPECT_EQ(word(), russian);
    }
}

TEST_F(AboutTest, ShowsIconProgramContactsAndLinksFromTopToBottom) {
    AboutView view;
    EXPECT_EQ(view.get_child(), &view.outer);
    EXPECT_EQ(childrenOf(view.outer), (std::vector<Gtk::Widget*>{&view.icon, &view.column}));
    EXPECT_EQ(childrenOf(view.column),
              (std::vector<Gtk::Widget*>{&view.programName, &view.versionRow, &view.spacer1, &view.siteRow,
                                         &view.emailRow, &view.phoneRow, &view.organization, &view.spacer2,
                                         &view.registryLink, &view.eulaLink, &view.thirdPartyLink}));
    EXPECT_EQ(childrenOf(view.versionRow),
              (std::vector<Gtk::Widget*>{&view.versionCaption, &view.versionValue}));
    EXPECT_EQ(childrenOf(view.siteRow), (std::vector<Gtk::Widget*>{&view.siteCaption, &view.siteLink}));
    EXPECT_EQ(childrenOf(view.emailRow), (std::vector<Gtk::Widget*>{&view.emailCaption, &view.emailLink}));
    EXPECT_EQ(childrenOf(view.phoneRow), (std::vector<Gtk::Widget*>{&view.phoneCaption, &view.phoneValue}));
    for (const char* const style : {"aboutView", "standartContentMargin"})
        EXPECT_TRUE(view.get_style_context()->has_class(style));
    EXPECT_TRUE(view.icon.get_style_context()->has_class("icon"));
    EXPECT_EQ(view.icon.get_valign(), Gtk::ALIGN_START);
    EXPECT_EQ(view.icon.get_pixbuf()->get_width(), 32);
    EXPECT_EQ(view.icon.get_pixbuf()->get_height(), 32);
    for (Gtk::Label* const caption :
         {&view.versionCaption, &view.siteCaption, &view.emailCaption, &view.phoneCaption})
        EXPECT_TRUE(caption->get_style_context()->has_class("recordValueMargin"));
    for (Gtk::Widget* const part : std::initializer_list<Gtk::Widget*>{
             &view.programName, &view.siteLink, &view.emailLink, &view.organization, &view.registryLink,
             &view.eulaLink, &view.thirdPartyLink})
        EXPECT_EQ(part->get_halign(), Gtk::ALIGN_START);
    EXPECT_EQ(view.spacer1.get_text(), " ");
    EXPECT_EQ(view.spacer2.get_text(), " ");
    EXPECT_TRUE(view.get_visible());
}

TEST_F(AboutTest, SpeaksTheLanguageAndTellsTheContacts) {
    for (const unsigned char language : {0, 1}) {
        lng::language = language;
        AboutView view;
        EXPECT_EQ(view.siteCaption.get_text(), Words::site());
        EXPECT_EQ(view.siteLink.get_label(), contacts.site);
        EXPECT_EQ(view.siteLink.get_uri(), contacts.site);
        EXPECT_EQ(view.emailCaption.get_text(), Words::email());
        EXPECT_EQ(view.emailLink.get_label(), contacts.email);
        EXPECT_EQ(view.emailLink.get_uri(), "mailto:" + contacts.email);
        EXPECT_EQ(view.phoneCaption.get_text(), Words::phone());
        EXPECT_EQ(view.phoneValue.get_text(), contacts.phone);
        EXPECT_EQ(view.organization.get_text(), Words::organizationValue());
        EXPECT_EQ(view.versionCaption.get_text(), Words::version());
        EXPECT_EQ(view.registryLink.get_label(), Words::registry());
        EXPECT_EQ(view.eulaLink.get_label(), Words::eula());
        EXPECT_EQ(view.thirdPartyLink.get_label(), Words::thirdParty());
    }
}

TEST_F(AboutTest, WhatTheApplicationHasNotSetIsHidden) {
    setAboutContacts({});
    AboutView view;
    view.show_all();
    for (Gtk::Widget* const part : std::initializer_list<Gtk::Widget*>{&view.siteRow, &view.emailRow,
                                                                       &view.phoneRow, &view.registryLink})
        EXPECT_FALSE(part->get_visible());
    EXPECT_TRUE(view.eulaLink.get_visible());
    setAboutContacts(contacts);
    AboutView complete;
    for (Gtk::Widget* const part : std::initializer_list<Gtk::Widget*>{
             &complete.siteRow, &complete.emailRow, &complete.phoneRow, &complete.registryLink})
        EXPECT_TRUE(part->get_visible());
}

TEST_F(AboutTest, TheVersionIsHiddenUntilThereIsOne) {
    AboutView view;
    view.show_all();
    EXPECT_EQ(view.versionValue.get_text(), "1.0.0.0");
    EXPECT_FALSE(view.versionCaption.get_visible());
    EXPECT_FALSE(view.versionValue.get_visible());
    view.setVersion("");
    EXPECT_FALSE(view.versionValue.get_visible());
    EXPECT_EQ(view.versionValue.get_text(), "1.0.0.0");
    view.setVersion("2.5");
    EXPECT_TRUE(view.versionCaption.get_visible());
    EXPECT_TRUE(view.versionValue.get_visible());
    EXPECT_EQ(view.versionValue.get_text(), "2.5");
    view.setProgramName("Программа");
    EXPECT_EQ(view.programName.get_text(), "Программа");
}

TEST_F(AboutTest, LinksWithoutAnAddressOfTheirOwnOpenQuietly) {
    AboutView view;
    Gtk::Window window;
    window.add(view);
    test::present(window);
    test::click(view.registryLink);
    EXPECT_TRUE(test::waitFor([this] { return opened() == contacts.registry + "\n"; }));
    test::click(view.eulaLink);
    test::click(view.thirdPartyLink);
    const std::string folderOfProgram = getZelCrossExeDir();
    EXPECT_TRUE(test::waitFor([&] {
        return opened() == contacts.registry + "\n" + folderOfProgram + "/eula.txt\n" + folderOfProgram +
                               "/thirdParty.txt\n";
    }));
}

TEST_F(AboutTest, AClickSurvivesACommandThatCannotBeRun) {
    AboutView view;
    const auto former = std::signal(SIGCHLD, SIG_IGN);
    testing::internal::CaptureStdout();
    view.eulaLink.clicked();
    std::signal(SIGCHLD, former);
    EXPECT_NE(testing::internal::GetCapturedStdout(), "");
}

TEST_F(AboutTest, AMissingIconThrows) {
    setThemesDir(folder.path.string());
    EXPECT_THROW(AboutView(), Glib::Error);
    AboutWindowActivatorPresenter presenter;
    EXPECT_THROW(presenter.show(nullptr, "name", "1"), Glib::Error);
    setThemesDir("");
    presenter.show(nullptr, "name", "1");
    EXPECT_NE(presenter.window, nullptr);
}

TEST_F(AboutTest, TheWindowOpensOnceAndAnewAfterItsEnd) {
    lng::language = 1;
    WindowControl parent;
    AboutWindowActivatorPresenter presenter;
    presenter.show(&parent, "Программа", "1.2");
    ASSERT_NE(presenter.window, nullptr);
    const auto& view = dynamic_cast<AboutView&>(*presenter.about);
    auto& window = dynamic_cast<WindowControl&>(*presenter.window->getView()->getWindowObject());
    EXPECT_EQ(window.get_title(), "О программе");
    EXPECT_TRUE(window.get_modal());
    EXPECT_EQ(window.get_transient_for(), &parent);
    EXPECT_EQ(window.get_child(), &view);
    EXPECT_EQ(view.programName.get_text(), "Программа");

    presenter.show(nullptr, "other", "3.4");
    EXPECT_EQ(view.programName.get_text(), "Программа");
    EXPECT_EQ(view.versionValue.get_text(), "1.2");

    test::Finalised finalised;
    finalised.watch(window);
    finalised.watch(dynamic_cast<AboutView&>(*presenter.about));
    test::present(window);
    test::closeByManager(window);
    EXPECT_TRUE(test::waitFor([&presenter] { return !presenter.window; }));
    EXPECT_EQ(presenter.about, nullptr);
    test::settle();
    EXPECT_TRUE(finalised.all());

    presenter.show(nullptr, "other", "");
    ASSERT_NE(presenter.about, nullptr);
    EXPECT_EQ(dynamic_cast<AboutView&>(*presenter.about).programName.get_text(), "other");
    EXPECT_FALSE(dynamic_cast<AboutView&>(*presenter.about).versionValue.get_visible());
}

TEST_F(AboutTest, MayDieWithItsWindowOpen) {
    test::Finalised finalised;
    for (int i = 0; i < 100; ++i) {
        AboutWindowActivatorPresenter presenter;
        presenter.show(nullptr, "name", "1");
        finalised.watch(dynamic_cast<WindowControl&>(*presenter.window->getView()->getWindowObject()));
        finalised.watch(dynamic_cast<AboutView&>(*presenter.about));
    }
    EXPECT_TRUE(finalised.all());
}

TEST_F(AboutTest, HelpOpensAFileBesideTheProgram) {
    HelpView help;
    help.show(nullptr, "help file.pdf");
    EXPECT_EQ(opened(), getZelCrossExeDir() + "/help file.pdf\n");
}

TEST_F(AboutTest, HelpThrowsWhereTheCommandCannotBeRun) {
    const auto former = std::signal(SIGCHLD, SIG_IGN);
    testing::internal::CaptureStdout();
    EXPECT_THROW(HelpView().show(nullptr, "help.pdf"), cross::ErrBufLastErr);
    std::signal(SIGCHLD, former);
    testing::internal::GetCapturedStdout();
}

TEST(ShellDescriptor, TellsWhatItWasGiven) {
    const ShellDescriptor descriptor("Программа", "/icons/a.svg", true);
    const IZelShellDescriptor& description = descriptor;
    EXPECT_EQ(description.name(), "Программа");
    EXPECT_EQ(description.iconPath(), "/icons/a.svg");
    EXPECT_TRUE(description.hasEmbededHardware());
}

TEST(ShellDescriptor, TheUnknownOneIsAlwaysTheSame) {
    const auto unknown = ShellDescriptor::unknown();
    EXPECT_EQ(unknown, ShellDescriptor::unknown());
    EXPECT_EQ(unknown->name(), "?");
    EXPECT_EQ(unknown->iconPath(), "");
    EXPECT_FALSE(unknown->hasEmbededHardware());
}
