/// A folder for one test's files, and what programs print.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace test {

/// An empty folder of its own, removed with all that is in it when the object dies.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zel-test-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no temporary folder can be made");
        path = std::filesystem::canonical(pattern);
    }

    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::filesystem::path path;
};

/// The whole content of a file; empty if there is none.
inline std::string readFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

/// What a shell command prints to its standard output.
inline std::string outputOf(const std::string& command) {
    std::string output;
    if (FILE* pipe = popen(command.c_str(), "r")) {
        for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe))
            output += static_cast<char>(c);
        pclose(pipe);
    }
    return output;
}

/// Sets an environment variable for as long as it lives.
class EnvironmentVariable {
public:
    EnvironmentVariable(const std::string& givenName, const std::string& value) : name(givenName) {
        if (const char* old = std::getenv(name.c_str())) {
            wasSet = true;
            former = old;
        }
        setenv(name.c_str(), value.c_str(), 1);
    }

    ~EnvironmentVariable() {
        if (wasSet)
            setenv(name.c_str(), former.c_str(), 1);
        else
            unsetenv(name.c_str());
    }

    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

private:
    std::string name;
    std::string former;
    bool wasSet = false;
};

} // namespace test
