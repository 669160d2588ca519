#include "panes/PlainControlHelpers.h"

#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {

const PlistValue* representedObjectForKey(const PlainControl& control, std::string_view key) {
    return control.representedObject().find(key);
}

const PlistValue* representedObjectOfMenuItemForKey(const PlainPopUpButton::Item& item, std::string_view key) {
    return item.representedObject.find(key);
}

void setEnabledConrtols(bool enabled, const std::vector<std::shared_ptr<ViewNode>>& controls) {
    for (const auto& view : controls) {
        if (auto* control = dynamic_cast<VORNUI*>(view.get()))
            control->setEnabled(enabled);
        else if (auto* plain = dynamic_cast<PlainControl*>(view.get()))
            plain->setEnabled(enabled);
    }
}

}  // namespace ComQuorvantVelmar_Plugin
