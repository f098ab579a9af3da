#include "support/Pictures.h"

#include <ZelCommonView/common/Language.h>
#include <ZelCommonView/fragments/FragmentsDrawArea.h>
#include <ZelCommonView/markers/ContextMenuAdapter.h>
#include <ZelCommonView/markers/MarkerDrawer.h>
#include <ZelCommonView/markers/MarkerWords.h>
#include <ZelCommonView/markers/MarkersManager.h>
#include <ZelCommonView/plot/CoordsConverter.h>

#include <gtest/gtest.h>
#include <gtkmm.h>

#include <string>
#include <vector>

namespace {

using namespace ZelView;

std::vector<std::string> menuOf(std::uint32_t flags, unsigned char language) {
    lng::language = language;
    StretchableCoordsConverter converter;
    FragmentsDrawArea area;
    MarkerDrawer drawer;
    drawer.getCfg().menuFlags = flags;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.initDrawArea();
    lng::language = 0;
    std::vector<std::string> texts;
    for (const Gtk::MenuItem& item : drawer.contextMenu->items)
        texts.push_back(item.get_label());
    return texts;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(MarkerDrawer, OffersItsWholeMenuInEnglishAndRussian) {
    EXPECT_EQ(menuOf(0xFFFFFFFF, 0),
              (Texts{"Create a single horizontal marker", "Create a double horizontal marker",
                     "Create a single vertical marker", "Create a double vertical marker",
                     "Delete current marker", "Delete all markers", "Export png"}));
    EXPECT_EQ(menuOf(0xFFFFFFFF, 1),
              (Texts{"Создать одиночный горизонтальный маркер", "Создать двойной горизонтальный маркер",
                     "Создать одиночный вертикальный маркер", "Создать двойной вертикальный маркер",
                     "Удалить текущий маркер", "Удалить все маркеры", "Экспорт png"}));
}

TEST(MarkerDrawer, EachBitStandsForAGroupOfTheMenu) {
    EXPECT_EQ(menuOf(0, 0), Texts{});
    EXPECT_EQ(menuOf(1, 0), (Texts{lngCreateSingleHorizontalMarker(), lngCreateDoubleHorizontalMarker()}));
    EXPECT_EQ(menuOf(2, 0), (Texts{lngCreateSingleVerticalMarker(), lngCreateDoubleVerticalMarker()}));
    EXPECT_EQ(menuOf(4, 0), (Texts{lngDeleteCurrentMarker(), lngDeleteAllMarkers(), lngExportPng()}));
    EXPECT_EQ(menuOf(6, 0).size(), 5u);
    EXPECT_EQ(menuOf(8, 0), Texts{});
}

TEST(MarkerDrawer, WatchesMotionAndButtonsOfItsWidget) {
    StretchableCoordsConverter converter;
    FragmentsDrawArea area;
    MarkerDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.initDrawArea();
    for (Gdk::EventMask mask : {Gdk::POINTER_MOTION_MASK, Gdk::BUTTON_PRESS_MASK, Gdk::BUTTON_RELEASE_MASK})
        EXPECT_TRUE(area.get_events() & mask);
}

TEST(MarkerDrawer, WithoutAWidgetSaysSo) {
    StretchableCoordsConverter converter;
    MarkerDrawer drawer;
    drawer.converter = &converter;
    const auto expectThrow = [&](auto operation) {
        try {
            operation();
            FAIL();
        } catch (const char* text) {
            EXPECT_STREQ(text, "getDrawArea");
        }
    };
    expectThrow([&] { drawer.initDrawArea(); });
    expectThrow([&] { drawer._initMenu(); });
    expectThrow([&] { drawer._initDrawAreaEvents(); });
    expectThrow([&] { drawer._exportToPng(); });
}

TEST(MarkerDrawer, ExportsNothingFromAnotherKindOfWidget) {
    StretchableCoordsConverter converter;
    Gtk::DrawingArea area;
    MarkerDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.initDrawArea();
    drawer._exportToPng(); // a dialog would wait for an answer for ever
    EXPECT_EQ(drawer.manager->markers.size(), 0u);
}

TEST(MarkerDrawer, PassesOnWhatItsManagerTells) {
    StretchableCoordsConverter converter;
    converter.widgetWidth = converter.widgetHeight = 100;
    converter.recalc();
    FragmentsDrawArea area;
    MarkerDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.initDrawArea();
    std::vector<std::string> heard;
    drawer.markerChanged.connect([&] { heard.push_back("changed"); });
    drawer.markerAdded.connect([&](Marker& marker) {
        EXPECT_EQ(&marker, drawer.manager->markers.back().get());
        heard.push_back("added");
    });
    drawer.markerRemoved.connect([&](Marker& marker) {
        EXPECT_EQ(&marker, drawer.manager->markers.back().get());
        heard.push_back("removed");
    });
    drawer.manager->createMarker(Orientation::Vertical, MarkerType::Single, {10, 10});
    EXPECT_EQ(heard, (Texts{"added", "changed"}));
    drawer.manager->deleteAllMarkers();
    EXPECT_EQ(heard.back(), "removed");
}

TEST(MarkerDrawer, ANewConverterReachesItsMarkers) {
    StretchableCoordsConverter converter;
    StretchableCoordsConverter other;
    FragmentsDrawArea area;
    MarkerDrawer drawer;
    drawer.converter = &converter;
    drawer.drawArea = &area;
    drawer.initDrawArea();
    EXPECT_EQ(drawer.manager->converter, &converter);
    drawer.converter = &other;
    drawer.drawerConverterChanged.emit();
    EXPECT_EQ(drawer.manager->converter, &other);
}

TEST(MarkerDrawer, KeepsItsDataInOrder) {
    const MarkerDrawer drawer;
    const void* const fields[] = {&drawer.markerChanged, &drawer.markerAdded, &drawer.markerRemoved,
                                  &drawer.cfg,           &drawer.contextMenu, &drawer.manager,
                                  &drawer.lastRightClick};
    for (std::size_t i = 1; i < std::size(fields); ++i)
        EXPECT_LT(fields[i - 1], fields[i]) << i;
}
