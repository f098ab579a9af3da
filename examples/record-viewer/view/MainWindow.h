#pragma once

#include "RecordPage.h"

#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/window.h>

#include <string>

namespace viewer {

/// The viewer's window: one record, or an empty page until it is read.
class MainWindow : public Gtk::Window, public Zel::IView {
public:
    explicit MainWindow(const std::string& title);

    RecordPage page;
};

} // namespace viewer
