// Feeds arbitrary bytes to every way into the reader. An input is tried as a combined file, as a table, and,
// split at a line with a percent sign, as a configuration and its data.

#include "info/Info.h"
#include "reader/Comtrade.h"
#include "reader/Csv.h"

#include <cstdint>
#include <string_view>

namespace {

constexpr std::string_view splitMark = "\n%\n";

template <class Reading>
void attempt(Reading read) {
    for (const bool salvage : {false, true}) {
        record::Options options;
        options.salvage = salvage;
        try {
            const record::Record record = read(options);
            record::describe(record);
            record::jsonText(record);
        } catch (const record::Error&) {
            // Being refused is what most inputs deserve.
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t mark = bytes.find(splitMark);
    if (mark != std::string_view::npos) {
        const std::string_view configuration = bytes.substr(0, mark + 1);
        record::MemorySource samples("fuzz.dat", bytes.substr(mark + splitMark.size()));
        attempt([&](const record::Options& options) {
            return record::readPair(configuration, "fuzz.cfg", &samples, options);
        });
        return 0;
    }
    record::MemorySource source("fuzz", bytes);
    attempt([&](const record::Options& options) { return record::readCombined(source, options); });
    attempt([&](const record::Options& options) { return record::readCsv(source, options); });
    return 0;
}
