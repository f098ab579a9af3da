#include <ZelCommonView/containers/RefreshSpinner.h>

#include <ZelCommonView/common/Directories.h>

#include <gdkmm/general.h>
#include <glibmm/main.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace Zel {

namespace {

constexpr double fullTurn = 360.0;

/// The milliseconds between two steps. At least 1: with 0 the timer would leave the main loop no time to
/// paint. A speed that is not above 0 gives the longest time there is.
int intervalOf(double revolutionsPerMinute, double step) {
    constexpr int longest = std::numeric_limits<int>::max();
    const double interval = 60000.0 / revolutionsPerMinute / (fullTurn / step);
    if (!(revolutionsPerMinute > 0.0) || interval >= longest)
        return longest;
    return std::max(1, static_cast<int>(interval));
}

} // namespace

RefreshSpinner::RefreshSpinner()
    : RefreshSpinner(Gdk::Pixbuf::create_from_file(getThemesDir() + "Icons/Misc/refresh.svg"), 60.0) {}

RefreshSpinner::RefreshSpinner(const Glib::RefPtr<Gdk::Pixbuf>& givenPicture, double revolutionsPerMinute)
    : picture(givenPicture), interval(intervalOf(revolutionsPerMinute, step)) {
    set_hexpand(true);
    set_vexpand(true);
    show();
}

RefreshSpinner::~RefreshSpinner() {
    timerConnection.disconnect();
}

void RefreshSpinner::start_animation() {
    if (running)
        stop_animation();
    running = true;
    update_animation();
}

void RefreshSpinner::stop_animation() {
    running = false;
    timerConnection.disconnect();
}

void RefreshSpinner::update_animation() {
    timerConnection.disconnect();
    timerConnection = Glib::signal_timeout().connect(sigc::mem_fun(*this, &RefreshSpinner::_onTimer),
                                                     static_cast<unsigned int>(interval), 0);
}

bool RefreshSpinner::on_draw(const Cairo::RefPtr<Cairo::Context>& context) {
    if (!picture)
        return false;
    const int width = get_allocated_width();
    const int height = get_allocated_height();
    if (width < 1 || height < 1)
        return false;
    const double scale = std::min(static_cast<double>(height) / picture->get_height(),
                                  static_cast<double>(width) / picture->get_width());
    const double paintedWidth = picture->get_width() * scale;
    const double paintedHeight = picture->get_height() * scale;
    context->save();
    context->translate((width - paintedWidth) * 0.5 + paintedWidth * 0.5,
                       paintedHeight * 0.5 + (height - paintedHeight) * 0.5);
    context->rotate(M_PI * angle / 180.0);
    context->translate(-paintedWidth * 0.5, -paintedHeight * 0.5);
    context->scale(scale, scale);
    Gdk::Cairo::set_source_pixbuf(context, picture, 0.0, 0.0);
    context->paint();
    context->restore();
    return true;
}

bool RefreshSpinner::_onTimer() {
    angle += step;
    if (angle >= fullTurn)
        angle -= fullTurn;
    queue_draw();
    return true;
}

} // namespace Zel
