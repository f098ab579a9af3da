#include <ZelCommonView/dialogs/AboutView.h>

#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/Directories.h>
#include <ZelCommonView/common/ErrBuf.h>
#include <ZelCommonView/dialogs/AboutWords.h>

#include <gdkmm/pixbuf.h>
#include <glibmm/miscutils.h>

namespace Zel {

namespace {

namespace Words = lng::View::About;

constexpr int iconSize = 32; // pixels
constexpr const char* captionStyle = "recordValueMargin";

void open(const std::string& target) {
    try {
        cross::xdg_open(target.c_str());
    } catch (const cross::ErrBufLastErr&) {
        // It has told what happened; a click must not end the program.
    }
}

/// Hides a part that has nothing to show.
void hideIfEmpty(Gtk::Widget& widget, const char* value) {
    if (*value == '\0')
        widget.set_no_show_all(true);
}

} // namespace

IAboutView::~IAboutView() = default;

AboutView::AboutView() {
    get_style_context()->add_class("aboutView");
    get_style_context()->add_class("standartContentMargin");
    icon.set(Gdk::Pixbuf::create_from_file(getThemesDir() + "Icons/Shell/Параметры.svg", iconSize, iconSize,
                                           true));
    icon.get_style_context()->add_class("icon");
    icon.set_valign(Gtk::ALIGN_START);
    outer.add(icon);
    outer.add(column);
    _composeProgram();
    _composeContacts();
    _composeLinks();
    add(outer);
    show_all();
}

AboutView::~AboutView() = default;

void AboutView::_composeProgram() {
    programName.set_halign(Gtk::ALIGN_START);
    column.add(programName);
    versionCaption.set_label(Words::version());
    versionCaption.set_no_show_all(true);
    versionCaption.get_style_context()->add_class(captionStyle);
    versionValue.set_label("1.0.0.0");
    versionValue.set_no_show_all(true);
    versionRow.add(versionCaption);
    versionRow.add(versionValue);
    column.add(versionRow);
    spacer1.set_label(" ");
    column.add(spacer1);
}

void AboutView::_composeContacts() {
    siteCaption.set_label(Words::site());
    siteLink.set_uri(Words::siteValue());
    siteLink.set_label(Words::siteValue());
    siteRow.add(siteCaption);
    siteRow.add(siteLink);
    hideIfEmpty(siteRow, Words::siteValue());

    emailCaption.set_label(Words::email());
    emailLink.set_uri(Words::emailUri());
    emailLink.set_label(Words::emailValue());
    emailRow.add(emailCaption);
    emailRow.add(emailLink);
    hideIfEmpty(emailRow, Words::emailValue());

    phoneCaption.set_label(Words::phone());
    phoneValue.set_label(Words::phoneValue());
    phoneRow.add(phoneCaption);
    phoneRow.add(phoneValue);
    hideIfEmpty(phoneRow, Words::phoneValue());

    for (Gtk::Label* const caption : {&siteCaption, &emailCaption, &phoneCaption})
        caption->get_style_context()->add_class(captionStyle);
    for (Gtk::LinkButton* const link : {&siteLink, &emailLink})
        link->set_halign(Gtk::ALIGN_START);
    for (Gtk::Box* const row : {&siteRow, &emailRow, &phoneRow})
        column.add(*row);

    organization.set_halign(Gtk::ALIGN_START);
    organization.set_label(Words::organizationValue());
    column.add(organization);
    spacer2.set_label(" ");
    column.add(spacer2);
}

void AboutView::_composeLinks() {
    registryLink.set_label(Words::registry());
    eulaLink.set_label(Words::eula());
    thirdPartyLink.set_label(Words::thirdParty());
    hideIfEmpty(registryLink, getAboutContacts().registry.c_str());
    for (Gtk::LinkButton* const link : {&registryLink, &eulaLink, &thirdPartyLink}) {
        link->set_halign(Gtk::ALIGN_START);
        // It has no address of its own, at which Gtk would complain.
        link->signal_activate_link().connect([] { return true; }, false);
        column.add(*link);
    }
    registryLink.signal_clicked().connect(sigc::mem_fun(*this, &AboutView::_onRegistryClicked));
    eulaLink.signal_clicked().connect(sigc::mem_fun(*this, &AboutView::_onEulaClicked));
    thirdPartyLink.signal_clicked().connect(sigc::mem_fun(*this, &AboutView::_onThirdPartyClicked));
}

void AboutView::setProgramName(const std::string& name) {
    programName.set_label(name);
}

void AboutView::setVersion(const std::string& version) {
    if (version.empty())
        return;
    versionValue.set_label(version);
    for (Gtk::Label* const label : {&versionValue, &versionCaption}) {
        label->set_no_show_all(false);
        label->show_all();
    }
}

void AboutView::_onRegistryClicked() {
    open(getAboutContacts().registry);
}

void AboutView::_onEulaClicked() {
    open(Glib::build_filename(getZelCrossExeDir(), "eula.txt"));
}

void AboutView::_onThirdPartyClicked() {
    open(Glib::build_filename(getZelCrossExeDir(), "thirdParty.txt"));
}

} // namespace Zel
