#include <algorithm>
#include <limits>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/FileUtil.h"
#include "core/PlistIO.h"
#include "settings_ui/SettingsText_p.h"
#include "settings_ui/UIDescriptionFile_p.h"
#include "settings_ui/VORNSecureTextField.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

VORNUI::Type typeOfControl(const std::string& name) {
    static const std::pair<const char*, VORNUI::Type> table[] = {
        {"CheckBox", VORNUI::Type::CheckBox},
        {"PopupButton", VORNUI::Type::PopupButton},
        {"RadioButton", VORNUI::Type::RadioButton},
        {"HRadioButton", VORNUI::Type::HRadioButton},
        {"Slider", VORNUI::Type::Slider},
        {"DatePicker", VORNUI::Type::DatePicker},
        {"TextField_number", VORNUI::Type::TextFieldNumber},
        {"TextField_text", VORNUI::Type::TextFieldText},
        {"SecureTextField_text", VORNUI::Type::SecureTextFieldText},
    };
    for (const auto& [text, type] : table)
        if (name == text) return type;
    return VORNUI::Type::Unknown;
}

// Characters a title line holds before it wraps; wide (East Asian) characters count twice.
constexpr std::size_t columnsPerTitleLine = 60;

std::size_t displayColumns(std::string_view line) {
    std::size_t columns = 0;
    for (std::size_t position = 0; position < line.size(); ++position) {
        const auto byte = static_cast<unsigned char>(line[position]);
        if ((byte & 0xC0) == 0x80) continue;
        columns += byte >= 0xE3 ? 2 : 1;
    }
    return columns;
}

unsigned lineCountOfText(const std::string& text) {
    unsigned lines = 0;
    std::size_t start = 0;
    while (start <= text.size()) {
        std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string::npos) end = text.size();
        const std::size_t columns = displayColumns(std::string_view(text).substr(start, end - start));
        lines += static_cast<unsigned>(columns == 0 ? 1 : (columns + columnsPerTitleLine - 1) / columnsPerTitleLine);
        start = end + 1;
    }
    return lines == 0 ? 1 : lines;
}

std::size_t fractionDigits(const std::optional<std::string>& number) {
    if (!number) return 0;
    const std::size_t point = number->find('.');
    return point == std::string::npos ? 0 : number->size() - point - 1;
}

std::uint32_t unitOfTextType(const std::string& textType) {
    if (textType == "EMAIL") return VORNTextField::UnitEmail;
    if (textType == "ASCII") return VORNTextField::UnitAscii;
    if (textType == "NUMOFPAGE") return VORNTextField::UnitPageList;
    if (textType == "SPTTEXT") return VORNTextField::UnitSpecialTonerPages;
    return VORNTextField::UnitText;
}

}  // namespace

void VORNUI::setControlDictionary(const PlistDictionary* description, std::shared_ptr<Bundle> bundle) {
    _controlDictionary.reset();
    if (description) _controlDictionary = *description;
    _bundle = std::move(bundle);
}

void VORNUI::updateControl(const std::string& paneName) {
    clearWidgets();
    if (!_controlDictionary) {
        notifyView(VORNUIChange::Built);
        return;
    }
    _vornkeyword = descriptionString("mainKeyword");
    _controlType = typeOfControl(controlClass());
    readTexts(paneName);
    readFlags();
    readIcons();
    buildWidgets();
    if (SettingsText::boolValue(descriptionValue("isHidden"))) setHiddenView(true);
    _maxHeight = getControlHeight();
    buildChildren(paneName);
    notifyView(VORNUIChange::Built);
    setDefault();
}

