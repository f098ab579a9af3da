// Exits with a font size of its own still shown. Prints the size before and after the zoom.

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtkmm/main.h>

#include <cstdio>

int main(int argc, char** argv) {
    Gtk::Main kit(argc, argv);
    std::printf("%d\n", static_cast<int>(ZelView::StyleZoomHelper::getFontSize()));
    ZelView::StyleZoomHelper::zoomIn();
    std::printf("%d\n", static_cast<int>(ZelView::StyleZoomHelper::getFontSize()));
    return 0;
}
