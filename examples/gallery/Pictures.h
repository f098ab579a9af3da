#pragma once

#include "Pages.h"

#include <gdkmm/pixbuf.h>

#include <string>

namespace gallery {

/// The page in the current language and theme as it looks without a visible window. Needs a display.
Glib::RefPtr<Gdk::Pixbuf> paintPage(const Page& page);

/// Paints the page into `<name>-<en|ru>-<light|dark>.png` of the folder, by the current language and theme.
/// The folder is made if it is not there. Returns the path. Throws `Glib::Error` where the file can't be
/// written.
std::string writePicture(const Page& page, const std::string& folder);

} // namespace gallery
