// The whole programs of the documentation, as their readers start them: each shows its window, paints, and
// ends well when the window is closed, without a complaint of any library.
#include "support/Hands.h"
#include "support/Keyboard.h"
#include "support/Pictures.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <gdk/gdkx.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <sstream>

namespace {

struct Shown {
    std::string path; ///< of the program
    std::string keys; ///< names of keys, separated by blanks
};

void PrintTo(const Shown& shown, std::ostream* stream) {
    *stream << shown.path;
}

/// The programs of the build: path and keys of each, separated by '|', one after the other by ','.
std::vector<Shown> allPrograms() {
    std::vector<Shown> all;
    std::istringstream stream(PROGRAMS);
    for (std::string entry; std::getline(stream, entry, ',');)
        all.push_back({entry.substr(0, entry.find('|')), entry.substr(entry.find('|') + 1)});
    return all;
}

/// The name of a page: what follows the last "program." in the path.
std::string nameOf(const std::string& path) {
    const std::string mark = "program.";
    return path.substr(path.rfind(mark) + mark.size());
}

/// A running program. It is ended by force if it is still there at the end.
class Program {
public:
    Program(const std::string& path, const std::string& errors) {
        const auto prepare = [errors] {
            setenv("G_DEBUG", "fatal-warnings", 1);
            if (!freopen(errors.c_str(), "w", stderr))
                _exit(1);
        };
        Glib::spawn_async("", std::vector<std::string>{path}, Glib::SPAWN_DO_NOT_REAP_CHILD, prepare, &pid);
    }

    ~Program() {
        if (!hasEnded()) {
            kill(pid, SIGKILL);
            waitpid(pid, &status, 0);
        }
    }

    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    bool hasEnded() {
        if (!isEnded)
            isEnded = waitpid(pid, &status, WNOHANG) == pid;
        return isEnded;
    }

    /// Whether it returned 0 from its main function.
    bool hasEndedWell() const { return isEnded && WIFEXITED(status) && WEXITSTATUS(status) == 0; }

private:
    Glib::Pid pid = 0;
    int status = 0;
    bool isEnded = false;
};

/// The windows that the window manager knows, the topmost one last.
std::vector<Glib::RefPtr<Gdk::Window>> windows() {
    std::vector<Glib::RefPtr<Gdk::Window>> found;
    GList* const list = gdk_screen_get_window_stack(gdk_screen_get_default());
    for (GList* each = list; each; each = each->next)
        found.push_back(Glib::wrap(GDK_WINDOW(each->data), false));
    g_list_free(list);
    return found;
}

/// What the screen shows where windows are, without their frames.
Glib::RefPtr<Gdk::Pixbuf> pictureOfWindows() {
    Gdk::Rectangle place;
    for (const auto& window : windows()) {
        int x = 0;
        int y = 0;
        window->get_origin(x, y);
        // Asked from the display: what Gdk knows may be of a former window of the same number.
        int width = 0;
        int height = 0;
        gdk_window_get_geometry(window->gobj(), nullptr, nullptr, &width, &height);
        const Gdk::Rectangle each(x, y, width, height);
        if (place.has_zero_area())
            place = each;
        else
            place.join(each);
    }
    return Gdk::Pixbuf::create(Gdk::Screen::get_default()->get_root_window(), place.get_x(), place.get_y(),
                               place.get_width(), place.get_height());
}

/// Asks the topmost window to close, as the button in its frame does.
void closeTopmost() {
    const auto all = windows();
    if (all.empty())
        return;
    Display* const display = gdk_x11_get_default_xdisplay();
    XEvent event{};
    event.xclient.type = ClientMessage;
    event.xclient.window = gdk_x11_window_get_xid(all.back()->gobj());
    event.xclient.message_type = XInternAtom(display, "_NET_CLOSE_WINDOW", False);
    event.xclient.format = 32;
    event.xclient.data.l[1] = 2; // on behalf of the user
    XSendEvent(display, DefaultRootWindow(display), False, SubstructureNotifyMask | SubstructureRedirectMask,
               &event);
    XSync(display, False);
}

/// Waits until the windows show the same twice; something that moves never does, which is no fault.
void waitForRest() {
    Glib::RefPtr<Gdk::Pixbuf> last;
    for (int i = 0; i < 10; ++i) {
        test::wait(300 * test::patience);
        if (windows().empty())
            continue;
        const Glib::RefPtr<Gdk::Pixbuf> now = pictureOfWindows();
        if (last && test::pictureOf(last) == test::pictureOf(now))
            return;
        last = now;
    }
}

struct ProgramTest : testing::TestWithParam<Shown> {
    test::TemporaryFolder folder;
};

} // namespace

TEST_P(ProgramTest, PaintsAndEndsWellWithoutAComplaint) {
    const std::string errors = folder.path / "errors";
    test::movePointerAway();
    Program program(GetParam().path, errors);
    ASSERT_TRUE(test::waitFor([&] { return !windows().empty() || program.hasEnded(); }, 20000));
    ASSERT_FALSE(program.hasEnded()) << "it ended before it showed a window: " << test::readFile(errors);
    waitForRest();

    std::istringstream keys(GetParam().keys);
    for (std::string key; keys >> key;) {
        test::pressKey(gdk_keyval_from_name(key.c_str()));
        test::wait(800 * test::patience);
    }
    ASSERT_FALSE(windows().empty()) << test::readFile(errors);
    const Glib::RefPtr<Gdk::Pixbuf> picture = pictureOfWindows();
    EXPECT_GT(test::pictureOf(picture).countPainted(), 5000) << "its window is empty";
    if (const char* pictures = std::getenv("ZEL_TUTORIAL_PICTURES"))
        picture->save(std::string(pictures) + "/" + nameOf(GetParam().path) + ".png", "png");

    for (int i = 0; i < 20 && !program.hasEnded(); ++i) {
        closeTopmost();
        test::waitFor([&] { return program.hasEnded(); }, 1000);
    }
    EXPECT_TRUE(program.hasEndedWell());
    EXPECT_EQ(test::readFile(errors), "");
}

INSTANTIATE_TEST_SUITE_P(Documentation, ProgramTest, testing::ValuesIn(allPrograms()), [](const auto& each) {
    std::string name = nameOf(each.param.path);
    std::replace_if(
        name.begin(), name.end(), [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
    return name;
});
