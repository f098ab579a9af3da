#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace record {

struct DecodedText {
    /// Valid UTF-8.
    std::string text;
    /// "ASCII", "UTF-8", "UTF-8 with BOM", "UTF-16LE", "UTF-16BE", or the code page.
    std::string encoding;
    /// How many bytes the code page could not explain; each became U+FFFD.
    std::size_t replaced = 0;
};

/// Turns bytes into UTF-8: a byte order mark decides, then what is valid UTF-8 is taken as such, the rest
/// goes through the code page. Throws Error when iconv doesn't know it.
DecodedText decode(std::string_view bytes, const std::string& codePage);

/// The length of the UTF-8 character that a text starts with; 0 when it starts with none. The text must not
/// be empty.
std::size_t utf8Length(std::string_view text);

bool isUtf8(std::string_view text);

/// Without blanks, tabs, line ends, zero bytes and the old end-of-file mark 0x1A at both ends.
std::string_view trim(std::string_view text);

/// The fields between separators, each trimmed. There is always at least one.
std::vector<std::string_view> split(std::string_view line, char separator = ',');

std::string lowered(std::string_view text);
std::string uppered(std::string_view text);

/// A finite decimal number with "." whatever the locale; "+" and leading zeros are allowed. Empty for
/// anything else.
std::optional<double> toNumber(std::string_view text);

/// A number without a sign or fraction. Empty for anything else and for what 64 bits can't hold.
std::optional<std::uint64_t> toCount(std::string_view text);

/// The text in quotation marks for a message, made valid UTF-8 and shortened to 40 characters.
std::string inQuotes(std::string_view text);

/// "1 byte", "2 bytes".
std::string counted(std::uint64_t count, const std::string& noun);

/// A number for a message, with up to six digits and "." whatever the locale.
std::string numberText(double value);

} // namespace record
