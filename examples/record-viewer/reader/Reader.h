#pragma once

#include "Record.h"

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

namespace record {

/// A record can't be read. The text is one sentence that names the file, the place in it, what was expected
/// and what was found.
class Error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The progress callback asked to stop.
class Cancelled : public Error {
public:
    using Error::Error;
};

struct Options {
    /// The code page of texts that are not UTF-8, by any name that iconv knows. An unknown name throws Error.
    std::string codePage = "CP1251";
    /// Reads what can still be read of a damaged record, with warnings, instead of refusing it.
    bool salvage = false;
    /// Called now and then with the part that is done, from 0 to 1, on the calling thread. Returning false
    /// stops the reading with Cancelled.
    std::function<bool(double)> progress;
};

/// Opens a record by any of its files: .cfg or .dat of a pair, .cff, or .csv, in any letter case. A path
/// without an extension means the pair, or else the single file. Throws Error.
Record open(const std::filesystem::path& path, const Options& options = {});

} // namespace record
