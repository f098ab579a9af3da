#pragma once

#include <ZelCommonView/common/Export.h>

namespace ZelView {

/// Which part of a scrolled content is in view, in pixels of the content, cut to whole ones. In each
/// direction what lies before the view, in it and after it makes up the total.
class ZEL_API IScrollInfo {
public:
    virtual ~IScrollInfo() = default;

    /// Left of the view.
    virtual int getWidthBefore() const = 0;
    /// Above the view.
    virtual int getHeightBefore() const = 0;
    /// In view.
    virtual int getWidthCurrent() const = 0;
    /// In view.
    virtual int getHeightCurrent() const = 0;
    /// Right of the view.
    virtual int getWidthAfter() const = 0;
    /// Below the view.
    virtual int getHeightAfter() const = 0;
    /// Of the whole content.
    virtual int getWidthTotal() const = 0;
    /// Of the whole content.
    virtual int getHeightTotal() const = 0;
};

} // namespace ZelView
