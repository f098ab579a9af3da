#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/fragments/FragmentDrawerHelper.h>
#include <ZelCommonView/plot/Drawer.h>
#include <ZelCommonView/plot/ImageDrawer.h>

#include <gtkmm/drawingarea.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace ZelView {

/// The canvas of every plot. It keeps a picture of each fragment, so that one changed signal of many is
/// painted anew without the others.
///
/// A repaint goes: `Start` layers, `BeforeFragments` layers, fragments in the order of their keys,
/// `AfterFragments` layers, `End` layers; within a position in the order of adding. All but `Start` and `End`
/// make up the picture that can be saved. Function objects run in the widget's paint only, with the state of
/// the context saved around each.
class ZEL_API FragmentsDrawArea : public Gtk::DrawingArea {
public:
    /// Paints a layer or a fragment on a context with the origin in the top left corner of the widget, in
    /// pixels.
    using DrawFunction = Fragments::DrawFunction;

    FragmentsDrawArea();
    ~FragmentsDrawArea() override;

    /// Adds a layer; another value than the four positions is ignored. Asks for no repaint.
    void addPositionDrawer(DrawFunction function, DrawerPosition position);

    /// Sets what paints the fragment of this key, in place of whatever stood there, and asks for its repaint.
    void addFragment(const void* key, DrawFunction function);
    /// Removes the fragment of this key, if there is one, and asks for a repaint of the rest as it is.
    void removeFragment(const void* key);
    /// Removes all fragments and asks for a repaint of the layers alone.
    void removeFragments();

    /// Marks all fragments as out of date and asks for a repaint. Until the next `redraw` of one key all
    /// fragments are painted into one picture at each repaint, and their own images are neither used nor
    /// refreshed.
    void redraw();
    /// Marks one fragment as out of date and asks for a repaint. A key that is not known gets an empty entry,
    /// whose paint throws `std::bad_function_call`.
    void redraw(const void* key);

    /// Initially opaque white. Asks for no repaint, and images that are cached already keep their colour.
    void setBackgroundColor(Zel::Color color);
    /// Whether one picture of all fragments is kept, too, and composed at the next repaints until one of
    /// these comes: `redraw()`, a fragment that is added, removed or marked, another size or background
    /// colour. What else a fragment's picture depends on must then be told by a mark. Layers are painted at
    /// each repaint as ever, and all pictures are the same to the byte. Initially false. Asks for no repaint.
    void setIsRetaining(bool value);
    /// Drops the picture of all fragments, for a change of theirs that no mark tells of. The fragments' own
    /// images stay. Asks for no repaint.
    void forgetRetained();
    /// While frozen the area shows the last composed picture and paints nothing else; false at first. Asks
    /// for no repaint.
    void setIsFreezed(bool value);

    /// Saves the fragment's own image to a file of a gdk-pixbuf type such as "png". One that was never
    /// painted by itself has no image, and nothing is written; a key that is not known gets an empty entry.
    /// Throws `Glib::Error` on a bad path or type.
    void saveFragment(const void* key, const std::string& fileName, const std::string& type);
    /// Saves the composed picture; writes nothing before the first paint. Throws `Glib::Error` like
    /// `saveFragment`.
    void saveSummaryImage(const std::string& fileName, const std::string& type);

protected:
    bool on_draw(const Cairo::RefPtr<Cairo::Context>& context) override;

private:
    bool _onConfigure(GdkEventConfigure* event);
    void _drawLayers(const Cairo::RefPtr<Cairo::Context>& context,
                     const Cairo::RefPtr<Cairo::Surface>& target);
    void _drawOnOwnSurface(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawStart(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawBeforeFragments(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawFragments(const Cairo::RefPtr<Cairo::Context>& context,
                        const Cairo::RefPtr<Cairo::Surface>& target);
    bool _isFragmentOutOfDate() const;
    bool _mergeFragments();
    void _drawAfterFragments(const Cairo::RefPtr<Cairo::Context>& context);
    void _drawEnd(const Cairo::RefPtr<Cairo::Context>& context);

    Fragments::FragmentDrawerHelper helper;
    std::map<const void*, Fragments::Fragment> fragments; ///< painted in the order of the address
    std::vector<DrawFunction> startDrawers;
    std::vector<DrawFunction> endDrawers;
    std::vector<DrawFunction> beforeDrawers;
    std::vector<DrawFunction> afterDrawers;
    bool isFreezed = false;
    ImageDrawer frozenImage;
    bool redrawAll = false; ///< all fragments are painted in one go
    bool isRetaining = false;
    Fragments::Fragment allFragments; ///< one picture of all, while they are retained
};

} // namespace ZelView
