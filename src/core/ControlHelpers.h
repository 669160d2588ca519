#pragma once

#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

// The parts of the dialogs' control helpers that need no toolkit; the Qt layer holds the
// parts that act on widgets.

/// title without the label suffix a control title ends with: a trailing ":" (or the
/// full-width "：") and the white space around it; title unchanged when it has none.
std::string stringByDeletingControlTitleSuffix(std::string_view title);
/// Stores value under key only when there is a value; answers whether it stored one.
bool SetIfObjectForKey(PlistDictionary& dictionary, const PlistValue* value, std::string_view key);

}  // namespace ComQuorvantVelmar_Plugin
