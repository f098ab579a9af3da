#include <ZelCommonView/fragments/FragmentDrawerHelper.h>

#include <ZelCommonView/fragments/PixelPasses.h>
#include <ZelCommonView/plot/CairoColor.h>

#include <gtkmm/widget.h>

#include <algorithm>

namespace ZelView::Fragments {

FragmentDrawerHelper::FragmentDrawerHelper(const Gtk::Widget& value) : widget(value) {}

Glib::RefPtr<Gdk::Pixbuf> FragmentDrawerHelper::getBackground() const {
    return background;
}

void FragmentDrawerHelper::setBackgroundColor(Zel::Color color) {
    backgroundColor = color;
}

void FragmentDrawerHelper::startFragmentsDraw(const Cairo::RefPtr<Cairo::Context>& context) {
    _clearBackground(context);
    _saveBackground(context);
}

void FragmentDrawerHelper::endFragmentsDraw(const Cairo::RefPtr<Cairo::Context>& context) {
    if (!background)
        return;
    if (_copyBackground(context))
        return;
    context->set_source(makeSurface(*background.operator->()), 0, 0);
    context->paint();
}

bool FragmentDrawerHelper::_copyBackground(const Cairo::RefPtr<Cairo::Context>& context) {
    const std::optional<SurfacePixels> pixels = _getPixels(context);
    cairo_surface_t* const target = cairo_get_target(context->cobj());
    if (!pixels || cairo_get_group_target(context->cobj()) != target ||
        context->get_operator() != Cairo::OPERATOR_OVER ||
        !isWholeExposed(context, pixels->width, pixels->height))
        return false;
    const bool isCopied = copyOpaque(*background.operator->(), *pixels);
    cairo_surface_mark_dirty(target);
    return isCopied;
}

void FragmentDrawerHelper::draw(const Cairo::RefPtr<Cairo::Context>& context, const DrawFunction& function) {
    context->save();
    function(context);
    context->restore();
}

void FragmentDrawerHelper::drawAsFragment(const Cairo::RefPtr<Cairo::Context>& context,
                                          const DrawFunction& function) {
    drawAsFragment(context, std::vector<DrawFunction>{function});
}

void FragmentDrawerHelper::drawAsFragment(const Cairo::RefPtr<Cairo::Context>& context,
                                          const std::vector<DrawFunction>& functions) {
    _drawLayer(context, functions);
    const std::optional<SurfacePixels> pixels = _getPixels(context);
    if (!pixels)
        _attachSticker(_addAlpha(_getDrawed(context)));
    else if (background)
        compose(*pixels, backgroundColor, *background.operator->());
}

void FragmentDrawerHelper::drawFragment(const Cairo::RefPtr<Cairo::Context>& context, Fragment& fragment) {
    _attachSticker(_getFragmentImage(context, fragment));
}

void FragmentDrawerHelper::_clearBackground(const Cairo::RefPtr<Cairo::Context>& context) {
    setSource(context, backgroundColor);
    context->paint();
}

void FragmentDrawerHelper::_saveBackground(const Cairo::RefPtr<Cairo::Context>& context) {
    const std::optional<SurfacePixels> pixels = _getPixels(context);
    background = pixels ? makePicture(*pixels) : _getDrawed(context);
}

void FragmentDrawerHelper::_drawLayer(const Cairo::RefPtr<Cairo::Context>& context,
                                      const std::vector<DrawFunction>& functions) {
    _clearBackground(context);
    for (const DrawFunction& function : functions)
        draw(context, function);
}

std::optional<SurfacePixels>
FragmentDrawerHelper::_getPixels(const Cairo::RefPtr<Cairo::Context>& context) const {
    const int width = widget.get_allocated_width();
    const int height = widget.get_allocated_height();
    if (!isOpaque() || width <= 0 || height <= 0)
        return {};
    return readableTarget(context, width, height);
}

Glib::RefPtr<Gdk::Pixbuf>
FragmentDrawerHelper::_getDrawed(const Cairo::RefPtr<Cairo::Context>& context) const {
    const int width = widget.get_allocated_width();
    const int height = widget.get_allocated_height();
    if (width <= 0 || height <= 0)
        return {};

    Cairo::RefPtr<Cairo::ImageSurface> surface;
    Cairo::RefPtr<Cairo::Context> snapshot;
    try {
        surface = Cairo::ImageSurface::create(Cairo::FORMAT_ARGB32, width, height);
        snapshot = Cairo::Context::create(surface);
    } catch (const std::exception&) {
        return {}; // too large for cairo or for the memory
    }
    const Cairo::RefPtr<Cairo::Surface> target = context->get_target();
    if (!target)
        return {};

    // The target may be the surface of a whole window, of which the widget is a part.
    double x = 0;
    double y = 0;
    context->user_to_device(x, y);
    snapshot->set_source(target, -x, -y);
    snapshot->paint();
    surface->flush();
    return Gdk::Pixbuf::create(surface, 0, 0, width, height);
}

Glib::RefPtr<Gdk::Pixbuf> FragmentDrawerHelper::_getImage(const Cairo::RefPtr<Cairo::Context>& context,
                                                          const DrawFunction& function) {
    return _getImage(context, std::vector<DrawFunction>{function});
}

Glib::RefPtr<Gdk::Pixbuf> FragmentDrawerHelper::_getImage(const Cairo::RefPtr<Cairo::Context>& context,
                                                          const std::vector<DrawFunction>& functions) {
    _drawLayer(context, functions);
    if (const std::optional<SurfacePixels> pixels = _getPixels(context))
        return makePicture(*pixels, backgroundColor);
    return _addAlpha(_getDrawed(context));
}

Glib::RefPtr<Gdk::Pixbuf>
FragmentDrawerHelper::_getFragmentImage(const Cairo::RefPtr<Cairo::Context>& context, Fragment& fragment) {
    if (fragment.needRedraw) {
        // The flag goes first: a fragment that marks itself while it is painted is painted again the next
        // time.
        fragment.needRedraw = false;
        fragment.image = _getImage(context, fragment.drawer);
    }
    return fragment.image;
}

Glib::RefPtr<Gdk::Pixbuf> FragmentDrawerHelper::_addAlpha(const Glib::RefPtr<Gdk::Pixbuf>& picture) const {
    if (!picture)
        return {};
    return picture->add_alpha(true, backgroundColor.r, backgroundColor.g, backgroundColor.b);
}

void FragmentDrawerHelper::_attachSticker(const Glib::RefPtr<Gdk::Pixbuf>& picture) {
    if (!picture || !background)
        return;
    // A picture from before a change of size covers what it can; beyond its edge there is nothing to compose.
    const int width = std::min({widget.get_allocated_width(), picture->get_width(), background->get_width()});
    const int height =
        std::min({widget.get_allocated_height(), picture->get_height(), background->get_height()});
    if (picture->get_has_alpha() && background->get_has_alpha())
        compose(*picture.operator->(), width, height, *background.operator->());
    else
        picture->composite(background, 0, 0, width, height, 0, 0, 1, 1, Gdk::INTERP_NEAREST, 255);
}

} // namespace ZelView::Fragments
