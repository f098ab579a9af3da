#include "MainWindow.h"

namespace viewer {

MainWindow::MainWindow(const std::string& title) {
    set_title(title);
    set_default_size(1280, 860);
    add(page);
}

} // namespace viewer
