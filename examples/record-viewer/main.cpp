#include "Arguments.h"
#include "common/CommandLine.h"
#include "info/Info.h"
#include "reader/Reader.h"
#include "view/ImpedanceWords.h"
#include "view/Loader.h"
#include "view/MainWindow.h"
#include "view/Pictures.h"
#include "view/Words.h"

#include <ZelCommonView/dialogs/DialogPresenter.h>
#include <ZelCommonView/presentation/ApplicationDispatcher.h>

#include <gtkmm.h>

#include <clocale>
#include <filesystem>
#include <iostream>
#include <memory>

namespace {

enum ExitCode { Success = 0, Failure = 1, BadArguments = 2 };

int complain(const std::string& sentence, ExitCode code) {
    std::cerr << "record-viewer: " << sentence << "\n";
    return code;
}

record::Options optionsOf(const viewer::Arguments& arguments) {
    record::Options options;
    options.codePage = arguments.codePage;
    options.salvage = arguments.isSalvage;
    return options;
}

void setAxis(record::Record& record, const std::string& axis) {
    if (!axis.empty())
        record.time.setRule(axis == "rates" ? record::TimeAxis::Rule::Rates : record::TimeAxis::Rule::Stamps);
}

record::Record read(const viewer::Arguments& arguments) {
    record::Record record = record::open(arguments.file, optionsOf(arguments));
    setAxis(record, arguments.axis);
    return record;
}

/// Reads a large record behind a dialog over the window; false if there is nothing to show.
bool loadInto(viewer::MainWindow& window, const viewer::Arguments& arguments) {
    try {
        viewer::Impedances impedances;
        // Of its own for the other thread.
        const viewer::ImpedanceSettings settings = window.getSettings();
        record::Record record =
            viewer::loadBehindDialog(window, arguments.file, optionsOf(arguments), [&](record::Record& read) {
                setAxis(read, arguments.axis);
                impedances = viewer::computeImpedances(read, settings.line(), settings.reaches());
            });
        window.setRecord(std::move(record), std::move(impedances));
        return true;
    } catch (const record::Cancelled&) {
        return false;
    } catch (const record::Error& error) {
        complain(error.what(), Failure);
        Zel::DialogPresenter::show(&window, error.what(), viewer::words::cantRead(), Zel::DialogResult::Ok);
        return false;
    }
}

int show(const viewer::Arguments& arguments) {
    Zel::ApplicationDispatcherPresenter::getInstance().registerDispatcher();
    const bool isLarge = viewer::isLarge(arguments.file);
    // A small record is read before there is a window, so that its faults are told where it was asked for.
    std::optional<record::Record> record;
    if (!isLarge)
        record = read(arguments);

    const auto application = Gtk::Application::create("", Gio::APPLICATION_NON_UNIQUE);
    viewer::MainWindow window(std::filesystem::path(arguments.file).filename().string(),
                              viewer::WindowPlace::usualFile());
    int code = Success;
    if (record) {
        const viewer::ImpedanceSettings& settings = window.getSettings();
        viewer::Impedances impedances =
            viewer::computeImpedances(*record, settings.line(), settings.reaches());
        window.setRecord(std::move(*record), std::move(impedances));
    } else {
        Glib::signal_idle().connect_once([&] {
            if (loadInto(window, arguments))
                return;
            code = Failure;
            window.close();
        });
    }
    application->run(window);
    return code;
}

int writePictures(const viewer::Arguments& arguments, record::Record record) {
    // A pair of files is known by its stem; others keep their extension, so that records that differ in
    // nothing else don't overwrite each other's pictures.
    const std::filesystem::path path(arguments.file);
    const std::string extension = Glib::ustring(path.extension().string()).lowercase();
    const bool isPair = extension == ".cfg" || extension == ".dat";
    const std::string stem = (isPair ? path.stem() : path.filename()).string();
    const auto impedances = std::make_shared<const viewer::Impedances>(viewer::computeImpedances(record));
    record::Record copy = record; // both ways of painting take the samples
    std::cout << viewer::writeOscillogram(std::move(copy), arguments.pictureFolder, stem) << "\n";
    for (const std::string& picture :
         viewer::writePictures(viewer::makeSections(record), arguments.pictureFolder, stem))
        std::cout << picture << "\n";
    if (impedances->problem.empty())
        for (const std::string& picture : viewer::writeImpedances(impedances, arguments.pictureFolder, stem))
            std::cout << picture << "\n";
    else
        complain(viewer::words::problemOf(*impedances), Success);
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
        lng::language = arguments.language;
        if (arguments.isInfo || arguments.isJson) {
            const record::Record record = read(arguments);
            if (arguments.isJson)
                std::cout << record::jsonText(record) << "\n";
            else
                std::cout << record::describe(record);
            return Success;
        }

        if (!examples::isDisplayThere())
            return complain("there is no display to paint on; --info and --json need none", Failure);
        return arguments.pictureFolder.empty() ? show(arguments) : writePictures(arguments, read(arguments));
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
