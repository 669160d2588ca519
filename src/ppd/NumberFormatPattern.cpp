#include "ppd/NumberFormatPattern.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {
namespace {

bool isPatternCharacter(char character) {
    return character == '#' || character == '0' || character == ',' || character == '.';
}

// Quotes only protect pattern characters inside a literal; a doubled quote is one quote.
std::string literal(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\'') {
            result.push_back(text[i]);
        } else if (i + 1 < text.size() && text[i + 1] == '\'') {
            result.push_back('\'');
            ++i;
        }
    }
    return result;
}

}  // namespace

NumberFormatPattern::NumberFormatPattern(std::string_view pattern) {
    pattern = pattern.substr(0, pattern.find(';'));
    const auto start = std::find_if(pattern.begin(), pattern.end(), isPatternCharacter);
    const auto stop = std::find_if_not(start, pattern.end(), isPatternCharacter);
    _prefix = literal(std::string_view(pattern.begin(), start));
    _suffix = literal(std::string_view(stop, pattern.end()));
    const std::string_view number(start, stop);
    const std::string_view integerPart = number.substr(0, number.find('.'));
    const std::string_view fractionPart =
        number.find('.') == std::string_view::npos ? std::string_view() : number.substr(number.find('.') + 1);
    _minimumIntegerDigits = static_cast<int>(std::count(integerPart.begin(), integerPart.end(), '0'));
    if (const auto comma = integerPart.rfind(','); comma != std::string_view::npos)
        _groupingSize = static_cast<int>(integerPart.size() - comma - 1);
    _minimumFractionDigits = static_cast<int>(std::count(fractionPart.begin(), fractionPart.end(), '0'));
    _maximumFractionDigits =
        _minimumFractionDigits + static_cast<int>(std::count(fractionPart.begin(), fractionPart.end(), '#'));
}

std::string NumberFormatPattern::withGrouping(std::string digits) const {
    if (_groupingSize <= 0) return digits;
    for (auto position = static_cast<long>(digits.size()) - _groupingSize; position > 0; position -= _groupingSize)
        digits.insert(static_cast<std::size_t>(position), 1, ',');
    return digits;
}

std::string NumberFormatPattern::format(const DecimalNumber& number) const {
    const DecimalNumber rounded = number.rounded(_maximumFractionDigits, DecimalNumber::Rounding::HalfEven);
    std::string integer = rounded.integerDigits();
    if (integer == "0" && _minimumIntegerDigits == 0) integer.clear();
    if (static_cast<int>(integer.size()) < _minimumIntegerDigits)
        integer.insert(0, static_cast<std::size_t>(_minimumIntegerDigits) - integer.size(), '0');
    std::string fraction = rounded.fractionDigits(_maximumFractionDigits);
    while (static_cast<int>(fraction.size()) > _minimumFractionDigits && fraction.back() == '0') fraction.pop_back();
    if (integer.empty() && fraction.empty()) integer.push_back('0');
    std::string text = rounded.isNegative() ? "-" : "";
    text += _prefix + withGrouping(integer);
    if (!fraction.empty()) text.append(".").append(fraction);
    return text + _suffix;
}

}  // namespace ComQuorvantVelmar_Plugin
