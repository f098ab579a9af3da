#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/bin.h>
#include <gtkmm/paned.h>

#include <list>
#include <vector>

namespace ZelView {

/// Stands widgets beside each other, with a separator that the user can drag.
///
/// It shows two widgets at most. This is meant: a further one is listed and named by `signalSeparatorMoved`,
/// and isn't shown.
class ZEL_API WidgetSeparatorSequence : public Gtk::Bin {
public:
    /// The separator was moved, by the user or by a new layout; emitted once for each widget that was added,
    /// in the order of adding.
    sigc::signal<void, Gtk::Widget&> signalSeparatorMoved;

    /// From left to right, or from top to bottom if `horizontal` is false.
    explicit WidgetSeparatorSequence(bool horizontal);
    ~WidgetSeparatorSequence() override;

    /// The widget stays the caller's, and must live as long as separators can move.
    void addWidget(Gtk::Widget& widget);

private:
    void _createPaned();
    void _onPositionChanged();

    bool horizontal;
    std::list<Gtk::Paned> paneds;
    std::vector<Gtk::Widget*> widgets; ///< all that were ever added, in order; not owned
};

} // namespace ZelView
