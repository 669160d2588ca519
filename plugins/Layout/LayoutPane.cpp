#include "core/ClassRegistry.h"
#include "panes/PanePlugInMgr.h"
#include "panes/StandardPane.h"
#include "settings_ui/IOTOptionUpdater.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Tray codes of the first sheet tray: automatic before the trays the printer reports; the
// job's own tray, a stock and the system setting after them.
const std::vector<std::string> leadingTrays = {"0"};
const std::vector<std::string> trailingTrays = {"20", "25", "27"};
constexpr const char* interposerCode = "9";

bool reportsInterposer(const PlistValue& feeders) {
    for (const PlistValue& row : feeders.array() ? *feeders.array() : PlistArray{}) {
        const PlistArray* cells = row.array();
        if (cells && !cells->empty() && (*cells)[0].stringOr("") == interposerCode) return true;
    }
    return false;
}

}  // namespace

/// The imposition pane: the built-in pane's settings and resource lists, and the first
/// sheet tray offering only the trays that the printer reports as installed.
class LayoutPane : public StandardPane {
public:
    void willShow() override {
        StandardPane::willShow();
        updateFirstSheetTrays();
    }

private:
    // The tray a favorite chose stays selected even when the printer no longer reports it,
    // so that opening the dialog never changes a setting by itself.
    void updateFirstSheetTrays() {
        auto control = controlForKey("Imposition1stTray");
        auto feeders = callback() ? callback()->getFeederInfoList() : std::nullopt;
        if (!control || !feeders || !feeders->array() || feeders->array()->empty()) return;
        PlistArray trays;
        IOTOptionUpdater::getInputSlotArray(trays, *feeders, leadingTrays, trailingTrays, reportsInterposer(*feeders));
        const auto value = control->getUnsportValue() ? control->getUnsportValue() : control->getStringValue();
        IOTOptionUpdater::updateInputSlotVORNUI(*control, trays);
        if (value) control->setStringValue(*value);
    }
};

OSTRIN_REGISTER_CLASS("ComQuorvantVelmar_PluginLayoutPane", LayoutPane)

}  // namespace ComQuorvantVelmar_Plugin
