#pragma once

#include <stdexcept>
#include <string>

namespace gallery {

/// What the command line asks for.
struct Arguments {
    std::string page;          ///< empty for all pages
    std::string pictureFolder; ///< pictures are written there in place of a window
    std::string language;      ///< "en", "ru" or empty for what is usual
    std::string look;          ///< "light", "dark" or empty for what is usual
    bool isList = false;
};

/// The command line can't be understood; the text says why.
class ArgumentsError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line. `--help` prints and ends the program. Throws ArgumentsError.
Arguments parseArguments(int argc, char** argv);

} // namespace gallery
