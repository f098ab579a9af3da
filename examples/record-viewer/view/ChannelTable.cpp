#include "ChannelTable.h"

#include "Quantity.h"
#include "Words.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace viewer {

namespace {

struct Limits {
    float smallest = INFINITY;
    float largest = -INFINITY;

    bool areThere() const { return smallest <= largest; }

    double extent() const { return areThere() ? std::max(std::abs(smallest), std::abs(largest)) : 0; }

    /// "smallest … largest", multiplied by the factor; empty without a sample.
    std::string text(double factor) const {
        if (!areThere())
            return "";
        char buffer[64];
        std::snprintf(buffer, sizeof(buffer), "%.5g … %.5g", smallest * factor, largest * factor);
        return buffer;
    }
};

Limits limitsOf(const std::vector<float>& samples) {
    Limits limits;
    for (const float sample : samples)
        if (std::isfinite(sample)) {
            limits.smallest = std::min(limits.smallest, sample);
            limits.largest = std::max(limits.largest, sample);
        }
    return limits;
}

} // namespace

ChannelTable::Row::Row(int givenNumber, const std::string& givenName, const std::string& givenUnit,
                       const std::string& givenValues, double givenExtent)
    : number(std::to_string(givenNumber)), name(givenName), unit(givenUnit), values(givenValues),
      extent(givenExtent), cells{&number, &name, &unit, &values} {}

ChannelTable::Row::~Row() = default;

const std::vector<Zel::IView*>& ChannelTable::Row::getCells() {
    return cells;
}

ChannelTable::ChannelTable()
    : numberColumn(words::channelNumber(), compareNumbers), nameColumn(words::channelName()),
      unitColumn(words::channelUnit()), valuesColumn(words::channelValues()) {
    list.setColumns({&numberColumn, &nameColumn, &unitColumn, &valuesColumn});
    set_policy(Gtk::POLICY_AUTOMATIC, Gtk::POLICY_AUTOMATIC);
    set_hexpand(true);
    set_vexpand(true);
    add(list);
    show_all();
}

ChannelTable::~ChannelTable() = default;

void ChannelTable::setRecord(const record::Record& record) {
    std::list<Row> made;
    int number = 0;
    for (const record::AnalogChannel& channel : record.analogs) {
        const Limits limits = limitsOf(channel.samples);
        const Scale scale = scaleFor(channel.unit, limits.extent());
        made.emplace_back(++number, channel.name, scale.unit, limits.text(scale.factor), limits.extent());
    }
    for (const record::BinaryChannel& channel : record.binaries) {
        const auto changes = channel.samples.transitionCount();
        made.emplace_back(++number, channel.name, "", words::changes() + std::to_string(changes),
                          static_cast<double>(changes));
    }
    std::vector<Zel::IRowPresenter*> presenters;
    for (Row& row : made)
        presenters.push_back(&row);
    list.setRows(presenters);
    _sortValuesByExtent();
    // The former rows were in use until now.
    rows = std::move(made);
}

// The texts alone don't tell which of two values is larger, since their prefixes stand in another column. The
// list has a new model after each filling, to which this has to be said again.
void ChannelTable::_sortValuesByExtent() {
    const auto sort = Glib::RefPtr<Gtk::TreeModelSort>::cast_dynamic(list.get_model());
    const Zel::VirtualizationListView::TreeColumns& columns = list.getColumns();
    const auto extentOf = [presenter = columns.rowPresenter](const Gtk::TreeModel::iterator& row) {
        const auto* const found = static_cast<const Row*>(row->get_value(presenter));
        return found ? found->extent : 0;
    };
    sort->set_sort_func(columns.texts[3], [extentOf](const Gtk::TreeModel::iterator& left,
                                                     const Gtk::TreeModel::iterator& right) {
        const double a = extentOf(left);
        const double b = extentOf(right);
        return a < b ? -1 : a > b ? 1 : 0;
    });
}

} // namespace viewer
