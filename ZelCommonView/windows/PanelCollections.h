/// What a panel manager owns.
#pragma once

#include <ZelCommonView/windows/PanelContainerView.h>
#include <ZelCommonView/windows/PanelView.h>
#include <ZelCommonView/windows/WindwView.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace Zel {

/// Objects that live as long as they are in here, in the order in which they were made.
template <typename T>
class PanelObjectCollection : public std::vector<std::unique_ptr<T>> {
public:
    /// Makes an object at the end; it stays the collection's.
    T* create() {
        this->push_back(std::make_unique<T>());
        return this->back().get();
    }

    /// Deletes the object; false if it isn't in here. The order of the rest is kept.
    bool remove(const T* object) {
        const auto found = std::find_if(this->begin(), this->end(),
                                        [object](const auto& entry) { return entry.get() == object; });
        if (found == this->end())
            return false;
        // Out of the collection first: what the object's end calls finds the collection in order.
        const std::unique_ptr<T> dying = std::move(*found);
        this->erase(found);
        return true;
    }
};

/// All panels of a manager.
using PanelCollectionView = PanelObjectCollection<PanelView>;
/// All containers of a manager.
using PanelContainerCollectionView = PanelObjectCollection<PanelContainerView>;
/// The windows of floating panels.
using WindowCollectionView = PanelObjectCollection<WindwView>;

} // namespace Zel
