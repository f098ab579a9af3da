#pragma once

#include <ZelCommonView/collections/VirtualizationListColumn.h>

#include <functional>
#include <string>

namespace viewer {

/// A column of texts in a list.
class TextColumn : public Zel::IVirtualizationListColumn {
public:
    using Comparator = std::function<int(const std::string&, const std::string&)>;

    /// Without a comparator it is sorted as texts are.
    explicit TextColumn(std::string title, Comparator comparator = nullptr);
    ~TextColumn() override;

    std::string getTitle() override;
    Zel::IView* getCellRendererView() override;
    Comparator getComparator() override;

private:
    std::string title;
    Comparator comparator;
};

/// Compares texts as the numbers they begin with, in every locale; a text that begins with none stands before
/// all numbers.
int compareNumbers(const std::string& left, const std::string& right);

} // namespace viewer
