// Measuring on an oscillograph, as a person does it.
#include "oscillogram/OscillographScreen.h"
#include "support/TemporaryFolder.h"

#include <ZelCommonView/markers/MarkerWords.h>

namespace {

using namespace ZelView;

class OscillographMarkers : public test::OscillographScreen {
protected:
    void expectLineOnAllPlots(int x, bool isThere) {
        for (SeriesGroupDrawArea* area : all())
            EXPECT_EQ(hasLineAt(*area, x), isThere) << x;
    }

    float pointX(SeriesGroupDrawArea& area, unsigned long number) {
        return markers(area).back()->_getPoint(number).x;
    }

    /// Chooses the export and lets `answer` deal with the dialog.
    void exportPicture(const std::function<void(Gtk::FileChooserDialog&)>& answer) {
        const sigc::connection looking = Glib::signal_timeout().connect(
            [&answer] {
                for (Gtk::Window* toplevel : Gtk::Window::list_toplevels())
                    if (GTK_IS_FILE_CHOOSER_DIALOG(toplevel->gobj()) && toplevel->get_mapped()) {
                        answer(dynamic_cast<Gtk::FileChooserDialog&>(*toplevel));
                        return false;
                    }
                return true;
            },
            50);
        choose(analogArea(0), 300, 60, lngExportPng());
    }
};

} // namespace

TEST_F(OscillographMarkers, ASingleVerticalMarkerIsSeenOnAllPlotsWhereverItWasMade) {
    expectLineOnAllPlots(300, false);
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    ASSERT_EQ(markers(analogArea(0)).size(), 1u);
    EXPECT_FLOAT_EQ(pointX(analogArea(0), 1), realX(300));
    expectLineOnAllPlots(300, true);
    choose(binaryArea(), 400, 40, lngCreateSingleVerticalMarker());
    ASSERT_EQ(markers(binaryArea()).size(), 1u);
    expectLineOnAllPlots(300, true);
    expectLineOnAllPlots(400, true);
}

TEST_F(OscillographMarkers, ASingleHorizontalMarkerStaysOnItsPlot) {
    choose(analogArea(1), 300, 40, lngCreateSingleHorizontalMarker());
    ASSERT_EQ(markers(analogArea(1)).size(), 1u);
    for (SeriesGroupDrawArea* area : all()) {
        const test::Picture seen = composed(*area);
        int blues = 0;
        for (int x = 0; x < seen.width; ++x)
            if (seen.height > 40)
                blues += seen.at(x, 40) == std::vector<int>{0, 0, 255, 255} ||
                         seen.at(x, 40) == std::vector<int>{0, 0, 255};
        if (area == &analogArea(1))
            EXPECT_GT(blues, seen.width / 2);
        else
            EXPECT_LT(blues, 20);
    }
}

TEST_F(OscillographMarkers, TheSecondLineOfADoubleMarkerFollowsThePointerOnAllPlots) {
    choose(analogArea(0), 300, 40, lngCreateDoubleVerticalMarker());
    test::movePointer(canvas(analogArea(0)), 400, 60);
    ASSERT_TRUE(test::waitFor([this] { return pointX(analogArea(0), 2) == realX(400); }));
    expectLineOnAllPlots(300, true);
    expectLineOnAllPlots(400, true);
    test::click(canvas(analogArea(0)), 450, 70);
    test::movePointer(canvas(analogArea(0)), 500, 80);
    expectLineOnAllPlots(300, true);
    expectLineOnAllPlots(400, false);
    expectLineOnAllPlots(450, true);
    expectLineOnAllPlots(500, false);
}

TEST_F(OscillographMarkers, ADoubleHorizontalMarkerMeasuresALevelOnItsPlot) {
    choose(analogArea(0), 300, 40, lngCreateDoubleHorizontalMarker());
    test::click(canvas(analogArea(0)), 310, 90);
    ASSERT_EQ(markers(analogArea(0)).size(), 1u);
    const auto& marker = *markers(analogArea(0)).back();
    EXPECT_TRUE(marker.created);
    const CoordsConverter& converter = *analogArea(0).converterProxy.getConverter();
    EXPECT_FLOAT_EQ(marker._getPoint(1).y, converter.getRealY(40));
    EXPECT_FLOAT_EQ(marker._getPoint(2).y, converter.getRealY(90));
    expectLineOnAllPlots(300, false);
}

