#include <ZelCommonView/fragments/FragmentsDrawArea.h>

namespace ZelView {

FragmentsDrawArea::FragmentsDrawArea() : helper(*this) {
    property_expand() = true;
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
    queue_draw();
}

void FragmentsDrawArea::removeFragments() {
    fragments.clear();
    queue_draw();
}

void FragmentsDrawArea::redraw() {
    redrawAll = true;
    for (auto& [key, fragment] : fragments)
        fragment.needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::redraw(const void* key) {
    redrawAll = false;
    fragments[key].needRedraw = true;
    queue_draw();
}

void FragmentsDrawArea::setBackgroundColor(Zel::Color color) {
    helper.setBackgroundColor(color);
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
    else if (_isWholeExposed(context))
        _drawLayers(context);
    else
        _drawOnOwnSurface(context);
    return true;
}

bool FragmentsDrawArea::_onConfigure(GdkEventConfigure*) {
    redraw();
    return false;
}

bool FragmentsDrawArea::_isWholeExposed(const Cairo::RefPtr<Cairo::Context>& context) const {
    // The extents alone would not do: they also cover the holes of a clip that is made of several rectangles.
    std::vector<Cairo::Rectangle> clip;
    try {
        context->copy_clip_rectangle_list(clip);
    } catch (const std::exception&) {
        return false; // not made of rectangles
    }
    return clip.size() == 1 && clip[0].x <= 0 && clip[0].y <= 0 &&
           clip[0].x + clip[0].width >= get_allocated_width() &&
           clip[0].y + clip[0].height >= get_allocated_height();
}

void FragmentsDrawArea::_drawLayers(const Cairo::RefPtr<Cairo::Context>& context) {
    _drawStart(context);
    helper.startFragmentsDraw(context);
    _drawBeforeFragments(context);
    _drawFragments(context);
    _drawAfterFragments(context);
    helper.endFragmentsDraw(context);
    _drawEnd(context);
}

void FragmentsDrawArea::_drawOnOwnSurface(const Cairo::RefPtr<Cairo::Context>& context) {
    const Cairo::RefPtr<Cairo::Surface> target = context->get_target();
    const auto content = static_cast<Cairo::Content>(cairo_surface_get_content(target->cobj()));
    Cairo::RefPtr<Cairo::Surface> surface;
    Cairo::RefPtr<Cairo::Context> own;
    try {
        surface = Cairo::Surface::create(target, content, get_allocated_width(), get_allocated_height());
        own = Cairo::Context::create(surface);
    } catch (const std::exception&) {
        _drawLayers(context); // too large for a surface: what is exposed is better than nothing
        return;
    }

    // What is there already, for a background colour that lets it through.
    double x = 0;
    double y = 0;
    context->user_to_device(x, y);
    own->save();
    own->set_source(target, -x, -y);
    own->paint();
    own->restore();

    _drawLayers(own);
    context->save();
    context->set_source(surface, 0, 0);
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

void FragmentsDrawArea::_drawFragments(const Cairo::RefPtr<Cairo::Context>& context) {
    if (!redrawAll) {
        for (auto& [key, fragment] : fragments)
            helper.drawFragment(context, fragment);
        return;
    }

    std::vector<DrawFunction> functions;
    functions.reserve(fragments.size());
    for (const auto& [key, fragment] : fragments)
        functions.push_back(fragment.drawer);
    helper.drawAsFragment(context, functions);
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
