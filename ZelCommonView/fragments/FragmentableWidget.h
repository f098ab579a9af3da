#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/PointerConnectionsDispatcher.h>

#include <gtkmm/bin.h>
#include <gtkmm/label.h>

#include <string>

namespace Gdk {
class RGBA;
}

namespace Zel {
class IFragmentable;
}

namespace ZelView {

/// A row of a legend: the name of a fragmentable on a background of its colour.
///
/// The label has the style class "legend", which a theme defines. The colour follows `changed`, which must be
/// emitted on the GTK thread; the text stays that of the beginning. This is meant.
class ZEL_API FragmentableWidget : public Gtk::Bin {
public:
    /// The fragmentable stays the caller's and must outlive the row.
    explicit FragmentableWidget(const Zel::IFragmentable& fragmentable);
    ~FragmentableWidget() override;

    /// Marks the row as highlighted. It looks as before.
    void highlight();
    /// Takes the mark back. The row looks as before.
    void unhighlight();

private:
    /// Colours the row anew. The opacity of the colour counts at construction only; from the first update on
    /// the row is opaque. This is meant.
    void _update();
    void _setBackground(const Gdk::RGBA& color);
    std::string _getHighlightedMarkup() const;
    std::string _getNormalMarkup() const;

    const Zel::IFragmentable& fragmentable;
    Gtk::Label label;
    bool highlighted = false;
    Zel::PointerConnectionsDispatcher connections;
};

} // namespace ZelView
