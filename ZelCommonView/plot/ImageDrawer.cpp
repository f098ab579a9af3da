#include <ZelCommonView/plot/ImageDrawer.h>

#include <gdkmm/general.h>

namespace ZelView {

void ImageDrawer::save(Glib::RefPtr<Gdk::Pixbuf> picture) {
    image = std::move(picture);
}

void ImageDrawer::draw(const Cairo::RefPtr<Cairo::Context>& context) const {
    if (!image)
        return;
    Gdk::Cairo::set_source_pixbuf(context, image, 0, 0);
    context->paint();
}

} // namespace ZelView
