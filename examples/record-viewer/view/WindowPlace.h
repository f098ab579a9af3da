#pragma once

#include <ZelCommonView/windows/WindowRectangleManager.h>

#include <string>

namespace viewer {

/// Keeps the place and the size of a window from one run of the program to the next, in a key file.
class WindowPlace {
public:
    /// Where the program keeps it: below the user's folder of configurations.
    static std::string usualFile();

    /// Gives the window, which outlives this, the place and size of the file; to be made before the window is
    /// shown. A file that isn't there or can't be read leaves both to Gtk.
    WindowPlace(Gtk::Window& window, const std::string& file);

    /// Writes the present place and size; while the window is maximized nothing, so that the file keeps those
    /// before. What can't be written is left out without a word: it is no reason
    /// to keep a person from leaving.
    void save() const;

private:
    void _load();

    Gtk::Window& window;
    std::string file;
    Zel::WindowRectangleManager manager;
};

} // namespace viewer
