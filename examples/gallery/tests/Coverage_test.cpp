// Every public header of the library is shown by a page of the gallery.
#include "support/TemporaryFolder.h"
#include "support/Texts.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;

using Names = std::set<std::string>;

/// Classes that an application doesn't make by itself, each with the one of whose inside it is a part. A page
/// that shows the whole shows the part.
const std::map<std::string, std::string> wholes{
    {"collections/PagedContentView.h", "collections/LazyPagedContentPresenter.h"},
    {"collections/SelectionView.h", "collections/SelectionPresenter.h"},
    {"collections/TableCellView.h", "collections/TableCellPresenter.h"},
    {"containers/ScrollAreaView.h", "containers/ScrollAreaPresenter.h"},
    {"diagrams/FiguresDrawer.h", "diagrams/ZDiagram.h"},
    {"diagrams/MovableScrolledWindow.h", "diagrams/ZoomableScrolledWindow.h"},
    {"diagrams/ScrolledWindowAdjustments.h", "diagrams/MovableScrolledWindow.h"},
    {"dialogs/WaitingDialog.h", "dialogs/WaitingDialogPresenter.h"},
    {"entries/IStringView.h", "entries/TimeEntry.h"},
    {"fragments/FragmentDrawerHelper.h", "fragments/FragmentsDrawArea.h"},
    {"fragments/FragmentableCollectionWidget.h", "oscillogram/SeriesGroupDrawArea.h"},
    {"fragments/FragmentableWidget.h", "fragments/FragmentableCollectionWidget.h"},
    {"markers/ContextMenuAdapter.h", "markers/MarkerDrawer.h"},
    {"markers/MarkerTextDrawer.h", "markers/MarkerDrawerHelper.h"},
    {"markers/MarkerWords.h", "markers/MarkerDrawer.h"},
    {"markers/MarkersManager.h", "markers/MarkerDrawer.h"},
    {"oscillogram/DrawAreaSections.h", "oscillogram/SeriesSections.h"},
    {"oscillogram/DrawAreaSynchronizer.h", "oscillogram/SectionsGroupSynchronizer.h"},
    {"oscillogram/IOscillograph.h", "oscillogram/Oscillograph.h"},
    {"oscillogram/IntervalDrawerSynchronizer.h", "oscillogram/SynchronizerFacade.h"},
    {"oscillogram/MarkerDrawerSynchronizer.h", "oscillogram/SynchronizerFacade.h"},
    {"oscillogram/PackableDrawArea.h", "oscillogram/SeriesSections.h"},
    {"oscillogram/RangeSlider.h", "oscillogram/RangeScrollbar.h"},
    {"oscillogram/SectionsGroupSynchronizer.h", "oscillogram/SynchronizerFacade.h"},
    {"oscillogram/SeriesSections.h", "oscillogram/SynchronizerFacade.h"},
    {"oscillogram/SummarySections.h", "oscillogram/SynchronizerFacade.h"},
    {"oscillogram/SynchronizerFacade.h", "oscillogram/Oscillograph.h"},
    {"oscillogram/Synchronizer.h", "oscillogram/DrawAreaSynchronizer.h"},
    {"plot/CoordsBordersCalc.h", "plot/ConverterProxy.h"},
    {"plot/CoordsStepsCalc.h", "plot/CoordsDrawer.h"},
    {"plot/DrawersManager.h", "oscillogram/SeriesGroupDrawArea.h"},
    {"plot/SingleTimedSeriesDrawer.h", "plot/TimedSeriesDrawer.h"},
    {"plot/SyncedTimeCounter.h", "plot/TimeCounterManager.h"},
    {"plot/TimedSeriesIteratorCalc.h", "plot/SingleTimedSeriesDrawer.h"},
    {"windows/PanelCollections.h", "windows/PanelManagerView.h"},
    {"windows/PanelContainerView.h", "windows/PanelCollections.h"},
    {"windows/WindwView.h", "windows/PanelCollections.h"},
};

