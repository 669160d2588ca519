#pragma once

#include <cmath>
#include <initializer_list>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;

namespace SettingsText {

/// format with each "%@" replaced by the next argument in order ("%%" stays "%").
std::string formatWithObjects(std::string_view format, std::initializer_list<std::string_view> arguments);
/// The truth of a description value: a boolean, a number other than 0, or a string equal
/// to "True" ignoring case; false for anything else or nothing.
bool boolValue(const PlistValue* value);
/// A description value as text: strings as they are, numbers in their shortest decimal
/// form, booleans as "True"/"False"; nothing for other types or nothing.
std::optional<std::string> textValue(const PlistValue* value);
/// The leading decimal number of text, read the same in every locale; 0 when none (or
/// when the text spells "nan").
double numericValue(std::string_view text);
/// value written with decimals fraction digits, with "." in every locale.
std::string fixedNumber(double value, int decimals);
/// value as a whole number of type Integer, cut towards zero and held within its range;
/// 0 for a value that is not a number.
template <class Integer>
Integer clampedInteger(double value) {
    if (std::isnan(value)) return 0;
    if (value <= static_cast<double>(std::numeric_limits<Integer>::lowest())) return std::numeric_limits<Integer>::lowest();
    if (value >= static_cast<double>(std::numeric_limits<Integer>::max())) return std::numeric_limits<Integer>::max();
    return static_cast<Integer>(value);
}
/// The entry [first, second] of a pop-up item list.
PlistArray pairOf(std::string first, std::string second);
/// Whether the user's first preferred language writes numbers with a decimal comma and
/// uses the wider layouts ("es", "de", "it" or "fr" in its name).
bool usesDecimalComma();
/// key localised through the "UI" table of bundle; the key itself when the bundle is
/// missing or has no translation.
std::string localizedUIText(const Bundle* bundle, std::string_view key);

}  // namespace SettingsText
}  // namespace ComQuorvantVelmar_Plugin
