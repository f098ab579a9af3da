#include "TextColumn.h"

#include <charconv>
#include <limits>
#include <utility>

namespace viewer {

namespace {

double numberOf(const std::string& text) {
    double number = -std::numeric_limits<double>::infinity();
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace

TextColumn::TextColumn(std::string givenTitle, Comparator givenComparator)
    : title(std::move(givenTitle)), comparator(std::move(givenComparator)) {}

TextColumn::~TextColumn() = default;

std::string TextColumn::getTitle() {
    return title;
}

Zel::IView* TextColumn::getCellRendererView() {
    return nullptr;
}

TextColumn::Comparator TextColumn::getComparator() {
    return comparator;
}

int compareNumbers(const std::string& left, const std::string& right) {
    const double a = numberOf(left);
    const double b = numberOf(right);
    return a < b ? -1 : a > b ? 1 : 0;
}

} // namespace viewer
