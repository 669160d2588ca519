#pragma once

#include "qt/ControlBodyWidget.h"

class QCheckBox;
class QLabel;

namespace ComQuorvantVelmar_Plugin {

/// A check box setting: the box with the control's title, the icon of its state where the
/// control has state icons, and its unit text.
class CheckBoxControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    CheckBoxControlWidget(VORNUI& control, QWidget* parent);

    QCheckBox* checkBox() const { return _checkBox; }
    /// The image of the box's state; nullptr when the control has none.
    QLabel* stateIcon() const { return _stateIcon; }
    void showChange(VORNUIChange change) override;

private:
    QCheckBox* _checkBox = nullptr;
    QLabel* _stateIcon = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
