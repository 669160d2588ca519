#include <algorithm>
#include <ctime>

#include "core/Diagnostics.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/SettingsText_p.h"
#include "settings_ui/UIDescriptionFile_p.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::optional<PlistDictionary>& temporaryPrintOption() {
    static std::optional<PlistDictionary> printOption;
    return printOption;
}

const PlistDictionary* choiceAt(const PlistArray* list, std::size_t index) {
    if (!list || index >= list->size()) return nullptr;
    return (*list)[index].dictionary();
}

std::string withPoint(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

// The choice an entry of a pop-up list names: a plain choice or an entry [text, choice].
std::optional<std::string> choiceOfEntry(const PlistValue& entry) {
    if (const std::string* choice = entry.string()) return *choice;
    const PlistArray* pair = entry.array();
    if (pair && pair->size() >= 2 && (*pair)[1].string()) return *(*pair)[1].string();
    return std::nullopt;
}

}  // namespace

std::string VORNUI::checkBoxChoice(int index) const {
    const PlistDictionary* entry = choiceAt(choices(), static_cast<std::size_t>(index));
    if (entry && entry->stringFor("choice")) return *entry->stringFor("choice");
    return index == 0 ? "True" : "False";
}

std::optional<std::string> VORNUI::readWidgets() {
    switch (_controlType) {
        case Type::TextFieldNumber: return withPoint(_textField->stringValue());
        case Type::TextFieldText:
        case Type::SecureTextFieldText: return _textField->stringValue();
        case Type::CheckBox: return checkBoxChoice(checkBoxState() ? 0 : 1);
        case Type::PopupButton:
            if (_selectedItem < 0) return std::nullopt;
            return _popupItems[static_cast<std::size_t>(_selectedItem)].choice;
        case Type::RadioButton:
        case Type::HRadioButton:
            for (const RadioCell& cell : _radioCells)
                if (cell.on) return cell.choice;
            return _value;
        case Type::Slider:
            if (const PlistArray* list = choices(); list && !list->empty()) {
                const PlistDictionary* entry = choiceAt(list, static_cast<std::size_t>(_slider.position));
                return entry ? entry->stringFor("choice", "") : std::string();
            }
            {
                const PlistValue position(_slider.position);
                return SettingsText::textValue(&position);
            }
        case Type::DatePicker: return std::to_string(_datePicker.date);
        case Type::Unknown: break;
    }
    return _value;
}

std::optional<std::string> VORNUI::getStringValue() {
    _value = readWidgets();
    return _value;
}

void VORNUI::setStringValue(const std::string& value) {
    _value = value;
    showValue(value);
    notifyView(VORNUIChange::Value);
}

void VORNUI::showValue(const std::string& value) {
    switch (_controlType) {
        case Type::TextFieldNumber: {
            std::string text = value;
            if (SettingsText::usesDecimalComma()) std::replace(text.begin(), text.end(), '.', ',');
            _textField->setStringValue(text);
            break;
        }
        case Type::TextFieldText:
        case Type::SecureTextFieldText: _textField->setStringValue(value); break;
        case Type::CheckBox: showCheckBoxValue(value); break;
        case Type::PopupButton: showPopupValue(value); break;
        case Type::RadioButton:
        case Type::HRadioButton: selectMatrix(); break;
        case Type::Slider: showSliderValue(value); break;
        case Type::DatePicker: showDateValue(value); break;
        case Type::Unknown: break;
    }
}

void VORNUI::showCheckBoxValue(const std::string& value) {
    setCheckBoxState(value == checkBoxChoice(0) ? 1 : 0);
}

// A value that no item offers is kept aside and reported instead of the shown item, so
// that settings of a tray or finisher the printer lacks today are not lost.
void VORNUI::showPopupValue(const std::string& value) {
    for (std::size_t index = 0; index < _popupItems.size(); ++index) {
        if (_popupItems[index].isSeparator || _popupItems[index].choice != value) continue;
        _selectedItem = static_cast<int>(index);
        _unsportValue.reset();
        return;
    }
    _unsportValue = value;
}

