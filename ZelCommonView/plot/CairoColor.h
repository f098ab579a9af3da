// Not installed: for the sources of the library only.
#pragma once

#include <ZelCommonView/plot/Series.h>

#include <cairomm/context.h>

namespace ZelView {

/// Makes a colour the source of what is painted next, with an opacity of its own from 0 to 1.
inline void setSource(const Cairo::RefPtr<Cairo::Context>& context, Zel::Color color, double alpha) {
    context->set_source_rgba(color.r / 255.0, color.g / 255.0, color.b / 255.0, alpha);
}

/// Makes a colour the source of what is painted next.
inline void setSource(const Cairo::RefPtr<Cairo::Context>& context, Zel::Color color) {
    setSource(context, color, color.a / 255.0);
}

} // namespace ZelView
