// Writes a record of a simulated line fault, for trying out programs that show records.

#include "LineFault.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

bool write(const std::filesystem::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.flush();
    if (!file) {
        std::cerr << path.string() << " can't be written.\n";
        return false;
    }
    std::cout << path.string() << "\n";
    return true;
}

struct Arguments {
    bool isAscii = false;
    bool isCombined = false;
    std::filesystem::path folder;
};

std::optional<Arguments> parse(const std::vector<std::string>& words) {
    Arguments arguments;
    for (const std::string& word : words) {
        if (word == "--ascii")
            arguments.isAscii = true;
        else if (word == "--cff")
            arguments.isCombined = true;
        else if (word.substr(0, 1) != "-" && arguments.folder.empty())
            arguments.folder = word;
        else
            return std::nullopt;
    }
    if (arguments.folder.empty())
        return std::nullopt;
    return arguments;
}

} // namespace

int main(int argc, char** argv) {
    const auto arguments = parse({argv + 1, argv + argc});
    if (!arguments) {
        std::cerr
            << "Usage: make-demo-record [--ascii] [--cff] FOLDER\n"
               "Writes line-fault.cfg and line-fault.dat, or with --cff line-fault.cff, into the folder.\n";
        return 2;
    }
    const auto& [isAscii, isCombined, folder] = *arguments;
    std::error_code problem;
    std::filesystem::create_directories(folder, problem);
    const demo::Recording recording = demo::lineFault();
    if (isCombined)
        return write(folder / "line-fault.cff", demo::combined(recording, isAscii)) ? 0 : 1;
    const std::string data = isAscii ? demo::asciiData(recording) : demo::binaryData(recording);
    return write(folder / "line-fault.cfg", demo::configuration(recording, isAscii)) &&
                   write(folder / "line-fault.dat", data)
               ? 0
               : 1;
}
