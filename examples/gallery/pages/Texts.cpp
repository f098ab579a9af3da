// The size of all texts of the program, as the user likes it, and a theme's sheet for one widget.

#include "Pages.h"

#include <ZelCommonView/diagrams/StyleZoomHelper.h>

#include <gtkmm.h>

namespace gallery {

namespace {

class TextSize : public Gtk::Box {
public:
    TextSize() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 12) {
        smaller.signal_clicked().connect(sigc::mem_fun(*this, &TextSize::_onSmaller), true);
        usual.signal_clicked().connect(sigc::mem_fun(*this, &TextSize::_onUsual), true);
        larger.signal_clicked().connect(sigc::mem_fun(*this, &TextSize::_onLarger), true);
        for (Gtk::Button* button : {&smaller, &usual, &larger})
            buttons.pack_start(*button, Gtk::PACK_SHRINK);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(size, Gtk::PACK_SHRINK);
        pack_start(sample, Gtk::PACK_SHRINK);
        sample.set_line_wrap(true);
        for (Gtk::Label* label : {&size, &sample})
            label->set_xalign(0);
        // The size may be changed elsewhere, too.
        size.signal_style_updated().connect(sigc::mem_fun(*this, &TextSize::_showSize), true);
        _showSize();
    }

private:
    void _onSmaller() { ZelView::StyleZoomHelper::zoomOut(); }

    void _onUsual() { ZelView::StyleZoomHelper::zoomDefault(); }

    void _onLarger() { ZelView::StyleZoomHelper::zoomIn(); }

    void _showSize() {
        size.set_text(words("Size: ", "Размер: ") + std::to_string(ZelView::StyleZoomHelper::getFontSize()) +
                      words(" pixels", " пикселей"));
    }

    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button smaller{words("Smaller", "Мельче")};
    Gtk::Button usual{words("Usual", "Обычно")};
    Gtk::Button larger{words("Larger", "Крупнее")};
    Gtk::Label size;
    Gtk::Label sample{
        words("From 10 to 24 pixels, for the whole program: Ctrl and plus, minus or 0, or Ctrl and "
              "the wheel. What is painted on plots keeps its size.",
              "От 10 до 24 пикселей, для всей программы: Ctrl и плюс, минус или 0, либо Ctrl и "
              "колесо. Надписи на графиках сохраняют свой размер.")};
};

} // namespace

std::unique_ptr<Gtk::Widget> makeTextsPage() {
    return std::make_unique<TextSize>();
}

} // namespace gallery
