#include "support/Answer.h"
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/dialogs/FileDialogPresenter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <regex>
#include <string>
#include <vector>

namespace {

using namespace Zel;
using Texts = std::vector<std::string>;

const FileDialogFilters tables{{"*.csv|*.txt", "Tables"}};
const FileDialogFilters pictures{{"*.png", "Pictures"}, {"*.csv|*.txt", "Tables"}};

class WindowAsView : public Gtk::Window, public IView {};

enum class Kind { Plain, Native };

void countFinalised(Gtk::Widget& widget, int& count) {
    g_object_weak_ref(
        G_OBJECT(widget.gobj()), [](gpointer data, GObject*) { ++*static_cast<int*>(data); }, &count);
}

Gtk::FileChooserDialog& chooserOf(Gtk::Dialog& dialog) {
    return dynamic_cast<Gtk::FileChooserDialog&>(dialog);
}

/// What both views have in common.
class FileDialogViews : public testing::TestWithParam<Kind> {
protected:
    FileDialogViews() {
        if (GetParam() == Kind::Plain)
            view = std::make_unique<FileDialogView>();
        else
            view = std::make_unique<NativeFileDialogView>();
    }

    ~FileDialogViews() override { lng::language = 0; }

    /// The word on the button that accepts.
    const char* accept(bool save) const {
        if (GetParam() == Kind::Plain)
            return lng::language == 1 ? "Применить" : "Apply";
        if (save)
            return lng::language == 1 ? "Сохранить" : "Save";
        return lng::language == 1 ? "Открыть" : "Open";
    }

    /// What comes back when a person does `act` with the dialog.
    std::string answer(const FileDialogFilters& filters, bool save,
                       const std::function<void(Gtk::Dialog&)>& act) {
        test::Answer person(act);
        return view->show(nullptr, "Choose", filters, save);
    }

    /// Types the name in the test's folder and accepts it. By key: the list of names that begin alike may
    /// cover the button, and a click would only close it.
    std::string answerByName(const FileDialogFilters& filters, const std::string& name) {
        return answer(filters, true, [&](Gtk::Dialog& dialog) {
            enterName(dialog, name);
            test::acceptByKey(dialog);
        });
    }

    void enterName(Gtk::Dialog& dialog, const std::string& name) {
        const auto shows = [&](const std::string& text) {
            const auto entries = test::findAll<Gtk::Entry>(dialog);
            return std::any_of(entries.begin(), entries.end(), [&](Gtk::Entry* entry) {
                return entry->get_mapped() && entry->get_text() == text;
            });
        };
        showFolder(dialog, folder.path.string());
        test::type(name);
        EXPECT_TRUE(test::waitFor([&] { return shows(name); }));
        test::wait(200);
    }

    static void showFolder(Gtk::Dialog& dialog, const std::string& path) {
        // Not by typing the path: each folder that Gtk offers to complete it costs it a few bytes that it
        // never releases.
        chooserOf(dialog).set_current_folder(path);
        EXPECT_TRUE(test::waitFor([&] { return chooserOf(dialog).get_current_folder() == path; }));
        test::wait(200);
    }

    std::string path(const std::string& name) const { return (folder.path / name).string(); }

    test::TemporaryFolder folder;
    std::unique_ptr<IFileDialogView> view;
};

std::string nameOf(const testing::TestParamInfo<Kind>& info) {
    return info.param == Kind::Plain ? "Plain" : "Native";
}

INSTANTIATE_TEST_SUITE_P(, FileDialogViews, testing::Values(Kind::Plain, Kind::Native), nameOf);

} // namespace

TEST_P(FileDialogViews, ANameToSaveGetsTheFirstExtension) {
    EXPECT_EQ(answerByName(tables, "a"), path("a.csv"));
}

TEST_P(FileDialogViews, ANameToSaveThatMatchesAPatternIsReturnedUnchanged) {
    EXPECT_EQ(answerByName(tables, "a.txt"), path("a.txt"));
}

TEST_P(FileDialogViews, APatternWithoutADotAddsNothing) {
    EXPECT_EQ(answerByName({{"data?", "Data"}}, "a"), path("a"));
}

TEST_P(FileDialogViews, TheFilterThatTheUserChoseDoesNotMatter) {
    const std::string name = answer(pictures, true, [&](Gtk::Dialog& dialog) {
        chooserOf(dialog).set_filter(chooserOf(dialog).list_filters().at(1));
        enterName(dialog, "a");
        test::acceptByKey(dialog);
    });
    EXPECT_EQ(name, path("a.png"));
}

