#include "Reader.h"

#include "Comtrade.h"
#include "Csv.h"
#include "Source.h"
#include "Text.h"

#include <optional>

namespace record {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t longestHeader = std::size_t(4) * 1024 * 1024;

std::string extensionOf(const fs::path& path) {
    return lowered(path.extension().string());
}

/// The file beside another one that has the same name but for the extension, in any letter case. The same
/// case of the name is preferred.
std::optional<fs::path> siblingOf(const fs::path& path, const std::string& extension) {
    std::error_code problem;
    const std::string stem = path.stem().string();
    for (const std::string& tried : {extension, uppered(extension)}) {
        const fs::path sibling = path.parent_path() / (stem + tried);
        if (fs::is_regular_file(sibling, problem))
            return sibling;
    }
    std::optional<fs::path> found;
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(folder, problem), last; entry != last && !problem;
         entry.increment(problem)) {
        const fs::path& other = entry->path();
        if (extensionOf(other) != extension || lowered(other.stem().string()) != lowered(stem))
            continue;
        if (!found || other.stem() == path.stem())
            found = other;
    }
    return found;
}

/// Texts that only accompany a record are never a reason to refuse it.
std::string readSideText(const fs::path& path, const std::string& extension, Record& record,
                         const Options& options) {
    const auto sibling = siblingOf(path, extension);
    if (!sibling)
        return {};
    try {
        return decode(FileSource(*sibling).readAll(longestHeader), options.codePage).text;
    } catch (const Error& error) {
        record.warnings.push_back(error.what());
        return {};
    }
}

Record openPair(const fs::path& configuration, std::optional<fs::path> data, const Options& options) {
    FileSource configSource(configuration);
    if (!data)
        data = siblingOf(configuration, ".dat");
    std::optional<FileSource> dataSource;
    if (data)
        dataSource.emplace(*data);
    Record record = readPair(configSource.readAll(longestConfiguration), configSource.name(),
                             dataSource ? &*dataSource : nullptr, options);
    record.header = readSideText(configuration, ".hdr", record, options);
    record.information = readSideText(configuration, ".inf", record, options);
    return record;
}

Record openData(const fs::path& data, const Options& options) {
    const FileSource existing(data);
    const auto configuration = siblingOf(data, ".cfg");
    if (!configuration)
        throw Error(existing.name() + ": expected a .cfg file of the same name beside it, found none.");
    return openPair(*configuration, data, options);
}

Record openCombined(const fs::path& path, const Options& options) {
    FileSource source(path);
    return readCombined(source, options);
}

/// A name without an extension means the pair, or else the single file.
Record openStem(const fs::path& path, const Options& options) {
    if (const auto configuration = siblingOf(path, ".cfg"))
        return openPair(*configuration, std::nullopt, options);
    if (const auto combined = siblingOf(path, ".cff"))
        return openCombined(*combined, options);
    throw Error(path.string() +
                ": expected a .cfg and a .dat file, or a .cff file, of this name, found none.");
}

Record openAny(const fs::path& path, const Options& options) {
    const std::string extension = extensionOf(path);
    if (extension == ".cfg")
        return openPair(path, std::nullopt, options);
    if (extension == ".dat")
        return openData(path, options);
    if (extension == ".cff")
        return openCombined(path, options);
    if (extension == ".csv") {
        FileSource source(path);
        return readCsv(source, options);
    }
    std::error_code problem;
    if (!fs::exists(path, problem))
        return openStem(path, options);
    throw Error(path.filename().string() +
                ": expected a file that ends with .cfg, .dat, .cff or .csv, found " +
                inQuotes(path.extension().string()) + ".");
}

} // namespace

Record open(const fs::path& path, const Options& options) {
    Record record = openAny(path, options);
    record.path = path.string();
    return record;
}

} // namespace record