TEST_F(OscillographMarkers, ADraggedLabelTakesItsLineAlongOnAllPlots) {
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    test::drag(canvas(analogArea(0)), 300, 40, 420, 60);
    EXPECT_FLOAT_EQ(pointX(analogArea(0), 1), realX(420));
    expectLineOnAllPlots(300, false);
    expectLineOnAllPlots(420, true);
    // After the release it stays.
    test::movePointer(canvas(analogArea(0)), 500, 60);
    test::settle();
    EXPECT_FLOAT_EQ(pointX(analogArea(0), 1), realX(420));
    // A drag on the line, off the label, moves nothing.
    test::drag(canvas(analogArea(0)), 420, 110, 200, 110);
    EXPECT_FLOAT_EQ(pointX(analogArea(0), 1), realX(420));
}

TEST_F(OscillographMarkers, TheMarkerBeingMadeIsDeletedByTheMenu) {
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    choose(analogArea(0), 400, 40, lngCreateDoubleVerticalMarker());
    ASSERT_EQ(markers(analogArea(0)).size(), 2u);
    choose(analogArea(0), 500, 80, lngDeleteCurrentMarker());
    EXPECT_EQ(markers(analogArea(0)).size(), 1u);
    expectLineOnAllPlots(300, true);
    expectLineOnAllPlots(400, false);
    expectLineOnAllPlots(500, false);
    // With none being made there is no current one.
    choose(analogArea(0), 500, 80, lngDeleteCurrentMarker());
    EXPECT_EQ(markers(analogArea(0)).size(), 1u);
}

TEST_F(OscillographMarkers, AllMarkersOfOnePlotAreDeletedByItsMenu) {
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    choose(analogArea(0), 350, 60, lngCreateSingleHorizontalMarker());
    choose(binaryArea(), 400, 40, lngCreateSingleVerticalMarker());
    choose(analogArea(0), 500, 80, lngDeleteAllMarkers());
    EXPECT_TRUE(markers(analogArea(0)).empty());
    EXPECT_EQ(markers(binaryArea()).size(), 1u);
    expectLineOnAllPlots(300, false);
    expectLineOnAllPlots(400, true);
}

TEST_F(OscillographMarkers, EachPlotOffersWhatMakesSenseOnIt) {
    const auto labels = [](SeriesGroupDrawArea& area) {
        std::vector<std::string> texts;
        for (const Gtk::MenuItem& item : markerDrawer(area).contextMenu->items)
            texts.push_back(item.get_label());
        return texts;
    };
    EXPECT_EQ(labels(analogArea(1)).size(), 7u);
    EXPECT_EQ(labels(binaryArea()),
              (std::vector<std::string>{lngCreateSingleVerticalMarker(), lngCreateDoubleVerticalMarker(),
                                        lngDeleteCurrentMarker(), lngDeleteAllMarkers(), lngExportPng()}));
    test::click(canvas(summaryArea()), 300, 10, 3);
    test::wait(200);
    EXPECT_FALSE(markerDrawer(summaryArea()).contextMenu->menu.get_mapped());
}

TEST_F(OscillographMarkers, MarkersStayAtTheirMomentWhenTheRangeChanges) {
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    const float moment = realX(300);
    oscillograph.showRange(moment - 10, moment + 10);
    const CoordsConverter& converter = *summaryArea().converterProxy.getConverter();
    const int middle = static_cast<int>(converter.getVisualX(moment));
    EXPECT_NE(middle, 300);
    const test::Picture seen = composed(binaryArea());
    expectLineOnAllPlots(300, false);
    for (SeriesGroupDrawArea* area : all())
        EXPECT_TRUE(hasLineAt(*area, middle) || hasLineAt(*area, middle - 1) || hasLineAt(*area, middle + 1));
}

TEST_F(OscillographMarkers, TheExportSavesThePlotWithItsMarkers) {
    choose(analogArea(0), 200, 40, lngCreateSingleVerticalMarker());
    const test::TemporaryFolder folder;
    exportPicture([&folder](Gtk::FileChooserDialog& dialog) {
        dialog.set_current_folder(folder.path.string());
        dialog.set_current_name("plot.png");
        // The folder is read in the background.
        Glib::signal_timeout().connect_once([&dialog] { dialog.response(Gtk::RESPONSE_ACCEPT); }, 500);
    });
    const std::string path = (folder.path / "plot.png").string();
    ASSERT_TRUE(test::waitFor([&path] { return std::filesystem::exists(path); }));
    test::expectSame(test::pictureOfFile(path), composed(analogArea(0)));
}

TEST_F(OscillographMarkers, ACancelledExportWritesNothing) {
    bool isAnswered = false;
    exportPicture([&isAnswered](Gtk::FileChooserDialog& dialog) {
        dialog.response(Gtk::RESPONSE_CANCEL);
        isAnswered = true;
    });
    EXPECT_TRUE(test::waitFor([&isAnswered] { return isAnswered; }));
    // The oscillograph lives on.
    choose(analogArea(0), 300, 40, lngCreateSingleVerticalMarker());
    expectLineOnAllPlots(300, true);
}
