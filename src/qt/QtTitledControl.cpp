#include "qt/QtTitledControl.h"

#include <QAbstractButton>
#include <QLabel>

#include "core/TitledControl.h"

namespace ComQuorvantVelmar_Plugin {

void QtTitledControl::show(const TitledControl& control, QLabel& label) {
    label.setTextFormat(Qt::PlainText);
    label.setText(QString::fromStdString(control.title()));
    label.setEnabled(control.isEnabled());
}

void QtTitledControl::show(const TitledControl& control, QAbstractButton& button) {
    button.setText(QString::fromStdString(control.title()));
    button.setEnabled(control.isEnabled());
}

}  // namespace ComQuorvantVelmar_Plugin
