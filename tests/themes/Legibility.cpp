#include "themes/Legibility.h"

#include "support/Hands.h"

#include <algorithm>
#include <cmath>

namespace test {

namespace {

/// A stretch of a window's pixels.
struct Area {
    int left;
    int top;
    int right; ///< the first pixel beyond
    int bottom;

    bool isWithin(const Area& other) const {
        return left >= other.left && top >= other.top && right <= other.right && bottom <= other.bottom;
    }
};

Area areaOf(Gtk::Widget& widget) {
    int x = 0;
    int y = 0;
    widget.translate_coordinates(*widget.get_toplevel(), 0, 0, x, y);
    return {x, y, x + widget.get_allocated_width(), y + widget.get_allocated_height()};
}

/// Where the text itself stands: with all the room that its lines ask for, or as far as it is drawn.
enum class Extent { Lines, Ink };

Area textAreaOf(Gtk::Label& label, Extent extent) {
    int x = 0;
    int y = 0;
    label.get_layout_offsets(x, y);
    Pango::Rectangle ink;
    Pango::Rectangle lines;
    label.get_layout()->get_pixel_extents(ink, lines);
    const Pango::Rectangle& text = extent == Extent::Ink ? ink : lines;
    const Gtk::Allocation allocation = label.get_allocation();
    const Area whole = areaOf(label);
    x += whole.left - allocation.get_x() + text.get_x();
    y += whole.top - allocation.get_y() + text.get_y();
    return {x, y, x + text.get_width(), y + text.get_height()};
}

bool hasOwnColors(Gtk::Label& label) {
    PangoAttrList* const attributes = pango_layout_get_attributes(label.get_layout()->gobj());
    if (!attributes)
        return false;
    bool isFound = false;
    GSList* const all = pango_attr_list_get_attributes(attributes);
    for (GSList* item = all; item; item = item->next) {
        auto* const attribute = static_cast<PangoAttribute*>(item->data);
        isFound = isFound || attribute->klass->type == PANGO_ATTR_FOREGROUND ||
                  attribute->klass->type == PANGO_ATTR_BACKGROUND;
        pango_attribute_destroy(attribute);
    }
    g_slist_free(all);
    return isFound;
}

/// Whether the label stands on a button whose colours are GTK's own alone.
bool isOnMarkedButton(Gtk::Label& label) {
    const auto* const button = dynamic_cast<Gtk::Button*>(label.get_parent());
    return button && (button->get_style_context()->has_class("suggested-action") ||
                      button->get_style_context()->has_class("destructive-action"));
}

/// Whether the whole widget is in the visible part of whatever scrolls it.
bool isScrolledIntoView(Gtk::Widget& widget) {
    const Area area = areaOf(widget);
    for (Gtk::Widget* outer = widget.get_parent(); outer; outer = outer->get_parent())
        if (dynamic_cast<Gtk::ScrolledWindow*>(outer) && !area.isWithin(areaOf(*outer)))
            return false;
    return true;
}

/// What of the text's colour is left after all opacities, its own and those of what it lies in.
double opacityOf(Gtk::Widget& widget) {
    double product = 1;
    for (Gtk::Widget* outer = &widget; outer; outer = outer->get_parent()) {
        GtkStyleContext* const context = outer->get_style_context()->gobj();
        double opacity = 1;
        gtk_style_context_get(context, gtk_style_context_get_state(context), "opacity", &opacity, nullptr);
        product *= opacity * outer->get_opacity();
    }
    return product;
}

Gdk::RGBA mix(const Gdk::RGBA& above, const Gdk::RGBA& below, double share) {
    Gdk::RGBA mixed;
    mixed.set_rgba(share * above.get_red() + (1 - share) * below.get_red(),
                   share * above.get_green() + (1 - share) * below.get_green(),
                   share * above.get_blue() + (1 - share) * below.get_blue());
    return mixed;
}

Gdk::RGBA pixelAt(const Cairo::RefPtr<Cairo::ImageSurface>& surface, int x, int y) {
    const unsigned char* const pixel = surface->get_data() + y * surface->get_stride() + 4 * x;
    Gdk::RGBA color;
    color.set_rgba(pixel[2] / 255.0, pixel[1] / 255.0, pixel[0] / 255.0);
    return color;
}

double luminanceOf(const Gdk::RGBA& color) {
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.get_red()) + 0.7152 * linear(color.get_green()) +
           0.0722 * linear(color.get_blue());
}

void collectLabels(Gtk::Widget& widget, std::vector<Gtk::Label*>& found) {
    if (auto* const label = dynamic_cast<Gtk::Label*>(&widget))
        found.push_back(label);
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget))
        gtk_container_forall(
            container->gobj(),
            [](GtkWidget* child, gpointer list) {
                collectLabels(*Glib::wrap(child), *static_cast<std::vector<Gtk::Label*>*>(list));
            },
            &found);
}