TEST_P(FileDialogViews, ANameToOpenIsReturnedAsChosen) {
    test::writeFile(folder.path / "a", "");
    // Gtk lists it by the second pattern, which doesn't match the whole path: to save it would be completed.
    const FileDialogFilters filters{{"*.csv|a", "Tables"}};
    ASSERT_EQ(FileDialogHelper::isMatchPattern(path("a"), filters), false);
    const std::string name = answer(filters, false, [&](Gtk::Dialog& dialog) {
        showFolder(dialog, folder.path.string());
        chooserOf(dialog).select_filename(path("a"));
        EXPECT_TRUE(test::waitFor([&] { return chooserOf(dialog).get_filename() == path("a"); }));
        test::clickButton(dialog, accept(false));
    });
    EXPECT_EQ(name, path("a"));
}

TEST_P(FileDialogViews, WithoutFiltersChoosesAFolderAndCompletesNothing) {
    for (const bool save : {false, true}) {
        const std::string name = answer({}, save, [&](Gtk::Dialog& dialog) {
            showFolder(dialog, folder.path.string());
            test::clickButton(dialog, accept(save));
        });
        EXPECT_EQ(name, folder.path.string());
    }
}

TEST_P(FileDialogViews, ChoosesTheActionByFiltersAndSave) {
    struct Case {
        FileDialogFilters filters;
        bool save;
        Gtk::FileChooserAction action;
    };

    const Case cases[] = {{tables, true, Gtk::FILE_CHOOSER_ACTION_SAVE},
                          {tables, false, Gtk::FILE_CHOOSER_ACTION_OPEN},
                          {{}, true, Gtk::FILE_CHOOSER_ACTION_SELECT_FOLDER},
                          {{}, false, Gtk::FILE_CHOOSER_ACTION_SELECT_FOLDER}};
    for (const Case& test : cases) {
        answer(test.filters, test.save, [&](Gtk::Dialog& dialog) {
            EXPECT_EQ(chooserOf(dialog).get_action(), test.action);
            EXPECT_EQ(chooserOf(dialog).get_do_overwrite_confirmation(), test.save);
            EXPECT_EQ(dialog.get_title(), "Choose");
            EXPECT_EQ(dialog.get_transient_for(), nullptr);
            test::clickButton(dialog, "Cancel");
        });
    }
}

TEST_P(FileDialogViews, OffersTheFiltersWithTheirPatterns) {
    answer(pictures, false, [&](Gtk::Dialog& dialog) {
        const auto matches = [](const Glib::RefPtr<Gtk::FileFilter>& filter, const char* name) {
            GtkFileFilterInfo info{};
            info.contains = GTK_FILE_FILTER_DISPLAY_NAME;
            info.display_name = name;
            return gtk_file_filter_filter(filter->gobj(), &info) != 0;
        };
        const auto filters = chooserOf(dialog).list_filters();
        EXPECT_EQ(filters.size(), 2u);
        if (filters.size() == 2) {
            EXPECT_EQ(filters[0]->get_name(), "Pictures");
            EXPECT_TRUE(matches(filters[0], "a.png"));
            EXPECT_FALSE(matches(filters[0], "a.csv"));
            EXPECT_EQ(filters[1]->get_name(), "Tables");
            EXPECT_TRUE(matches(filters[1], "a.csv"));
            EXPECT_TRUE(matches(filters[1], "a.txt"));
            EXPECT_FALSE(matches(filters[1], "a.png"));
        }
        test::clickButton(dialog, "Cancel");
    });
}

TEST_P(FileDialogViews, ButtonsSpeakTheLanguage) {
    for (const unsigned char language : {0, 1})
        for (const bool save : {true, false}) {
            lng::language = language;
            answer(tables, save, [&](Gtk::Dialog& dialog) {
                EXPECT_NE(test::findButton(dialog, accept(save)), nullptr);
                test::clickButton(dialog, language == 1 ? "Отмена" : "Cancel");
            });
        }
}

TEST_P(FileDialogViews, ACancelReturnsNothing) {
    const auto cancel = [this](bool save, const std::function<void(Gtk::Dialog&)>& act) {
        return answer(tables, save, [&](Gtk::Dialog& dialog) {
            if (save)
                enterName(dialog, "a");
            act(dialog);
        });
    };
    EXPECT_EQ(cancel(true, [](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); }), "");
    EXPECT_EQ(cancel(true, test::closeByManager), "");
    EXPECT_EQ(cancel(false, [](Gtk::Dialog&) { test::pressKey(GDK_KEY_Escape); }), "");
}

TEST_P(FileDialogViews, ToSaveAsksBeforeAFileIsOverwritten) {
    test::writeFile(folder.path / "a.csv", "");
    std::optional<test::Answer> person;
    const std::string name = answer(tables, true, [&](Gtk::Dialog& dialog) {
        enterName(dialog, "a.csv");
        person.emplace([](Gtk::Dialog& question) { test::clickButton(question, "_Replace"); });
        test::acceptByKey(dialog);
    });
    EXPECT_TRUE(person && person->hasActed());
    EXPECT_EQ(name, path("a.csv"));
}

