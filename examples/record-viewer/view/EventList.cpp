#include "EventList.h"

#include "Signals.h"
#include "Words.h"

#include <array>
#include <charconv>

namespace viewer {

namespace {

constexpr int decimals = 6; // of a time: microseconds

/// Such as "0.123456" in every locale.
std::string textOf(double seconds) {
    std::array<char, 64> buffer{};
    const auto end = std::to_chars(buffer.begin(), buffer.end(), seconds, std::chars_format::fixed, decimals);
    return {buffer.begin(), end.ptr};
}

} // namespace

EventList::Cells::Cells() : all{&number, &time, &channel, &state} {}

EventList::Row::Row(EventList& owner, std::size_t givenNumber, const record::Transition& given)
    : list(&owner), number(givenNumber), transition(given) {}

EventList::Row::~Row() = default;

const std::vector<Zel::IView*>& EventList::Row::getCells() {
    Cells& cells = list->cells;
    cells.number.text = std::to_string(number);
    cells.time.text = textOf(transition.time);
    cells.channel.text = list->names[transition.channel];
    cells.state.text = transition.state ? "1" : "0";
    return cells.all;
}

EventList::EventList()
    : Gtk::Box(Gtk::ORIENTATION_VERTICAL), numberColumn(words::channelNumber(), compareNumbers),
      timeColumn(words::eventTime(), compareNumbers), channelColumn(words::channelName()),
      stateColumn(words::eventState()) {
    list.setColumns({&numberColumn, &timeColumn, &channelColumn, &stateColumn});
    selectionConnection =
        list.signalSelectionChanged().connect(sigc::mem_fun(*this, &EventList::_onSelectionChanged));
    list.signal_row_activated().connect(sigc::mem_fun(*this, &EventList::_onRowActivated), true);

    problem.set_line_wrap(true);
    problem.property_margin() = 12;
    problem.set_no_show_all(true);
    scrolled.set_policy(Gtk::POLICY_AUTOMATIC, Gtk::POLICY_AUTOMATIC);
    scrolled.add(list);
    pack_start(problem, Gtk::PACK_SHRINK);
    pack_start(scrolled, Gtk::PACK_EXPAND_WIDGET);
    set_hexpand(true);
    set_vexpand(true);
    show_all();
}

EventList::~EventList() = default;

void EventList::setRecord(const record::Record& record) {
    names.clear();
    for (const record::BinaryChannel& channel : record.binaries)
        names.push_back(signalName(channel.name, channel.phase));
    const std::vector<record::Transition> found = record::transitions(record);
    std::vector<Row> made;
    std::vector<Zel::IRowPresenter*> presenters;
    made.reserve(found.size());
    presenters.reserve(found.size());
    for (const record::Transition& transition : found)
        presenters.push_back(&made.emplace_back(*this, made.size() + 1, transition));

    // The list selects its first row, which nobody has chosen.
    selectionConnection.block();
    list.setRows(presenters);
    list.get_selection()->unselect_all();
    selectionConnection.unblock();
    // The former rows were in use until now.
    rows = std::move(made);
    problem.set_text(record.binaries.empty() ? words::noBinaries() : words::noChanges());
    problem.set_visible(rows.empty());
}

void EventList::_onSelectionChanged() {
    const std::vector<Zel::IRowPresenter*> selected = list.getSelection();
    if (selected.empty())
        return;
    // Taken out of the row, which a listener may bring to its end.
    const double time = static_cast<const Row*>(selected.front())->transition.time;
    signalTimeChosen.emit(time);
}

void EventList::_onRowActivated(const Gtk::TreePath& /*path*/, Gtk::TreeViewColumn* /*column*/) {
    _onSelectionChanged();
}

} // namespace viewer
