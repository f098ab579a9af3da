#pragma once

#include <ZelCommonView/common/Export.h>
#include <ZelCommonView/oscillogram/DrawAreaSynchronizer.h>
#include <ZelCommonView/oscillogram/SizeGroupAdapter.h>
#include <ZelCommonView/oscillogram/Synchronizer.h>

namespace ZelView {

class DrawAreaSections;

/// Keeps all plots of several sections in step, and gives their toolbars one width.
class ZEL_API SectionsGroupSynchronizer : public Synchronizer {
public:
    /// `offset` are the margins of all plots, in pixels.
    SectionsGroupSynchronizer(DrawerSynchronizerCollection drawerSynchronizers,
                              CoordsConverter::Offset offset);
    ~SectionsGroupSynchronizer() override;

    void setupSynchronizerFacade(SynchronizerFacade& facade) override;

    /// Takes the plots of the section, those to come included, into step.
    void addSectionsGroup(DrawAreaSections& sections);

private:
    DrawAreaSynchronizer drawAreaSynchronizer;
    SizeGroupAdapter toolbarGroup; ///< toolbars of all sections
};

} // namespace ZelView
