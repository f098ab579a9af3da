#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/PointerConnectionsDispatcher.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <sigc++/sigc++.h>

#include <map>
#include <memory>

namespace Zel {
class IBorderable;
}

namespace ZelView {

/// Owns the converter of one draw area, keeps its limits in step with the registered borderables and
/// exchanges the concrete converter at run time.
///
/// Programming errors are thrown as the name of the operation, a `const char*`.
class ZEL_API ConverterProxy {
public:
    /// The concrete converter was replaced; the old one still lives while the signal runs.
    sigc::signal<void> converterChanged;
    /// Automatic x limits are about to change; listeners still read the old ones.
    sigc::signal<void> xBordersChanged;
    /// Automatic y limits are about to change. Only y still has its old limits by then: x is stored already.
    sigc::signal<void> yBordersChanged;

    /// A stretchable converter of size 0, both axes automatic, with the limits of an empty plot.
    ConverterProxy();
    ~ConverterProxy();
    ConverterProxy(const ConverterProxy&) = delete;
    ConverterProxy& operator=(const ConverterProxy&) = delete;

    /// The current converter; it is replaced by `setCoordsConvertMode`. Null only after that threw.
    CoordsConverter* getConverter() const;

    /// Size of the widget in pixels; 0 is allowed. Throws "setWidgetSize" if either is below 0.
    void setWidgetSize(float width, float height);
    /// Margins in pixels, unchecked; all 0 at first.
    void setOffset(CoordsConverter::Offset offset);
    /// Stores the mode, automatic at first, and nothing else: the limits stay until something sets or
    /// recalculates them.
    void setXBordersMode(BordersMode mode);
    /// Stores the mode and nothing else, like `setXBordersMode`.
    void setYBordersMode(BordersMode mode);
    /// World limits of x. Throws "setXBorders" unless the x mode is manual and `min` is not above `max`.
    void setXBorders(float min, float max);
    /// World limits of y. Throws "setYBorders" unless the y mode is manual and `min` is not above `max`.
    void setYBorders(float min, float max);
    /// Replaces the converter, also by one of the same kind, and emits `converterChanged`. Size, limits and
    /// margins are kept; `rowHeight` and `onePulseHeight` start anew. Throws "_createConverter" for any other
    /// value; the proxy then holds no converter, and every setter but this one throws its own name.
    void setCoordsConvertMode(CoordsConvertMode mode);

    /// From now on the limits follow this object. It must outlive its removal or the proxy.
    void addBorderable(const Zel::IBorderable& borderable);
    /// Forgets the object; one that was never added is no error.
    void deleteBorderable(const Zel::IBorderable& borderable);
    /// Forgets all objects; automatic axes go back to the limits of an empty plot.
    void clearBorderable();

private:
    static std::unique_ptr<CoordsConverter> _createConverter(CoordsConvertMode mode);
    CoordsConverter& _getConverterFor(const char* operation) const;
    void _recalcBorder(const Zel::IBorderable& borderable);
    void _recalcConverterBorders();

    std::unique_ptr<CoordsConverter> converter;
    BordersMode xBordersMode = BordersMode::Auto;
    BordersMode yBordersMode = BordersMode::Auto;
    Zel::PointerConnectionsDispatcher connections;
    std::map<const Zel::IBorderable*, CoordsConverter::Border>
        borders; ///< the last limits of each borderable
};

} // namespace ZelView
