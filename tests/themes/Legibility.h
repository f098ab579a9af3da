/// Whether texts can be read: their contrast to what they stand on, and whether they have the room they need.
#pragma once

#include <gtkmm.h>

#include <string>
#include <vector>

namespace test {

/// Shows everything in another theme of GTK, such as "HighContrast" or "Adwaita:dark".
void setTheme(const std::string& name);

/// The contrast of two opaque colours, 1 to 21, as the Web Content Accessibility Guidelines 2 define it (W3C,
/// "contrast ratio" and "relative luminance"). They ask for at least 4.5 for text of usual size.
double contrastOf(const Gdk::RGBA& first, const Gdk::RGBA& second);

constexpr double enoughContrast = 4.5;

/// The labels at or below a widget that a person sees. Those of controls that are dead are left out, as they
/// are by the guidelines, and so are those whose colours no sheet decides: rows of legends, texts with
/// colours of their own, and buttons that GTK itself marks as suggested or destructive.
std::vector<Gtk::Label*> readableLabels(Gtk::Widget& widget);

/// Which labels of a shown window can't be read well, each with its text and contrast; empty if all can. The
/// labels are empty afterwards, since what is painted below them is looked at.
std::string findFaint(Gtk::Window& window, const std::vector<Gtk::Label*>& labels);

/// Which labels of a shown window have less room than their text needs; empty if none has.
std::string findClipped(const std::vector<Gtk::Label*>& labels);

} // namespace test
