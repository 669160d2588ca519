#include "qt/NoEmptyTextField.h"

#include <QApplication>

namespace ComQuorvantVelmar_Plugin {

NoEmptyTextField::NoEmptyTextField(QWidget* parent) : QLineEdit(parent) {
    connect(this, &QLineEdit::editingFinished, this, &NoEmptyTextField::endEditing);
}

void NoEmptyTextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    _rule.beginEditing(text().toStdString());
}

// Return ends an edit without leaving the field: the next edit begins with what it keeps.
void NoEmptyTextField::endEditing() {
    const NoEmptyTextRule::Outcome outcome = _rule.endEditing(text().toStdString());
    if (outcome.restored) {
        QApplication::beep();
        setText(QString::fromStdString(outcome.text));
    }
    _rule.beginEditing(outcome.text);
}

}  // namespace ComQuorvantVelmar_Plugin
