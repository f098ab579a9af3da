/// What appears on a draw area is painted by drawers: small objects that own no widget.
#pragma once

#include <ZelCommonView/common/Export.h>

#include <cairomm/context.h>
#include <sigc++/sigc++.h>

#include <cstdint>
#include <list>

namespace Gtk {
class Widget;
}

namespace Zel {
class IFragmentable;
}

namespace ZelView {

class CoordsConverter;

/// The root of all drawers. Slots that are bound to a drawer die with it.
class ZEL_API Drawer : public sigc::trackable {
public:
    /// Emitted by the host right after it has replaced `converter`.
    sigc::signal<void> drawerConverterChanged;

    Drawer() = default;
    Drawer(const Drawer&) = delete;
    Drawer& operator=(const Drawer&) = delete;
    virtual ~Drawer();

    /// Called by the host once, when `converter` and `drawArea` are set. The default does nothing.
    virtual void initDrawArea();

    /// The widget that is painted on. Throws "getDrawArea", a `const char*`, before the host has set it.
    Gtk::Widget& getDrawArea() const {
        if (!drawArea)
            throw "getDrawArea";
        return *drawArea;
    }

    const CoordsConverter* converter = nullptr; ///< set by the host, not owned
    Gtk::Widget* drawArea = nullptr;            ///< set by the host, not owned
};

/// Paints a whole layer, once for each repaint.
class ZEL_API InfoDrawer : public Drawer {
public:
    ~InfoDrawer() override;

    /// Paints the layer, in pixels of the draw area; the host saves the state of the context around the call.
    virtual void draw(const Cairo::RefPtr<Cairo::Context>& context) = 0;
};

/// Paints one fragment at a time.
class ZEL_API BaseFragmentableDrawer : public Drawer {
public:
    ~BaseFragmentableDrawer() override;

    /// Paints one fragment, or nothing if it is not of a kind that the drawer knows; the host saves the state
    /// of the context around the call.
    virtual void drawFragmentable(const Cairo::RefPtr<Cairo::Context>& context,
                                  const Zel::IFragmentable& fragmentable) = 0;

    /// Everything on the same draw area, in the order of the legend; set by the host, not owned.
    const std::list<const Zel::IFragmentable*>* fragmentables = nullptr;
};

/// Paints fragments of one type and leaves all others to the other drawers of the area.
template <typename T>
class FragmentableDrawer : public BaseFragmentableDrawer {
public:
    void drawFragmentable(const Cairo::RefPtr<Cairo::Context>& context,
                          const Zel::IFragmentable& fragmentable) override {
        if (const T* t = dynamic_cast<const T*>(&fragmentable))
            _draw(context, *t);
    }

    /// Paints a fragment of the type `T`, as `drawFragmentable` does.
    virtual void _draw(const Cairo::RefPtr<Cairo::Context>& context, const T& fragmentable) = 0;
};

/// The place of an `InfoDrawer` in a repaint.
enum class DrawerPosition : std::uint32_t {
    Start = 0,           ///< first, directly on the background
    BeforeFragments = 1, ///< below the fragments, and part of the saved picture
    AfterFragments = 2,  ///< above the fragments, and part of the saved picture
    End = 3,             ///< last, over everything; not part of the saved picture
};

} // namespace ZelView