void VORNUI::showSliderValue(const std::string& value) {
    const PlistArray* list = choices();
    if (!list || list->empty()) {
        setSliderPosition(SettingsText::numericValue(value));
        return;
    }
    for (std::size_t index = 0; index < list->size(); ++index) {
        const PlistDictionary* entry = (*list)[index].dictionary();
        if (entry && entry->stringFor("choice", "") == value) setSliderPosition(static_cast<double>(index));
    }
}

void VORNUI::showDateValue(const std::string& value) {
    const PlistValue description(value);
    if (auto seconds = UIDescriptionFile::secondsOfDate(&description)) setPickedDate(*seconds);
}

void VORNUI::updateValue(const std::string& value) {
    if (!_value) _value = value;
    if (*_value != value) setStringValue(value);
}

void VORNUI::updateOldValue() { _oldValue = getStringValue(); }

std::optional<std::string> VORNUI::getDefault() const {
    if (_controlType == Type::DatePicker) {
        auto seconds = UIDescriptionFile::secondsOfDate(descriptionValue("default"));
        if (!seconds) return std::nullopt;
        return std::to_string(*seconds);
    }
    auto value = SettingsText::textValue(descriptionValue("default"));
    if (!value || value->empty()) return std::nullopt;
    return value;
}

void VORNUI::setDefault() {
    if (auto value = getDefault()) setStringValue(*value);
    if (!_vornkeyword.empty()) NotifyUnit::postNotificationName(_vornkeyword);
}

// The stored value is the answer slot of this question: later readers of the value
// (updateValue) see the text until the next read of the widgets.
std::optional<std::string> VORNUI::getOptionText(const std::string& value) {
    _value.reset();
    std::optional<std::string> text;
    const PlistArray* list = choices();
    if (_controlType == Type::CheckBox) {
        if (const PlistDictionary* entry = choiceAt(list, value == "True" ? 0 : 1)) text = entry->stringFor("text");
    } else if (_controlType == Type::PopupButton || _controlType == Type::RadioButton ||
               _controlType == Type::HRadioButton) {
        const bool lastWins = _controlType != Type::PopupButton;
        for (std::size_t index = 0; list && index < list->size(); ++index) {
            const PlistDictionary* entry = (*list)[index].dictionary();
            if (!entry || entry->stringFor("choice", "") != value) continue;
            text = entry->stringFor("text");
            if (!lastWins) break;
        }
    }
    _value = text;
    return text;
}

std::optional<std::string> VORNUI::getSelectedOptionText() {
    auto value = getStringValue();
    if (!value) return std::nullopt;
    switch (_controlType) {
        case Type::CheckBox: return getOptionText(*value == checkBoxChoice(0) ? "True" : "False");
        case Type::PopupButton:
            if (auto text = getOptionText(*value)) return text;
            return _popupItems[static_cast<std::size_t>(_selectedItem)].title;
        case Type::RadioButton:
        case Type::HRadioButton: return getOptionText(*value);
        case Type::Slider:
            if (const PlistDictionary* entry = choiceAt(choices(), static_cast<std::size_t>(_slider.position)))
                return entry->stringFor("text", *value);
            return value;
        // A hidden field's text never appears in a message.
        case Type::SecureTextFieldText: return std::string(value->empty() ? "" : "********");
        default: return value;
    }
}

int VORNUI::checkBoxState() const {
    if (!_controlDictionary || _controlType != Type::CheckBox) {
        Diagnostics::log("###checkbox object is invalid");
        return 1;
    }
    const bool inverted = SettingsText::boolValue(descriptionValue("isInvert"));
    return inverted ? !_checkBoxShown : _checkBoxShown;
}

void VORNUI::setCheckBoxState(int state) {
    if (!_controlDictionary || _controlType != Type::CheckBox) {
        Diagnostics::log("###checkbox object is invalid");
        return;
    }
    const bool inverted = SettingsText::boolValue(descriptionValue("isInvert"));
    _checkBoxShown = (state != 0) != inverted ? 1 : 0;
    notifyView(VORNUIChange::Value);
    if (_isEnableIcon) notifyView(VORNUIChange::Icon);
}

