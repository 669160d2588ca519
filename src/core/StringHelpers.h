#pragma once

#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// For a string: true only when it equals "True" ignoring case; for a number or boolean: its
/// truth value; false for anything else.
bool boolValueIfString(const PlistValue& value);
/// Whether part occurs in string; false for an empty part.
bool isContain(std::string_view string, std::string_view part);
/// string with each of \ / : ; , * ? " < > | replaced by replacement.
std::string toAllowedForWindows(std::string_view string, std::string_view replacement);

}  // namespace ComQuorvantVelmar_Plugin
