/// A small picture with a view on the world, and what the tests of the figure drawers share.
#pragma once

#include "support/Pictures.h"

#include <ZelCommonView/diagrams/FigureDrawer.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <cairo.h>
#include <gtest/gtest.h>

#include <functional>

namespace test {

constexpr int canvasWidth = 160;
constexpr int canvasHeight = 100;

template <typename TConverter>
TConverter makeConverter() {
    TConverter converter;
    converter.widgetWidth = canvasWidth;
    converter.widgetHeight = canvasHeight;
    converter.setBorder({-2, 14, -5, 5});
    converter.offset = {3, 5, 7, 2};
    converter.recalc();
    return converter;
}

/// The horizontal scale is about 9.5, the vertical one 9.1 pixels for a unit.
inline const auto stretchable = makeConverter<ZelView::StretchableCoordsConverter>();
inline const auto proportional = makeConverter<ZelView::ProportionalCoordsConverter>();

/// What a painter makes of one figure.
template <typename TFigure>
Picture paintFigure(ZelView::FigureDrawer<TFigure>&& drawer, const TFigure& figure,
                    const ZelView::CoordsConverter& converter = stretchable) {
    drawer.converter = &converter;
    return paint(canvasWidth, canvasHeight, [&](const Cairo::RefPtr<Cairo::Context>& context) {
        drawer._onDrawBaseFigure(context, figure);
        EXPECT_EQ(cairo_status(context->cobj()), CAIRO_STATUS_SUCCESS);
    });
}

/// The same by bare calls.
inline Picture paintBare(const std::function<void(cairo_t*)>& function) {
    return paint(canvasWidth, canvasHeight,
                 [&](const Cairo::RefPtr<Cairo::Context>& context) { function(context->cobj()); });
}

} // namespace test
