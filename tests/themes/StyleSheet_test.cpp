// The ready-made theme has a rule for every style class that the library names, and its files are all there.
#include <gtest/gtest.h>
#include <gtkmm.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

std::string read(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// Adds what the first group of the expression finds in the text.
void collect(const std::string& text, const char* expression, std::set<std::string>& found) {
    const auto regex = Glib::Regex::create(expression, Glib::REGEX_MULTILINE);
    Glib::MatchInfo match;
    for (regex->match(text, match); match.matches(); match.next())
        found.insert(match.fetch(1));
}

/// The names that the sources give to widgets: where a class is added, and in constants and lists of classes.
std::set<std::string> namesInSources() {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(LIBRARY_SOURCES)) {
        if (entry.path().extension() != ".cpp")
            continue;
        const std::string text = read(entry.path());
        collect(text, R"(add_class\([^;"]*"([^"]+)") ", names);
            collect(text, R"(add_class\([^;]*: "([^"]+)") ", names);
            collect(text, R"((?:Class|Style|CLASS)\w* = "([^"]+)") ", names);
            collect(text, R"(ActionView\("([^"]+)") ", names);
            // Lists such as {"a", "b"} whose elements become classes.
            std::set<std::string>
                lists;
        collect(text, R"(styleClass : \{([^}]*)\})", lists);
        for (const std::string& list : lists)
            collect(list, R"("([^"]+)") ", names);
    }
    return names;
}

std::set<std::string> namesInSheet() {
    std::set<std::string> names;
    collect(read(fs::path(THEMES) / "style.css"), R"(\.([A-Za-z][\w-]*))", names);
    return names;
}

} // namespace

TEST(StyleSheet, HasARuleForEachClassThatTheLibraryNames) {
    const std::set<std::string> named = namesInSources();
    // Some of each way in which the sources name them.
    for (const char* const name :
         {"panelTabs", "btnUnMax", "btnMax", "demoboxPanel", "stateErrorContainer", "readonly-collapsed",
          "ToolAddButtonTransparent", "PagedContentView", "legend"})
        EXPECT_EQ(named.count(name), 1u) << name << " isn't found in the sources";
    const std::set<std::string> ruled = namesInSheet();
    for (const std::string& name : named)
        EXPECT_EQ(ruled.count(name), 1u) << "style.css has no rule for " << name;
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
    std::set<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(LIBRARY_SOURCES))
        if (entry.path().extension() == ".cpp")
            collect(read(entry.path()), R"#("(Icons/[^"]+)")#", files);
    EXPECT_GE(files.size(), 4u);
    for (const std::string& file : files) {
        Glib::RefPtr<Gdk::Pixbuf> picture;
        EXPECT_NO_THROW(picture = Gdk::Pixbuf::create_from_file(std::string(THEMES) + "/" + file)) << file;
        EXPECT_TRUE(picture && picture->get_width() >= 16) << file;
    }
}