void VORNUI::selectMatrix() {
    for (RadioCell& cell : _radioCells) cell.on = _value && cell.choice == *_value;
    notifyView(VORNUIChange::Value);
}

PlistArray VORNUI::choicePairs() const {
    PlistArray pairs;
    pairs.reserve(256);
    if (const PlistArray* list = choices()) {
        for (const PlistValue& choice : *list) {
            const PlistDictionary* entry = choice.dictionary();
            if (!entry) continue;
            pairs.push_back(SettingsText::pairOf(localized(entry->stringFor("text", "")), entry->stringFor("choice", "")));
        }
    }
    return pairs;
}

void VORNUI::rebuildPopupItems() {
    const PlistArray entries = _popupButtonArray ? *_popupButtonArray : choicePairs();
    _popupItems.clear();
    for (const PlistValue& entry : entries) {
        const PlistArray* pair = entry.array();
        if (!pair || pair->size() < 2) continue;
        MenuItem item;
        item.choice = (*pair)[1].stringOr("");
        item.isSeparator = item.choice == "separator";
        if (!item.isSeparator) item.title = localized((*pair)[0].stringOr(""));
        if (_isEnableIcon && !item.isSeparator) item.iconPath = imagePath(_vornkeyword + "_" + item.choice);
        _popupItems.push_back(std::move(item));
    }
    _selectedItem = -1;
    for (std::size_t index = 0; index < _popupItems.size() && _selectedItem < 0; ++index)
        if (!_popupItems[index].isSeparator && (!_value || _popupItems[index].choice == *_value))
            _selectedItem = static_cast<int>(index);
    for (std::size_t index = 0; index < _popupItems.size() && _selectedItem < 0; ++index)
        if (!_popupItems[index].isSeparator) _selectedItem = static_cast<int>(index);
    notifyView(VORNUIChange::Items);
}

void VORNUI::setPopupButtonArray(const PlistArray& entries) {
    if (_controlType != Type::PopupButton) return;
    _popupButtonArray = entries;
    rebuildPopupItems();
}

void VORNUI::addPopupButtonArray(const PlistValue& list) {
    if (_controlType != Type::PopupButton) return;
    if (!list.array()) {
        Diagnostics::log("##### Invalid list!");
        return;
    }
    PlistArray entries = choicePairs();
    for (const PlistValue& entry : *list.array()) {
        const PlistArray* pair = entry.array();
        if (pair && pair->size() >= 2 && (*pair)[0].string() && (*pair)[1].string()) entries.push_back(entry);
    }
    setPopupButtonArray(entries);
}

void VORNUI::removePopupButtonArray(const PlistValue& list) {
    if (_controlType != Type::PopupButton) return;
    if (!list.array()) {
        Diagnostics::log("##### Invalid list!");
        return;
    }
    std::vector<std::string> removed;
    for (const PlistValue& entry : *list.array())
        if (auto choice = choiceOfEntry(entry)) removed.push_back(*choice);
    PlistArray entries = _popupButtonArray ? *_popupButtonArray : choicePairs();
    std::erase_if(entries, [&removed](const PlistValue& entry) {
        auto choice = choiceOfEntry(entry);
        return choice && std::find(removed.begin(), removed.end(), *choice) != removed.end();
    });
    setPopupButtonArray(entries);
}

void VORNUI::setUpdateWithPrintOption(const PlistDictionary* printOption) {
    temporaryPrintOption().reset();
    if (printOption) temporaryPrintOption() = *printOption;
}

bool VORNUI::updateWithPrintOption() {
    const auto& printOption = temporaryPrintOption();
    if (!printOption) return false;
    auto value = SettingsText::textValue(printOption->find(_vornkeyword));
    if (!value) return false;
    setStringValue(*value);
    _oldValue = value;
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
