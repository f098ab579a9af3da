#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace record {

/// Bytes that are read piece by piece, so that a large file is never held as a whole.
class Source {
public:
    virtual ~Source() = default;

    /// What messages call it.
    virtual const std::string& name() const = 0;
    virtual std::uint64_t size() const = 0;
    /// Copies bytes from an offset; returns how many there were, fewer than asked for only at the end.
    virtual std::size_t read(std::uint64_t offset, char* to, std::size_t count) = 0;

    /// Copies everything. Throws Error where it is longer than `limit`.
    std::string readAll(std::size_t limit);
};

class FileSource : public Source {
public:
    /// Throws Error when the path names no readable ordinary file.
    explicit FileSource(const std::filesystem::path& path);

    const std::string& name() const override { return label; }

    std::uint64_t size() const override { return length; }

    std::size_t read(std::uint64_t offset, char* to, std::size_t count) override;

private:
    std::string label;
    std::ifstream file;
    std::uint64_t length = 0;
};

/// Bytes in memory that outlive the source.
class MemorySource : public Source {
public:
    MemorySource(std::string sourceName, std::string_view content)
        : label(std::move(sourceName)), bytes(content) {}

    const std::string& name() const override { return label; }

    std::uint64_t size() const override { return bytes.size(); }

    std::size_t read(std::uint64_t offset, char* to, std::size_t count) override;

private:
    std::string label;
    std::string_view bytes;
};

/// A part of another source, which must outlive it.
class PartSource : public Source {
public:
    PartSource(Source& all, std::uint64_t first, std::uint64_t count)
        : whole(all), begin(first), length(count) {}

    const std::string& name() const override { return whole.name(); }

    std::uint64_t size() const override { return length; }

    std::size_t read(std::uint64_t offset, char* to, std::size_t count) override;

private:
    Source& whole;
    std::uint64_t begin;
    std::uint64_t length;
};

/// The lines of a source. Lines end with LF, CR LF, CR CR LF or CR.
class Lines {
public:
    explicit Lines(Source& lineSource);

    /// The next line without its end; the view is valid until the next call. Empty after the last one. Throws
    /// Error where a line is longer than 16 MiB.
    std::optional<std::string_view> next();
    /// As next(), skipping lines that hold nothing but blanks and padding.
    std::optional<std::string_view> nextFilled();

    /// The number of the last line, from 1.
    std::uint64_t number() const { return lineNumber; }

    /// The offset of the byte after the end of the last line.
    std::uint64_t offset();

private:
    bool refill();
    void skipLineEnd();

    Source& source;
    std::vector<char> buffer;
    /// The part of the buffer that was read but not yet handed out, and where in the source the buffer ends.
    std::size_t begin = 0;
    std::size_t end = 0;
    std::uint64_t position = 0;
    std::uint64_t lineNumber = 0;
    bool isInsideLineEnd = false;
};

/// How many lines a source can hold at most, counted without keeping it.
std::uint64_t countLines(Source& source);

} // namespace record
