#include "SettingsForm.h"

#include "SettingsWords.h"

namespace viewer {

namespace {

constexpr int margin = 12;         // pixels
constexpr int indent = 24;         // of what belongs to a tick, pixels
constexpr int groupDistance = 8;   // above a group, pixels
constexpr int columnDistance = 18; // pixels
constexpr int entryWidth = 96;     // pixels
constexpr int sentenceWidth = 48;  // characters

/// A turn of the wheel.
double wheelStepOf(Field field) {
    switch (field) {
    case Field::Z1:
    case Field::Frequency:
        return 0.1;
    case Field::K0:
        return 0.01;
    default:
        return 1;
    }
}

} // namespace

SettingsForm::SettingsForm(const ImpedanceSettings& settings, const Impedances& impedances)
    : Gtk::Box(Gtk::ORIENTATION_VERTICAL, margin), defaults(withTold(ImpedanceSettings(), impedances)),
      recordedFrequency(impedances.recordedFrequency), side(impedances.trajectories.side) {
    property_margin() = margin;
    grid.set_row_spacing(6);
    grid.set_column_spacing(6);
    for (const Group group : {Group::Line, Group::Compensation, Group::Frequency, Group::Zones})
        _composeGroup(group);
    _composeEntry(Field::Z1, 0, 1);
    _composeEntry(Field::Z1Angle, 1, 1);
    _composeEntry(Field::K0, 0, 3);
    _composeEntry(Field::K0Angle, 1, 3);
    _composeEntry(Field::Frequency, 0, 5);
    _composeEntry(Field::Zone1, 0, 7);
    _composeEntry(Field::Zone2, 1, 7);
    _composeEntry(Field::Zone3, 0, 8);
    _composeEntry(Field::Backward, 1, 8);
    pack_start(grid, Gtk::PACK_SHRINK);
    _composeVerdict();
    show_all();
    _show(withTold(settings, impedances));
    _clearVeto();
}

SettingsForm::~SettingsForm() = default;

std::optional<ImpedanceSettings> SettingsForm::take() {
    SettingsDraft draft;
    for (std::size_t i = 0; i < fieldCount; ++i)
        draft.texts[i] = entries[i].get_text();
    for (std::size_t i = 0; i < optionalGroupCount; ++i)
        draft.isGiven[i] = givenButtons[i].get_active();
    const SettingsVerdict judged = judge(draft);
    _clearVeto();
    if (judged.veto)
        _showVeto(*judged.veto);
    return judged.settings;
}

void SettingsForm::_composeGroup(Group group) {
    const int row = 2 * static_cast<int>(group);
    Gtk::Widget* title = &zonesLabel;
    if (group == Group::Zones) {
        zonesLabel.set_text(words::inPercent());
        zonesLabel.set_xalign(0);
    } else {
        Gtk::CheckButton& button = givenButtons[static_cast<std::size_t>(group)];
        button.set_label(words::groupName(group, recordedFrequency));
        button.signal_toggled().connect(sigc::mem_fun(*this, &SettingsForm::_enable), true);
        title = &button;
    }
    if (row > 0)
        title->set_margin_top(groupDistance);
    grid.attach(*title, 0, row, 6, 1);
}

void SettingsForm::_composeEntry(Field field, int column, int row) {
    const auto i = static_cast<std::size_t>(field);
    Zel::NumericEntry& entry = entries[i];
    entry.setValueRange(rangeOf(field));
    entry.setScrollStep(wheelStepOf(field));
    entry.set_size_request(entryWidth, -1);
    entry.set_activates_default(true);
    entry.set_tooltip_text(words::fullName(field));
    entry.signal_changed().connect(sigc::mem_fun(*this, &SettingsForm::_clearVeto), true);
    names[i].set_text(words::shortName(field));
    names[i].set_xalign(0);
    units[i].set_text(words::unitOf(field, side));
    units[i].set_xalign(0);
    names[i].set_margin_start(column == 0 ? indent : columnDistance);
    grid.attach(names[i], 3 * column, row);
    grid.attach(entry, 3 * column + 1, row);
    grid.attach(units[i], 3 * column + 2, row);
}

void SettingsForm::_composeVerdict() {
    warning.set_from_icon_name("dialog-warning", Gtk::ICON_SIZE_BUTTON);
    warning.set_valign(Gtk::ALIGN_START);
    sentence.set_line_wrap(true);
    sentence.set_xalign(0);
    sentence.set_max_width_chars(sentenceWidth);
    verdict.pack_start(warning, Gtk::PACK_SHRINK);
    verdict.pack_start(sentence, Gtk::PACK_EXPAND_WIDGET);
    // The window shows all that it has when it opens.
    warning.set_no_show_all(true);
    // There is room for a sentence from the start, so that OK stays where it is under the pointer.
    int width = 0;
    int height = 0;
    sentence.create_pango_layout("\n")->get_pixel_size(width, height);
    verdict.set_size_request(-1, height);
    pack_start(verdict, Gtk::PACK_SHRINK);
    defaultsButton.set_label(words::defaults());
    defaultsButton.set_halign(Gtk::ALIGN_START);
    defaultsButton.signal_clicked().connect(sigc::mem_fun(*this, &SettingsForm::_onDefaults), true);
    pack_end(defaultsButton, Gtk::PACK_SHRINK);
}

void SettingsForm::_show(const ImpedanceSettings& settings) {
    // As if it were typed: an edit that is refused brings back what was typed last.
    for (const Field field : allFields)
        _entryOf(field).set_text(textOf(settings[field]));
    for (std::size_t i = 0; i < optionalGroupCount; ++i)
        givenButtons[i].set_active(settings.isGiven[i]);
    _enable();
}

void SettingsForm::_enable() {
    for (const Field field : allFields) {
        const Group group = groupOf(field);
        const bool isEnabled =
            group == Group::Zones || givenButtons[static_cast<std::size_t>(group)].get_active();
        const auto i = static_cast<std::size_t>(field);
        for (Gtk::Widget* const widget :
             std::initializer_list<Gtk::Widget*>{&names[i], &entries[i], &units[i]})
            widget->set_sensitive(isEnabled);
    }
    // A value that isn't given any more can't be wrong.
    _clearVeto();
}

void SettingsForm::_onDefaults() {
    _show(defaults);
}

void SettingsForm::_showVeto(const Veto& veto) {
    Zel::NumericEntry& entry = _entryOf(veto.field);
    entry.get_style_context()->add_class("error");
    entry.grab_focus();
    sentence.set_text(words::vetoOf(veto));
    warning.show();
}

void SettingsForm::_clearVeto() {
    for (Zel::NumericEntry& entry : entries)
        entry.get_style_context()->remove_class("error");
    sentence.set_text("");
    warning.hide();
}

Zel::NumericEntry& SettingsForm::_entryOf(Field field) {
    return entries[static_cast<std::size_t>(field)];
}

} // namespace viewer
