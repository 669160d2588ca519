#pragma once

#include "qt/ControlBodyWidget.h"

class QComboBox;

namespace ComQuorvantVelmar_Plugin {

/// A pop-up setting: a combo box of the control's items with their icons, separators and
/// enabling, between the head text and the unit text.
class PopupControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    PopupControlWidget(VORNUI& control, QWidget* parent);

    QComboBox* comboBox() const { return _comboBox; }
    void showChange(VORNUIChange change) override;

private:
    void showItems();
    void showSelection();

    QComboBox* _comboBox = nullptr;
};

}  // namespace ComQuorvantVelmar_Plugin
