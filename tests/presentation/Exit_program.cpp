// Exits with a function still queued for the GTK thread: from that thread, or, if an argument is given, from
// another one. Prints what becomes of the function.

#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <glibmm/init.h>
#include <glibmm/thread.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace {

struct Witness {
    ~Witness() { std::puts("destroyed"); }
};

} // namespace

int main(int argc, char**) {
    Glib::init();
    Zel::ApplicationDispatcherPresenter::getInstance().registerDispatcher();
    std::thread worker([argc] {
        Zel::beginUpdateView([witness = std::make_shared<Witness>()] { std::puts("called"); });
        if (argc > 1)
            std::exit(0);
    });
    worker.join();
    return 0;
}
