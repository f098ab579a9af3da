// Reading a long binary record, against the least that any reader must do: read the file and scale each
// value.

#include "Timing.h"

#include "reader/Reader.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include <malloc.h>
#include <unistd.h>

namespace {

using bench::median;

namespace fs = std::filesystem;

constexpr std::size_t channelCount = 32;
constexpr std::size_t binaryCount = 32;
constexpr std::size_t sampleCount = 1'000'000;
constexpr std::size_t recordSize = 8 + 2 * channelCount + binaryCount / 8;
constexpr double samplesAsFloats = 4.0 * channelCount * sampleCount;

/// A record in the folder for temporary files that is removed at the end.
class LongRecord {
public:
    LongRecord() : folder(fs::temp_directory_path() / ("record-reading-" + std::to_string(getpid()))) {
        fs::create_directories(folder);
        writeConfiguration();
        writeData();
    }

    ~LongRecord() { fs::remove_all(folder); }

    fs::path configuration() const { return folder / "long.cfg"; }

    fs::path data() const { return folder / "long.dat"; }

private:
    void writeConfiguration() const {
        std::ofstream file(configuration(), std::ios::binary);
        file << "Long,Bench,1999\n"
             << channelCount + binaryCount << ',' << channelCount << "A," << binaryCount << "D\n";
        for (std::size_t i = 0; i < channelCount; ++i)
            file << i + 1 << ",U" << i << ",,,V,0.0125,-3,0,-32767,32767,1,1,P\n";
        for (std::size_t i = 0; i < binaryCount; ++i)
            file << i + 1 << ",D" << i << ",,,0\n";
        file << "50\n1\n10000," << sampleCount
             << "\n01/01/2020,00:00:00.0\n01/01/2020,00:00:01.0\nBINARY\n1\n";
    }

    void writeData() const {
        std::ofstream file(data(), std::ios::binary);
        std::uint32_t random = 1;
        std::vector<char> bytes;
        for (std::uint32_t i = 0; i < sampleCount; ++i) {
            const auto append = [&](auto number) {
                const char* raw = reinterpret_cast<const char*>(&number);
                bytes.insert(bytes.end(), raw, raw + sizeof number);
            };
            append(i + 1);
            append(i * 100);
            for (std::size_t k = 0; k < channelCount; ++k) {
                random = random * 1664525 + 1013904223;
                append(static_cast<std::int16_t>(random >> 16));
            }
            append(static_cast<std::uint16_t>(i / 5000));
            append(static_cast<std::uint16_t>(i % 100000 == 0));
            if (bytes.size() > 1'000'000 || i + 1 == sampleCount) {
                file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
                bytes.clear();
            }
        }
    }

    fs::path folder;
};

using Samples = std::vector<std::vector<float>>;

/// The baseline: the whole file in one read, then one bare loop. It goes through the bytes in blocks; sample
/// by sample it would write to all channels in turn, which takes a third longer here and would flatter the
/// reader.
Samples readBarely(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<char> bytes(fs::file_size(path));
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));

    Samples samples(channelCount, std::vector<float>(sampleCount));
    const double a = 0.0125;
    const double b = -3;
    constexpr std::size_t block = 256;
    for (std::size_t first = 0; first < sampleCount; first += block)
        for (std::size_t k = 0; k < channelCount; ++k)
            for (std::size_t i = first; i < std::min(first + block, sampleCount); ++i) {
                std::int16_t raw;
                std::memcpy(&raw, bytes.data() + i * recordSize + 8 + 2 * k, sizeof raw);
                samples[k][i] = static_cast<float>(a * raw + b);
            }
    return samples;
}

double seconds(std::chrono::steady_clock::time_point from) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - from).count();
}

/// A figure of this process in bytes, such as its resident set ("VmRSS") or the highest one so far ("VmHWM").
double processMemory(const std::string& key) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.compare(0, key.size(), key) == 0)
            return std::stod(line.substr(key.size() + 1)) * 1024;
    return 0;
}

/// How far the resident set rises while a record is read, in the size of its samples as floats.
double memoryGrowth(const fs::path& path) {
    malloc_trim(0);
    // Writing 5 sets the highest resident set back to the present one.
    std::ofstream("/proc/self/clear_refs") << 5;
    const double before = processMemory("VmRSS:");
    const record::Record record = record::open(path);
    benchmark::DoNotOptimize(record.analogs.data());
    return (processMemory("VmHWM:") - before) / samplesAsFloats;
}

void readLongRecord(benchmark::State& state) {
    const LongRecord files;
    const double memory = memoryGrowth(files.configuration());
    std::vector<double> bare;
    std::vector<double> whole;
    for (auto _ : state) {
        auto start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(readBarely(files.data()).data());
        bare.push_back(seconds(start));

        start = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(record::open(files.configuration()).analogs.data());
        whole.push_back(seconds(start));
        state.SetIterationTime(whole.back());
    }
    state.counters["bare_ms"] = median(bare) * 1e3;
    state.counters["record_ms"] = median(whole) * 1e3;
    state.counters["ratio"] = median(whole) / median(bare);
    state.counters["memory_ratio"] = memory;
}

} // namespace

BENCHMARK(readLongRecord)
    ->Name("RecordReading")
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(15);

BENCHMARK_MAIN();
