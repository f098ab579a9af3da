#include "Cff.h"

#include "Reader.h"
#include "Text.h"

#include <algorithm>

namespace record {

namespace {

/// Texts of all sections together; the data are not among them.
constexpr std::size_t longestText = std::size_t(64) * 1024 * 1024;

struct Mark {
    /// "CFG", "INF", "HDR" or "DAT".
    std::string section;
    /// What follows the section's name, such as "BINARY".
    std::string format;
    /// What follows the second colon.
    std::string count;
};

void skip(std::string_view& text, std::string_view characters) {
    text.remove_prefix(std::min(text.find_first_not_of(characters), text.size()));
}

/// Takes a word off the text if it begins with it.
bool takeWord(std::string_view& text, std::string_view word) {
    skip(text, " \t");
    if (text.substr(0, word.size()) != word)
        return false;
    text.remove_prefix(word.size());
    return true;
}

/// Reads a line such as "--- file type: DAT BINARY: 702 ---". Two dashes and a missing colon are forgiven.
std::optional<Mark> parseMark(std::string_view line) {
    // An editor may have put a byte order mark before the first one.
    if (line.substr(0, 3) == "\xEF\xBB\xBF")
        line.remove_prefix(3);
    line = trim(line);
    if (line.substr(0, 2) != "--" || line.size() > 200)
        return std::nullopt;
    const std::string upper = uppered(line);
    std::string_view rest = upper;
    skip(rest, "-");
    if (!takeWord(rest, "FILE") || !takeWord(rest, "TYPE"))
        return std::nullopt;
    skip(rest, " \t:");
    while (!rest.empty() && (rest.back() == '-' || rest.back() == ' '))
        rest.remove_suffix(1);

    for (const char* section : {"CFG", "INF", "HDR", "DAT"}) {
        if (!takeWord(rest, section))
            continue;
        const std::size_t colon = rest.find(':');
        Mark mark;
        mark.section = section;
        mark.format = trim(rest.substr(0, colon));
        if (colon != std::string_view::npos)
            mark.count = trim(rest.substr(colon + 1));
        return mark;
    }
    return std::nullopt;
}

void settleData(const Mark& mark, const Source& source, Sections& sections) {
    const auto warn = [&](const std::string& text) {
        sections.warnings.push_back(source.name() + ": " + text);
    };
    sections.hasData = true;
    sections.dataSize = source.size() - sections.dataOffset;
    sections.format = formatOf(mark.format);
    if (!sections.format && !mark.format.empty())
        warn("the data section names the unknown format " + inQuotes(mark.format) +
             "; that of the configuration is used.");

    const auto count = toCount(mark.count);
    if (count && *count <= sections.dataSize) {
        sections.dataSize = *count;
    } else if (count) {
        warn("the data section promises " + counted(*count, "byte") + ", but only " +
             std::to_string(sections.dataSize) + " are there.");
    } else if (sections.format != Format::Ascii) {
        warn("the data section has no count of bytes; all " + counted(sections.dataSize, "byte") +
             " up to the end of the file are read.");
    }
}

} // namespace

Sections readSections(Source& source) {
    Sections sections;
    Lines lines(source);
    std::string* text = nullptr;
    std::size_t length = 0;
    while (const auto line = lines.next()) {
        if (const auto mark = parseMark(*line)) {
            if (mark->section == "DAT") {
                sections.dataOffset = lines.offset();
                settleData(*mark, source, sections);
                break;
            }
            text = mark->section == "CFG"   ? &sections.configuration
                   : mark->section == "INF" ? &sections.information
                                            : &sections.header;
            continue;
        }
        if (!text) {
            if (trim(*line).empty())
                continue;
            throw Error(source.name() + ", line " + std::to_string(lines.number()) +
                        ": expected the mark of the configuration section, found " + inQuotes(*line) + ".");
        }
        length += line->size() + 1;
        if (length > longestText)
            throw Error(source.name() + ", line " + std::to_string(lines.number()) +
                        ": expected the mark of the data section within " + counted(longestText, "byte") +
                        ", found more text.");
        text->append(*line);
        text->push_back('\n');
    }
    if (sections.configuration.empty())
        throw Error(source.name() + ": expected a configuration section, found none" +
                    (sections.hasData ? " before the data." : "."));
    return sections;
}

} // namespace record
