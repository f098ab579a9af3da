#include "PageView.h"

namespace gallery {

PageView::PageView(const Page& page)
    : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8), content(page.create()),
      title(page.getTitle(), Gtk::ALIGN_START), sourceButton(words("Show source", "Исходный текст")) {
    Pango::AttrList attributes;
    auto bold = Pango::Attribute::create_attr_weight(Pango::WEIGHT_BOLD);
    auto larger = Pango::Attribute::create_attr_scale(Pango::SCALE_LARGE);
    attributes.insert(bold);
    attributes.insert(larger);
    title.set_attributes(attributes);
    header.pack_start(title, Gtk::PACK_EXPAND_WIDGET);
    header.pack_start(sourceButton, Gtk::PACK_SHRINK);

    source.get_buffer()->set_text(std::string(page.source));
    source.set_monospace();
    source.set_editable(false);
    source.set_left_margin(8);
    sourceWindow.add(source);

    // The homogeneous size of a stack would let long sources stretch every page.
    stack.set_homogeneous(false);
    stack.add(*content, "page");
    stack.add(sourceWindow, "source");
    sourceButton.signal_toggled().connect(sigc::mem_fun(*this, &PageView::_onSourceToggled), true);

    set_border_width(10);
    pack_start(header, Gtk::PACK_SHRINK);
    pack_start(stack, Gtk::PACK_EXPAND_WIDGET);
    show_all();
}

void PageView::_onSourceToggled() {
    stack.set_visible_child(sourceButton.get_active() ? "source" : "page");
}

} // namespace gallery
