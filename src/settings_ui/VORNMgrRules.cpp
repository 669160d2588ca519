#include <algorithm>

#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

void appendName(std::vector<std::string>& names, const std::string& name) {
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
}

// The rule entry for the setting's current value, or nullptr.
const PlistDictionary* entryForValue(const PlistDictionary* rules, const std::string& value) {
    if (!rules) return nullptr;
    const PlistValue* entry = rules->find(value);
    return entry ? entry->dictionary() : nullptr;
}

// A dictionary enables the pop-up items it names; a Boolean enables or disables the
// whole control. A spreading setting enables its dependants even while it is disabled.
void applyCondition(VORNUI& control, const VORNUI& changed, const PlistValue& setting, const std::string& origin) {
    if (const PlistDictionary* items = setting.dictionary()) {
        control.setEnabled(changed.isEnabled(), origin);
        if (changed.isEnabled()) control.setEnabledByDictionary(*items);
    } else if (SettingsText::boolValue(&setting)) {
        control.setEnabled(changed.getSpreadValue() || changed.isEnabled(), origin);
    } else {
        control.setEnabled(false, origin);
    }
}

}  // namespace

void VORNMgr::conditionSetting(const std::string& keyword, std::vector<std::string>& notificationNames) {
    VORNUI* changed = firstControl(keyword);
    if (!changed) return;
    const std::string value = changed->getStringValue().value_or("");
    if (const PlistDictionary* sum = entryForValue(changed->getLogicalSumConditionDictionary(), value)) {
        for (const auto& [other, flag] : *sum) {
            if (const ControlList* list = controlsOf(other))
                for (const auto& control : *list) control->setEnabledPositively(SettingsText::boolValue(&flag), keyword);
            appendName(notificationNames, other);
        }
    }
    const PlistDictionary* conditions = changed->getConditionDictionary();
    if (!conditions) return;
    const PlistDictionary* entry = entryForValue(conditions, value);
    for (const auto& [other, setting] : entry ? *entry : PlistDictionary{}) {
        const ControlList* list = controlsOf(other);
        if (!list) continue;
        for (const auto& control : *list) applyCondition(*control, *changed, setting, keyword);
    }
    // The gloss emphasis takes the front colour control with it when it is switched off,
    // but that control must stay usable whenever special toner prints on the front.
    if (keyword == "SpTonerGlossEmphasis" && !changed->isEnabled()) {
        const std::string mode = currentValue("SpTonerUseMode");
        if (currentValue("UseSpToner") == "True" && (mode == "All" || mode == "SpFront"))
            if (const ControlList* list = controlsOf("SpTonerSpecifyColorFront_SpTonerColorFront"))
                for (const auto& control : *list) control->setEnabled(true);
    }
    if (changed->isEnabled() && entry)
        for (const auto& [other, setting] : *entry) appendName(notificationNames, other);
}

void VORNMgr::cooperate(const std::string& keyword, std::vector<std::string>& notificationNames) {
    VORNUI* changed = firstControl(keyword);
    if (!changed) return;
    const PlistDictionary* entry = entryForValue(changed->getCooperationDictionary(), changed->getStringValue().value_or(""));
    if (!entry) return;
    for (const auto& [other, value] : *entry) {
        if (auto text = SettingsText::textValue(&value)) setStringValue(other, *text);
        appendName(notificationNames, other);
    }
}

void VORNMgr::hide(const std::string& keyword, std::vector<std::string>& notificationNames) {
    VORNUI* changed = firstControl(keyword);
    if (!changed) return;
    const PlistDictionary* entry = entryForValue(changed->getHideDictionary(), changed->getStringValue().value_or(""));
    if (!entry) return;
    for (const auto& [other, hidden] : *entry) {
        if (const ControlList* list = controlsOf(other))
            for (const auto& control : *list) control->setHidden(SettingsText::boolValue(&hidden));
        appendName(notificationNames, other);
    }
}

}  // namespace ComQuorvantVelmar_Plugin