void VORNUI::readTexts(const std::string& paneName) {
    std::string titleKey = "text";
    if (!paneName.empty() && descriptionValue("text_" + paneName)) titleKey = "text_" + paneName;
    _texts.title = localized(descriptionString(titleKey));
    _texts.headText = localized(descriptionString("head_text"));
    _texts.headTextWidth = SettingsText::numericValue(descriptionString("head_text_width"));
    _texts.headTitleText = localized(descriptionString("head_title_text"));
    _texts.descText = localized(descriptionString("desc_text"));
    if (_controlType == Type::TextFieldNumber && SettingsText::usesDecimalComma())
        std::replace(_texts.descText.begin(), _texts.descText.end(), '.', ',');
    _texts.buttonText = localized(descriptionString("button_text"));
    _texts.groupTitle = localized(descriptionString("groupTitle"));
    _texts.minIconText = localized(descriptionString("min_icon_text"));
    _texts.maxIconText = localized(descriptionString("max_icon_text"));
    // A control without its own message name is named by its title in messages.
    const std::string messageName = descriptionString("text_for_message");
    _keywordText = messageName.empty() ? _texts.title : localized(messageName);
    _lineCount = messageName.empty() ? 1 : lineCountOfText(_keywordText);
}

void VORNUI::readFlags() {
    _isEnableIcon = SettingsText::boolValue(descriptionValue("isEnabledIcon"));
    _isEnableSpread = SettingsText::boolValue(descriptionValue("isEnableSpread"));
    _isEnableButton = SettingsText::boolValue(descriptionValue("isEnabledButton"));
    _isTargetOnlyHidden = SettingsText::boolValue(descriptionValue("isTargetOnlyHidden"));
    _isGroupMain = SettingsText::boolValue(descriptionValue("isGroupMain"));
}

void VORNUI::readIcons() {
    _icons.icon = imagePath(descriptionString("icon"));
    const bool groupedChoices =
        _controlType == Type::CheckBox || _controlType == Type::RadioButton || _controlType == Type::HRadioButton;
    if (groupedChoices && _isEnableIcon) {
        const std::string groupIcon = descriptionString("groupIcon");
        _icons.group = imagePath(groupIcon.empty() ? "group_icon" : groupIcon);
    }
    if (_controlType == Type::CheckBox && _isEnableIcon) {
        _icons.stateTrue = imagePath(_vornkeyword + "_True");
        _icons.stateFalse = imagePath(_vornkeyword + "_False");
    }
    if (_controlType == Type::Slider) {
        _icons.sliderMin = imagePath(descriptionString("min_icon"));
        _icons.sliderMax = imagePath(descriptionString("max_icon"));
    }
}

void VORNUI::buildWidgets() {
    switch (_controlType) {
        case Type::TextFieldNumber:
        case Type::TextFieldText:
        case Type::SecureTextFieldText: buildTextField(); break;
        case Type::Slider: buildSlider(); break;
        case Type::RadioButton:
        case Type::HRadioButton: buildRadioGroup(); break;
        case Type::CheckBox: buildCheckBox(); break;
        case Type::PopupButton: buildPopup(); break;
        case Type::DatePicker: buildDatePicker(); break;
        case Type::Unknown: break;
    }
}

void VORNUI::buildTextField() {
    if (_controlType == Type::SecureTextFieldText)
        _textField = std::make_unique<VORNSecureTextField>();
    else
        _textField = std::make_unique<VORNTextField>();
    _textField->setKeyword(_vornkeyword);
    const double maxDigit = SettingsText::numericValue(descriptionString("max_digit"));
    _textField->setDigit(maxDigit > 0 ? SettingsText::clampedInteger<std::uint32_t>(maxDigit) : 256);
    _textField->setTextObserver([this] { notifyView(VORNUIChange::Value); });
    if (_controlType != Type::TextFieldNumber) {
        _textField->setUnit(unitOfTextType(descriptionString("text_type")));
        return;
    }
    const auto minText = SettingsText::textValue(descriptionValue("min"));
    const auto maxText = SettingsText::textValue(descriptionValue("max"));
    const std::size_t digits = std::max(fractionDigits(minText), fractionDigits(maxText));
    StepperState stepper;
    std::uint32_t unit = VORNTextField::UnitInteger;
    if (digits > 2) {
        stepper.increment = 0.001;
        unit = VORNTextField::UnitThousandths;
    } else if (digits > 1) {
        stepper.increment = 0.01;
        unit = VORNTextField::UnitHundredths;
    } else if (digits > 0) {
        stepper.increment = 0.1;
        unit = VORNTextField::UnitOneDecimal;
    }
    stepper.minValue = minText ? SettingsText::numericValue(*minText) : std::numeric_limits<double>::lowest();
    stepper.maxValue = maxText ? SettingsText::numericValue(*maxText) : std::numeric_limits<double>::max();
    stepper.value = stepper.minValue;
    _textField->setNum(true);
    _textField->setUnit(unit);
    _textField->setMin(stepper.minValue);
    _textField->setMax(stepper.maxValue);
    _stepper = stepper;
}

