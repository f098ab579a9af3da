// How far plane diagrams are zoomed; not installed.
#pragma once

namespace ZelView::DiagramScale {

constexpr unsigned int smallest = 100; // percent
constexpr unsigned int largest = 500;  // percent
constexpr unsigned int step = 10;      // percent

} // namespace ZelView::DiagramScale
