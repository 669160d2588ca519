#include "settings_ui/VORNUI.h"

#include <algorithm>
#include <cmath>

#include "core/Bundle.h"
#include "settings_ui/SettingsText_p.h"

namespace ComQuorvantVelmar_Plugin {

VORNUI::VORNUI() = default;

VORNUI::~VORNUI() = default;

void VORNUI::notifyView(VORNUIChange change) const {
    if (_view) _view->controlDidChange(*this, change);
}

const PlistDictionary* VORNUI::controlDictionary() const {
    return _controlDictionary ? &*_controlDictionary : nullptr;
}

const PlistValue* VORNUI::descriptionValue(std::string_view key) const {
    return _controlDictionary ? _controlDictionary->find(key) : nullptr;
}

std::string VORNUI::descriptionString(std::string_view key) const {
    return SettingsText::textValue(descriptionValue(key)).value_or("");
}

const PlistArray* VORNUI::choices() const {
    const PlistValue* value = descriptionValue("choices");
    return value ? value->array() : nullptr;
}

std::string VORNUI::localized(std::string_view key) const {
    return SettingsText::localizedUIText(_bundle.get(), key);
}

std::string VORNUI::imagePath(const std::string& name) const {
    if (!_bundle || name.empty()) return {};
    return _bundle->pathForResource(name, "png");
}

std::size_t VORNUI::getChoicesCount() const {
    const PlistArray* list = choices();
    return list ? list->size() : 0;
}

std::optional<double> VORNUI::minValue() const {
    auto text = SettingsText::textValue(descriptionValue("min"));
    if (!text) return std::nullopt;
    return SettingsText::numericValue(*text);
}

std::optional<double> VORNUI::maxValue() const {
    auto text = SettingsText::textValue(descriptionValue("max"));
    if (!text) return std::nullopt;
    return SettingsText::numericValue(*text);
}

std::string VORNUI::controlClass() const { return descriptionString("control_type"); }

bool VORNUI::isOnlyTitle() const { return SettingsText::boolValue(descriptionValue("onlytitle")); }

bool VORNUI::isPlacedHorizontally() const { return SettingsText::boolValue(descriptionValue("holizontally")); }

namespace {

const PlistDictionary* ruleDictionary(const PlistValue* value) { return value ? value->dictionary() : nullptr; }

}  // namespace

const PlistDictionary* VORNUI::getConflictDictionary() const { return ruleDictionary(descriptionValue("conflict")); }

const PlistDictionary* VORNUI::getUnrestorableConflictDictionary() const {
    return ruleDictionary(descriptionValue("unrestorable_conflict"));
}

const PlistDictionary* VORNUI::getConditionDictionary() const { return ruleDictionary(descriptionValue("condition")); }

const PlistDictionary* VORNUI::getLogicalSumConditionDictionary() const {
    return ruleDictionary(descriptionValue("logical_sum_condition"));
}

const PlistDictionary* VORNUI::getCooperationDictionary() const {
    return ruleDictionary(descriptionValue("cooperation"));
}

const PlistDictionary* VORNUI::getHideDictionary() const { return ruleDictionary(descriptionValue("hide")); }

void VORNUI::selectItemAtIndex(int index) {
    if (index < 0 || index >= static_cast<int>(_popupItems.size())) return;
    const MenuItem& item = _popupItems[static_cast<std::size_t>(index)];
    if (item.isSeparator) return;
    _selectedItem = index;
    notifyView(VORNUIChange::Value);
}

void VORNUI::selectCellAtIndex(int index) {
    if (index < 0 || index >= static_cast<int>(_radioCells.size())) return;
    for (std::size_t cell = 0; cell < _radioCells.size(); ++cell)
        _radioCells[cell].on = static_cast<int>(cell) == index;
    notifyView(VORNUIChange::Value);
}

void VORNUI::setCheckBoxShownState(int state) {
    _checkBoxShown = state ? 1 : 0;
    notifyView(VORNUIChange::Value);
}

std::string VORNUI::checkBoxStateIconPath() const {
    if (!_isEnableIcon || _controlType != Type::CheckBox) return {};
    return checkBoxState() ? _icons.stateTrue : _icons.stateFalse;
}

// Only tick-mark positions are values of a slider with choices.
void VORNUI::setSliderPosition(double position) {
    if (std::isnan(position)) position = _slider.minValue;
    position = std::clamp(position, _slider.minValue, std::max(_slider.minValue, _slider.maxValue));
    _slider.position = _slider.allowsTickMarkValuesOnly ? std::floor(position + 0.5) : position;
    notifyView(VORNUIChange::Value);
}

void VORNUI::setStepperValue(double value) {
    if (!_stepper) return;
    _stepper->value = std::clamp(value, _stepper->minValue, std::max(_stepper->minValue, _stepper->maxValue));
}

void VORNUI::setPickedDate(std::int64_t secondsSince1970) {
    if (_datePicker.minDate) secondsSince1970 = std::max(secondsSince1970, *_datePicker.minDate);
    if (_datePicker.maxDate) secondsSince1970 = std::min(secondsSince1970, *_datePicker.maxDate);
    _datePicker.date = secondsSince1970;
    notifyView(VORNUIChange::Value);
}

void VORNUI::clearWidgets() {
    removeAllSubviews();
    _childControls.clear();
    _popupItems.clear();
    _selectedItem = -1;
    _radioCells.clear();
    _checkBoxShown = 0;
    _slider = SliderState{};
    _stepper.reset();
    _textField.reset();
    _datePicker = DatePickerState{};
    _popupButtonArray.reset();
}

void VORNUI::controlRemoveAll() {
    clearWidgets();
    _bundle.reset();
    _oldValue.reset();
    _value.reset();
    _unsportValue.reset();
    _theNameOfDisabledKey.clear();
    _theNameOfEnabledKey.clear();
    _texts = Texts{};
    _icons = Icons{};
    _controlDictionary.reset();
    _controlType = Type::Unknown;
    notifyView(VORNUIChange::Built);
}

}  // namespace ComQuorvantVelmar_Plugin
