#pragma once

#include <stdexcept>
#include <string>

namespace viewer {

/// What the command line asks for.
struct Arguments {
    std::string file;
    std::string pictureFolder; ///< pictures are written there in place of a window
    std::string codePage = "CP1251";
    std::string axis;           ///< "rates", "stamps" or empty for what the record suggests
    unsigned char language = 0; ///< 0 is English, 1 is Russian
    bool isInfo = false;
    bool isJson = false;
    bool isSalvage = false;
};

/// The command line can't be understood; the text says why.
class ArgumentsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line. `--help` prints and ends the program. Throws ArgumentsError.
Arguments parseArguments(int argc, char** argv);

} // namespace viewer
