#include <ZelCommonView/common/Directories.h>

#include <filesystem>

namespace Zel {

namespace {

std::string themesDir;

std::string withSeparator(std::string path) {
    if (!path.empty() && path.back() != '/')
        path += '/';
    return path;
}

} // namespace

std::string getZelCrossExeDir() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

std::string getThemesDir() {
    if (!themesDir.empty())
        return themesDir;
    // Looked up each time: it costs next to nothing, and a folder put in place later is found.
    const std::string beside = withSeparator(getZelCrossExeDir()) + "Themes/";
    std::error_code ignored;
    return std::filesystem::is_directory(beside, ignored) ? beside : withSeparator(ZEL_INSTALLED_THEMES_DIR);
}

void setThemesDir(const std::string& path) {
    themesDir = withSeparator(path);
}

} // namespace Zel
