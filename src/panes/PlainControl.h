#pragma once

#include <string>

#include "core/PlistValue.h"
#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// A plain control of a pane (one that is not built from a control description): a
/// pop-up button, slider, button, text field or radio matrix. It holds the state a
/// toolkit shows and draws nothing itself. The values it stands for ride in its
/// represented object, a dictionary ("optionKeywords" on a slider or check box).
class PlainControl : public ViewNode {
public:
    /// The represented object; empty when none was given.
    const PlistDictionary& representedObject() const { return _representedObject; }
    void setRepresentedObject(PlistDictionary object) { _representedObject = std::move(object); }

    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }
    /// The label shown with the control; "" for none.
    const std::string& title() const { return _title; }
    void setTitle(std::string title) { _title = std::move(title); }

private:
    PlistDictionary _representedObject;
    bool _enabled = true;
    std::string _title;
};

}  // namespace ComQuorvantVelmar_Plugin
