#pragma once

#include "reader/Comtrade.h"

#include <cstring>
#include <string>
#include <vector>

/// Small records that are made in the tests themselves.
namespace test {

/// A configuration whose parts can be replaced one by one. Two analog channels, one binary one.
struct Configuration {
    std::string station = "Hill,Relay 7,1999";
    std::string counts = "3,2A,1D";
    std::vector<std::string> analogs = {"1,UA,A,Line,V,1,0,0,-32767,32767,1000,5,S",
                                        "2,IA,A,,A,0.5,-10,,-32767,32767,1,1,P"};
    std::vector<std::string> binaries = {"1,Trip,A,Line,1"};
    std::string frequency = "50";
    std::vector<std::string> rates = {"1", "1000,3"};
    std::string start = "01/02/2020,03:04:05.000006";
    std::string trigger = "01/02/2020,03:04:05.010006";
    std::string format = "ASCII";
    std::vector<std::string> tail = {"1"};
    std::string lineEnd = "\r\n";

    std::string text() const {
        std::string result;
        const auto add = [&](const std::string& line) { result += line + lineEnd; };
        const auto addAll = [&](const std::vector<std::string>& lines) {
            for (const std::string& line : lines)
                add(line);
        };
        add(station);
        add(counts);
        addAll(analogs);
        addAll(binaries);
        add(frequency);
        addAll(rates);
        add(start);
        add(trigger);
        add(format);
        addAll(tail);
        return result;
    }
};

/// Three lines that fit a Configuration.
inline const std::string threeLines = "1,0,10,20,0\r\n2,1000,11,21,1\r\n3,2000,12,22,0\r\n";

inline record::Record read(const std::string& configuration, const std::string& data,
                           const record::Options& options = {}) {
    record::MemorySource source("test.dat", data);
    return record::readPair(configuration, "test.cfg", &source, options);
}

inline record::Options salvage() {
    record::Options options;
    options.salvage = true;
    return options;
}

/// What is wrong with a record; "nothing" when it is read.
template <class Reading>
std::string refusal(Reading reading) {
    try {
        reading();
    } catch (const record::Error& error) {
        return error.what();
    }
    return "nothing";
}

inline std::string refusal(const std::string& configuration, const std::string& data) {
    return refusal([&] { read(configuration, data); });
}

/// Bytes of numbers, lowest byte first.
class Bytes {
public:
    template <class Number>
    Bytes& operator<<(Number number) {
        char raw[sizeof number];
        std::memcpy(raw, &number, sizeof number);
        text.append(raw, sizeof raw);
        return *this;
    }

    std::string text;
};

} // namespace test
