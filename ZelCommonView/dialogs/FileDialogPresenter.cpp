#include <ZelCommonView/dialogs/FileDialogPresenter.h>

#include <ZelCommonView/common/DialogLocalization.h>
#include <ZelCommonView/common/StringHelper.h>
#include <ZelCommonView/presentation/GtkWidgetHelper.h>

#include <gtkmm/filechooserdialog.h>
#include <gtkmm/filefilter.h>

#include <gtk/gtk.h>

namespace Zel {

namespace {

/// What both views return for the path that the user chose.
std::string complete(const std::string& name, const FileDialogFilters& filters, bool save) {
    if (!filters.empty() && save && !FileDialogHelper::isMatchPattern(name, filters))
        return FileDialogHelper::completeFileName(name, filters);
    return name;
}

struct ObjectReleaser {
    void operator()(gpointer object) const { g_object_unref(object); }
};

struct TextReleaser {
    void operator()(char* text) const { g_free(text); }
};

} // namespace

IFileDialogView::~IFileDialogView() = default;

FileDialogView::FileDialogView() = default;

FileDialogView::~FileDialogView() = default;

std::string FileDialogView::show(IView* parent, const std::string& title, const FileDialogFilters& filters,
                                 bool save) {
    Gtk::FileChooserAction action = save ? Gtk::FILE_CHOOSER_ACTION_SAVE : Gtk::FILE_CHOOSER_ACTION_OPEN;
    if (filters.empty())
        action = Gtk::FILE_CHOOSER_ACTION_SELECT_FOLDER;
    dialog = std::make_unique<Gtk::FileChooserDialog>(title, action);
    if (save)
        dialog->set_do_overwrite_confirmation(true);
    if (Gtk::Window* const parentWindow = GtkWidgetHelper::getParentWindow(parent))
        dialog->set_transient_for(*parentWindow);
    dialog->add_button(DialogLocalization::apply(), Gtk::RESPONSE_APPLY);
    dialog->add_button(DialogLocalization::cancel(), Gtk::RESPONSE_CANCEL);
    for (const auto& filter : filters) {
        const Glib::RefPtr<Gtk::FileFilter> fileFilter = Gtk::FileFilter::create();
        for (const std::string& pattern : StringHelper::split(filter.first, '|'))
            fileFilter->add_pattern(pattern);
        fileFilter->set_name(filter.second);
        dialog->add_filter(fileFilter);
    }

    const int response = dialog->run();
    // Destroyed while it ran, by the end of this view or by another `show`: there is nothing to touch any
    // more.
    if (response == Gtk::RESPONSE_NONE)
        return {};
    const std::string name = response == Gtk::RESPONSE_APPLY ? dialog->get_filename() : std::string();
    dialog->hide();
    if (response != Gtk::RESPONSE_APPLY)
        return {};
    return complete(name, filters, save);
}

NativeFileDialogView::~NativeFileDialogView() = default;

std::string NativeFileDialogView::show(IView* parent, const std::string& title,
                                       const FileDialogFilters& filters, bool save) {
    Gtk::Window* const parentWindow = GtkWidgetHelper::getParentWindow(parent);
    GtkFileChooserAction action = save ? GTK_FILE_CHOOSER_ACTION_SAVE : GTK_FILE_CHOOSER_ACTION_OPEN;
    if (filters.empty())
        action = GTK_FILE_CHOOSER_ACTION_SELECT_FOLDER;
    const std::unique_ptr<GtkFileChooserNative, ObjectReleaser> native(gtk_file_chooser_native_new(
        title.c_str(), parentWindow ? parentWindow->gobj() : nullptr, action,
        save ? DialogLocalization::save() : DialogLocalization::open(), DialogLocalization::cancel()));
    GtkFileChooser* const chooser = GTK_FILE_CHOOSER(native.get());
    if (save)
        gtk_file_chooser_set_do_overwrite_confirmation(chooser, TRUE);
    for (const auto& filter : filters) {
        GtkFileFilter* const fileFilter = gtk_file_filter_new(); // the chooser takes it over
        for (const std::string& pattern : StringHelper::split(filter.first, '|'))
            gtk_file_filter_add_pattern(fileFilter, pattern.c_str());
        gtk_file_filter_set_name(fileFilter, filter.second.c_str());
        gtk_file_chooser_add_filter(chooser, fileFilter);
    }

    if (gtk_native_dialog_run(GTK_NATIVE_DIALOG(native.get())) != GTK_RESPONSE_ACCEPT)
        return {};
    const std::unique_ptr<char, TextReleaser> name(gtk_file_chooser_get_filename(chooser));
    return complete(name ? name.get() : "", filters, save);
}

FileDialogPresenter::~FileDialogPresenter() = default;

std::string FileDialogPresenter::show(IView* parent, const std::string& title,
                                      const FileDialogFilters& filters, bool save) {
    return getView()->show(parent, title, filters, save);
}

std::unique_ptr<IFileDialogView> FileDialogPresenter::_createDefaultView() {
    return std::make_unique<NativeFileDialogView>();
}

} // namespace Zel
