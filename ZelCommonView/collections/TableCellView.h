#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/presentation/ViewPresenter.h>

#include <gtkmm/frame.h>
#include <gtkmm/label.h>

#include <string>

namespace Zel {

/// A cell of a table with a text.
class ZEL_API ITableCellView : public IView {
public:
    ~ITableCellView() override;

    /// Sets the text of the cell, UTF-8; empty at first.
    virtual void setTitle(const std::string& title) = 0;
    /// Whether the cell takes room that is left over; in a table the header cell of the column decides.
    virtual void setHorizontalExpand(bool value) = 0;
    /// Makes it look as a cell of the header or of the body. To be called once.
    virtual void setHeader(bool value) = 0;
};

/// A framed text. The theme reaches the text by "standartSmallContentMargin", the frame of a header by
/// "TableHeaderCellView" and "tableScrolledHeaderCell", that of another cell by "tableScrolledCell".
class ZEL_API TableCellView : public Gtk::Frame, public ITableCellView {
public:
    /// Empty, without expansion, neither header nor body yet.
    TableCellView();
    ~TableCellView() override;

    void setTitle(const std::string& title) override;
    void setHorizontalExpand(bool value) override;
    void setHeader(bool value) override;

private:
    Gtk::Label label;
};

} // namespace Zel
