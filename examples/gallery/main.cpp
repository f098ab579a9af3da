#include "Arguments.h"
#include "GalleryWindow.h"
#include "Pages.h"
#include "Pictures.h"
#include "common/CommandLine.h"
#include "common/Look.h"

#include <gtkmm.h>

#include <clocale>
#include <iostream>

namespace {

enum ExitCode { Success = 0, Failure = 1, BadArguments = 2 };

int complain(const std::string& sentence, ExitCode code) {
    std::cerr << "gallery: " << sentence << "\n";
    return code;
}

void setLanguage(const std::string& language) {
    lng::language = language == "ru" ? 1 : 0;
}

/// Leaves the user's own look unless one is named.
void setLook(const std::string& look) {
    if (!look.empty())
        examples::setDark(look == "dark");
}

int printList() {
    for (const gallery::Page& page : gallery::allPages())
        std::cout << page.name << "\t" << page.getTitle() << "\n";
    return Success;
}

/// Whether an option, which may be left out, leaves this choice in.
bool isWanted(const std::string& option, const std::string& choice) {
    return option.empty() || option == choice;
}

int writePictures(const gallery::Arguments& arguments) {
    for (const char* look : {"light", "dark"}) {
        if (!isWanted(arguments.look, look))
            continue;
        setLook(look);
        for (const gallery::Page& page : gallery::allPages()) {
            if (!isWanted(arguments.page, page.name))
                continue;
            for (const char* language : {"en", "ru"}) {
                if (!isWanted(arguments.language, language))
                    continue;
                setLanguage(language);
                std::cout << gallery::writePicture(page, arguments.pictureFolder) << std::endl;
            }
        }
    }
    return Success;
}

int show(const gallery::Arguments& arguments) {
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    setLook(arguments.look);
    gallery::GalleryWindow window(arguments.page);
    return application->run(window);
}

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    Glib::init();
    gallery::Arguments arguments;
    try {
        arguments = gallery::parseArguments(argc, argv);
        setLanguage(arguments.language);
        if (arguments.isList)
            return printList();
        if (!examples::isDisplayThere())
            return complain("there is no display to paint on; --list needs none", Failure);
        return arguments.pictureFolder.empty() ? show(arguments) : writePictures(arguments);
    } catch (const gallery::ArgumentsError& error) {
        return complain(error.what(), BadArguments);
    } catch (const Glib::Error& error) {
        return complain("the pictures can't be written to " + arguments.pictureFolder + ": " + error.what(),
                        Failure);
    }
}
