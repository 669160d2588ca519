#pragma once

#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// Whether two texts of one setting mean the same value: equal texts, or two decimal
/// numbers of equal value ("1" and "1.0", "2e1" and "20"). Comparison is exact otherwise
/// ("abc" and "ABC" differ); a number followed by other text is no number.
bool isSameSettingText(std::string_view text, std::string_view other);

}  // namespace ComQuorvantVelmar_Plugin
