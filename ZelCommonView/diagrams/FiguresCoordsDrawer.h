#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/common/RectangleF.h>
#include <ZelCommonView/plot/CoordsDrawer.h>

#include <string>

namespace ZelView {

class IScrollInfo;

/// How a `FiguresCoordsDrawer` names the axes; in pixels.
struct FiguresCoordsDrawerCfg {
    float headerFontSize = 14; ///< of the names of the axes
    float rightMargin = 10;    ///< right of the horizontal header
    float bottomMargin = 10;   ///< above the viewport's bottom, for what sticks there
    float leftMargin = 10;     ///< right of the viewport's left edge, for what sticks there
    float topMargin = 10;      ///< below the viewport's top, for the vertical header
};

/// The grid of a plane that is zoomed and scrolled: the numbers of an axis that has been scrolled out of the
/// viewport stick to the viewport's edge. Each axis can have a name, in bold; a number that would overlap a
/// name is left out.
class ZEL_API FiguresCoordsDrawer : public CoordsDrawer {
public:
    /// Copies both configurations.
    explicit FiguresCoordsDrawer(const CoordsDrawerCfg& cfg = CoordsDrawerCfg(),
                                 const FiguresCoordsDrawerCfg& figuresCfg = FiguresCoordsDrawerCfg());
    ~FiguresCoordsDrawer() override;

    /// The viewport. It must be set before the first paint and outlive the last one.
    void setScrollInfo(const IScrollInfo& info) { scrollInfo = &info; }

    /// To be changed at will; the next paint shows it.
    FiguresCoordsDrawerCfg& getFiguresCfg() { return figuresCfg; }

    /// Name of the horizontal axis, initially empty, which shows none. Asks for no repaint.
    void setHorizontalHeader(const std::string& header) { horizontalHeader = header; }

    /// The name as it was set.
    const std::string& getHorizontalHeader() const { return horizontalHeader; }

    /// Name of the vertical axis, with the same rules.
    void setVerticalHeader(const std::string& header) { verticalHeader = header; }

    /// The name as it was set.
    const std::string& getVerticalHeader() const { return verticalHeader; }

    /// Needs `converter` and the viewport. Throws what `CoordsDrawer::draw` throws.
    void draw(const Cairo::RefPtr<Cairo::Context>& context) override;

protected:
    void _onDrawStepLineX(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                          Zel::PointF from, Zel::PointF to) override;
    void _onDrawStepLineY(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                          Zel::PointF from, Zel::PointF to) override;

private:
    Zel::RectangleF _drawHorizonalHeader(const Cairo::RefPtr<Cairo::Context>& context);
    Zel::RectangleF _drawVerticalHeader(const Cairo::RefPtr<Cairo::Context>& context);
    void _onDrawStepLine(const Cairo::RefPtr<Cairo::Context>& context, const std::string& text,
                         Zel::PointF position);
    float _getHorizontalAxisTextY() const;
    float _getVerticalAxisTextX() const;

    FiguresCoordsDrawerCfg figuresCfg;
    std::string horizontalHeader;
    Zel::RectangleF horizontalHeaderRect; ///< where the header was last painted; zero without one
    std::string verticalHeader;
    Zel::RectangleF verticalHeaderRect;
    const IScrollInfo* scrollInfo = nullptr; ///< not owned
};

} // namespace ZelView
