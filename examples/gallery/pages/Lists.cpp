// A list for many rows: a click on a header sorts, the cross removes its row. Columns and rows stay the
// application's; many rows at once come by setRows.

#include "Pages.h"

#include <ZelCommonView/collections/RemoveCellRenderer.h>
#include <ZelCommonView/collections/VirtualizationListView.h>

#include <gtkmm.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace gallery {

namespace {

struct Column : Zel::IVirtualizationListColumn {
    Column(const char* givenTitle, Zel::IView* givenRenderer, bool givenIsNumber)
        : title(givenTitle), renderer(givenRenderer), isNumber(givenIsNumber) {}

    std::string getTitle() override { return title; }

    Zel::IView* getCellRendererView() override { return renderer; }

    std::function<int(const std::string&, const std::string&)> getComparator() override {
        if (!isNumber)
            return nullptr;
        return [](const std::string& a, const std::string& b) { return std::stoi(a) - std::stoi(b); };
    }

    std::string title;
    Zel::IView* renderer;
    bool isNumber;
};

struct Row : Zel::IRowPresenter {
    explicit Row(int value)
        : number(std::to_string(value)), name(words("Event ", "Событие ") + std::to_string(value)) {}

    const std::vector<Zel::IView*>& getCells() override { return cells; }

    Zel::CellDataView number;
    Zel::CellDataView name;
    std::vector<Zel::IView*> cells{&number, &name};
};

class Lists : public Gtk::Box {
public:
    Lists() : Gtk::Box(Gtk::ORIENTATION_VERTICAL, 8) {
        list.setColumns({&numberColumn, &nameColumn, &removeColumn});
        list.signalSelectionChanged().connect(sigc::mem_fun(*this, &Lists::_onSelection));
        remove.signalRemoveRow().connect(sigc::mem_fun(*this, &Lists::_onRemove));
        fewButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Lists::_fill), 12), true);
        manyButton.signal_clicked().connect(sigc::bind(sigc::mem_fun(*this, &Lists::_fill), 100'000), true);
        for (Gtk::Widget* const widget :
             std::initializer_list<Gtk::Widget*>{&fewButton, &manyButton, &selected})
            buttons.pack_start(*widget, Gtk::PACK_SHRINK);
        scrolled.set_shadow_type(Gtk::SHADOW_IN);
        scrolled.add(list);
        pack_start(buttons, Gtk::PACK_SHRINK);
        pack_start(scrolled, Gtk::PACK_EXPAND_WIDGET);
        _fill(12);
    }

private:
    void _fill(int count) {
        std::vector<std::unique_ptr<Row>> made;
        std::vector<Zel::IRowPresenter*> presenters;
        for (int i = 1; i <= count; ++i)
            presenters.push_back(made.emplace_back(std::make_unique<Row>(i)).get());
        list.setRows(presenters);
        rows = std::move(made); // the former ones were in use until now
    }

    void _onRemove(Zel::IRowPresenter* row) {
        const auto found =
            std::find_if(rows.begin(), rows.end(), [row](const auto& r) { return r.get() == row; });
        list.removeRow(static_cast<unsigned long>(found - rows.begin()));
        rows.erase(found);
    }

    void _onSelection() {
        const std::vector<Zel::IRowPresenter*> chosen = list.getSelection();
        selected.set_text(chosen.empty() ? ""
                                         : words("Selected: ", "Выбрано: ") +
                                               static_cast<const Row*>(chosen.front())->name.text);
    }

    Zel::RemoveCellRendererPresenter remove;
    Column numberColumn{words("No.", "№"), nullptr, true};
    Column nameColumn{words("Name", "Название"), nullptr, false};
    Column removeColumn{"", remove.getView(), false};
    std::vector<std::unique_ptr<Row>> rows;
    Gtk::Box buttons{Gtk::ORIENTATION_HORIZONTAL, 8};
    Gtk::Button fewButton{words("12 rows", "12 строк")};
    Gtk::Button manyButton{words("100 000 rows", "100 000 строк")};
    Gtk::Label selected;
    Gtk::ScrolledWindow scrolled;
    Zel::VirtualizationListView list;
};

} // namespace

std::unique_ptr<Gtk::Widget> makeListsPage() {
    return std::make_unique<Lists>();
}

} // namespace gallery