TEST_P(FileDialogViews, BelongsToTheWindowOfItsParent) {
    WindowAsView window;
    test::present(window);
    Gtk::Window* seen = nullptr;
    test::Answer person([&](Gtk::Dialog& dialog) {
        seen = dialog.get_transient_for();
        test::clickButton(dialog, "Cancel");
    });
    view->show(&window, "Choose", tables, true);
    EXPECT_EQ(seen, &window);
}

TEST_P(FileDialogViews, APatternThatIsNoRegularExpressionThrowsAfterTheAnswer) {
    int finalised = 0;
    const auto act = [&](Gtk::Dialog& dialog) {
        countFinalised(dialog, finalised);
        enterName(dialog, "a");
        test::acceptByKey(dialog);
    };
    EXPECT_THROW(answer({{"(*", "Broken"}}, true, act), std::regex_error);
    EXPECT_TRUE(test::findDialogs().empty());
    view.reset();
    EXPECT_EQ(finalised, 1);
}

TEST_P(FileDialogViews, LeavesNoDialogBehind) {
    int finalised = 0;
    for (int i = 1; i <= 3; ++i) {
        answer(pictures, true, [&](Gtk::Dialog& dialog) {
            countFinalised(dialog, finalised);
            test::clickButton(dialog, "Cancel");
        });
        EXPECT_TRUE(test::findDialogs().empty());
        // The plain one stays, hidden, until the next call.
        EXPECT_EQ(finalised, GetParam() == Kind::Plain ? i - 1 : i);
    }
    view.reset();
    EXPECT_EQ(finalised, 3);
}

TEST(FileDialogView, KeepsTheLastDialogHidden) {
    FileDialogView view;
    EXPECT_EQ(view.dialog, nullptr);
    test::Answer person([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
    view.show(nullptr, "Choose", tables, true);
    ASSERT_NE(view.dialog, nullptr);
    EXPECT_FALSE(view.dialog->get_visible());
}

TEST(FileDialogView, MayDieWhileItsDialogIsOpen) {
    auto view = std::make_unique<FileDialogView>();
    test::Answer person([&](Gtk::Dialog&) { view.reset(); });
    EXPECT_EQ(view->show(nullptr, "Choose", tables, true), "");
    EXPECT_EQ(view, nullptr);
}

TEST(FileDialogView, AnotherCallMayReplaceTheDialogThatIsOpen) {
    FileDialogView view;
    std::optional<std::string> inner;
    test::Answer person([&](Gtk::Dialog&) {
        test::Answer other([](Gtk::Dialog& dialog) { test::clickButton(dialog, "Cancel"); });
        inner = view.show(nullptr, "Inner", tables, true);
    });
    EXPECT_EQ(view.show(nullptr, "Outer", tables, true), "");
    EXPECT_EQ(inner, "");
    EXPECT_EQ(view.dialog->get_title(), "Inner");
}

namespace {

class NotingView : public IFileDialogView {
public:
    std::string show(IView* givenParent, const std::string& givenTitle, const FileDialogFilters& givenFilters,
                     bool givenSave) override {
        parent = givenParent;
        title = givenTitle;
        filters = givenFilters;
        save = givenSave;
        return "/chosen";
    }

    IView* parent = nullptr;
    std::string title;
    FileDialogFilters filters;
    bool save = false;
};

class NotingPresenter : public FileDialogPresenter {
public:
    std::unique_ptr<IFileDialogView> _createDefaultView() override {
        ++made;
        return std::make_unique<NotingView>();
    }

    int made = 0;
};

} // namespace

TEST(FileDialogPresenter, AsksTheDialogOfTheDesktop) {
    FileDialogPresenter presenter;
    EXPECT_NE(dynamic_cast<NativeFileDialogView*>(presenter.getView()), nullptr);
    test::Answer person([](Gtk::Dialog& dialog) {
        EXPECT_NE(test::findButton(dialog, "Save"), nullptr);
        test::clickButton(dialog, "Cancel");
    });
    EXPECT_EQ(presenter.show(nullptr, "Choose", tables, true), "");
}

TEST(FileDialogPresenter, PassesAllOnToItsViewAndKeepsIt) {
    NotingPresenter presenter;
    WindowAsView window;
    EXPECT_EQ(presenter.show(&window, "Choose", tables, true), "/chosen");
    auto& view = dynamic_cast<NotingView&>(*presenter.getView());
    EXPECT_EQ(view.parent, &window);
    EXPECT_EQ(view.title, "Choose");
    EXPECT_EQ(view.filters, tables);
    EXPECT_TRUE(view.save);
    EXPECT_EQ(presenter.show(nullptr, "Again", {}, false), "/chosen");
    EXPECT_EQ(view.title, "Again");
    EXPECT_FALSE(view.save);
    EXPECT_EQ(presenter.made, 1);
}
