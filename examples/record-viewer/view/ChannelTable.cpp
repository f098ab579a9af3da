#include "ChannelTable.h"

#include "Words.h"

#include <cmath>
#include <cstdio>

namespace viewer {

namespace {

/// "smallest … largest"; empty if no sample is there.
std::string limitsOf(const std::vector<float>& samples) {
    float smallest = INFINITY;
    float largest = -INFINITY;
    for (const float sample : samples)
        if (std::isfinite(sample)) {
            smallest = std::min(smallest, sample);
            largest = std::max(largest, sample);
        }
    if (smallest > largest)
        return "";
    char text[64];
    std::snprintf(text, sizeof(text), "%.4g … %.4g", smallest, largest);
    return text;
}

} // namespace

ChannelTable::Columns::Columns() {
    add(number);
    add(name);
    add(unit);
    add(values);
}

ChannelTable::ChannelTable() : model(Gtk::ListStore::create(columns)) {
    view.set_model(model);
    view.append_column(words::channelNumber(), columns.number);
    view.append_column(words::channelName(), columns.name);
    view.append_column(words::channelUnit(), columns.unit);
    view.append_column(words::channelValues(), columns.values);
    const Gtk::TreeModelColumnBase* const sorted[] = {&columns.number, &columns.name, &columns.unit,
                                                      &columns.values};
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
    for (const record::AnalogChannel& channel : record.analogs)
        _addRow(++number, channel.name, channel.unit, limitsOf(channel.samples));
    for (const record::BinaryChannel& channel : record.binaries)
        _addRow(++number, channel.name, "",
                words::changes() + std::to_string(channel.samples.transitionCount()));
    view.set_model(model);
}

void ChannelTable::_addRow(int number, const std::string& name, const std::string& unit,
                           const std::string& values) {
    const Gtk::TreeModel::Row row = *model->append();
    row[columns.number] = number;
    row[columns.name] = name;
    row[columns.unit] = unit;
    row[columns.values] = values;
}

} // namespace viewer
