#include "settings_ui/VORNTextField.h"

#include <algorithm>
#include <cmath>
#include <regex>

#include "core/Alert.h"
#include "core/LocalizedString.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/SettingsText_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

const std::regex& emailPattern() {
    static const std::regex pattern("^[0-9a-zA-Z][0-9a-zA-Z_+-.]+@[0-9a-zA-Z][0-9a-zA-Z_.-]+.[0-9a-zA-Z]+$");
    return pattern;
}

const std::regex& generalPattern() {
    static const std::regex pattern("[A-Z0-9a-z._%+-]*");
    return pattern;
}

// The final check of page lists compares against this text as a pattern, which only that
// very text satisfies; stored settings and the print server rely on the field's own
// typing rule instead, so the check stays as the product has always applied it.
const std::regex& pageListFinalPattern() {
    static const std::regex pattern(",-0123456789");
    return pattern;
}

const std::regex& pageListTypingPattern() {
    static const std::regex pattern("^(-|[1-9])([0-9-,]*)$");
    return pattern;
}

const std::regex& doubledSeparatorPattern() {
    static const std::regex pattern("^(.)*(-){2}$|^(.)*(,){2}$");
    return pattern;
}

const std::regex& integerPattern() {
    static const std::regex pattern("^-?[0-9]*$");
    return pattern;
}

const std::regex& decimalPointPattern() {
    static const std::regex pattern("^-?[0-9]*[.]?[0-9]*$");
    return pattern;
}

const std::regex& decimalCommaPattern() {
    static const std::regex pattern("^-?[0-9]*[,]?[0-9]*$");
    return pattern;
}

bool matches(std::string_view text, const std::regex& pattern) {
    return std::regex_match(text.begin(), text.end(), pattern);
}

std::size_t characterCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

