#pragma once

#include "SignalPlot.h"
#include "Signals.h"

#include <gtkmm.h>

#include <memory>
#include <string>
#include <vector>

namespace viewer {

/// Shows one record: its plots one below the other, and what was odd about it in a line at the bottom.
class MainWindow : public Gtk::Window {
public:
    MainWindow(const std::string& title, std::vector<Section> sections, const std::string& summary,
               const std::vector<std::string>& warnings);

private:
    std::vector<std::unique_ptr<SignalPlot>> plots;
    Gtk::Box page{Gtk::ORIENTATION_VERTICAL};
    Gtk::Box plotsBox{Gtk::ORIENTATION_VERTICAL};
    Gtk::ScrolledWindow scrolled;
    Gtk::Label status;
};

} // namespace viewer
