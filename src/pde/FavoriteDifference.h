#pragma once

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin::FavoriteDifference {

/// Whether a setting of printOption differs from favorite (both in the panes' keys). Keys
/// only one of them holds and values of printOption that are neither text nor boolean are
/// no difference; booleans count as "True"/"False", equal numbers ("1", "1.0") as equal,
/// and the passwords "QZFormPassword" and "QZSecurityPassword", kept scrambled, by the
/// text they unscramble to. Any other pair of texts must be equal exactly.
bool differs(const PlistDictionary& printOption, const PlistDictionary& favorite);

}  // namespace ComQuorvantVelmar_Plugin::FavoriteDifference
