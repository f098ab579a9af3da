#include <ZelCommonView/windows/PanelView.h>

#include <ZelCommonView/common/EmitKept.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>
#include <ZelCommonView/windows/WindwView.h>

#include <gtkmm/notebook.h>

namespace Zel {

namespace {

constexpr int defaultWidth = 300;  // pixels
constexpr int defaultHeight = 134; // pixels
constexpr int titleHeight = 24;    // pixels
constexpr int margin = 5;          // pixels

} // namespace

IPanelView::~IPanelView() = default;

PanelView::PanelView() {
    unset_label();
    get_style_context()->add_class("panel");
    set_size_request(defaultWidth, defaultHeight);
    set_shadow_type(Gtk::SHADOW_NONE);
    _compose();
    _composeTitle();
    _initDrag();
}

PanelView::~PanelView() {
    // While all of the panel still stands: as the label of a tab the title would otherwise end before its
    // page.
    if (Gtk::Container* const parent = get_parent())
        parent->remove(*this);
}

void PanelView::_compose() {
    add(overlay);
    overlay.add(eventBox);
    eventBox.add(mainBox);
    mainBox.add(titleBox);
    mainBox.add(scrolled);
    titleBox.add(titleGrid);
    titleGrid.add(titleLabel);
    titleGrid.add(iconsBox);
    titleGrid.add(headerButtons);
    scrolled.add(contentBox);
    contentBox.set_vexpand(true);
    contentBox.set_hexpand(true);
    contentBox.property_margin() = margin;

    // Neither takes the pointer, or the drag would leave the panel below.
    overlay.add_overlay(demoBox);
    overlay.add_overlay(overlayBox);
    overlay.set_overlay_pass_through(demoBox, true);
    overlay.set_overlay_pass_through(overlayBox, true);
}

void PanelView::_composeTitle() {
    titleBox.set_halign(Gtk::ALIGN_FILL);
    titleBox.set_hexpand(true);
    titleBox.set_vexpand(false);
    titleBox.property_height_request() = titleHeight;

    titleGrid.set_orientation(Gtk::ORIENTATION_HORIZONTAL);
    titleGrid.set_halign(Gtk::ALIGN_FILL);
    titleGrid.set_hexpand(true);
    titleGrid.set_vexpand(true);

    titleLabel.property_height_request() = titleHeight;
    titleLabel.set_halign(Gtk::ALIGN_START);
    titleLabel.set_valign(Gtk::ALIGN_CENTER);
    titleLabel.set_margin_start(margin);
    titleLabel.set_hexpand(true);

    for (Gtk::Box* const box : {&headerButtons, &iconsBox}) {
        box->set_halign(Gtk::ALIGN_END);
        box->set_valign(Gtk::ALIGN_CENTER);
        box->get_style_context()->add_class("headerButtons");
    }
    headerButtons.set_margin_end(margin);

    btnClose.get_style_context()->add_class("btnClose");
    btnClose.signal_clicked().connect(sigc::mem_fun(*this, &PanelView::_onBtnClose));
    btnToWindow.get_style_context()->add_class("btnToWindow");
    btnToWindow.signal_clicked().connect(sigc::mem_fun(*this, &PanelView::_onBtnToWindow));
    // By themselves: nobody's show_all reaches what stands in the label of a tab.
    btnClose.show();
    btnToWindow.show();
}

void PanelView::setTitle(const std::string& title) {
    titleLabel.set_label(title);
}

std::string PanelView::getTitle() {
    return titleLabel.get_label();
}

void PanelView::removeTitle() {
    mainBox.remove(titleBox);
}

void PanelView::setChild(IView& view) {
    Gtk::Widget* const widget = GtkWidgetHelper::getWidget(&view);
    if (!widget)
        return;
    setChild(*widget);
    auto* const contributor = dynamic_cast<IWidget*>(widget);
    if (!contributor)
        return;
    icons = contributor->getIcons();
    if (icons)
        iconsBox.add(*icons);
}

void PanelView::setChild(Gtk::Widget& widget) {
    contentBox.add(widget);
}

IView* PanelView::getChild() {
    const std::vector<Gtk::Widget*> children = contentBox.get_children();
    return children.empty() ? nullptr : GtkWidgetHelper::getIView(children.front());
}

void PanelView::removeChild(IView* view) {
    if (Gtk::Widget* const widget = GtkWidgetHelper::getWidget(view))
        contentBox.remove(*widget);
}

IView* PanelView::getTitleBar() {
    titleBox.remove(titleGrid);
    return &titleGrid;
}

void PanelView::setTitleBar() {
    Gtk::Container* const parent = titleGrid.get_parent();
    // A notebook gives a label away only for another one.
    if (auto* const notebook = dynamic_cast<Gtk::Notebook*>(parent))
        gtk_notebook_set_tab_label(notebook->gobj(), Gtk::Widget::gobj(), nullptr);
    else if (parent)
        parent->remove(titleGrid);
    titleBox.add(titleGrid);
    show_all();
}

void PanelView::setProperties(bool toWindow, bool close) {
    if (toWindow)
        headerButtons.add(btnToWindow);
    else
        headerButtons.remove(btnToWindow);
    if (close)
        headerButtons.add(btnClose);
    else
        headerButtons.remove(btnClose);
}

void PanelView::setSize(int width, int height) {
    set_size_request(width, height);
}

void PanelView::hideTitle(bool hide) {
    mainBox.remove(titleBox);
    if (hide)
        return;
    // Both anew, so that the title row stands above.
    mainBox.remove(scrolled);
    mainBox.add(titleBox);
    mainBox.add(scrolled);
    show_all();
}

void PanelView::setTitleHomogeneous(bool homogeneous) {
    titleBox.set_homogeneous(homogeneous);
}

void PanelView::addToTitle(Gtk::Widget& widget) {
    titleBox.add(widget);
}

void PanelView::removeFromTitle(Gtk::Widget& widget) {
    titleBox.remove(widget);
}

Gtk::Widget* PanelView::getUserButtons() {
    if (icons)
        iconsBox.remove(*icons);
    return icons;
}

void PanelView::setUserButtons() {
    if (icons) {
        if (Gtk::Container* const parent = icons->get_parent())
            parent->remove(*icons);
        iconsBox.add(*icons);
    }
    show_all();
}

bool PanelView::_isFloating() const {
    return dynamic_cast<const WindwView*>(get_parent()) != nullptr;
}

bool PanelView::_onDraw(const Cairo::RefPtr<Cairo::Context>&) {
    return false;
}

void PanelView::_onBtnClose() {
    // A listener may delete this panel.
    emitKept(signalDelete, this);
}

void PanelView::_onBtnToWindow() {
    emitKept(signalToWindow, this);
}

} // namespace Zel
