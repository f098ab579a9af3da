// The pages of the documentation among themselves: every family of the gallery has its page, no link leads
// nowhere, no block of C++ escapes the compiler, and every diagram belongs to its source.
#include "support/TemporaryFolder.h"
#include "support/Texts.h"

#include <gtest/gtest.h>

#include <glib.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const fs::path root = ROOT;

/// All pages of the project that are its own.
std::vector<fs::path> allPages() {
    std::vector<fs::path> pages;
    for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
        const std::string name = entry->path().filename();
        if (entry->is_directory() && (name == "build" || name == "out" || name == ".git"))
            entry.disable_recursion_pending();
        else if (entry->path().extension() == ".md")
            pages.push_back(entry->path());
    }
    return pages;
}

std::string nameOf(const fs::path& page) {
    return fs::relative(page, root);
}

/// The page without its blocks of code.
std::string withoutBlocks(const std::string& text) {
    std::istringstream stream(text);
    std::string kept;
    bool isInBlock = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.rfind("```", 0) == 0)
            isInBlock = !isInBlock;
        else if (!isInBlock)
            kept += line + "\n";
    }
    return kept;
}

/// What the sign of a title becomes in an address: small letters, digits and hyphens.
std::string anchorOf(const std::string& title) {
    std::string anchor;
    for (const char c : title) {
        if (c == ' ')
            anchor += '-';
        else if (std::isalnum(static_cast<unsigned char>(c)) || c == '-' || c == '_')
            anchor += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return anchor;
}

std::set<std::string> anchorsOf(const fs::path& page) {
    std::set<std::string> anchors;
    std::istringstream stream(withoutBlocks(test::readFile(page)));
    for (std::string line; std::getline(stream, line);)
        if (line[0] == '#')
            anchors.insert(anchorOf(line.substr(line.find(' ') + 1)));
    return anchors;
}

/// The pages of the gallery in their order.
std::vector<std::string> galleryPages() {
    std::istringstream stream(test::outputOf(std::string("DISPLAY= '") + GALLERY + "' --list"));
    std::vector<std::string> names;
    for (std::string line; std::getline(stream, line);)
        names.push_back(line.substr(0, line.find('\t')));
    return names;
}

std::string sha256(const std::string& text) {
    gchar* const sum = g_compute_checksum_for_string(G_CHECKSUM_SHA256, text.c_str(), -1);
    const std::string result = sum;
    g_free(sum);
    return result;
}

} // namespace

TEST(Pages, HaveNoDeadLink) {
    int count = 0;
    for (const fs::path& page : allPages()) {
        const std::string text = withoutBlocks(test::readFile(page));
        for (const std::string& link : test::groupsIn(text, R"(\]\(([^)\s]+)\))")) {
            if (link.find("://") != std::string::npos || link.rfind("mailto:", 0) == 0)
                continue;
            ++count;
            const std::string::size_type hash = link.find('#');
            const fs::path target = hash == 0 ? page : page.parent_path() / link.substr(0, hash);
            EXPECT_TRUE(fs::exists(target)) << nameOf(page) << " links to " << link;
            if (hash == std::string::npos || target.extension() != ".md")
                continue;
            EXPECT_EQ(anchorsOf(target).count(link.substr(hash + 1)), 1u)
                << nameOf(page) << " links to " << link;
        }
    }
    EXPECT_GT(count, 100) << "the links aren't found";
}

TEST(Pages, ShowNoCodeThatIsNotCompiled) {
    const std::set<std::string> languages{"cpp", "sh", "cmake", "text", "css", "dot"};
    int blocks = 0;
    for (const fs::path& page : allPages()) {
        std::istringstream stream(test::readFile(page));
        bool isInBlock = false;
        for (std::string line; std::getline(stream, line);) {
            EXPECT_EQ(line.find("~~~"), std::string::npos) << nameOf(page) << " has a block of another form";
            const std::string::size_type fence = line.find("```");
            if (fence == std::string::npos || line.find_first_not_of(" \t>") != fence)
                continue;
            isInBlock = !isInBlock;
            if (!isInBlock)
                continue;
            const std::string language = line.substr(fence + 3);
            EXPECT_TRUE(language.empty() || languages.count(language))
                << nameOf(page) << " has a block of the language \"" << language << "\"";
            if (language == "cpp") {
                EXPECT_EQ(fence, 0u) << nameOf(page) << " indents a block, which is then not found";
                EXPECT_TRUE(nameOf(page).rfind("docs/", 0) == 0 || nameOf(page) == "README.md")
                    << nameOf(page) << " has C++ that isn't compiled";
                ++blocks;
            }
        }
        EXPECT_FALSE(isInBlock) << nameOf(page) << " has a block without an end";
    }
    EXPECT_EQ(blocks, SNIPPETS + WHOLE_PROGRAMS);
}

TEST(Tutorials, EndWithAWholeProgramAndShowItsPicture) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(root / "docs" / "tutorials")) {
        const std::string stem = entry.path().stem();
        if (stem == "README")
            continue;
        const std::string text = test::readFile(entry.path());
        EXPECT_NE(text.find("\nint main("), std::string::npos) << stem;
        EXPECT_NE(text.find("](../pictures/tutorials/" + stem + ".png)"), std::string::npos) << stem;
        ++count;
    }
    EXPECT_EQ(count, WHOLE_PROGRAMS);
}

