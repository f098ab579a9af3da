// The ready-made theme has a rule for every style class that the library names, and its files are all there.
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <cmath>
#include <filesystem>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

/// Every style class that the widgets of the library carry, and the three by which an application steers
/// reading only.
const Names allClasses{
    // windows
    "StandartContent", "btnClose", "btnMax", "btnMin", "btnToWindow", "btnUnMax", "demoboxPanel",
    "headerButtons", "logo", "panel", "panelManager", "panelTabs", "title", "windowIcon", "windowTitlebar",
    // dialogs
    "DialogMessage", "DialogView", "aboutView", "dialogButton", "icon", "recordValueMargin",
    "standartContentMargin", "textAreaPadding",
    // actions and entries
    "ActionView", "DateEntryCalendar", "ToolAddButtonTransparent", "ToolRemoveButtonTransparent",
    // collections
    "CollectionView", "EmptyView", "PagedContentView", "Selected", "SelectionContent", "SelectionFrame",
    "SelectionManagerView", "SelectionView", "TableHeaderCellView", "VirtualizationListView", "leftMarginM1",
    "standartSmallContentMargin", "table", "tableScrolledCell", "tableScrolledHeaderCell", "topMarginM1",
    // containers
    "ArrowDownImage", "ArrowRightImage", "ContainerView", "ExpandArea", "ExpandAreaContainer",
    "ExtendedCheckView", "RoundFrame", "empty", "readonly-collapsed", "readonly-exempt",
    "readonly-interactive", "stateErrorContainer", "stateOkContainer", "stateUndefinedContainer",
    // plots
    "legend", "oscButton"};

/// Adds what the first group of the expression finds in the text.
void collect(const std::string& text, const char* expression, Names& found) {
    const auto regex = Glib::Regex::create(expression);
    const Glib::ustring subject = text; // the matches point into it
    Glib::MatchInfo match;
    for (regex->match(subject, match); match.matches(); match.next())
        found.insert(match.fetch(1));
}

/// All sources and headers of the library, one after another.
std::string librarySources() {
    std::string text;
    for (const auto& entry : fs::recursive_directory_iterator(LIBRARY_SOURCES))
        if (entry.path().extension() == ".cpp" || entry.path().extension() == ".h")
            text += test::readFile(entry.path());
    return text;
}

const char* const quoted = R"#("([^"]+)")#";

/// The names that the sources give to widgets: where a class is added, and in constants and lists of classes.
Names namesIn(const std::string& sources) {
    Names names;
    Names additions;
    collect(sources, R"#(add_class\(([^;]*)\);)#", additions);
    for (const std::string& addition : additions)
        collect(addition, quoted, names);
    collect(sources, R"#(\w*(?:Class|Style|_CLASS) = "([^"]+)")#", names);
    collect(sources, R"#(BaseActionView\("([^"]+)"\))#", names);
    Names lists;
    collect(sources, R"#(styleClass : \{([^}]*)\})#", lists);
    for (const std::string& list : lists)
        collect(list, quoted, names);
    return names;
}

/// The classes in the selectors, without comments and declarations.
Names namesInSheet() {
    std::string text = test::readFile(fs::path(THEMES) / "style.css");
    text = Glib::Regex::create(R"#(/\*.*?\*/)#", Glib::REGEX_DOTALL)
               ->replace(text, 0, "", static_cast<Glib::RegexMatchFlags>(0));
    text = Glib::Regex::create(R"#(\{[^}]*\})#")->replace(text, 0, "", static_cast<Glib::RegexMatchFlags>(0));
    Names names;
    collect(text, R"#(\.([A-Za-z][\w-]*))#", names);
    return names;
}

Names difference(const Names& all, const Names& part) {
    Names rest = all;
    for (const std::string& name : part)
        rest.erase(name);
    return rest;
}

/// How many pixels of a picture stand out from a background of one brightness, 0 to 255, by 80 and more.
int countVisible(const Glib::RefPtr<Gdk::Pixbuf>& picture, int background) {
    int count = 0;
    for (int y = 0; y < picture->get_height(); ++y)
        for (int x = 0; x < picture->get_width(); ++x) {
            const guint8* const pixel =
                picture->get_pixels() + y * picture->get_rowstride() + x * picture->get_n_channels();
            const double alpha = picture->get_has_alpha() ? pixel[3] / 255.0 : 1.0;
            const double brightness = 0.2126 * pixel[0] + 0.7152 * pixel[1] + 0.0722 * pixel[2];
            if (alpha * std::fabs(brightness - background) >= 80)
                ++count;
        }
    return count;
}

} // namespace

TEST(StyleSheet, TheSourcesNameTheKnownClassesAndNoOthers) {
    const Names named = namesIn(librarySources());
    EXPECT_EQ(difference(named, allClasses), Names{}) << "a new class needs a rule and a place in this list";
    EXPECT_EQ(difference(allClasses, named), Names{}) << "not found in the sources any more";
}

TEST(StyleSheet, NoClassIsAddedInAWayThatIsNotSeenHere) {
    Names arguments;
    collect(librarySources(), R"#(add_class\(([^;"]*)\);)#", arguments);
    // A parameter, a constant or an element of a list, which are looked for by their own forms.
    const Names known{"styleClass", "captionStyle", "panelStyle", "undefinedClass",
                      "isValid.value ? okClass : errorClass"};
    EXPECT_EQ(arguments, known);
}

