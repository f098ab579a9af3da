#include <ZelCommonView/entries/IpEntry.h>

#include <ZelCommonView/common/EmitKept.h>

#include <glibmm/regex.h>

namespace Zel {

namespace {

/// What the key types; empty for a key without a character. A character that isn't Unicode, as programs may
/// send it, counts as none.
Glib::ustring characterOf(const GdkEventKey& event) {
    if (!event.string || !g_utf8_validate(event.string, -1, nullptr))
        return {};
    return event.string;
}

} // namespace

IpEntry::IpEntry() = default;

IpEntry::~IpEntry() = default;

bool IpEntry::on_key_press_event(GdkEventKey* event) {
    // One character, a control character included, which is neither a letter nor one of those listed.
    const auto filter =
        Glib::Regex::create(R"re(^([^a-zA-Zа-яА-Я\!@#№$%^&*()\-_=+\[\]{};:'"\\|,<>\/\?]{1})$)re");
    const Glib::ustring character = characterOf(*event);
    keyAccepted = filter->match(character);
    if (keyAccepted)
        return StringEntry::on_key_press_event(event);
    // What was kept with the entry under the name of a key that isn't for it goes with that key.
    remove_data(Glib::QueryQuark(g_quark_from_string(character.c_str())));
    // It is still left to the window, for its own keys and for moving the focus.
    return false;
}

bool IpEntry::on_key_release_event(GdkEventKey* event) {
    if (keyAccepted) {
        lastText = get_text();
        const auto address = Glib::Regex::create(R"re(^(?:(?:25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\.){3})re"
                                                 R"re((?:25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)$)re");
        WidgetReference<IpEntry> self;
        self = this;
        emitKept(ipChanged, address->match(lastText), lastText);
        if (!self)
            return false;
    }
    return StringEntry::on_key_release_event(event);
}

} // namespace Zel
