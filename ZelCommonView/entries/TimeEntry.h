#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/entries/IStringView.h>
#include <ZelCommonView/entries/StringEntry.h>

namespace Zel {

/// A time of day as hours, minutes and seconds, such as "9:5:30", without leading zeros. The three parts are
/// walked like fields, and an edit that wouldn't leave a time is undone. A part may be empty while it is
/// typed; such a text stands, even when the focus goes, but isn't reported by `signalDataChanged`.
///
/// ":", Tab and Right select the next part and Left the one before; Tab keeps the focus here, which is meant,
/// while Shift and Tab leave. BackSpace and Delete turn a selected part into "0", which stays selected. The
/// second digit of a part goes on to the next one. A selection that is drawn across parts shrinks to the one
/// where it begins. The keyboard's Cut key copies and removes nothing.
class ZEL_API TimeEntry : public StringEntry, public virtual ZelTree::IStringView {
public:
    /// Shows "0:0:0".
    TimeEntry();
    ~TimeEntry() override;

    /// Sets the text, which is judged and reported like what a person types: what is no time brings the last
    /// valid one back, and a text with an empty part stands. No more than 8 characters count.
    void setData(std::string text) override;
    /// The text as it stands, which may have an empty part.
    std::string getData() override;
    /// A `Gtk::Menu` for the right button, which stays the caller's. Null, or a view that is no menu, for
    /// Gtk's own.
    void setContextMenu(IView* menu) override;

    /// The text has become a time, or a bad part was undone. The first argument says that the text is valid:
    /// it is always true, since what isn't valid is undone before. The second is the text. Emitted for each
    /// edit that leaves a time, the same one included.
    sigc::signal<void, bool, std::string const&>& signalDataChanged() { return dataChanged; }

private:
    void _onTimeChanged();
    bool _onTimeKeyPress(GdkEventKey* event);
    bool _onTimeButtonRelease(GdkEventButton* event);
    bool _clearSelectedPart();
    void _selectTimePartAtPosition(int pos);
    void _selectNextTimePart(int pos);
    void _selectPreviousTimePart(int pos);
    void _setTextBlocked(const Glib::ustring& text);
    void _restore();
    void _emitDataChanged();

    sigc::signal<void, bool, std::string const&> dataChanged;
    sigc::connection changedConnection; ///< blocked while the entry restores its own text
    std::string lastValidTime;          ///< restored when an edit is refused
};

} // namespace Zel
