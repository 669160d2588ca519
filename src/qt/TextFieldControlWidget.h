#pragma once

#include "qt/ControlBodyWidget.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace ComQuorvantVelmar_Plugin {

class StepperWidget;
class VORNTextField;

/// A number, text or password setting: the line edit between head text and unit text, with
/// the stepper of number fields and the extra push button where the control has one. Every
/// keystroke is put to the control's field, which accepts or refuses it; a refused one is
/// undone. The end of an edit goes to the field as well.
class TextFieldControlWidget : public ControlBodyWidget {
    Q_OBJECT
public:
    TextFieldControlWidget(VORNUI& control, QWidget* parent);

    QLineEdit* lineEdit() const { return _lineEdit; }
    /// The stepper of a number field; nullptr for other fields.
    StepperWidget* stepper() const { return _stepper; }
    /// The extra push button; nullptr when the control has none.
    QPushButton* button() const { return _button; }
    /// The heading line above the field; nullptr when it has none.
    QLabel* headTitle() const { return _headTitle; }
    void showChange(VORNUIChange change) override;

private:
    QWidget* buildFieldRow();
    void edited(const QString& text);
    void endEditing();
    VORNTextField& field() const;

    QLineEdit* _lineEdit = nullptr;
    StepperWidget* _stepper = nullptr;
    QPushButton* _button = nullptr;
    QLabel* _headTitle = nullptr;
    int _cursorBeforeEdit = 0;
    bool _endingEdit = false;
};

}  // namespace ComQuorvantVelmar_Plugin
