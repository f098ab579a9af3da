/// What an `Oscillograph` consists of; no part of the public interface.
#pragma once

#include <ZelCommonView/oscillogram/Oscillograph.h>
#include <ZelCommonView/oscillogram/RangeScrollbar.h>
#include <ZelCommonView/oscillogram/SynchronizerFacade.h>

#include <gtkmm/checkbutton.h>
#include <gtkmm/grid.h>

#include <cstdint>

namespace ZelView {

struct Oscillograph::Impl {
    Gtk::Grid grid;
    SynchronizerFacade facade;
    RangeScrollbar rangeScrollbar;
    Gtk::CheckButton activeCheck; ///< stands nowhere, so no user can reach it; this is meant
    std::int32_t pixelWidth = -1; ///< last width reported, -1 until the first allocation
};

} // namespace ZelView
