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

ChannelTable::Columns::Columns() {
    add(number);
    add(name);
    add(unit);
    add(values);
    add(extent);
}

ChannelTable::ChannelTable() : model(Gtk::ListStore::create(columns)) {
    view.set_model(model);
    view.append_column(words::channelNumber(), columns.number);
    view.append_column(words::channelName(), columns.name);
    view.append_column(words::channelUnit(), columns.unit);
    view.append_column(words::channelValues(), columns.values);
    const Gtk::TreeModelColumnBase* const sorted[] = {&columns.number, &columns.name, &columns.unit,
                                                      &columns.extent};
    for (int i = 0; i < 4; ++i) {
        view.get_column(i)->set_sort_column(*sorted[i]);
        view.get_column(i)->set_resizable(true);
    }
    set_policy(Gtk::POLICY_AUTOMATIC, Gtk::POLICY_AUTOMATIC);
    set_hexpand(true);
    set_vexpand(true);
    add(view);
    show_all();
}

ChannelTable::~ChannelTable() = default;

void ChannelTable::setRecord(const record::Record& record) {
    // Out of sight while it is filled, so that the view isn't told of each row.
    view.unset_model();
    model->clear();
    int number = 0;
    for (const record::AnalogChannel& channel : record.analogs) {
        const Limits limits = limitsOf(channel.samples);
        const Scale scale = scaleFor(channel.unit, limits.extent());
        _addRow(++number, channel.name, scale.unit, limits.text(scale.factor), limits.extent());
    }
    for (const record::BinaryChannel& channel : record.binaries) {
        const auto changes = channel.samples.transitionCount();
        _addRow(++number, channel.name, "", words::changes() + std::to_string(changes),
                static_cast<double>(changes));
    }
    view.set_model(model);
}

void ChannelTable::_addRow(int number, const std::string& name, const std::string& unit,
                           const std::string& values, double extent) {
    const Gtk::TreeModel::Row row = *model->append();
    row[columns.number] = number;
    row[columns.name] = name;
    row[columns.unit] = unit;
    row[columns.values] = values;
    row[columns.extent] = extent;
}

} // namespace viewer
