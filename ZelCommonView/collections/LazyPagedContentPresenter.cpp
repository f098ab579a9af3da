#include <ZelCommonView/collections/LazyPagedContentPresenter.h>

#include <ZelCommonView/collections/PagedContentView.h>

#include <vector>

namespace Zel {

class LazyPagedContentPresenter::Impl : public PresenterBase<IPagedContentView> {
public:
    ~Impl() override { switchConnection.disconnect(); }

    int addPage(const std::string& title, const std::function<std::unique_ptr<IPresenter>()>& factory) {
        factories.push_back(factory);
        titles.push_back(title);
        hiddenFlags.resize(titles.size());
        if (isViewInited)
            getView()->addPage(title);
        return static_cast<int>(titles.size()) - 1;
    }

    void setIsPageVisible(int page, bool isVisible) {
        hiddenFlags.at(static_cast<std::size_t>(page)) = !isVisible;
        if (isViewInited)
            getView()->setIsPageVisible(page, isVisible);
    }

    void _onSwitchPage(int page) {
        if (currentPage >= 0)
            getView()->setPageContent(currentPage, nullptr);
        const auto index = static_cast<std::size_t>(page);
        if (index >= presenters.size())
            presenters.resize(index + 1);
        if (!presenters[index])
            presenters[index] = factories[index]();
        currentPresenter = presenters[index].get();
        getView()->setPageContent(page, currentPresenter ? currentPresenter->getView() : nullptr);
        currentPage = page;
    }

protected:
    std::unique_ptr<IPagedContentView> _createDefaultView() override {
        return std::make_unique<PagedContentView>();
    }

    void _onViewInited() override {
        for (std::size_t i = 0; i < titles.size(); ++i) {
            getView()->addPage(titles[i]);
            if (hiddenFlags[i])
                getView()->setIsPageVisible(static_cast<int>(i), false);
        }
        // Behind the pages: that the first one opens by itself is not heard, which is meant.
        switchConnection =
            getView()->signalPageSwitched().connect(sigc::mem_fun(*this, &Impl::_onSwitchPage));
        isViewInited = true;
    }

private:
    IPresenter* currentPresenter = nullptr; ///< of the open page
    std::vector<std::string> titles;
    std::vector<bool> hiddenFlags;
    std::vector<std::function<std::unique_ptr<IPresenter>()>> factories;
    std::vector<std::unique_ptr<IPresenter>> presenters; ///< may be shorter than the list of pages
    int currentPage = -1;
    sigc::connection switchConnection;
    bool isViewInited = false;
};

LazyPagedContentPresenter::LazyPagedContentPresenter() : impl(std::make_unique<Impl>()) {}

LazyPagedContentPresenter::~LazyPagedContentPresenter() = default;

IView* LazyPagedContentPresenter::getView() {
    return impl->getView();
}

int LazyPagedContentPresenter::addPage(const std::string& title,
                                       const std::function<std::unique_ptr<IPresenter>()>& factory) {
    return impl->addPage(title, factory);
}

void LazyPagedContentPresenter::setIsPageVisible(int page, bool isVisible) {
    impl->setIsPageVisible(page, isVisible);
}

} // namespace Zel
