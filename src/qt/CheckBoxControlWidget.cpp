#include "qt/CheckBoxControlWidget.h"

#include <QCheckBox>

#include "qt/ControlParts_p.h"

namespace ComQuorvantVelmar_Plugin {

CheckBoxControlWidget::CheckBoxControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    QHBoxLayout* layout = ControlParts::rowLayout(this);
    ControlParts::addLeadingParts(layout, control, this);
    if (control.isEnableIcon()) {
        _stateIcon = new QLabel(this);
        _stateIcon->setFixedSize(ControlParts::iconSize, ControlParts::iconSize);
        _stateIcon->setAlignment(Qt::AlignCenter);
        layout->addWidget(_stateIcon);
    }
    _checkBox = new QCheckBox(ControlParts::text(control.texts().title), this);
    layout->addWidget(_checkBox);
    ControlParts::addPart(layout, ControlParts::label(control.texts().descText, this));
    layout->addStretch();
    // clicked comes from the user only; the state the program sets arrives as Value.
    connect(_checkBox, &QCheckBox::clicked, this, [this](bool on) {
        this->control().setCheckBoxShownState(on ? 1 : 0);
        this->control().checkboxAction();
    });
}

void CheckBoxControlWidget::showChange(VORNUIChange change) {
    if (change == VORNUIChange::Built || change == VORNUIChange::Value)
        _checkBox->setChecked(control().checkBoxShownState() != 0);
    if (change == VORNUIChange::Built || change == VORNUIChange::Icon)
        ControlParts::showIcon(_stateIcon, control().checkBoxStateIconPath());
}

}  // namespace ComQuorvantVelmar_Plugin
