/// What decides how a figure looks: the links of a chain of small painters, each for one type of figure.
#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/diagrams/Figure.h>

#include <cairomm/context.h>

#include <memory>

namespace ZelView {

class CoordsConverter;

/// A link of the chain. Every link sees every figure and paints those that it knows.
class ZEL_API BaseFigureDrawer {
public:
    /// Takes ownership of the next link; none by default.
    explicit BaseFigureDrawer(std::unique_ptr<BaseFigureDrawer> next = nullptr);
    virtual ~BaseFigureDrawer();

    /// Paints the figure if it is of a kind that this link knows. Needs `converter`. The context has no
    /// current point, and its state is saved around the call.
    virtual void _onDrawBaseFigure(const Cairo::RefPtr<Cairo::Context>& context,
                                   const Zel::Figure& figure) = 0;

    const CoordsConverter* converter = nullptr; ///< set by `FiguresDrawer`, not owned
    std::unique_ptr<BaseFigureDrawer> next;     ///< the next link; null at the end of the chain
};

/// Paints figures of one type and leaves all others to the other links. An application makes links for
/// figures of its own in this way; their types must be visible outside of what defines them (see `ZEL_API`)
/// if they cross the border of a shared library.
template <typename T>
class ZEL_API FigureDrawer : public BaseFigureDrawer {
public:
    using BaseFigureDrawer::BaseFigureDrawer;

    void _onDrawBaseFigure(const Cairo::RefPtr<Cairo::Context>& context, const Zel::Figure& figure) override {
        if (const T* t = dynamic_cast<const T*>(&figure))
            _onDraw(context, *t);
    }

    /// Paints a figure of the type `T`; with the same context as `_onDrawBaseFigure`.
    virtual void _onDraw(const Cairo::RefPtr<Cairo::Context>& context, const T& figure) = 0;
};

extern template class FigureDrawer<Zel::Circle>;
extern template class FigureDrawer<Zel::FixedDot>;
extern template class FigureDrawer<Zel::PointsSequence>;

} // namespace ZelView
