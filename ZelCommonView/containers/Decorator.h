#pragma once

#include <ZelCommonView/common/Export.h>

#include <gtkmm/bin.h>

namespace Zel {

/// A bare container for one child that the theme can reach: Gtk::Bin by itself can't be constructed.
class ZEL_API Decorator : public Gtk::Bin {
public:
    Decorator();
    ~Decorator() override;
};

} // namespace Zel
