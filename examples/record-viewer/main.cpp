#include "Arguments.h"
#include "common/CommandLine.h"
#include "info/Info.h"
#include "reader/Reader.h"
#include "view/MainWindow.h"
#include "view/Pictures.h"

#include <gtkmm.h>

#include <clocale>
#include <filesystem>
#include <iostream>

namespace {

enum ExitCode { Success = 0, Failure = 1, BadArguments = 2 };

int complain(const std::string& sentence, ExitCode code) {
    std::cerr << "record-viewer: " << sentence << "\n";
    return code;
}

record::Record read(const viewer::Arguments& arguments) {
    record::Options options;
    options.codePage = arguments.codePage;
    options.salvage = arguments.isSalvage;
    record::Record record = record::open(arguments.file, options);
    if (!arguments.axis.empty())
        record.time.setRule(arguments.axis == "rates" ? record::TimeAxis::Rule::Rates
                                                      : record::TimeAxis::Rule::Stamps);
    return record;
}

std::string summaryOf(const record::Record& record) {
    return std::to_string(record.analogs.size()) + " analog and " + std::to_string(record.binaries.size()) +
           " binary channels, " + std::to_string(record.size()) + " samples";
}

int show(const std::string& file, record::Record record) {
    const std::string title = std::filesystem::path(file).filename().string() + " - " + record.station;
    const std::string summary = summaryOf(record);
    const std::vector<std::string> warnings = record.warnings;
    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    viewer::MainWindow window(title, viewer::makeSections(record), summary, warnings);
    return application->run(window);
}

int writePictures(const viewer::Arguments& arguments, record::Record record) {
    // A pair of files is known by its stem; others keep their extension, so that records that differ in
    // nothing else don't overwrite each other's pictures.
    const std::filesystem::path path(arguments.file);
    const std::string extension = Glib::ustring(path.extension().string()).lowercase();
    const bool isPair = extension == ".cfg" || extension == ".dat";
    const std::string stem = (isPair ? path.stem() : path.filename()).string();
    for (const std::string& picture :
         viewer::writePictures(viewer::makeSections(record), arguments.pictureFolder, stem))
        std::cout << picture << "\n";
    return Success;
}

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    Glib::init();
    viewer::Arguments arguments;
    try {
        arguments = viewer::parseArguments(argc, argv);
        record::Record record = read(arguments);
        if (arguments.isJson)
            std::cout << record::jsonText(record) << "\n";
        else if (arguments.isInfo)
            std::cout << record::describe(record);
        if (arguments.isInfo || arguments.isJson)
            return Success;

        if (!examples::isDisplayThere())
            return complain("there is no display to paint on; --info and --json need none", Failure);
        return arguments.pictureFolder.empty() ? show(arguments.file, std::move(record))
                                               : writePictures(arguments, std::move(record));
    } catch (const viewer::ArgumentsError& error) {
        return complain(error.what(), BadArguments);
    } catch (const record::Error& error) {
        return complain(error.what(), Failure);
    } catch (const Glib::Error& error) {
        return complain("the pictures can't be written to " + arguments.pictureFolder + ": " + error.what(),
                        Failure);
    } catch (const std::bad_alloc&) {
        return complain("there is not enough memory for " + arguments.file, Failure);
    }
}
