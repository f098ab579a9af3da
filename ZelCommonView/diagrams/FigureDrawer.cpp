#include <ZelCommonView/diagrams/FigureDrawer.h>

namespace ZelView {

BaseFigureDrawer::BaseFigureDrawer(std::unique_ptr<BaseFigureDrawer> nextLink) : next(std::move(nextLink)) {}

BaseFigureDrawer::~BaseFigureDrawer() = default;

template class FigureDrawer<Zel::Circle>;
template class FigureDrawer<Zel::FixedDot>;
template class FigureDrawer<Zel::PointsSequence>;

} // namespace ZelView
