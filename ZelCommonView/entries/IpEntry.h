#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/entries/StringEntry.h>

namespace Zel {

/// An IPv4 address in digits and points. It keeps letters and most punctuation from being typed and tells
/// after each key whether the text is a whole address; one that isn't stands as it is. A number of an address
/// may be written with leading zeros in up to three digits, and a line end behind it, as pasting may bring
/// it, counts for nothing.
///
/// Keys without a character, such as the arrows, Home, End and the function keys, are not for it, which is
/// meant: the cursor is placed by the pointer. Such a key goes on to the window, where an arrow moves the
/// focus. Of the characters, "~", "`", the space and letters of other scripts than Latin and Cyrillic can be
/// typed, and pasting inserts anything.
class ZEL_API IpEntry : public StringEntry {
public:
    IpEntry();
    ~IpEntry() override;

    /// A key was typed: whether the text is an address, and the text. Emitted for each release of a key while
    /// the last one pressed was of those that the entry takes, BackSpace and Delete included, whether the
    /// text has changed or not. What the pointer pastes and `set_text` are told of with the next such key.
    sigc::signal<void, bool, std::string const&>& signalIpChanged() { return ipChanged; }

protected:
    bool on_key_press_event(GdkEventKey* event) override;
    bool on_key_release_event(GdkEventKey* event) override;

private:
    sigc::signal<void, bool, std::string const&> ipChanged;
    std::string lastText;     ///< at the last release of a key that was told of
    bool keyAccepted = false; ///< whether the entry took the last key that was pressed
};

} // namespace Zel
