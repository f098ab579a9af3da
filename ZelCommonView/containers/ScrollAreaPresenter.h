#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <memory>

namespace Zel {

/// The presenter of an area that scrolls a view up and down, a `ScrollAreaView`, which it makes at once.
class ZEL_API ScrollAreaPresenter : public IPresenter {
public:
    ScrollAreaPresenter();
    ~ScrollAreaPresenter() override;

    /// The area that is to be seen.
    IView* getView() override;

    /// See `IScrollAreaView::setContent`.
    void setContent(IView* content);

private:
    class Impl;

    std::unique_ptr<Impl> impl;
};

} // namespace Zel