/// Helpers with nothing to see, and why there is nothing.
const std::map<std::string, std::string> helpers{
    {"common/EmitKept.h", "an emission that outlives its signal"},
    {"common/ErrBuf.h", "an exception, thrown where the system fails"},
    {"common/Export.h", "a macro"},
    {"common/Object.h", "declared only; defined by applications"},
    {"common/PointerConnectionsDispatcher.h", "a table of connections inside of classes"},
    {"common/PointerNamedConnectionsDispatcher.h", "another such table"},
    {"presentation/WidgetReference.h", "a pointer inside of classes"},
};

void collect(const std::string& text, const char* expression, Names& found) {
    for (const std::string& name : test::groupsIn(text, expression))
        found.insert(name);
}

std::string withoutComments(const std::string& text) {
    std::string kept;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        kept += line.substr(0, line.find("//")) + "\n";
    return kept;
}

/// The headers that the umbrella header lists, such as "plot/Series.h".
Names publicHeaders() {
    Names headers;
    collect(test::readFile(fs::path(LIBRARY) / "ZelCommonView.h"), "#include <ZelCommonView/([^>]+)>",
            headers);
    return headers;
}

/// The code of all pages without what their comments say.
const std::string& pageSources() {
    static const std::string sources = [] {
        std::string text;
        for (const auto& entry : fs::directory_iterator(PAGES))
            text += withoutComments(test::readFile(entry.path()));
        return text;
    }();
    return sources;
}

/// The classes and enumerations that a header defines, and the functions that it exports.
Names namesIn(const std::string& header) {
    const std::string text = "\n" + withoutComments(test::readFile(fs::path(LIBRARY) / header));
    Names names;
    collect(text, R"#(\n(?:class|struct|enum class|enum) (?:ZEL_API )?(\w+)[^;{]*\{)#", names);
    collect(text, R"#(\nZEL_API [^(;]*?(\w+)\()#", names);
    return names;
}

/// Whether a page includes the header or names one of its classes or functions.
bool isShown(const std::string& header) {
    if (pageSources().find("<ZelCommonView/" + header + ">") != std::string::npos)
        return true;
    static const Names words = [] {
        Names found;
        collect(pageSources(), R"#((\w+))#", found);
        return found;
    }();
    for (const std::string& name : namesIn(header))
        if (words.count(name) > 0)
            return true;
    return false;
}

/// Whether the sources of the whole include its part.
bool isPartOf(const std::string& part, const std::string& whole) {
    const fs::path path = fs::path(LIBRARY) / whole;
    const std::string stem = path.stem();
    for (const auto& entry : fs::directory_iterator(path.parent_path()))
        // Also what only the class itself includes, such as XImpl.h.
        if (entry.path().filename().string().compare(0, stem.size(), stem) == 0 &&
            test::readFile(entry.path()).find("<ZelCommonView/" + part + ">") != std::string::npos)
            return true;
    return false;
}

} // namespace

TEST(Coverage, EachPublicHeaderIsShownByAPage) {
    const Names headers = publicHeaders();
    EXPECT_GE(headers.size(), 150u);
    for (const std::string& header : headers) {
        const bool isException = wholes.count(header) > 0 || helpers.count(header) > 0;
        EXPECT_TRUE(isException || isShown(header)) << header << " is shown by no page";
    }
}

TEST(Coverage, EachPartIsInsideOfSomethingThatIsShown) {
    for (const auto& [part, whole] : wholes) {
        EXPECT_TRUE(isPartOf(part, whole)) << part << " isn't a part of " << whole;
        std::string outermost = whole;
        for (auto next = wholes.find(outermost); next != wholes.end(); next = wholes.find(outermost))
            outermost = next->second;
        EXPECT_TRUE(isShown(outermost)) << part << " would be shown with " << outermost;
    }
}

TEST(Coverage, NoExceptionIsOutOfDate) {
    const Names headers = publicHeaders();
    const auto expectNeeded = [&headers](const std::string& header) {
        EXPECT_EQ(headers.count(header), 1u) << header << " isn't public any more";
        EXPECT_FALSE(isShown(header)) << header << " is shown by a page";
    };
    for (const auto& exception : wholes)
        expectNeeded(exception.first);
    for (const auto& [header, reason] : helpers) {
        expectNeeded(header);
        EXPECT_NE(reason, "");
    }
}
