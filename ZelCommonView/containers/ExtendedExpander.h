#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/WidgetReference.h>

#include <gtkmm/bin.h>
#include <gtkmm/eventbox.h>
#include <gtkmm/frame.h>
#include <gtkmm/grid.h>
#include <gtkmm/image.h>

namespace Zel {

/// A content that opens and closes below a label, by a click on the arrow in front of it. Without a content
/// there is no arrow, unless it is asked for.
///
/// The theme reaches the arrow's area by the style class "ExpandArea", the content's frame by
/// "ExpandAreaContainer" and the arrows, whose pictures it gives, by "ArrowDownImage" and "ArrowRightImage".
class ZEL_API ExtendedExpander : public Gtk::Bin {
public:
    /// Collapsed, without label and content. `showArrow` keeps the arrow even without a content.
    explicit ExtendedExpander(bool showArrow);
    ~ExtendedExpander() override;

    /// Opens or closes the content. It is also the refresh of the whole widget, so the value that stands
    /// already is no exception: the signal fires each time. Without content and arrow only the value is
    /// stored, to take effect when `add` brings a content.
    void set_expanded(bool value);
    /// What was set last, or by the last click.
    bool get_expanded() const;

    /// Fires after each `set_expanded`, `add`, `remove` and `showArrow` that did not end without an arrow.
    /// A listener may delete the expander.
    sigc::signal<void>& signal_expanded_changed();

    /// Puts a label behind the arrow, in place of the one before. The caller owns it and may delete it at any
    /// time.
    void set_label_widget(Gtk::Widget& widget);

    /// Whether the arrow is to be seen even without a content.
    void showArrow(bool value);

    /// Makes the widget, which the caller owns, the content. One content at a time.
    void add(Gtk::Widget& widget) override;

    /// Takes the content out. Without an arrow of its own the frame that held it stays as it is.
    void remove();

private:
    bool _onExpandAreaPressed(GdkEventButton* event);
    bool _onExpandAreaEnter(GdkEventCrossing* event);
    bool _onExpandAreaLeave(GdkEventCrossing* event);
    void _raiseSignalExpandedChanged();

    bool expanded = false;
    Gtk::Grid grid;
    Gtk::EventBox expandArea; ///< holds one of the three images
    Gtk::Frame contentFrame;
    Gtk::Image arrowDownImage;
    Gtk::Image arrowRightImage;
    Gtk::Image placeholderImage;
    WidgetReference<Gtk::Widget> labelWidget; ///< in the grid; not owned
    sigc::signal<void> signalExpandedChanged;
    bool isArrowShown; ///< also without a content
};

} // namespace Zel
