#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/Nullable.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>
#include <gtkmm/frame.h>
#include <gtkmm/label.h>

#include <string>

namespace Zel {

/// Shows how something ended.
class ZEL_API IResultStateView : public IView {
public:
    ~IResultStateView() override;

    /// Sets the text of the result, UTF-8; empty at first.
    virtual void setText(const std::string& text) = 0;

    /// A longer explanation behind a "?" mark; the empty text takes the mark away.
    virtual void setExtendedText(const std::string& text) = 0;

    /// Ok, error or, if empty, undefined.
    virtual void setIsValid(const Nullable<bool>& isValid) = 0;
};

/// A text in the middle and, at the end of the row, the "?" mark, whose tooltip is the explanation. The theme
/// reaches the whole by "stateOkContainer", "stateErrorContainer" or "stateUndefinedContainer", none of which
/// it has before the first `setIsValid`, and the mark by "RoundFrame".
class ZEL_API ResultStateView : public Gtk::HBox, public IResultStateView {
public:
    ResultStateView();
    ~ResultStateView() override;

    void setText(const std::string& text) override;
    void setExtendedText(const std::string& text) override;
    void setIsValid(const Nullable<bool>& isValid) override;

private:
    Gtk::Frame markFrame;
    Gtk::Label markLabel;
    Gtk::Label textLabel;
};

} // namespace Zel
