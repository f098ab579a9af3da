#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/box.h>

namespace Zel {

/// What is shown for nothing.
class ZEL_API IEmptyView : public IView {
public:
    ~IEmptyView() override;
};

/// An empty box that the theme reaches by "EmptyView".
class ZEL_API EmptyView : public Gtk::Box, public IEmptyView {
public:
    EmptyView();
    ~EmptyView() override;
};

/// A placeholder where a presenter is asked for and there is nothing to show.
class ZEL_API EmptyViewPresenter : public PresenterBase<IEmptyView> {
public:
    ~EmptyViewPresenter() override;

protected:
    std::unique_ptr<IEmptyView> _createDefaultView() override;
};

} // namespace Zel
