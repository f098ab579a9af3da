/// Columns and rows as an application makes them, and a list of them.
#pragma once

#include <ZelCommonView/collections/VirtualizationListView.h>

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace test {

class Column : public Zel::IVirtualizationListColumn {
public:
    using Comparator = std::function<int(const std::string&, const std::string&)>;

    explicit Column(std::string givenTitle, Comparator givenComparator = nullptr,
                    Zel::IView* givenRenderer = nullptr)
        : title(std::move(givenTitle)), comparator(std::move(givenComparator)), renderer(givenRenderer) {}

    std::string getTitle() override { return title; }

    Zel::IView* getCellRendererView() override { return renderer; }

    Comparator getComparator() override { return comparator; }

    std::string title;
    Comparator comparator;
    Zel::IView* renderer;
};

class Row : public Zel::IRowPresenter {
public:
    explicit Row(const std::vector<std::string>& texts) {
        for (const std::string& text : texts)
            views.emplace_back(text);
        for (Zel::CellDataView& view : views)
            cells.push_back(&view);
    }

    const std::vector<Zel::IView*>& getCells() override { return cells; }

    std::deque<Zel::CellDataView> views;
    std::vector<Zel::IView*> cells;
};

/// The texts of a column as the store has them, or as they stand on the screen.
inline std::vector<std::string> textsOf(const Glib::RefPtr<Gtk::TreeModel>& model,
                                        const Zel::VirtualizationListView& list, std::size_t column = 0) {
    std::vector<std::string> texts;
    for (const Gtk::TreeRow& row : model->children())
        texts.push_back(row[list.treeColumns.texts[column]]);
    return texts;
}

} // namespace test
