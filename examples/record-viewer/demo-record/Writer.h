#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace demo {

/// One analog channel of a record to be written; a value is factor * raw.
struct AnalogRow {
    std::string name;
    std::string phase;
    std::string unit;
    double factor = 1;
    double primary = 1;
    double secondary = 1;
    std::vector<std::int16_t> raw;
};

struct BinaryRow {
    std::string name;
    bool normal = false;
    std::vector<bool> states;
};

/// A record to be written by IEEE C37.111-1999 with one sampling rate.
struct Recording {
    std::string station;
    std::string device;
    int lineFrequency = 50;
    int sampleRate = 2000;
    /// As the standard writes them: "dd/mm/yyyy,hh:mm:ss.ffffff".
    std::string start;
    std::string trigger;
    std::vector<AnalogRow> analogs;
    std::vector<BinaryRow> binaries;

    std::size_t size() const;
};

std::string configuration(const Recording& recording, bool isAscii, int revision = 1999);
std::string binaryData(const Recording& recording);
std::string asciiData(const Recording& recording);
/// All in one file, by the revision of 2013.
std::string combined(const Recording& recording, bool isAscii);

} // namespace demo
