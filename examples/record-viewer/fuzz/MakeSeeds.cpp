// Writes a few small valid inputs, one of each kind, for the fuzzer to start from.

#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

namespace {

template <class Number>
void append(std::string& bytes, Number number) {
    char raw[sizeof number];
    std::memcpy(raw, &number, sizeof number);
    bytes.append(raw, sizeof raw);
}

std::string configuration(const std::string& revision, const std::string& format) {
    const bool isOld = revision.empty();
    const std::string ratio = isOld ? "" : ",1000,5,S";
    std::string text = "Hill,Relay 7" + (isOld ? "" : "," + revision) + "\r\n5,2A,3D\r\n";
    text += "1,UA,A,Line,kV,0.01,-1.5,0,-32767,32767" + ratio + "\r\n";
    text += "2,IA,A,Line,A,+2E-3,0,12.5,-32767,32767" + ratio + "\r\n";
    for (const char* name : {"1,Start", "2,Trip", "3,\xD0\x9F\xD1\x83\xD1\x81\xD0\xBA"})
        text += name + std::string(isOld ? ",0" : ",,,0") + "\r\n";
    text += "50\r\n2\r\n1000,4\r\n500,6\r\n";
    text += isOld ? "02/13/91,23:59:59.5\r\n02/13/91,23:59:59.503\r\n"
                  : "13/02/2014,23:59:59.500000000\r\n13/02/2014,23:59:59.503000000\r\n";
    text += format + "\r\n";
    if (!isOld)
        text += "1.0\r\n";
    if (revision == "2013")
        text += "-5h30,-5h30\r\nB,3\r\n";
    return text;
}

std::string lines() {
    return "1,0,10,-20,0,0,1\r\n2,1000,11,-21,0,0,1\r\n3,2000,99999,,1,0,1\r\n4,,13,-23,1,1,1\r\n5,4000,14,-"
           "24,1,1,0\r\n"
           "6,6000,15,-25,1,1,0\r\n";
}

template <class Raw>
std::string fixed() {
    std::string bytes;
    for (int i = 0; i < 6; ++i) {
        append(bytes, std::uint32_t(i + 1));
        append(bytes, i == 3 ? std::uint32_t(0xFFFFFFFF) : std::uint32_t(1000 * i));
        append(bytes, Raw(100 * i));
        append(bytes, Raw(-7 * i));
        append(bytes, std::uint16_t(i / 2));
    }
    return bytes;
}

std::string combined(const std::string& format, const std::string& data, bool isCounted) {
    return "--- file type: CFG ---\r\n" + configuration("2013", format) +
           "--- file type: INF ---\r\n[Public]\r\n--- file type: HDR ---\r\na --- line\r\n--- file type: "
           "DAT " +
           format + (isCounted ? ": " + std::to_string(data.size()) : "") + " ---\r\n" + data;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "Usage: make-fuzz-seeds FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    std::filesystem::create_directories(folder);
    const auto write = [&](const char* name, const std::string& bytes) {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    };
    write("pair-1991-ascii", configuration("", "ASCII") + "\n%\n" + lines());
    write("pair-1999-ascii", configuration("1999", "ASCII") + "\n%\n" + lines());
    write("pair-1999-binary", configuration("1999", "BINARY") + "\n%\n" + fixed<std::int16_t>());
    write("pair-2013-binary32", configuration("2013", "BINARY32") + "\n%\n" + fixed<std::int32_t>());
    write("pair-2013-float32", configuration("2013", "FLOAT32") + "\n%\n" + fixed<float>());
    write("pair-cut-off", configuration("1999", "BINARY").substr(0, 120) + "\n%\n" + fixed<std::int16_t>());
    write("combined-binary", combined("BINARY", fixed<std::int16_t>(), true));
    write("combined-ascii", combined("ASCII", lines(), false));
    write("table-names-units", "x-axis,1,2\nsecond,Volt,Volt\n-0.001,1,2\n0,3,4\n0.001,,6e-3\n");
    write("table-no-time", "Ua(V);Ia [A]\n1.5;-2\n1.6;-3\n");
    write("table-no-names", "0\t1\n1\t2\n2\t3\n");
}
