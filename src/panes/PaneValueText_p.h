#pragma once

#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin::PaneValueText {

/// A setting's value as the text the controls hold: strings as they are, booleans
/// "True"/"False", numbers in their shortest decimal form; "" for anything else.
std::string textOfValue(const PlistValue& value);
/// The text of the value under key in dictionary; "" when there is none.
std::string textOfEntry(const PlistDictionary& dictionary, const std::string& key);

}  // namespace ComQuorvantVelmar_Plugin::PaneValueText
