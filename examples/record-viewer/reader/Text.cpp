#include "Text.h"

#include "Reader.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>

#include <iconv.h>

namespace record {

namespace {

const std::string_view replacement = "\xEF\xBF\xBD";

bool isPadding(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\0' || c == '\x1a' || c == '\v' ||
           c == '\f';
}

char toLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

char toUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}

/// An open conversion to UTF-8 that closes itself.
class Conversion {
public:
    explicit Conversion(const std::string& codePage) : handle(iconv_open("UTF-8", codePage.c_str())) {
        // What iconv_open gives where it fails. NOLINTNEXTLINE(performance-no-int-to-ptr)
        if (handle == reinterpret_cast<iconv_t>(-1))
            throw Error("The code page " + inQuotes(codePage) + " is not known.");
    }

    ~Conversion() { iconv_close(handle); }

    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;

    /// Appends the text to `result`; returns how many bytes could not be converted.
    std::size_t convert(std::string_view bytes, std::string& result) {
        std::size_t replaced = 0;
        std::string input(bytes);
        char* from = input.data();
        std::size_t left = input.size();
        char piece[4096];
        while (left > 0) {
            char* to = piece;
            std::size_t room = sizeof piece;
            const std::size_t outcome = iconv(handle, &from, &left, &to, &room);
            const bool isStuck = outcome == static_cast<std::size_t>(-1) && errno != E2BIG;
            result.append(piece, static_cast<std::size_t>(to - piece));
            if (!isStuck)
                continue;
            result += replacement;
            ++from;
            --left;
            ++replaced;
            iconv(handle, nullptr, nullptr, nullptr, nullptr);
        }
        // A stateful code page may hold back its last character.
        char* to = piece;
        std::size_t room = sizeof piece;
        iconv(handle, nullptr, nullptr, &to, &room);
        result.append(piece, static_cast<std::size_t>(to - piece));
        return replaced;
    }

private:
    iconv_t handle;
};

} // namespace

std::size_t utf8Length(std::string_view text) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(0);
    const std::size_t length = first < 0x80   ? 1
                               : first < 0xC2 ? 0
                               : first < 0xE0 ? 2
                               : first < 0xF0 ? 3
                               : first < 0xF5 ? 4
                                              : 0;
    if (length == 0 || length > text.size())
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    // Longer forms than needed, halves of surrogate pairs, and what lies behind the last character.
    if ((first == 0xE0 && byte(1) < 0xA0) || (first == 0xED && byte(1) > 0x9F) ||
        (first == 0xF0 && byte(1) < 0x90) || (first == 0xF4 && byte(1) > 0x8F))
        return 0;
    return length;
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

DecodedText decode(std::string_view bytes, const std::string& codePage) {
    const auto startsWith = [bytes](std::string_view mark) { return bytes.substr(0, mark.size()) == mark; };
    DecodedText result;
    std::string page = codePage;
    if (startsWith("\xEF\xBB\xBF")) {
        bytes.remove_prefix(3);
        result.encoding = "UTF-8 with BOM";
        page = "UTF-8";
    } else if (startsWith("\xFF\xFE") || startsWith("\xFE\xFF")) {
        page = result.encoding = bytes[0] == '\xFF' ? "UTF-16LE" : "UTF-16BE";
        bytes.remove_prefix(2);
        result.replaced = Conversion(page).convert(bytes, result.text);
        return result;
    } else if (std::all_of(bytes.begin(), bytes.end(),
                           [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        result.encoding = "ASCII";
    } else {
        result.encoding = isUtf8(bytes) ? "UTF-8" : codePage;
    }
    if (isUtf8(bytes))
        result.text = bytes;
    else
        result.replaced = Conversion(page).convert(bytes, result.text);
    return result;
}

std::string_view trim(std::string_view text) {
    while (!text.empty() && isPadding(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isPadding(text.back()))
        text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> split(std::string_view line, char separator) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t place = line.find(separator);
        fields.push_back(trim(line.substr(0, place)));
        if (place == std::string_view::npos)
            return fields;
        line.remove_prefix(place + 1);
    }
}

std::string lowered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), toLower);
    return result;
}

std::string uppered(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), toUpper);
    return result;
}

std::optional<double> toNumber(std::string_view text) {
    text = trim(text);
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-')
            return std::nullopt;
    }
    double value = 0;
    const auto [last, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem != std::errc() || last != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<std::uint64_t> toCount(std::string_view text) {
    text = trim(text);
    std::uint64_t value = 0;
    const auto [last, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (problem != std::errc() || last != text.data() + text.size())
        return std::nullopt;
    return value;
}

std::string inQuotes(std::string_view text) {
    constexpr int longest = 40;
    std::string result = "\"";
    for (int characters = 0; !text.empty(); ++characters) {
        if (characters == longest) {
            result += "\u2026";
            break;
        }
        const std::size_t length = utf8Length(text);
        const bool isVisible = length > 1 || (length == 1 && text[0] >= ' ' && text[0] != '\x7f');
        result += isVisible ? text.substr(0, length) : replacement;
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result + "\"";
}

std::string counted(std::uint64_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string numberText(double value) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 6).ptr;
    return std::string(text, end);
}

} // namespace record
