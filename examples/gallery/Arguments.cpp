#include "Arguments.h"

#include "Pages.h"
#include "common/CommandLine.h"

#include <glibmm.h>

namespace gallery {

Arguments parseArguments(int argc, char** argv) {
    using examples::entry;
    // Distinguishes an option that is not given from one with an empty argument.
    const Glib::ustring none = "\n";
    Arguments arguments;
    Glib::ustring page = none;
    Glib::ustring language = none;
    Glib::ustring look = none;
    std::string folder = none;
    Glib::OptionGroup::vecustrings rest;

    Glib::OptionGroup group("gallery", "Options of the gallery");
    group.add_entry(entry("page", "Begin with this page, or paint no other", "NAME"), page);
    group.add_entry(entry("list", "Print the names and titles of the pages"), arguments.isList);
    group.add_entry_filename(
        entry("png", "Write pictures of the pages into a folder and print their paths", "DIR"), folder);
    group.add_entry(
        entry("lang", "Language of the texts; pictures are made in both unless it is given", "en|ru"),
        language);
    group.add_entry(
        entry("look", "Light or dark; pictures are made in both unless it is given", "light|dark"), look);
    group.add_entry(entry(G_OPTION_REMAINING, ""), rest);

    Glib::OptionContext context("- shows the widgets of the library, page by page");
    context.set_main_group(group);
    try {
        context.parse(argc, argv);
    } catch (const Glib::Error& error) {
        throw ArgumentsError(error.what());
    }

    if (!rest.empty())
        throw ArgumentsError("\"" + rest.front() + "\" is no option; --page NAME shows a page");
    if (page != none && !findPage(page))
        throw ArgumentsError("there is no page \"" + page + "\"; --list names all of them");
    if (language != none && language != "en" && language != "ru")
        throw ArgumentsError("--lang takes \"en\" or \"ru\", and not \"" + language + "\"");
    if (look != none && look != "light" && look != "dark")
        throw ArgumentsError("--look takes \"light\" or \"dark\", and not \"" + look + "\"");
    if (folder.empty())
        throw ArgumentsError("--png takes the folder for the pictures");
    if (arguments.isList && (page != none || folder != none.raw()))
        throw ArgumentsError("--list names all pages; it can't be combined with --page or --png");
    if (page != none)
        arguments.page = page;
    if (language != none)
        arguments.language = language;
    if (look != none)
        arguments.look = look;
    if (folder != none.raw())
        arguments.pictureFolder = folder;
    return arguments;
}

} // namespace gallery
