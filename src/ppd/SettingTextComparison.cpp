#include "ppd/SettingTextComparison.h"

#include <optional>

#include "ppd/DecimalNumber.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::size_t digitsFrom(std::string_view text, std::size_t index) {
    std::size_t end = index;
    while (end < text.size() && isDigit(text[end])) ++end;
    return end - index;
}

// A whole text of sign, digits, point and exponent ("-12.5e3"): the rounding and the
// round trip through PPD units write the same value in several ways, while a text that
// only starts with a number ("3 copies") is a different setting value.
bool isDecimalText(std::string_view text) {
    std::size_t index = 0;
    if (index < text.size() && (text[index] == '+' || text[index] == '-')) ++index;
    const std::size_t integerDigits = digitsFrom(text, index);
    index += integerDigits;
    std::size_t fractionDigits = 0;
    if (index < text.size() && text[index] == '.') {
        fractionDigits = digitsFrom(text, index + 1);
        index += 1 + fractionDigits;
    }
    if (integerDigits + fractionDigits == 0) return false;
    if (index < text.size() && (text[index] == 'e' || text[index] == 'E')) {
        ++index;
        if (index < text.size() && (text[index] == '+' || text[index] == '-')) ++index;
        const std::size_t exponentDigits = digitsFrom(text, index);
        if (exponentDigits == 0) return false;
        index += exponentDigits;
    }
    return index == text.size();
}

std::optional<DecimalNumber> decimalOf(std::string_view text) {
    return isDecimalText(text) ? DecimalNumber::fromString(text) : std::nullopt;
}

}  // namespace

bool isSameSettingText(std::string_view text, std::string_view other) {
    if (text == other) return true;
    const auto number = decimalOf(text);
    const auto otherNumber = number ? decimalOf(other) : std::nullopt;
    return number && otherNumber && *number == *otherNumber;
}

}  // namespace ComQuorvantVelmar_Plugin
