#include "pde/PanelDefaults_p.h"

#include <optional>
#include <string>

#include "core/StringHelpers.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* bypassPaperTypeKey =
    "PaperTypeBypass_MediaTypeTabbedBypass_MediaTypeCoatingMaterialBypass_MediaTypePreprintedBypass_"
    "MediaTypeDrilledBypass_PaperTypeCustomNumberBypass";

class DescribedDefaults {
public:
    DescribedDefaults(const PlistDictionary& descriptions, std::shared_ptr<Bundle> bundle)
        : _descriptions(descriptions), _bundle(std::move(bundle)) {}

    bool isDescribed(const std::string& key) const {
        const PlistValue* description = _descriptions.find(key);
        return description && description->dictionary();
    }
    /// Adds key's default when key is described; false when it is not.
    bool add(PlistDictionary& defaults, const std::string& key, bool asBoolean = false) const {
        if (!isDescribed(key)) return false;
        VORNUI control;
        control.setControlDictionary(_descriptions.find(key)->dictionary(), _bundle);
        const std::string value = control.getDefault().value_or("");
        if (asBoolean)
            defaults.set(key, boolValueIfString(PlistValue(value)));
        else
            defaults.set(key, value);
        return true;
    }

private:
    const PlistDictionary& _descriptions;
    std::shared_ptr<Bundle> _bundle;
};

// The automatic sheet's settings as it builds them: one paper type and one weight setting.
void addAutomaticSheet(const DescribedDefaults& described, PlistDictionary& defaults) {
    if (!described.add(defaults, "PaperType_MediaTypeTabbed")) described.add(defaults, "PaperTypeD");
    for (const char* key : {"PaperTypeCustomName", "MediaTypeSequence", "PaperColor", "PaperColorCustomName"})
        described.add(defaults, key);
    if (!described.add(defaults, "MediaTypeWeightValue")) described.add(defaults, "MediaTypeWeight");
    for (const char* key : {"MediaTypeCoatingMaterial", "MediaTypeDrilled", "MediaTypeGlossFine", "MediaTypePreprinted"})
        described.add(defaults, key);
}

}  // namespace

PlistDictionary panelDefaultSettings(const PlistDictionary& descriptions, const std::shared_ptr<Bundle>& bundle) {
    const DescribedDefaults described(descriptions, bundle);
    PlistDictionary defaults;
    const bool withBypass = described.add(defaults, "AutoTraySettingToBypass", true);
    described.add(defaults, "DuplexMode");
    described.add(defaults, "PagePrintOnCenter", true);
    for (const char* key : {"ColorMode", "StapleMode", "Punch_PunchHoles", "Fold", "OutputTray", "OffsetMode", "QVInputSlot"})
        described.add(defaults, key);
    addAutomaticSheet(described, defaults);
    // The bypass sheet's weight is listed under the automatic weight control, which that
    // sheet never builds; it holds no value.
    if (withBypass)
        for (const char* key : {bypassPaperTypeKey, "MediaTypeSequenceBypass", "PaperColorBypass"})
            described.add(defaults, key);
    return defaults;
}

}  // namespace ComQuorvantVelmar_Plugin
