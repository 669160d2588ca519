#pragma once

#include <vector>

#include "qt/ControlBodyWidget.h"

class QButtonGroup;
class QRadioButton;

namespace ComQuorvantVelmar_Plugin {

/// A radio group setting: one radio button per cell with its title and icon, stacked for a
/// vertical group and in equal columns for a horizontal one.
class RadioGroupControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    RadioGroupControlWidget(VORNUI& control, QWidget* parent);

    const std::vector<QRadioButton*>& buttons() const { return _buttons; }
    void showChange(VORNUIChange change) override;

private:
    void buildCells();
    void showCells();

    QButtonGroup* _group = nullptr;
    QWidget* _cells = nullptr;
    std::vector<QRadioButton*> _buttons;
};

}  // namespace ComQuorvantVelmar_Plugin
