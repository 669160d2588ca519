#pragma once

namespace ComQuorvantVelmar_Plugin {

class VORNUI;

/// What changed in a control, so that a view redraws only that part.
enum class VORNUIChange {
    Built,    ///< the control was (re)built: texts, widgets, icons, children and frames
    Value,    ///< the shown value (selection, state, position, text or date)
    Items,    ///< the items of a pop-up or the cells of a radio group, or their enabling
    Enabled,  ///< the control as a whole was enabled or disabled
    Hidden,   ///< the control was hidden or shown
    Icon,     ///< the state icon of a check box
};

/// The toolkit side of a control: it renders the control's state and forwards the user's
/// actions to it. The control never owns its view.
class VORNUIView {
public:
    virtual ~VORNUIView() = default;
    /// Called after the control's state changed.
    virtual void controlDidChange(const VORNUI& control, VORNUIChange change) = 0;
};

}  // namespace ComQuorvantVelmar_Plugin
