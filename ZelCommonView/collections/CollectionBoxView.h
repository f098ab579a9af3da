#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/bin.h>
#include <gtkmm/box.h>

namespace Zel {

/// Child views in a row or a column. The children stay their presenters'; all operations with a view throw
/// std::bad_cast if it is no widget.
class ZEL_API IEditableCollectionView : public virtual IView {
public:
    ~IEditableCollectionView() override;

    /// Takes all children out.
    virtual void clearAll() = 0;
    /// Puts a child at the end, shown with all that is in it.
    virtual void addChild(IView& view) = 0;
    /// Puts a child at a place, counted from 0, shown with all that is in it; at the end if there are fewer
    /// children.
    virtual void insertChild(unsigned long index, IView& view) = 0;
    /// Takes a child out.
    virtual void removeChild(IView& view) = 0;
    /// Moves a child to a place, counted from 0; to the end if there are fewer children.
    virtual void moveChild(unsigned long index, IView& view) = 0;
    /// A row if true, a column, which is the default, if false.
    virtual void setIsHorizontalOrientation(bool value) = 0;
    /// Whether the children stand in a row.
    virtual bool getIsHorizontalOrientation() = 0;
};

/// A box whose children share their borders: they overlap by one pixel. The theme reaches it by
/// "CollectionView".
class ZEL_API CollectionBoxView : public Gtk::Bin, public virtual IEditableCollectionView {
public:
    CollectionBoxView();
    ~CollectionBoxView() override;

    void clearAll() override;
    void addChild(IView& view) override;
    void insertChild(unsigned long index, IView& view) override;
    void removeChild(IView& view) override;
    void moveChild(unsigned long index, IView& view) override;
    void setIsHorizontalOrientation(bool value) override;
    bool getIsHorizontalOrientation() override;

private:
    Gtk::Box* box; ///< the only child, which dies with the view
};

} // namespace Zel
