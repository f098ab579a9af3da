// Long random sequences of everything that happens to items of a selection, also inside its own signals.
#include <ZelCommonView/collections/SelectionManagerView.h>
#include <ZelCommonView/collections/SelectionView.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <algorithm>
#include <memory>
#include <random>
#include <utility>

namespace {

using namespace Zel;

class BoxAsView : public Gtk::Box, public IView {};

class Model {
public:
    explicit Model(unsigned int seed) : random(seed) {
        window.add(root);
        for (Gtk::Box& box : boxes)
            root.add(box);
        makeManager();
        window.show_all();
    }

    void step() {
        switch (below(10)) {
        case 0:
        case 1:
            if (items.size() < 12)
                add();
            break;
        case 2:
        case 3:
        case 4:
            if (SelectionView* const item = any())
                item->setIsSelected(below(5) != 0);
            break;
        case 5:
            if (SelectionView* const item = any())
                walk([this, item] { item->set_visible(below(2) != 0); });
            break;
        case 6:
            move();
            break;
        case 7:
            remove();
            break;
        case 8:
            manager->setAutoselect(below(2) != 0);
            break;
        default:
            switch (below(6)) {
            case 0:
                makeManager();
                break;
            case 1:
                walk([this] { manager->set_visible(below(2) != 0); });
                break;
            case 2:
                manager->setSelectedView(nullptr);
                break;
            default:
                manager->updateState();
            }
        }
    }

    /// What is wrong now; empty if nothing.
    std::string fault() {
        int selected = 0;
        bool isKnown = manager->getSelectedView() == nullptr;
        for (const auto& item : items) {
            if (item->getIsSelected() != item->get_style_context()->has_class("Selected"))
                return "an item looks otherwise than it says";
            isKnown = isKnown || manager->getSelectedView() == item.get();
            // An item keeps to the manager that it found first.
            if (item->manager.lock().get() != manager.get())
                continue;
            selected += item->getIsSelected() ? 1 : 0;
            if (item->getIsSelected() != (manager->getSelectedView() == item.get()))
                return "manager and item disagree";
        }
        if (!isKnown)
            return "a dead item is selected";
        return selected > 1 ? "more than one item is selected" : "";
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    SelectionView* any() {
        return items.empty() ? nullptr
                             : items[static_cast<std::size_t>(below(static_cast<int>(items.size())))].get();
    }

    void makeManager() {
        if (manager && manager->get_child())
            walk([this] { manager->remove(); });
        manager = std::make_unique<SelectionManagerView>();
        manager->setContent(&content);
        manager->setAutoselect(below(2) != 0);
        manager->signalSelectionChanged().connect([this] { interfere(); });
        walk([this] {
            root.add(*manager);
            manager->show_all();
        });
    }

    void add() {
        items.push_back(std::make_unique<SelectionView>(below(2) != 0));
        SelectionView& item = *items.back();
        item.signalSelectionChanged().connect([this] { interfere(); });
        walk([this, &item] {
            place(item);
            item.show_all();
        });
    }

    void place(SelectionView& item) {
        Gtk::Box* const places[] = {&content, &content, &boxes[0], &boxes[1]};
        places[below(4)]->add(item);
    }

    void move() {
        SelectionView* const item = any();
        if (!item)
            return;
        // A listener may delete it while it leaves.
        const auto found = std::find_if(items.begin(), items.end(),
                                        [item](const auto& owned) { return owned.get() == item; });
        std::unique_ptr<SelectionView> kept = std::move(*found);
        items.erase(found);
        if (kept->get_parent())
            kept->get_parent()->remove(*kept);
        walk([this, &kept] { place(*kept); });
        items.push_back(std::move(kept));
    }

    void remove() {
        if (items.empty())
            return;
        const auto found = items.begin() + below(static_cast<int>(items.size()));
        // Out of the list first: listeners that its end calls shall not find it.
        const std::unique_ptr<SelectionView> dying = std::move(*found);
        items.erase(found);
    }

    /// Makes Gtk map or unmap one child after the other: it can't bear that one of them dies meanwhile.
    template <typename TOperation>
    void walk(TOperation operation) {
        const bool wasWalking = std::exchange(isWalking, true);
        operation();
        isWalking = wasWalking;
    }

    /// What a listener does now and then.
    void interfere() {
        if (depth > 3 || below(6) != 0)
            return;
        ++depth;
        switch (below(4)) {
        case 0:
            if (!isWalking)
                remove();
            break;
        case 1:
            if (SelectionView* const item = any())
                item->hide();
            break;
        case 2:
            if (SelectionView* const item = any())
                item->setIsSelected(true);
            break;
        default:
            if (items.size() < 12)
                add();
        }
        --depth;
    }

    std::mt19937 random;
    Gtk::OffscreenWindow window;
    Gtk::Box root;
    Gtk::Box boxes[2];
    BoxAsView content;
    std::vector<std::unique_ptr<SelectionView>> items;
    std::unique_ptr<SelectionManagerView> manager;
    int depth = 0;
    bool isWalking = false;
};

class SelectionModel : public testing::TestWithParam<unsigned int> {};

INSTANTIATE_TEST_SUITE_P(Seeds, SelectionModel, testing::Range(1u, 11u));

} // namespace

TEST_P(SelectionModel, ManagerAndItemsAlwaysAgree) {
    Model model(GetParam());
    for (int i = 0; i < 10000; ++i) {
        model.step();
        if (i % 50 == 0)
            while (Gtk::Main::events_pending())
                Gtk::Main::iteration();
        const std::string fault = model.fault();
        ASSERT_EQ(fault, "") << "after " << i + 1 << " operations";
    }
}
