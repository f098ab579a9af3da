#include "Arguments.h"

#include "common/CommandLine.h"

#include <glibmm.h>

#include <clocale>

namespace viewer {

using examples::entry;

Arguments parseArguments(int argc, char** argv) {
    Arguments arguments;
    Glib::ustring codePage = arguments.codePage;
    Glib::ustring axis;
    Glib::ustring language = "en";
    Glib::OptionGroup::vecstrings files;

    Glib::OptionGroup group("record-viewer", "Options of the viewer");
    group.add_entry(entry("info", "Print what was read, as text"), arguments.isInfo);
    group.add_entry(entry("json", "Print what was read, for a program"), arguments.isJson);
    group.add_entry_filename(entry("png", "Write pictures into a folder and print their paths", "DIR"),
                             arguments.pictureFolder);
    group.add_entry(entry("salvage", "Read what can still be read of a damaged record"), arguments.isSalvage);
    group.add_entry(entry("code-page", "Code page of texts that are not UTF-8 (CP1251)", "NAME"), codePage);
    group.add_entry(
        entry("axis", "Take times from the sampling rates or from the time stamps", "rates|stamps"), axis);
    group.add_entry(entry("lang", "Language of the window (en)", "en|ru"), language);
    Glib::OptionEntry rest;
    rest.set_long_name(G_OPTION_REMAINING);
    rest.set_arg_description("FILE");
    group.add_entry_filename(rest, files);

    Glib::OptionContext context("- shows a recorded set of signals (COMTRADE or CSV)");
    context.set_main_group(group);
    try {
        context.parse(argc, argv);
    } catch (const Glib::Error& error) {
        throw ArgumentsError(error.what());
    }

    arguments.codePage = codePage;
    arguments.axis = axis;
    if (!axis.empty() && axis != "rates" && axis != "stamps")
        throw ArgumentsError("--axis takes \"rates\" or \"stamps\", and not \"" + axis + "\"");
    if (language != "en" && language != "ru")
        throw ArgumentsError("--lang takes \"en\" or \"ru\", and not \"" + language + "\"");
    arguments.language = language == "ru" ? 1 : 0;
    if (files.empty())
        throw ArgumentsError("name the record to open: record-viewer FILE");
    if (files.size() > 1)
        throw ArgumentsError("one record at a time can be opened, and " + std::to_string(files.size()) +
                             " were named");
    arguments.file = files.front();
    return arguments;
}

} // namespace viewer
