#include <ZelCommonView/containers/ScrollAreaPresenter.h>

#include <ZelCommonView/containers/ScrollAreaView.h>

namespace Zel {

/// An area itself, which is never shown, over the inner one that is: that is meant.
class ScrollAreaPresenter::Impl : public ScrollAreaView {
public:
    void setContent(IView* view) override { inner.setContent(view); }

    ScrollAreaView inner;
};

ScrollAreaPresenter::ScrollAreaPresenter() : impl(std::make_unique<Impl>()) {}

ScrollAreaPresenter::~ScrollAreaPresenter() = default;

IView* ScrollAreaPresenter::getView() {
    return &impl->inner;
}

void ScrollAreaPresenter::setContent(IView* content) {
    impl->setContent(content);
}

} // namespace Zel
