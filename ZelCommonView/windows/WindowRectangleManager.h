#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/RectangleF.h>
#include <ZelCommonView/presentation/WidgetReference.h>

#include <gtkmm/window.h>

#include <memory>

namespace Zel {

/// Place and size of a window.
class ZEL_API IWindowRectangle {
public:
    virtual ~IWindowRectangle();

    /// Wants place and size, in pixels of the screen.
    virtual void setRectangle(const RectangleF& rectangle) = 0;
    /// The present place and size, in pixels of the screen.
    virtual RectangleF getRectangle() const = 0;
};

/// Gives a window back the place and the size that it had. Nothing is stored here: the application asks for
/// the rectangle when it wants to remember it, keeps it as it pleases and hands it in at the next start.
///
/// A number of a rectangle is valid if it is above 0, finite and not denormal.
class ZEL_API WindowRectangleManager : public virtual IWindowRectangle, public sigc::trackable {
public:
    /// The window stays the caller's. When it dies nothing has a rectangle any more.
    explicit WindowRectangleManager(Gtk::Window& window);
    ~WindowRectangleManager() override;
    WindowRectangleManager(const WindowRectangleManager&) = delete;
    WindowRectangleManager& operator=(const WindowRectangleManager&) = delete;

    /// Wants the rectangle, in pixels of the screen, instead of any earlier one. The default size of the
    /// window is set at once, if both width and height are valid. The place is taken each time the window is
    /// mapped, if all four numbers are valid and right and bottom edge lie within the summed widths and
    /// heights of the monitors' work areas. Otherwise Gtk places the window: so a rectangle at x or y of 0 or
    /// below counts as one without a place, which is meant. Fractions are cut off.
    void setRectangle(const RectangleF& rectangle) override;

    /// The present place and size of the window, in pixels; not the rectangle that was wanted. All 0 when the
    /// window is gone.
    RectangleF getRectangle() const override;

private:
    void _setStartupSize();
    void _setStartupPosition();

    WidgetReference<Gtk::Window> window;   ///< not owned
    std::unique_ptr<RectangleF> rectangle; ///< null until one is wanted
};

} // namespace Zel
