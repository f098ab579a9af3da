#include "Source.h"

#include "Reader.h"
#include "Text.h"

#include <algorithm>
#include <cstring>

namespace record {

namespace {

constexpr std::size_t pieceSize = std::size_t(64) * 1024;
constexpr std::size_t longestLine = std::size_t(16) * 1024 * 1024;

} // namespace

std::string Source::readAll(std::size_t limit) {
    if (size() > limit)
        throw Error(name() + ": expected at most " + counted(limit, "byte") + " of text, found " +
                    counted(size(), "byte") + ".");
    std::string bytes(static_cast<std::size_t>(size()), '\0');
    bytes.resize(read(0, bytes.data(), bytes.size()));
    return bytes;
}

FileSource::FileSource(const std::filesystem::path& path) : label(path.filename().string()) {
    std::error_code problem;
    const auto status = std::filesystem::status(path, problem);
    if (!std::filesystem::exists(status))
        throw Error(path.string() + " does not exist.");
    if (!std::filesystem::is_regular_file(status))
        throw Error(path.string() + " is not an ordinary file.");
    length = std::filesystem::file_size(path, problem);
    file.open(path, std::ios::binary);
    if (problem || !file)
        throw Error(path.string() + " can't be opened for reading.");
}

std::size_t FileSource::read(std::uint64_t offset, char* to, std::size_t count) {
    if (offset >= length)
        return 0;
    file.clear();
    file.seekg(static_cast<std::streamoff>(offset));
    file.read(to, static_cast<std::streamsize>(std::min<std::uint64_t>(count, length - offset)));
    if (file.bad())
        throw Error(label + ": reading failed at byte " + std::to_string(offset) + ".");
    return static_cast<std::size_t>(file.gcount());
}

std::size_t MemorySource::read(std::uint64_t offset, char* to, std::size_t count) {
    if (offset >= bytes.size())
        return 0;
    return bytes.copy(to, count, static_cast<std::size_t>(offset));
}

std::size_t PartSource::read(std::uint64_t offset, char* to, std::size_t count) {
    if (offset >= length)
        return 0;
    return whole.read(begin + offset, to,
                      static_cast<std::size_t>(std::min<std::uint64_t>(count, length - offset)));
}

Lines::Lines(Source& lineSource) : source(lineSource) {}

/// Makes room and appends the next piece of the source; false at its end.
bool Lines::refill() {
    if (begin > 0) {
        std::memmove(buffer.data(), buffer.data() + begin, end - begin);
        end -= begin;
        begin = 0;
    }
    if (end > longestLine)
        throw Error(source.name() + ", line " + std::to_string(lineNumber + 1) +
                    ": expected a line of at most 16 MiB, found a longer one.");
    if (buffer.size() < end + pieceSize)
        buffer.resize(std::max(2 * buffer.size(), end + pieceSize));
    const std::size_t found = source.read(position, buffer.data() + end, buffer.size() - end);
    end += found;
    position += found;
    return found > 0;
}

/// The rest of a line end that began with CR: more CRs and one LF belong to it.
void Lines::skipLineEnd() {
    while (isInsideLineEnd) {
        if (begin == end && !refill()) {
            isInsideLineEnd = false;
        } else if (buffer[begin] == '\r') {
            ++begin;
        } else {
            begin += buffer[begin] == '\n';
            isInsideLineEnd = false;
        }
    }
}

std::optional<std::string_view> Lines::next() {
    skipLineEnd();
    std::size_t scanned = begin;
    for (;;) {
        while (scanned < end && buffer[scanned] != '\n' && buffer[scanned] != '\r')
            ++scanned;
        if (scanned < end)
            break;
        const std::size_t length = scanned - begin;
        if (refill()) {
            scanned = begin + length;
            continue;
        }
        if (begin == end)
            return std::nullopt;
        ++lineNumber;
        const std::string_view line(buffer.data() + begin, end - begin);
        begin = end;
        return line;
    }
    ++lineNumber;
    const std::string_view line(buffer.data() + begin, scanned - begin);
    isInsideLineEnd = buffer[scanned] == '\r';
    begin = scanned + 1;
    return line;
}

std::optional<std::string_view> Lines::nextFilled() {
    for (;;) {
        const auto line = next();
        if (!line || !trim(*line).empty())
            return line;
    }
}

std::uint64_t Lines::offset() {
    skipLineEnd();
    return position - (end - begin);
}

std::uint64_t countLines(Source& source) {
    std::vector<char> piece(pieceSize);
    std::uint64_t lineFeeds = 0;
    std::uint64_t returns = 0;
    std::uint64_t position = 0;
    while (const std::size_t found = source.read(position, piece.data(), piece.size())) {
        const auto last = piece.begin() + static_cast<std::ptrdiff_t>(found);
        lineFeeds += static_cast<std::uint64_t>(std::count(piece.begin(), last, '\n'));
        returns += static_cast<std::uint64_t>(std::count(piece.begin(), last, '\r'));
        position += found;
    }
    // A lone CR among lines that end with LF is possible but no reason to count every CR LF twice.
    return (lineFeeds > 0 && returns <= 2 * lineFeeds ? lineFeeds : lineFeeds + returns) + 1;
}

} // namespace record
