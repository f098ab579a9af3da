#include <ZelCommonView/containers/ResultStateView.h>

namespace Zel {

namespace {

constexpr const char* okClass = "stateOkContainer";
constexpr const char* errorClass = "stateErrorContainer";
constexpr const char* undefinedClass = "stateUndefinedContainer";

} // namespace

IResultStateView::~IResultStateView() = default;

ResultStateView::ResultStateView() : Gtk::HBox(false, 0) {
    pack_start(textLabel, Gtk::PACK_EXPAND_WIDGET, 0);
    textLabel.set_halign(Gtk::ALIGN_CENTER);
    markFrame.hide();
    markFrame.set_no_show_all(true);
    markFrame.get_style_context()->add_class("RoundFrame");
    markFrame.set_hexpand(false);
    markFrame.set_vexpand(false);
    markFrame.set_valign(Gtk::ALIGN_CENTER);
    pack_end(markFrame, Gtk::PACK_SHRINK, 0);
    markFrame.add(markLabel);
    markLabel.set_text("?");
    show_all();
}

ResultStateView::~ResultStateView() = default;

void ResultStateView::setText(const std::string& text) {
    textLabel.set_text(text);
}

void ResultStateView::setExtendedText(const std::string& text) {
    if (text.empty()) {
        markFrame.hide();
        markFrame.set_no_show_all(true);
        return;
    }
    markFrame.set_no_show_all(false);
    markFrame.show_all();
    markFrame.set_tooltip_text(text);
}

void ResultStateView::setIsValid(const Nullable<bool>& isValid) {
    const auto context = get_style_context();
    for (const char* const styleClass : {okClass, errorClass, undefinedClass})
        context->remove_class(styleClass);
    if (!isValid.hasValue)
        context->add_class(undefinedClass);
    else
        context->add_class(isValid.value ? okClass : errorClass);
}

} // namespace Zel
