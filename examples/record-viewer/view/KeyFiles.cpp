#include "KeyFiles.h"

#include <glibmm/fileutils.h>

#include <filesystem>

namespace viewer {

std::unique_ptr<Glib::KeyFile> loadKeyFile(const std::string& file) {
    auto keys = std::make_unique<Glib::KeyFile>();
    try {
        keys->load_from_file(file, Glib::KEY_FILE_KEEP_COMMENTS | Glib::KEY_FILE_KEEP_TRANSLATIONS);
        return keys;
    } catch (const Glib::Error&) {
        // The first start, or a file that someone else has written; it may have been read in part.
        return std::make_unique<Glib::KeyFile>();
    }
}

void saveKeyFile(Glib::KeyFile& keys, const std::string& file) {
    try {
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(file).parent_path(), ignored);
        keys.save_to_file(file);
    } catch (const Glib::Error&) {
    }
}

} // namespace viewer