std::string withPoint(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

std::string withComma(std::string text) {
    std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

}  // namespace

VORNTextField::VORNTextField() {
    NotifyUnit::addObserver(this, [this](const Notification& notification) { validate(notification); }, "VALIDATE");
}

VORNTextField::~VORNTextField() { NotifyUnit::removeObserver(this); }

bool VORNTextField::usesDecimalCommaForm() const { return SettingsText::usesDecimalComma(); }

int VORNTextField::fractionDigitsOfUnit() const {
    switch (_mUnit) {
        case UnitInteger: return 0;
        case UnitOneDecimal: return 1;
        case UnitTwoDecimals:
        case UnitHundredths: return 2;
        case UnitThousandths: return 3;
        default: return -1;
    }
}

std::string VORNTextField::unitFormat() const {
    switch (_mUnit) {
        case UnitInteger: return "%.0f";
        case UnitOneDecimal: return "%.01f";
        case UnitTwoDecimals:
        case UnitHundredths: return "%.02f";
        case UnitThousandths: return "%.03f";
        default: return "";
    }
}

std::string VORNTextField::unitCFormat() const {
    if (_mUnit == UnitTwoDecimals || _mUnit == UnitHundredths) return "%.2f";
    return unitFormat();
}

bool VORNTextField::textView_shouldChangeTextInRange(std::size_t location, std::size_t length,
                                                     std::string_view replacement) const {
    if (location > _text.size()) return false;
    std::string proposed = _text;
    proposed.replace(location, std::min(length, _text.size() - location), replacement);
    return shouldAcceptText(proposed);
}

bool VORNTextField::shouldAcceptText(std::string_view proposed) const {
    if (!_isNum) return isTextFormatForPageNum(proposed);
    // A number below the minimum may still grow into the range, so only the maximum is
    // enforced while typing.
    return isNumFormat(proposed) && SettingsText::numericValue(withPoint(std::string(proposed))) <= _mMaxValue;
}

bool VORNTextField::isNumFormat(std::string_view text) const {
    if (characterCount(text) > _mMaxDigit) return false;
    if (!text.empty() && text.front() == '-' && !(_mMinValue < 0)) return false;
    const char separator = usesDecimalCommaForm() ? ',' : '.';
    const std::regex& pattern = _mUnit == UnitInteger ? integerPattern()
                                : separator == ',' ? decimalCommaPattern()
                                                   : decimalPointPattern();
    if (!matches(text, pattern)) return false;
    const std::size_t point = text.find(separator);
    const int allowed = fractionDigitsOfUnit();
    return point == std::string_view::npos || allowed < 0 ||
           text.size() - point - 1 <= static_cast<std::size_t>(allowed);
}

bool VORNTextField::isTextFormat(std::string_view text) const {
    if (text.empty()) return true;
    bool valid = false;
    if (_mUnit == UnitEmail)
        valid = matches(text, emailPattern());
    else if (_mUnit == UnitPageList || _mUnit == UnitSpecialTonerPages)
        valid = matches(text, pageListFinalPattern());
    else
        valid = matches(text, generalPattern());
    return valid && characterCount(text) <= _mMaxDigit;
}

bool VORNTextField::isTextFormatForPageNum(std::string_view text) const {
    if (text.empty()) return true;
    if (_mUnit == UnitPageList && checksPageLists()) {
        if (!matches(text, pageListTypingPattern()) || matches(text, doubledSeparatorPattern())) return false;
        return characterCount(text) <= _mMaxDigit;
    }
    if (_mUnit == UnitSpecialTonerPages) return characterCount(text) <= _mMaxDigit;
    return true;
}

void VORNTextField::replaceText(std::string text) {
    if (text == _text) return;
    _text = std::move(text);
    if (_textObserver) _textObserver();
}

void VORNTextField::setStringValue(std::string text) {
    replaceText(std::move(text));
    _sValue = _text;
}

void VORNTextField::setEditedText(std::string text) { _text = std::move(text); }

void VORNTextField::textDidEndEditing() {
    if (_text == _sValue) return;
    if (_isNum && !isInRange()) {
        errorMsg();
        replaceText(_sValue);
    } else if (_isNum && usesDecimalCommaForm()) {
        validateTextFieldforNumber();
    } else {
        validateTextField();
    }
    _sValue = _text;
    if (!_keyword.empty()) NotifyUnit::postNotificationName(_keyword);
}

void VORNTextField::setDoubleValue(double value) {
    const int digits = std::max(fractionDigitsOfUnit(), 0);
    std::string text = SettingsText::fixedNumber(value, digits);
    setStringValue(usesDecimalCommaForm() ? withComma(text) : text);
}

void VORNTextField::setDoubleValueforNumber(double value) {
    std::string text = SettingsText::fixedNumber(value, 6);
    setStringValue(usesDecimalCommaForm() ? withComma(text) : text);
}

void VORNTextField::setIntValue(int value) { setStringValue(std::to_string(value)); }

void VORNTextField::takeIntValueFrom(double stepperValue) { setIntValue(SettingsText::clampedInteger<int>(stepperValue)); }

double VORNTextField::numberValue() const { return SettingsText::numericValue(withPoint(_text)); }

bool VORNTextField::isInRange() const {
    const double value = numberValue();
    return value >= _mMinValue && value <= _mMaxValue;
}

double VORNTextField::doubleValueInRange() const { return std::clamp(numberValue(), _mMinValue, std::max(_mMinValue, _mMaxValue)); }

int VORNTextField::intValueInRange() const { return SettingsText::clampedInteger<int>(doubleValueInRange()); }

void VORNTextField::validate(const Notification&) {
    if (_isNum && _enabled && !isInRange()) {
        NotifyUnit::postNotificationName("TEXTFIELD_VALIDATE_CANCEL");
        errorMsg();
        return;
    }
    validateTextField();
}

bool VORNTextField::validateTextField() {
    if (_isNum) return isNumFormat(_text) && isInRange();
    return isTextFormat(_text);
}

bool VORNTextField::validateTextFieldforNumber() {
    if (_text.empty()) return true;
    const int digits = std::max(fractionDigitsOfUnit(), 0);
    replaceText(withComma(SettingsText::fixedNumber(numberValue(), digits)));
    return isInRange();
}

void VORNTextField::errorMsg() const {
    const int digits = std::max(fractionDigitsOfUnit(), 0);
    const std::string minimum = SettingsText::fixedNumber(_mMinValue, digits).substr(0, 31);
    const std::string maximum = SettingsText::fixedNumber(_mMaxValue, digits).substr(0, 31);
    AlertRequest request;
    request.messageText = SettingsText::formatWithObjects(
        BSLocalizedStringFromTable("IDM_MSG58", "VORNTextField"), {minimum, maximum});
    request.buttons = {BSLocalizedString("OK")};
    Alerts::runModal(request);
}

}  // namespace ComQuorvantVelmar_Plugin