void VORNUI::buildSlider() {
    const PlistArray* list = choices();
    if (list && !list->empty()) {
        _slider.minValue = 0;
        _slider.maxValue = static_cast<double>(list->size() - 1);
        _slider.numberOfTickMarks = static_cast<int>(list->size());
        _slider.allowsTickMarkValuesOnly = true;
        for (const PlistValue& choice : *list) {
            const PlistDictionary* entry = choice.dictionary();
            _slider.tickLabels.push_back(localized(entry ? entry->stringFor("text", "") : ""));
        }
    } else {
        _slider.minValue = minValue().value_or(0);
        _slider.maxValue = maxValue().value_or(_slider.minValue);
    }
    _slider.position = _slider.minValue;
}

void VORNUI::buildRadioGroup() {
    const PlistArray* list = choices();
    if (!list) return;
    for (const PlistValue& choice : *list) {
        const PlistDictionary* entry = choice.dictionary();
        if (!entry) continue;
        RadioCell cell;
        cell.choice = entry->stringFor("choice", "");
        cell.title = localized(entry->stringFor("text", ""));
        if (_isEnableIcon) cell.iconPath = imagePath(_vornkeyword + "_" + cell.choice);
        _radioCells.push_back(std::move(cell));
    }
}

void VORNUI::buildCheckBox() { setCheckBoxState(getDefault() == std::optional<std::string>("True") ? 1 : 0); }

void VORNUI::buildPopup() { rebuildPopupItems(); }

void VORNUI::buildDatePicker() {
    if (auto seconds = UIDescriptionFile::secondsOfDate(descriptionValue("min"))) _datePicker.minDate = *seconds;
    if (auto seconds = UIDescriptionFile::secondsOfDate(descriptionValue("max"))) _datePicker.maxDate = *seconds;
    auto value = UIDescriptionFile::secondsOfDate(descriptionValue("default"));
    setPickedDate(value.value_or(0));
}

std::optional<std::string> VORNUI::getUIFilePath() const {
    if (!_bundle) return std::nullopt;
    std::string host = _bundle->bundlePath();
    if (auto plugIns = host.find("Contents/PlugIns"); plugIns != std::string::npos)
        host = host.substr(0, plugIns);
    else if (host.empty() || host.back() != '/')
        host += '/';
    if (auto info = PlistIO::readFile(host + "Contents/Info.plist"); info && info->dictionary()) {
        if (auto name = info->dictionary()->stringFor("QVPOD")) {
            const std::string path = host + "Contents/Resources" + "/" + *name + ".plist";
            if (FileUtil::exists(path)) return path;
        }
    }
    std::string own = _bundle->pathForResource("UI", "plist");
    if (own.empty()) return std::nullopt;
    return own;
}

void VORNUI::buildChildren(const std::string& paneName) {
    const PlistValue* list = descriptionValue("other_controls");
    const PlistValue* wideList = descriptionValue("other_controls_ww");
    if (wideList && SettingsText::usesDecimalComma()) list = wideList;
    if (!list || !list->array() || list->array()->empty()) return;
    const auto path = getUIFilePath();
    const auto file = path ? UIDescriptionFile::read(*path) : nullptr;
    if (!file) return;
    for (const PlistValue& keyword : *list->array()) {
        const PlistValue* entry = keyword.string() ? file->find(*keyword.string()) : nullptr;
        if (!entry || !entry->dictionary()) {
            Diagnostics::log("### child control without description: " + keyword.stringOr("?"));
            continue;
        }
        auto child = std::make_shared<VORNUI>();
        child->setControlDictionary(entry->dictionary(), _bundle);
        child->updateControl(paneName);
        addSubview(child);
        _childControls.push_back(child);
    }
    placeChildren();
}

}  // namespace ComQuorvantVelmar_Plugin
