#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/frame.h>
#include <gtkmm/image.h>
#include <gtkmm/label.h>
#include <gtkmm/linkbutton.h>

#include <string>

namespace Zel {

/// What an about window tells, as its presenter sees it.
class ZEL_API IAboutView : public IView {
public:
    ~IAboutView() override;

    /// The name of the program, UTF-8; none is shown at first.
    virtual void setProgramName(const std::string& name) = 0;
    /// Shows the line with the version; an empty text changes nothing.
    virtual void setVersion(const std::string& version) = 0;
};

/// The content of an about window, in the language that is selected when it is made: icon, name and version
/// of the program, how its maker is reached (see `setAboutContacts`), and links to the registry, the licence
/// agreement ("eula.txt") and the third parties' components ("thirdParty.txt"), both files beside the
/// program. The links open with the desktop's programs.
///
/// The theme reaches it by the style classes "aboutView", "standartContentMargin", "icon" and
/// "recordValueMargin".
class ZEL_API AboutView : public Gtk::Frame, public IAboutView {
public:
    /// Loads "Icons/Shell/Параметры.svg" of the theme's folder; throws what Gdk::Pixbuf::create_from_file
    /// throws when that can't be read.
    AboutView();
    ~AboutView() override;

    void setProgramName(const std::string& name) override;
    void setVersion(const std::string& version) override;

private:
    void _composeProgram();
    void _composeContacts();
    void _composeLinks();
    void _onRegistryClicked();
    void _onEulaClicked();
    void _onThirdPartyClicked();

    Gtk::Box outer{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Image icon;
    Gtk::Box column{Gtk::ORIENTATION_VERTICAL};
    Gtk::Label programName;
    Gtk::Box versionRow{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Label versionCaption;
    Gtk::Label versionValue;
    Gtk::Label spacer1;
    Gtk::Box siteRow{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Label siteCaption;
    Gtk::LinkButton siteLink;
    Gtk::Box emailRow{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Label emailCaption;
    Gtk::LinkButton emailLink;
    Gtk::Box phoneRow{Gtk::ORIENTATION_HORIZONTAL};
    Gtk::Label phoneCaption;
    Gtk::Label phoneValue;
    Gtk::Label organization;
    Gtk::Label spacer2;
    Gtk::LinkButton registryLink;
    Gtk::LinkButton eulaLink;
    Gtk::LinkButton thirdPartyLink;
};

} // namespace Zel
