/// Asking the user for a file or a folder.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/dialogs/FileDialogHelper.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <memory>
#include <string>

namespace Gtk {
class FileChooserDialog;
}

namespace Zel {

/// A dialog for choosing a file. Unlike message dialogs, file dialogs are for the GTK thread only.
class ZEL_API IFileDialogView : public IView {
public:
    ~IFileDialogView() override;

    /// Shows the dialog in a main loop of its own and returns the path that was chosen, empty if the user
    /// cancelled. With filters it asks for a file, to be saved or opened; without any for a folder, whatever
    /// `save` says. To save asks before a file is overwritten, and a name that matches no pattern of the
    /// filters comes back with the first extension of the first filter.
    ///
    /// The dialog belongs to the window of `parent`, or to none if `parent` is null or in no window. Throws
    /// `std::regex_error`, after the user has answered, if a pattern is no regular expression.
    virtual std::string show(IView* parent, const std::string& title, const FileDialogFilters& filters,
                             bool save) = 0;
};

/// The file dialog of Gtk. Its button always says "Apply".
class ZEL_API FileDialogView : public IFileDialogView {
public:
    FileDialogView();
    ~FileDialogView() override;

    std::string show(IView* parent, const std::string& title, const FileDialogFilters& filters,
                     bool save) override;

private:
    std::unique_ptr<Gtk::FileChooserDialog> dialog; ///< the last one, hidden, until the next `show`
};

/// The file dialog of the desktop. Its button says "Save" or "Open".
class ZEL_API NativeFileDialogView : public IFileDialogView {
public:
    ~NativeFileDialogView() override;

    std::string show(IView* parent, const std::string& title, const FileDialogFilters& filters,
                     bool save) override;
};

/// Asks for a file with the dialog of the desktop, or with what an override of `_createDefaultView` makes.
class ZEL_API FileDialogPresenter : public PresenterBase<IFileDialogView> {
public:
    ~FileDialogPresenter() override;

    /// See `IFileDialogView::show`. The view is kept for later calls.
    std::string show(IView* parent, const std::string& title, const FileDialogFilters& filters, bool save);

protected:
    std::unique_ptr<IFileDialogView> _createDefaultView() override;
};

} // namespace Zel
