#include <ZelCommonView/dialogs/HelpView.h>

#include <ZelCommonView/common/Cross.h>
#include <ZelCommonView/common/Directories.h>

#include <glibmm/miscutils.h>

namespace Zel {

IHelpView::~IHelpView() = default;

HelpView::~HelpView() = default;

void HelpView::show(IView*, const std::string& fileName) {
    cross::xdg_open(Glib::build_filename(getZelCrossExeDir(), fileName).c_str());
}

} // namespace Zel
