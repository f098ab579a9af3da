#include "Writer.h"

#include <charconv>

namespace demo {

namespace {

const std::string lineEnd = "\r\n";

std::string text(double value) {
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::general, 9).ptr;
    return std::string(digits, end);
}

/// Appends a number with its lowest byte first.
void append(std::string& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

/// Microseconds since the start.
std::uint32_t stamp(const Recording& recording, std::size_t sample) {
    return static_cast<std::uint32_t>(sample * 1'000'000 / static_cast<std::size_t>(recording.sampleRate));
}

} // namespace

std::size_t Recording::size() const {
    return analogs.empty() ? binaries.empty() ? 0 : binaries[0].states.size() : analogs[0].raw.size();
}

std::string configuration(const Recording& recording, bool isAscii, int revision) {
    const std::size_t analogs = recording.analogs.size();
    const std::size_t binaries = recording.binaries.size();
    std::string result =
        recording.station + "," + recording.device + "," + std::to_string(revision) + lineEnd;
    result += std::to_string(analogs + binaries) + "," + std::to_string(analogs) + "A," +
              std::to_string(binaries) + "D" + lineEnd;
    for (std::size_t i = 0; i < analogs; ++i) {
        const AnalogRow& row = recording.analogs[i];
        result += std::to_string(i + 1) + "," + row.name + "," + row.phase + ",," + row.unit + "," +
                  text(row.factor) + ",0,0,-32767,32767," + text(row.primary) + "," + text(row.secondary) +
                  ",P" + lineEnd;
    }
    for (std::size_t i = 0; i < binaries; ++i) {
        const BinaryRow& row = recording.binaries[i];
        result += std::to_string(i + 1) + "," + row.name + ",,," + (row.normal ? "1" : "0") + lineEnd;
    }
    result += std::to_string(recording.lineFrequency) + lineEnd + "1" + lineEnd;
    result += std::to_string(recording.sampleRate) + "," + std::to_string(recording.size()) + lineEnd;
    result += recording.start + lineEnd + recording.trigger + lineEnd;
    result += (isAscii ? "ASCII" : "BINARY") + lineEnd + "1" + lineEnd;
    if (revision == 2013)
        result += "0,0" + lineEnd + "0,0" + lineEnd;
    return result;
}

std::string binaryData(const Recording& recording) {
    std::string bytes;
    for (std::size_t i = 0; i < recording.size(); ++i) {
        append(bytes, static_cast<std::uint32_t>(i + 1), 4);
        append(bytes, stamp(recording, i), 4);
        for (const AnalogRow& row : recording.analogs)
            append(bytes, static_cast<std::uint16_t>(row.raw[i]), 2);
        std::uint32_t word = 0;
        for (std::size_t k = 0; k < recording.binaries.size(); ++k) {
            word |= static_cast<std::uint32_t>(recording.binaries[k].states[i]) << (k % 16);
            if (k % 16 == 15 || k + 1 == recording.binaries.size()) {
                append(bytes, word, 2);
                word = 0;
            }
        }
    }
    return bytes;
}

std::string asciiData(const Recording& recording) {
    std::string lines;
    for (std::size_t i = 0; i < recording.size(); ++i) {
        lines += std::to_string(i + 1) + "," + std::to_string(stamp(recording, i));
        for (const AnalogRow& row : recording.analogs)
            lines += "," + std::to_string(row.raw[i]);
        for (const BinaryRow& row : recording.binaries)
            lines += row.states[i] ? ",1" : ",0";
        lines += lineEnd;
    }
    return lines;
}

std::string combined(const Recording& recording, bool isAscii) {
    const std::string data = isAscii ? asciiData(recording) : binaryData(recording);
    return "--- file type: CFG ---" + lineEnd + configuration(recording, isAscii, 2013) +
           "--- file type: INF ---" + lineEnd + "--- file type: HDR ---" + lineEnd + "--- file type: DAT " +
           (isAscii ? "ASCII" : "BINARY: " + std::to_string(data.size())) + " ---" + lineEnd + data;
}

} // namespace demo
