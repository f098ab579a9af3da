#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/PointerConnectionsDispatcher.h>
#include <ZelCommonView/fragments/FragmentableCollectionWidget.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>
#include <ZelCommonView/plot/ConverterProxy.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/DrawersManager.h>

#include <gtkmm/bin.h>
#include <gtkmm/grid.h>

#include <memory>
#include <vector>

namespace ZelView {

/// One plot: a legend beside a canvas, the converter of the plot, and the drawers that paint on the canvas.
///
/// What is drawn is the owner's affair: it adds the drawers, chooses where the limits come from and gives the
/// data. The plot keeps the parts in step: each drawer has the current converter, and whatever changes the
/// scale or the size leads to a repaint.
class ZEL_API SeriesGroupDrawArea : public Gtk::Bin {
public:
    /// A drawer was set up by `addDrawer`; it is not in `getDrawers()` yet.
    sigc::signal<void, Drawer&> signalDrawerAdded;

    SeriesGroupDrawArea();
    ~SeriesGroupDrawArea() override;

    /// The canvas.
    FragmentsDrawArea& getFragmensDrawArea() { return fragmentsDrawArea; }

    /// All drawers in the order of `DrawersManager::getDrawers`; they stay the plot's.
    std::vector<Drawer*> getDrawers() const;

    /// Of the canvas; initially opaque white. Asks for no repaint.
    void setBackgroundColor(Zel::Color color);

    /// Adds a legend row and a fragment, which is painted again at each `changed`. The object stays the
    /// caller's, and must neither move nor die before it is removed. One that is there already throws
    /// "addWidget", a `const char*`.
    void addFragmentable(const Zel::IFragmentable& fragmentable);
    /// Throws `std::out_of_range` for one that was never added.
    void deleteFragmentable(const Zel::IFragmentable& fragmentable);
    /// Removes the rows and the fragments of all objects.
    void clearFragmentable();
    /// Marks all fragments as out of date and asks for a repaint.
    void redrawFragmentable();

    /// Where the limits of x come from; initially automatic. The limits stay as they are for now.
    void setXBordersMode(BordersMode mode);
    /// The same for y.
    void setYBordersMode(BordersMode mode);
    /// World limits of x; all fragments are painted anew. Throws "setXBorders", a `const char*`, unless the x
    /// mode is manual and `min` is not above `max`.
    void setXBorders(float min, float max);
    /// The same for y, with "setYBorders".
    void setYBorders(float min, float max);
    /// From now on automatic limits follow this object, which must outlive its removal.
    void addBorderable(const Zel::IBorderable& borderable);
    /// Forgets the object; one that was never added is no error.
    void deleteBorderable(const Zel::IBorderable& borderable);
    /// Forgets all objects; automatic axes go back to the limits of an empty plot.
    void clearBorderable();
    /// Replaces the converter and tells all drawers; all fragments are painted anew. Throws
    /// "_createConverter", a `const char*`, for any other value, and the converter then stays.
    void setCoordsConvertMode(CoordsConvertMode mode);
    /// Margins in pixels, all 0 at first; all fragments are painted anew.
    void setOffset(CoordsConverter::Offset offset);

    /// Gives the canvas the width of others.
    void setDrawAreaGroup(SizeGroupAdapter& group);
    /// Gives the legend the width of others.
    void setFragmentableCollectionGroup(SizeGroupAdapter& group);
    /// Gives the rows of the legend the width of others.
    void setFragmentableGroup(SizeGroupAdapter& group);

    /// Sets the drawer up with the converter and the canvas, calls its `initDrawArea`, emits
    /// `signalDrawerAdded`, and takes ownership. What `initDrawArea` throws passes through, and the drawer
    /// is then not added.
    void addDrawer(std::unique_ptr<InfoDrawer> drawer, DrawerPosition position);
    /// Does the same for a drawer of fragments, which is first given the list of the legend.
    void addDrawer(std::unique_ptr<BaseFragmentableDrawer> drawer);

private:
    void _initDrawer(Drawer& drawer);
    void _setConverter(Drawer& drawer);
    bool _onConfigure(GdkEventConfigure* event);

    // Members die in reverse: drawers before the converter that they read, and all before the canvas.
    Gtk::Grid grid;
    FragmentsDrawArea fragmentsDrawArea;
    ConverterProxy converterProxy;
    DrawersManager drawersManager{fragmentsDrawArea};
    FragmentableCollectionWidget fragmentableCollection;
    Zel::PointerConnectionsDispatcher fragmentableConnections; ///< one for each fragmentable, by its address
    SizeGroupAdapter drawAreaGroup;
    SizeGroupAdapter fragmentableCollectionGroup;
};

} // namespace ZelView
