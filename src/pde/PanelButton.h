#pragma once

#include <functional>
#include <string>

#include "settings_ui/ViewNode.h"

namespace ComQuorvantVelmar_Plugin {

/// A push button of the panel or a sheet: a title, a tag and the action a click runs. It
/// draws nothing; the view layer shows it and forwards the user's clicks to performClick.
class PanelButton : public ViewNode {
public:
    using Action = std::function<void(PanelButton&)>;

    std::string className() const override { return "PushButton"; }

    const std::string& title() const { return _title; }
    void setTitle(std::string title) { _title = std::move(title); }
    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }
    /// Which of several buttons sharing one action was clicked; 0 unless given.
    int tag() const { return _tag; }
    void setTag(int tag) { _tag = tag; }
    void setAction(Action action) { _action = std::move(action); }
    /// Runs the action as a click does; nothing while the button is disabled, hidden or
    /// has no action.
    void performClick() {
        if (_enabled && !isHiddenView() && _action) _action(*this);
    }

private:
    std::string _title;
    bool _enabled = true;
    int _tag = 0;
    Action _action;
};

}  // namespace ComQuorvantVelmar_Plugin
