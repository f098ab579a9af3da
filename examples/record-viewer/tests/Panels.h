#pragma once

#include "support/Hands.h"
#include "view/MainWindow.h"

#include <ZelCommonView/windows/PanelManagerView.h>

#include <stdexcept>

/// The panels of the viewer's window as tests use them.
namespace test {

inline Zel::PanelManagerView& managerOf(viewer::MainWindow& window) {
    return dynamic_cast<Zel::PanelManagerView&>(*window.panels->getView());
}

/// The newest panel with the title.
inline Zel::PanelView& panelOf(viewer::MainWindow& window, const std::string& title) {
    const auto& panels = managerOf(window).panels;
    for (auto panel = panels.rbegin(); panel != panels.rend(); ++panel)
        if ((*panel)->getTitle() == title)
            return **panel;
    throw std::runtime_error("no panel named " + title);
}

/// Brings a panel to the front of its tabs, if it stands in tabs, as a person does.
inline void clickTab(viewer::MainWindow& window, const std::string& title) {
    Zel::PanelView& panel = panelOf(window, title);
    if (dynamic_cast<Gtk::Notebook*>(panel.get_parent()))
        click(panel.titleLabel, 10, panel.titleLabel.get_allocated_height() / 2);
    if (!waitFor([&panel] { return panel.get_mapped(); }))
        throw std::runtime_error("the panel is not to be seen: " + title);
}

} // namespace test
