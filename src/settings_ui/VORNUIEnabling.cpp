#include <algorithm>

#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* logicalSumOrigin = "logical_sum_condition";

bool contains(const std::vector<std::string>& list, const std::string& entry) {
    return std::find(list.begin(), list.end(), entry) != list.end();
}

}  // namespace

void VORNUI::setEnabled(bool enabled) {
    _enabled = enabled;
    if (_textField) _textField->setEnabled(enabled);
    notifyView(VORNUIChange::Enabled);
}

// Several settings may hold a control disabled at once; it comes back only when the last
// of them lets it go.
void VORNUI::setEnabled(bool enabled, const std::string& origin) {
    if (!enabled) {
        if (!contains(_theNameOfDisabledKey, origin)) _theNameOfDisabledKey.push_back(origin);
        setEnabled(false);
        return;
    }
    if (_theNameOfDisabledKey.empty()) {
        setEnabled(true);
        return;
    }
    std::erase(_theNameOfDisabledKey, origin);
    if (_theNameOfDisabledKey.empty()) setEnabled(true);
}

void VORNUI::setEnabledPositively(bool enabled, const std::string& origin) {
    if (enabled) {
        if (!contains(_theNameOfEnabledKey, origin)) _theNameOfEnabledKey.push_back(origin);
        setEnabled(true, logicalSumOrigin);
        return;
    }
    std::erase(_theNameOfEnabledKey, origin);
    if (_theNameOfEnabledKey.empty()) setEnabled(false, logicalSumOrigin);
}

void VORNUI::setEnabledByDictionary(const PlistDictionary& choiceEnabled) {
    if (_controlType != Type::PopupButton) return;
    const PlistValue* listValue = descriptionValue("choices");
    const PlistArray* list = listValue ? listValue->array() : nullptr;
    for (std::size_t index = 0; list && index < _popupItems.size() && index < list->size(); ++index) {
        const PlistDictionary* entry = (*list)[index].dictionary();
        const std::string choice = entry ? entry->stringFor("choice", "") : std::string();
        _popupItems[index].enabled = SettingsText::boolValue(choiceEnabled.find(choice));
    }
    notifyView(VORNUIChange::Items);
    const auto selectable = [](const MenuItem& item) { return item.enabled && !item.isSeparator; };
    if (_selectedItem >= 0 && selectable(_popupItems[static_cast<std::size_t>(_selectedItem)])) return;
    auto first = std::find_if(_popupItems.begin(), _popupItems.end(), selectable);
    if (first == _popupItems.end()) {
        _selectedItem = -1;
        notifyView(VORNUIChange::Value);
        return;
    }
    selectItemAtIndex(static_cast<int>(first - _popupItems.begin()));
    popupButtonAction();
}

void VORNUI::setEnabledChildControl(bool enabled) {
    for (const auto& child : _childControls) child->setEnabled(enabled);
}

void VORNUI::disableForPDE() {
    if (_controlType != Type::RadioButton && _controlType != Type::HRadioButton) return;
    const PlistValue* listValue = descriptionValue("disableForPDE");
    if (!listValue || !listValue->array()) return;
    for (RadioCell& cell : _radioCells)
        for (const PlistValue& value : *listValue->array())
            if (value.string() && *value.string() == cell.choice) cell.enabled = false;
    notifyView(VORNUIChange::Items);
}

void VORNUI::setHidden(bool hidden) {
    setHiddenView(hidden);
    notifyView(VORNUIChange::Hidden);
}

}  // namespace ComQuorvantVelmar_Plugin
