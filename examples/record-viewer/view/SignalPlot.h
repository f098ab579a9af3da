#pragma once

#include "Signals.h"

#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/plot/ConverterProxy.h>
#include <ZelCommonView/plot/DrawersManager.h>

#include <gtkmm/box.h>

#include <list>
#include <memory>

namespace viewer {

/// One section on the screen: the names of its signals beside the canvas that shows them.
class SignalPlot : public Gtk::Box {
public:
    explicit SignalPlot(Section section);

    /// The smallest height, in pixels, at which nothing is cut off.
    int getNeededHeight() const { return neededHeight; }

private:
    bool _onConfigure(GdkEventConfigure* event);
    bool _onDrawNames(const Cairo::RefPtr<Cairo::Context>& context);
    void _addDrawers();
    void _initDrawer(ZelView::Drawer& drawer);
    void _setLimits();
    float _getNameY(std::size_t position) const;

    Section section;
    int neededHeight = 0;
    std::list<const Zel::IFragmentable*> fragmentables;
    Gtk::DrawingArea names;
    ZelView::FragmentsDrawArea canvas;
    ZelView::ConverterProxy converterProxy;
    ZelView::DrawersManager drawersManager{canvas};
};

} // namespace viewer
