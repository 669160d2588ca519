#include <algorithm>

#include "settings_ui/NotifyUnit.h"
#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {

// Every change is announced under the main keyword; pop-ups and check boxes hand the new
// value along as "Paramater", which the rule engine writes before it validates.
void VORNUI::postValue(bool asCheckBox) {
    if (_vornkeyword.empty()) return;
    if (!_value) {
        NotifyUnit::postNotificationName(_vornkeyword);
        return;
    }
    PlistDictionary userInfo;
    if (asCheckBox) userInfo.set("action", "checkbox");
    userInfo.set("Paramater", *_value);
    NotifyUnit::postNotificationName(_vornkeyword, userInfo);
}

void VORNUI::popupButtonAction() {
    _unsportValue.reset();
    getStringValue();
    postValue(false);
    // Preflight has a companion setting on another pane that follows every choice.
    if (_vornkeyword == "PreflightMode") NotifyUnit::postNotificationName("PreflightModeCO");
}

void VORNUI::checkboxAction() {
    const int state = checkBoxState();
    updateValue(checkBoxChoice(state ? 0 : 1));
    if (_isEnableIcon) {
        notifyView(VORNUIChange::Icon);
        setEnabledChildControl(state != 0);
    }
    postValue(true);
}

void VORNUI::radioButtonAction() {
    getStringValue();
    radioAction();
}

void VORNUI::radioAction() {
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword);
}

void VORNUI::sliderAction() {
    getStringValue();
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword);
}

void VORNUI::stepperAction() {
    if (!_stepper || !_textField) return;
    std::string text = SettingsText::fixedNumber(_stepper->value, std::max(_textField->fractionDigitsOfUnit(), 0));
    if (SettingsText::usesDecimalComma()) std::replace(text.begin(), text.end(), '.', ',');
    _textField->setStringValue(text);
    getStringValue();
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword);
}

// The stepper starts from what the field shows, so a number the user typed is where the
// next step begins.
void VORNUI::stepperStep(int steps) {
    if (!_stepper || !_textField) return;
    setStepperValue(_textField->doubleValueInRange() + steps * _stepper->increment);
    stepperAction();
}

// The field announces the end of an edit itself; its action only refreshes the value.
void VORNUI::textAction() { getStringValue(); }

void VORNUI::buttonAction() {
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword + "_Button");
}

void VORNUI::datePickerAction() {
    getStringValue();
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword);
}

void VORNUI::disclosureTriangleAction() {
    _collapsed = !_collapsed;
    for (const auto& child : _childControls) child->setHidden(_collapsed);
}

}  // namespace ComQuorvantVelmar_Plugin