Cairo::RefPtr<Cairo::ImageSurface> paint(Gtk::Window& window) {
    const auto surface = Cairo::ImageSurface::create(Cairo::FORMAT_RGB24, window.get_allocated_width(),
                                                     window.get_allocated_height());
    const auto context = Cairo::Context::create(surface);
    gtk_widget_draw(GTK_WIDGET(window.gobj()), context->cobj());
    surface->flush();
    return surface;
}

struct Text {
    std::string words;
    Gdk::RGBA color;
    double opacity;
    Area area;
};

/// The least contrast of the text to any pixel where it stood.
double worstContrast(const Text& text, const Cairo::RefPtr<Cairo::ImageSurface>& background) {
    double worst = 21;
    for (int y = std::max(text.area.top, 0); y < std::min(text.area.bottom, background->get_height()); ++y)
        for (int x = std::max(text.area.left, 0); x < std::min(text.area.right, background->get_width());
             ++x) {
            const Gdk::RGBA below = pixelAt(background, x, y);
            const Gdk::RGBA seen = mix(text.color, below, text.opacity * text.color.get_alpha());
            worst = std::min(worst, contrastOf(seen, below));
        }
    return worst;
}

} // namespace

void setTheme(const std::string& name) {
    g_setenv("GTK_THEME", name.c_str(), TRUE);
    const auto settings = Gtk::Settings::get_default();
    // Colours that fade in would be measured halfway.
    settings->property_gtk_enable_animations() = false;
    g_object_notify(G_OBJECT(settings->gobj()), "gtk-theme-name");
    settle();
}

double contrastOf(const Gdk::RGBA& first, const Gdk::RGBA& second) {
    const double a = luminanceOf(first) + 0.05;
    const double b = luminanceOf(second) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

std::vector<Gtk::Label*> readableLabels(Gtk::Widget& widget) {
    std::vector<Gtk::Label*> labels;
    collectLabels(widget, labels);
    const auto isLeftOut = [](Gtk::Label* label) {
        return !label->get_mapped() || !label->is_sensitive() || label->get_text().empty() ||
               label->get_style_context()->has_class("legend") || hasOwnColors(*label) ||
               isOnMarkedButton(*label) || !isScrolledIntoView(*label);
    };
    labels.erase(std::remove_if(labels.begin(), labels.end(), isLeftOut), labels.end());
    return labels;
}

std::string findFaint(Gtk::Window& window, const std::vector<Gtk::Label*>& labels) {
    std::vector<Text> texts;
    for (Gtk::Label* label : labels) {
        const auto context = label->get_style_context();
        texts.push_back({label->get_text(), context->get_color(context->get_state()), opacityOf(*label),
                         textAreaOf(*label, Extent::Ink)});
    }
    for (Gtk::Label* label : labels) {
        label->set_size_request(label->get_allocated_width(), label->get_allocated_height());
        label->set_text("");
    }
    settle();
    const auto background = paint(window);
    std::string faint;
    for (const Text& text : texts)
        if (const double contrast = worstContrast(text, background); contrast < enoughContrast)
            faint += "\"" + text.words + "\" has " + std::to_string(contrast) + "\n";
    return faint;
}

std::string findClipped(const std::vector<Gtk::Label*>& labels) {
    std::string clipped;
    for (Gtk::Label* label : labels) {
        Area text = textAreaOf(*label, Extent::Lines);
        if (label->get_ellipsize() != Pango::ELLIPSIZE_NONE)
            text.left = text.right = areaOf(*label).left;
        for (Gtk::Widget* outer = label; outer && !dynamic_cast<Gtk::ScrolledWindow*>(outer);
             outer = outer->get_parent())
            if (!text.isWithin(areaOf(*outer))) {
                clipped += "\"" + label->get_text() + "\" goes beyond its " +
                           G_OBJECT_TYPE_NAME(outer->gobj()) + "\n";
                break;
            }
    }
    return clipped;
}

} // namespace test
