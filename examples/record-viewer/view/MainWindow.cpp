#include "MainWindow.h"

namespace viewer {

MainWindow::MainWindow(const std::string& title, std::vector<Section> sections, const std::string& summary,
                       const std::vector<std::string>& warnings) {
    set_title(title);
    set_default_size(1200, 800);

    // Binaries need their rows and no more; curves share what is left.
    for (Section& section : sections) {
        const bool isBinary = section.type == Zel::SeriesType::Binary;
        plots.push_back(std::make_unique<SignalPlot>(std::move(section)));
        plotsBox.pack_start(*plots.back(), isBinary ? Gtk::PACK_SHRINK : Gtk::PACK_EXPAND_WIDGET);
    }
    scrolled.set_policy(Gtk::POLICY_NEVER, Gtk::POLICY_AUTOMATIC);
    scrolled.add(plotsBox);

    std::string text = summary;
    std::string all;
    for (const std::string& warning : warnings)
        all += (all.empty() ? "" : "\n") + warning;
    if (warnings.size() == 1)
        text += "  ⚠ " + warnings.front();
    else if (!warnings.empty())
        text += "  ⚠ " + std::to_string(warnings.size()) + " warnings, the first: " + warnings.front();
    status.set_text(text);
    status.set_tooltip_text(all);
    status.set_halign(Gtk::ALIGN_START);
    status.set_ellipsize(Pango::ELLIPSIZE_END);
    status.property_margin() = 4;

    page.pack_start(scrolled, Gtk::PACK_EXPAND_WIDGET);
    page.pack_start(status, Gtk::PACK_SHRINK);
    add(page);
    show_all_children();
}

} // namespace viewer