TEST(StyleSheet, HasARuleForEachClassThatTheLibraryNames) {
    EXPECT_EQ(difference(allClasses, namesInSheet()), Names{});
}

TEST(StyleSheet, HasNoRuleForAClassThatNobodyCarries) {
    // GTK itself gives this one.
    EXPECT_EQ(difference(namesInSheet(), allClasses), Names{"link"});
}

TEST(StyleSheet, LeavesTheSizeOfTheTextToTheUser) {
    EXPECT_EQ(test::readFile(fs::path(THEMES) / "style.css").find("font-size"), std::string::npos);
}

TEST(StyleSheet, IsReadByGtkWithoutAComplaint) {
    const auto provider = Gtk::CssProvider::create();
    std::string complaints;
    provider->signal_parsing_error().connect(
        [&complaints](const Glib::RefPtr<const Gtk::CssSection>& section, const Glib::Error& error) {
            complaints += std::to_string(section->get_start_line() + 1) + ": " + error.what() + "\n";
        });
    EXPECT_NO_THROW(provider->load_from_path(std::string(THEMES) + "/style.css"));
    EXPECT_EQ(complaints, "");
}

TEST(Theme, HasEachPictureThatTheLibraryLoads) {
    Names files;
    collect(librarySources(), R"#("(Icons/[^"]+)")#", files);
    EXPECT_EQ(files, (Names{"Icons/Button/Remove.png", "Icons/Misc/refresh.svg", "Icons/Misc/window.svg",
                            "Icons/Shell/Параметры.svg"}));
    for (const std::string& file : files) {
        Glib::RefPtr<Gdk::Pixbuf> picture;
        EXPECT_NO_THROW(picture = Gdk::Pixbuf::create_from_file(std::string(THEMES) + "/" + file)) << file;
        EXPECT_TRUE(picture && picture->get_width() >= 16 && picture->get_height() >= 16) << file;
    }
}

TEST(Theme, PicturesAreSeenOnWhiteAndOnDark) {
    constexpr int dark = 0x2d;
    for (const char* const file : {"Icons/Button/Remove.png", "Icons/Misc/refresh.svg",
                                   "Icons/Misc/window.svg", "Icons/Shell/Параметры.svg"}) {
        const auto picture = Gdk::Pixbuf::create_from_file(std::string(THEMES) + "/" + file);
        const int enough = picture->get_width() * picture->get_height() / 20;
        EXPECT_GE(countVisible(picture, 255), enough) << file << " on white";
        EXPECT_GE(countVisible(picture, dark), enough) << file << " on dark";
    }
}
