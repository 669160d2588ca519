#include "qt/TextFieldControlWidget.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

#include "qt/ControlParts_p.h"
#include "qt/StepperWidget.h"
#include "settings_ui/VORNTextField.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int numberFieldWidth = 80;
constexpr int passwordFieldWidth = 180;
constexpr int textFieldWidth = 260;

}  // namespace

TextFieldControlWidget::TextFieldControlWidget(VORNUI& control, QWidget* parent) : ControlBodyWidget(control, parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    _headTitle = ControlParts::label(control.texts().headTitleText, this);
    if (_headTitle) {
        _headTitle->setFixedHeight(ControlParts::rowHeight);
        layout->addWidget(_headTitle);
    }
    layout->addWidget(buildFieldRow());
}

QWidget* TextFieldControlWidget::buildFieldRow() {
    auto* row = new QWidget(this);
    QHBoxLayout* parts = ControlParts::rowLayout(row);
    ControlParts::addLeadingParts(parts, control(), row);
    _lineEdit = new QLineEdit(row);
    const VORNTextField& textField = field();
    _lineEdit->setFixedWidth(textField.isNum() ? numberFieldWidth
                             : textField.isSecure() ? passwordFieldWidth
                                                    : textFieldWidth);
    if (textField.isNum()) _lineEdit->setAlignment(Qt::AlignRight);
    if (textField.isSecure()) _lineEdit->setEchoMode(QLineEdit::Password);
    parts->addWidget(_lineEdit);
    if (control().stepper()) {
        _stepper = new StepperWidget(row);
        parts->addWidget(_stepper);
        connect(_stepper, &StepperWidget::stepped, this, [this](int steps) { this->control().stepperStep(steps); });
    }
    ControlParts::addPart(parts, ControlParts::label(control().texts().descText, row));
    if (control().isEnableButton()) {
        _button = new QPushButton(ControlParts::text(control().texts().buttonText), row);
        parts->addWidget(_button);
        connect(_button, &QPushButton::clicked, this, [this] { this->control().buttonAction(); });
    }
    parts->addStretch();
    // textEdited and editingFinished come from the user only; texts the program sets
    // arrive as Value.
    connect(_lineEdit, &QLineEdit::textEdited, this, &TextFieldControlWidget::edited);
    connect(_lineEdit, &QLineEdit::editingFinished, this, &TextFieldControlWidget::endEditing);
    // Qt reports the cursor's move after textEdited, so there this still holds the place
    // the cursor had before the edit.
    connect(_lineEdit, &QLineEdit::cursorPositionChanged, this,
            [this](int, int position) { _cursorBeforeEdit = position; });
    return row;
}

VORNTextField& TextFieldControlWidget::field() const { return *control().textField(); }

// The field judges the whole text the edit would leave; a refused edit puts back the text
// the field holds, with the cursor where it stood before the edit.
void TextFieldControlWidget::edited(const QString& text) {
    const std::string proposed = text.toStdString();
    if (field().shouldAcceptText(proposed)) {
        field().setEditedText(proposed);
        return;
    }
    const QString accepted = ControlParts::text(field().stringValue());
    const int cursor = std::clamp(_cursorBeforeEdit, 0, static_cast<int>(accepted.size()));
    _lineEdit->setText(accepted);
    _lineEdit->setCursorPosition(cursor);
}

// The field's range message is modal and takes the focus, which ends the edit once more.
void TextFieldControlWidget::endEditing() {
    if (_endingEdit) return;
    _endingEdit = true;
    field().textDidEndEditing();
    control().textAction();
    _endingEdit = false;
}

void TextFieldControlWidget::showChange(VORNUIChange change) {
    if (change != VORNUIChange::Built && change != VORNUIChange::Value) return;
    const QString shown = ControlParts::text(field().stringValue());
    if (_lineEdit->text() == shown) return;
    const int cursor = _lineEdit->cursorPosition();
    _lineEdit->setText(shown);
    if (_lineEdit->hasFocus()) _lineEdit->setCursorPosition(std::min(cursor, static_cast<int>(shown.size())));
}

}  // namespace ComQuorvantVelmar_Plugin