TEST(Tutorials, TheFirstProgramFitsIntoThirtyLines) {
    const std::string text = test::readFile(root / "docs" / "tutorials" / "first-oscillogram.md");
    const std::string::size_type begin = text.rfind("```cpp\n") + 7;
    const std::string program = text.substr(begin, text.find("```", begin) - begin);
    ASSERT_NE(program.find("int main("), std::string::npos);
    EXPECT_LE(std::count(program.begin(), program.end(), '\n'), 30);
}

TEST(Families, HaveAPageAndAPictureForEachPageOfTheGallery) {
    const std::vector<std::string> names = galleryPages();
    EXPECT_GE(names.size(), 27u);
    for (const std::string& name : names) {
        const fs::path page = root / "docs" / "families" / (name + ".md");
        ASSERT_TRUE(fs::exists(page)) << name;
        const std::string text = test::readFile(page);
        EXPECT_NE(text.find("](../pictures/gallery/" + name + ".png)"), std::string::npos) << name;
        EXPECT_NE(text.find("```cpp\n"), std::string::npos) << name;
        EXPECT_NE(text.find("](../../examples/gallery/pages/"), std::string::npos) << name;
        EXPECT_NE(text.find("Zel"), std::string::npos) << name;
    }
}

TEST(Families, HaveNoPageThatTheGalleryLacks) {
    const std::vector<std::string> names = galleryPages();
    for (const auto& entry : fs::directory_iterator(root / "docs" / "families")) {
        const std::string stem = entry.path().stem();
        EXPECT_TRUE(stem == "README" || std::count(names.begin(), names.end(), stem) == 1) << stem;
    }
}

TEST(Families, NameEachPublicHeader) {
    std::string text;
    for (const auto& entry : fs::directory_iterator(root / "docs" / "families"))
        text += test::readFile(entry.path());
    const std::vector<std::string> words = test::groupsIn(text, R"(\b([A-Za-z]+)\b)");
    const std::set<std::string> known(words.begin(), words.end());
    const std::vector<std::string> headers =
        test::groupsIn(test::readFile(root / "ZelCommonView" / "ZelCommonView.h"), R"(/([A-Za-z]+)\.h>)");
    EXPECT_GE(headers.size(), 100u);
    for (const std::string& header : headers)
        // That of the export macro has nothing to tell of.
        EXPECT_TRUE(header == "Export" || known.count(header)) << "no family has " << header << ".h";
}

TEST(Families, AreListedInTheOrderOfTheGallery) {
    const std::string text = test::readFile(root / "docs" / "families" / "README.md");
    EXPECT_EQ(test::groupsIn(text, R"(\]\(([a-z-]+)\.md\))"), galleryPages());
}

TEST(Diagrams, BelongToTheirSources) {
    int count = 0;
    for (const auto& entry : fs::directory_iterator(root / "docs" / "diagrams")) {
        if (entry.path().extension() != ".dot")
            continue;
        fs::path picture = entry.path();
        picture.replace_extension(".svg");
        const std::string text = test::readFile(picture);
        EXPECT_NE(text.find("<!-- source: " + sha256(test::readFile(entry.path())) + " -->"),
                  std::string::npos)
            << picture << " wasn't made of the present source; tools/diagrams makes it anew";
        // It is to be read on a dark page, too.
        EXPECT_NE(text.find("<polygon fill=\"white\""), std::string::npos) << picture;
        ++count;
    }
    EXPECT_GE(count, 7);
}

TEST(Diagrams, TheMapAgreesWithTheIncludes) {
    std::set<std::string> inHeaders;
    std::set<std::string> inSources;
    const fs::path library = root / "ZelCommonView";
    for (const auto& entry : fs::recursive_directory_iterator(library)) {
        const std::string from = fs::relative(entry.path().parent_path(), library);
        const std::string extension = entry.path().extension();
        if (from == "." || (extension != ".h" && extension != ".cpp"))
            continue;
        for (const std::string& to :
             test::groupsIn(test::readFile(entry.path()), R"(#include <ZelCommonView/([a-z]+)/)"))
            // All stand on common, of which the map shows two arrows only.
            if (to != from && to != "common")
                (extension == ".h" ? inHeaders : inSources).insert(from + " -> " + to);
    }
    for (const std::string& both : inHeaders)
        inSources.erase(both);

    std::set<std::string> solid;
    std::set<std::string> dashed;
    std::istringstream stream(test::readFile(root / "docs" / "diagrams" / "rooms.dot"));
    for (std::string line; std::getline(stream, line);)
        for (const std::string& arrow : test::groupsIn(line, R"(^ *([a-z]+ -> [a-z]+))"))
            if (arrow.find("-> common") == std::string::npos)
                (line.find("dashed") == std::string::npos ? solid : dashed).insert(arrow);
    EXPECT_EQ(solid, inHeaders);
    EXPECT_EQ(dashed, inSources);
    EXPECT_GE(solid.size(), 10u);
}
