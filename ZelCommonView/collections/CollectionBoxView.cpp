#include <ZelCommonView/collections/CollectionBoxView.h>

#include <algorithm>
#include <limits>

namespace Zel {

namespace {

int positionOf(unsigned long index) {
    return static_cast<int>(std::min<unsigned long>(index, std::numeric_limits<int>::max()));
}

} // namespace

IEditableCollectionView::~IEditableCollectionView() = default;

CollectionBoxView::CollectionBoxView() : box(Gtk::make_managed<Gtk::Box>(Gtk::ORIENTATION_HORIZONTAL, 0)) {
    get_style_context()->add_class("CollectionView");
    box->set_spacing(-1); // neighbours share their borders
    box->set_orientation(Gtk::ORIENTATION_VERTICAL);
    add(*box);
}

CollectionBoxView::~CollectionBoxView() = default;

void CollectionBoxView::clearAll() {
    for (Gtk::Widget* const child : box->get_children())
        box->remove(*child);
}

void CollectionBoxView::addChild(IView& view) {
    auto& widget = dynamic_cast<Gtk::Widget&>(view);
    box->add(widget);
    widget.show_all();
}

void CollectionBoxView::insertChild(unsigned long index, IView& view) {
    auto& widget = dynamic_cast<Gtk::Widget&>(view);
    box->add(widget);
    box->reorder_child(widget, positionOf(index));
    widget.show_all();
}

void CollectionBoxView::removeChild(IView& view) {
    box->remove(dynamic_cast<Gtk::Widget&>(view));
}

void CollectionBoxView::moveChild(unsigned long index, IView& view) {
    box->reorder_child(dynamic_cast<Gtk::Widget&>(view), positionOf(index));
}

void CollectionBoxView::setIsHorizontalOrientation(bool value) {
    box->set_orientation(value ? Gtk::ORIENTATION_HORIZONTAL : Gtk::ORIENTATION_VERTICAL);
}

bool CollectionBoxView::getIsHorizontalOrientation() {
    return box->get_orientation() == Gtk::ORIENTATION_HORIZONTAL;
}

} // namespace Zel
