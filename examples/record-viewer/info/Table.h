#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace record {

/// The text as a terminal may show it: control characters and bytes that are no UTF-8 become U+FFFD.
std::string printable(const std::string& text);

/// How many columns of a terminal valid UTF-8 takes; East Asian characters take two.
std::size_t displayWidth(const std::string& text);

/// Rows of cells that are printed in aligned columns.
class Table {
public:
    /// Columns after the first `leftColumns` are aligned to the right.
    explicit Table(std::size_t leftColumns) : left(leftColumns) {}

    void add(std::vector<std::string> row);
    /// Each line begins with the indent and has no blanks at its end.
    std::string text(const std::string& indent) const;

private:
    std::size_t left;
    std::vector<std::vector<std::string>> rows;
    std::vector<std::size_t> widths;
};

} // namespace record
