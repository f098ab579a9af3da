/// What keeps the plots of an oscillogram in step. A value enters at the facade and is pushed to all plots
/// and drawers; nothing flows back, so nothing has to guard against an echo.
///
/// Plots and drawers are only ever added: they must live as long as values are distributed.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/plot/Drawer.h>

#include <sigc++/trackable.h>

#include <memory>
#include <vector>

namespace ZelView {

class SynchronizerFacade;

/// A stretch of the time axis, in world units.
struct TimeRange {
    float from = 0; ///< in the unit of the series' x
    float to = 0;   ///< the same unit
};

/// The root of all synchronizers. Slots that are bound to one die with it.
class ZEL_API Synchronizer : public sigc::trackable {
public:
    Synchronizer() = default;
    Synchronizer(const Synchronizer&) = delete;
    Synchronizer& operator=(const Synchronizer&) = delete;
    virtual ~Synchronizer();

    /// Connects to the values that enter at the facade; called once, before anything is added. The default
    /// does nothing.
    virtual void setupSynchronizerFacade(SynchronizerFacade& facade);
};

/// Distributes a value to drawers.
class ZEL_API BaseDrawerSynchronizer : public Synchronizer {
public:
    ~BaseDrawerSynchronizer() override;

    /// Offers a drawer that is set up; one of another kind is ignored.
    virtual void addDrawer(Drawer& drawer) = 0;
};

/// Distributes a value to all drawers of the type `T`.
template <typename T>
class ZEL_API DrawerSynchronizer : public BaseDrawerSynchronizer {
public:
    void addDrawer(Drawer& drawer) override {
        if (T* const t = dynamic_cast<T*>(&drawer)) {
            drawers.push_back(t);
            _onDrawerAdd(*t);
        }
    }

protected:
    /// For a drawer that has just been added to `drawers`.
    virtual void _onDrawerAdd(T& drawer) = 0;

    std::vector<T*> drawers; ///< all that were ever added, in order; not owned
};

/// Offers drawers to several synchronizers.
class ZEL_API DrawerSynchronizerCollection {
public:
    DrawerSynchronizerCollection();
    ~DrawerSynchronizerCollection();
    /// Takes over what the other one holds.
    DrawerSynchronizerCollection(DrawerSynchronizerCollection&&) noexcept;
    /// Takes over what the other one holds.
    DrawerSynchronizerCollection& operator=(DrawerSynchronizerCollection&&) noexcept;

    /// Offers the drawer to each synchronizer in order.
    void addDrawer(Drawer& drawer);

    std::vector<std::unique_ptr<BaseDrawerSynchronizer>>
        synchronizers; ///< in the order in which drawers are offered
};

} // namespace ZelView
