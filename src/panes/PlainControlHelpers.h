#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "core/PlistValue.h"
#include "panes/PlainPopUpButton.h"

namespace ComQuorvantVelmar_Plugin {

class ViewNode;

/// The value under key in control's represented object, or nullptr.
const PlistValue* representedObjectForKey(const PlainControl& control, std::string_view key);
/// The value under key in a menu item's represented object, or nullptr.
const PlistValue* representedObjectOfMenuItemForKey(const PlainPopUpButton::Item& item, std::string_view key);
/// Enables or disables every control of the list in order (settings controls and plain
/// controls alike); other views and null entries are passed over.
void setEnabledConrtols(bool enabled, const std::vector<std::shared_ptr<ViewNode>>& controls);

}  // namespace ComQuorvantVelmar_Plugin
