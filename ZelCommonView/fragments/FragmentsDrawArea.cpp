#include <ZelCommonView/fragments/FragmentsDrawArea.h>

#include <ZelCommonView/fragments/PixelPasses.h>

#include <algorithm>

namespace ZelView {

namespace {

bool isImage(const Cairo::RefPtr<Cairo::Surface>& surface) {
    return cairo_surface_get_type(surface->cobj()) == CAIRO_SURFACE_TYPE_IMAGE;
}

/// Whether a unit of the surface is a pixel of it.
bool isPlain(const Cairo::RefPtr<Cairo::Surface>& surface) {
    double scaleX = 1;
    double scaleY = 1;
    cairo_surface_get_device_scale(surface->cobj(), &scaleX, &scaleY);
    return scaleX == 1 && scaleY == 1;
}

Cairo::Content contentOf(const Cairo::RefPtr<Cairo::Surface>& surface) {
    return static_cast<Cairo::Content>(cairo_surface_get_content(surface->cobj()));
}

/// A context on a new surface of the target's kind. Throws where there is no memory for it.
Cairo::RefPtr<Cairo::Context> contextLike(const Cairo::RefPtr<Cairo::Surface>& target, int width,
                                          int height) {
    return Cairo::Context::create(Cairo::Surface::create(target, contentOf(target), width, height));
}

/// A context on a new image whose pixels the target takes quickly. Texts look as they do on the target.
/// Throws where there is no memory for it.
Cairo::RefPtr<Cairo::Context> imageContextFor(const Cairo::RefPtr<Cairo::Surface>& target, int width,
                                              int height) {
    const cairo_format_t format =
        contentOf(target) == Cairo::CONTENT_COLOR ? CAIRO_FORMAT_RGB24 : CAIRO_FORMAT_ARGB32;
    cairo_surface_t* const image = cairo_surface_create_similar_image(target->cobj(), format, width, height);
    const Cairo::RefPtr<Cairo::Surface> surface(new Cairo::ImageSurface(image, true));
    const Cairo::RefPtr<Cairo::Context> context = Cairo::Context::create(surface);
    Cairo::FontOptions options;
    target->get_font_options(options);
    context->set_font_options(options);
    return context;
}

} // namespace

FragmentsDrawArea::FragmentsDrawArea() : helper(*this) {
    property_expand() = true;
    allFragments.drawer = [this](const Cairo::RefPtr<Cairo::Context>& context) {
        for (const auto& [key, fragment] : fragments)
            helper.draw(context, fragment.drawer);
    };
    signal_configure_event().connect(sigc::mem_fun(*this, &FragmentsDrawArea::_onConfigure), true);
}

FragmentsDrawArea::~FragmentsDrawArea() = default;

void FragmentsDrawArea::addPositionDrawer(DrawFunction function, DrawerPosition position) {
    switch (position) {
    case DrawerPosition::Start:
        startDrawers.push_back(std::move(function));
        break;
    case DrawerPosition::BeforeFragments:
        beforeDrawers.push_back(std::move(function));
        break;
    case DrawerPosition::AfterFragments:
        afterDrawers.push_back(std::move(function));
        break;
    case DrawerPosition::End:
        endDrawers.push_back(std::move(function));
        break;
    }
}

void FragmentsDrawArea::addFragment(const void* key, DrawFunction function) {
    Fragments::Fragment& fragment = fragments[key];
    fragment.drawer = std::move(function);
    fragment.image.reset();
    redraw(key);
}

void FragmentsDrawArea::removeFragment(const void* key) {
    fragments.erase(key);
    allFragments.needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::removeFragments() {
    fragments.clear();
    allFragments.needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::redraw() {
    redrawAll = true;
    allFragments.needRedraw = true;
    for (auto& [key, fragment] : fragments)
        fragment.needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::redraw(const void* key) {
    redrawAll = false;
    forgetRetained();
    fragments[key].needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::setBackgroundColor(Zel::Color color) {
    helper.setBackgroundColor(color);
    allFragments.needRedraw = true;
}

void FragmentsDrawArea::setIsRetaining(bool value) {
    isRetaining = value;
    forgetRetained();
}

void FragmentsDrawArea::forgetRetained() {
    allFragments.needRedraw = true;
    allFragments.image.reset();
}

void FragmentsDrawArea::setIsFreezed(bool value) {
    if (value)
        frozenImage.save(helper.getBackground());
    isFreezed = value;
}

void FragmentsDrawArea::saveFragment(const void* key, const std::string& fileName, const std::string& type) {
    if (const Glib::RefPtr<Gdk::Pixbuf> image = fragments[key].image)
        image->save(fileName, type);
}

void FragmentsDrawArea::saveSummaryImage(const std::string& fileName, const std::string& type) {
    if (const Glib::RefPtr<Gdk::Pixbuf> image = helper.getBackground())
        image->save(fileName, type);
}

bool FragmentsDrawArea::on_draw(const Cairo::RefPtr<Cairo::Context>& context) {
    if (isFreezed)
        frozenImage.draw(context);
    else if (isImage(context->get_target()) &&
             Fragments::isWholeExposed(context, get_allocated_width(), get_allocated_height()))
        _drawLayers(context, context->get_target());
    else
        _drawOnOwnSurface(context);
    return true;
}

bool FragmentsDrawArea::_onConfigure(GdkEventConfigure*) {
    redraw();
    return false;
}

void FragmentsDrawArea::_drawLayers(const Cairo::RefPtr<Cairo::Context>& context,
                                    const Cairo::RefPtr<Cairo::Surface>& target) {
    _drawStart(context);
    helper.startFragmentsDraw(context);
    _drawBeforeFragments(context);
    _drawFragments(context, target);
    _drawAfterFragments(context);
    helper.endFragmentsDraw(context);
    _drawEnd(context);
}

void FragmentsDrawArea::_drawOnOwnSurface(const Cairo::RefPtr<Cairo::Context>& context) {
    const Cairo::RefPtr<Cairo::Surface> target = context->get_target();
    const int width = get_allocated_width();
    const int height = get_allocated_height();
    // The layers meet in the pixels, which are at hand in an image and far away on a display. A background
    // that lets something through needs what is there already, which would have to come from the display.
    const bool onImage = helper.isOpaque() && isPlain(target) && contentOf(target) != Cairo::CONTENT_ALPHA;
    Cairo::RefPtr<Cairo::Context> own;
    try {
        own = onImage ? imageContextFor(target, width, height) : contextLike(target, width, height);
    } catch (const std::exception&) {
        _drawLayers(context, target); // too large for a surface: what is exposed is better than nothing
        return;
    }

    if (!onImage) {
        double x = 0;
        double y = 0;
        context->user_to_device(x, y);
        own->save();
        own->set_source(target, -x, -y);
        own->paint();
        own->restore();
    }

    _drawLayers(own, onImage ? target : own->get_target());
    context->save();
    context->set_source(own->get_target(), 0, 0);
    context->set_operator(Cairo::OPERATOR_SOURCE);
    context->paint();
    context->restore();
}

void FragmentsDrawArea::_drawStart(const Cairo::RefPtr<Cairo::Context>& context) {
    for (const DrawFunction& function : startDrawers)
        helper.draw(context, function);
}

void FragmentsDrawArea::_drawBeforeFragments(const Cairo::RefPtr<Cairo::Context>& context) {
    for (const DrawFunction& function : beforeDrawers)
        helper.drawAsFragment(context, function);
}

void FragmentsDrawArea::_drawFragments(const Cairo::RefPtr<Cairo::Context>& context,
                                       const Cairo::RefPtr<Cairo::Surface>& target) {
    // Also one that grew or shrank without a word.
    if (allFragments.image && (allFragments.image->get_width() != get_allocated_width() ||
                               allFragments.image->get_height() != get_allocated_height()))
        allFragments.needRedraw = true;
    // A curve of many strokes is painted sooner where the display itself lends a hand; its picture is fetched
    // once.
    Cairo::RefPtr<Cairo::Context> painting = context;
    if (!isImage(target) && target != context->get_target() && _isFragmentOutOfDate()) {
        try {
            painting = contextLike(target, get_allocated_width(), get_allocated_height());
        } catch (const std::exception&) {
            painting = context; // no memory at the display
        }
    }

    if (redrawAll && !isRetaining) {
        std::vector<DrawFunction> functions;
        functions.reserve(fragments.size());
        for (const auto& [key, fragment] : fragments)
            functions.push_back(fragment.drawer);
        helper.drawAsFragment(painting, functions);
    } else if (redrawAll || _mergeFragments()) {
        try {
            helper.drawFragment(painting, allFragments);
        } catch (...) {
            allFragments.needRedraw = true;
            throw;
        }
    } else {
        for (auto& [key, fragment] : fragments)
            helper.drawFragment(painting, fragment);
    }
}

bool FragmentsDrawArea::_mergeFragments() {
    if (!isRetaining || fragments.size() < 2 || _isFragmentOutOfDate())
        return false;
    if (allFragments.needRedraw) {
        std::vector<Glib::RefPtr<Gdk::Pixbuf>> images;
        images.reserve(fragments.size());
        for (const auto& [key, fragment] : fragments)
            images.push_back(fragment.image);
        allFragments.image = Fragments::merge(images);
        allFragments.needRedraw = false;
    }
    return bool(allFragments.image);
}

bool FragmentsDrawArea::_isFragmentOutOfDate() const {
    if (redrawAll)
        return !isRetaining || allFragments.needRedraw;
    return std::any_of(fragments.begin(), fragments.end(),
                       [](const auto& entry) { return entry.second.needRedraw; });
}

void FragmentsDrawArea::_drawAfterFragments(const Cairo::RefPtr<Cairo::Context>& context) {
    for (const DrawFunction& function : afterDrawers)
        helper.drawAsFragment(context, function);
}

void FragmentsDrawArea::_drawEnd(const Cairo::RefPtr<Cairo::Context>& context) {
    for (const DrawFunction& function : endDrawers)
        helper.draw(context, function);
}

} // namespace ZelView
