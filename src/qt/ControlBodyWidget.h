#pragma once

#include <QWidget>

#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {

/// The widget of one control type inside a VORNUIWidget (check box, pop-up, radio group,
/// slider, date picker or text field): it shows the control's state and hands the user's
/// actions to the control's own methods.
class ControlBodyWidget : public QWidget {
    Q_OBJECT
public:
    /// The widget for control's type; nullptr for a control of unknown type.
    static ControlBodyWidget* create(VORNUI& control, QWidget* parent);

    /// Shows what changed in the control; Built shows everything.
    virtual void showChange(VORNUIChange change) = 0;

protected:
    ControlBodyWidget(VORNUI& control, QWidget* parent);
    VORNUI& control() const { return _control; }

private:
    VORNUI& _control;
};

}  // namespace ComQuorvantVelmar_Plugin
