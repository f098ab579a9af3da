// Long random sequences of everything that users and applications do with panels.
#include <ZelCommonView/windows/PanelManagerView.h>

#include "PanelTree.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <algorithm>
#include <memory>
#include <random>
#include <set>

namespace {

using namespace Zel;

class LabelAsView : public Gtk::Label, public IView {};

/// Makes one random operation after the other and expects, after each, that the tree is sound and that
/// exactly those panels are to be seen that should be.
class Model {
public:
    explicit Model(unsigned int seed) : random(seed) {}

    ~Model() { manager.reset(); }

    void step() {
        const int kind = below(100);
        if (seen.empty() || (kind < 25 && seen.size() < largest))
            add();
        else if (kind < 84)
            drop();
        else if (kind < 88)
            toWindow();
        else if (kind < 91)
            closeWindow();
        else if (kind < 99)
            closePanel();
        else
            deleteAll();
    }

    /// What is wrong now; empty if nothing.
    std::vector<std::string> faults() {
        std::vector<std::string> found = test::findFaults(*manager);
        if (test::visiblePanels(*manager) != std::set<PanelView*>(seen.begin(), seen.end()))
            found.push_back("panels were lost or came back in " + test::layoutOf(*manager));
        return found;
    }

    std::string history;

private:
    static constexpr std::size_t largest = 12;

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }

    PanelView* any() { return seen[static_cast<std::size_t>(below(static_cast<int>(seen.size())))]; }

    void forget(PanelView* panel) { seen.erase(std::find(seen.begin(), seen.end(), panel)); }

    Positions anyPosition() { return static_cast<Positions>(below(6)); }

    void note(const std::string& text) { history += text + "; "; }

    void add() {
        children.push_back(std::make_unique<LabelAsView>());
        PanelView* const sibling = seen.empty() || below(2) ? nullptr : any();
        const Positions position = anyPosition();
        const std::string title = std::to_string(++number);
        note("new " + title + " at " + std::to_string(static_cast<int>(position)) +
             (sibling ? " of " + sibling->getTitle() : ""));
        auto* const panel =
            dynamic_cast<PanelView*>(manager->newPanel(title, position, *children.back(), sibling));
        panel->setProperties(true, true);
        seen.push_back(panel);
    }

    void drop() {
        PanelView* const panel = any();
        PanelView* const target = any();
        const Positions position = anyPosition();
        note("drop " + panel->getTitle() + " on " + target->getTitle() + " at " +
             std::to_string(static_cast<int>(position)));
        target->signalDrop.emit(target, panel, position);
    }

    void toWindow() {
        PanelView* const panel = any();
        note("float " + panel->getTitle());
        panel->signalToWindow.emit(panel);
    }

    void closeWindow() {
        if (manager->windows.empty())
            return;
        auto& window =
            *manager->windows[static_cast<std::size_t>(below(static_cast<int>(manager->windows.size())))];
        auto* const panel = dynamic_cast<PanelView*>(window.get_child());
        if (!panel)
            return;
        note("close the window of " + panel->getTitle());
        forget(panel);
        GdkEventAny event{};
        event.type = GDK_DELETE;
        window._onClose(&event);
    }

    void closePanel() {
        PanelView* const panel = any();
        if (dynamic_cast<WindwView*>(panel->get_parent()))
            return;
        note("close " + panel->getTitle());
        forget(panel);
        panel->btnClose.clicked();
    }

    void deleteAll() {
        note("delete all");
        seen.clear();
        manager->deleteAll();
        manager->windows.clear();
        children.clear();
    }

    std::mt19937 random;
    std::vector<std::unique_ptr<LabelAsView>> children;
    std::unique_ptr<PanelManagerView> manager = std::make_unique<PanelManagerView>();
    std::vector<PanelView*> seen; ///< in the order in which they were made, so that a seed is reproducible
    int number = 0;
};

constexpr int operations = 10000;

class PanelManagerModel : public testing::TestWithParam<unsigned int> {};

INSTANTIATE_TEST_SUITE_P(Seeds, PanelManagerModel, testing::Range(1u, 11u));

} // namespace

TEST_P(PanelManagerModel, NoOperationEverLosesAPanelOrBreaksTheTree) {
    Model model(GetParam());
    for (int i = 0; i < operations; ++i) {
        model.step();
        // What is queued runs now and then, as in a program.
        if (i % 20 == 0)
            while (Gtk::Main::events_pending())
                Gtk::Main::iteration();
        const std::vector<std::string> faults = model.faults();
        ASSERT_TRUE(faults.empty()) << "after " << i + 1 << " operations: " << testing::PrintToString(faults)
                                    << "\nThe last ones: "
                                    << model.history.substr(
                                           model.history.size() > 600 ? model.history.size() - 600 : 0);
        if (model.history.size() > 5000)
            model.history.erase(0, 4000);
    }
}
