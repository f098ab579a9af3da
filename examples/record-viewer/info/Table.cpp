#include "Table.h"

#include <algorithm>

#include "reader/Text.h"

namespace record {

namespace {

/// Blocks of characters that take two columns, as first and last code points.
constexpr char32_t wideBlocks[][2] = {{0x1100, 0x115F}, {0x2E80, 0xA4CF},   {0xAC00, 0xD7A3},
                                      {0xF900, 0xFAFF}, {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},
                                      {0xFFE0, 0xFFE6}, {0x1F300, 0x1F9FF}, {0x20000, 0x3FFFD}};

bool isWide(char32_t character) {
    return std::any_of(std::begin(wideBlocks), std::end(wideBlocks), [character](const auto& block) {
        return character >= block[0] && character <= block[1];
    });
}

/// Takes the first character off valid UTF-8.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    const int following = first < 0x80 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    char32_t character = following == 0 ? first : first & (0x3F >> following);
    text.remove_prefix(1);
    for (int i = 0; i < following && !text.empty(); ++i) {
        character = character << 6 | (static_cast<unsigned char>(text.front()) & 0x3F);
        text.remove_prefix(1);
    }
    return character;
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

} // namespace

std::string printable(const std::string& text) {
    std::string result;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t length = utf8Length(rest);
        std::string_view character = rest.substr(0, std::max<std::size_t>(length, 1));
        rest.remove_prefix(character.size());
        const std::string_view kept = character;
        result += length == 0 || isControl(takeCharacter(character)) ? "\uFFFD" : kept;
    }
    return result;
}

std::size_t displayWidth(const std::string& text) {
    std::size_t width = 0;
    for (std::string_view rest = text; !rest.empty();)
        width += isWide(takeCharacter(rest)) ? 2 : 1;
    return width;
}

void Table::add(std::vector<std::string> row) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i)
        widths[i] = std::max(widths[i], displayWidth(row[i]));
    rows.push_back(std::move(row));
}

std::string Table::text(const std::string& indent) const {
    std::string result;
    for (const std::vector<std::string>& row : rows) {
        std::string line = indent;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string padding(widths[i] - displayWidth(row[i]), ' ');
            line += i == 0 ? "" : "  ";
            line += i < left ? row[i] + padding : padding + row[i];
        }
        line.erase(line.find_last_not_of(' ') + 1);
        result += line + '\n';
    }
    return result;
}

} // namespace record
