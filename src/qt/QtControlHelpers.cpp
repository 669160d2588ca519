#include "qt/QtControlHelpers.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

namespace ComQuorvantVelmar_Plugin {

bool QtControlHelpers::selectWithTitle(QComboBox& popup, const QString& title) {
    const int index = popup.findText(title, Qt::MatchExactly);
    if (index < 0) return false;
    popup.setCurrentIndex(index);
    return true;
}

QVariant QtControlHelpers::representedObjectOfSelectedItem(const QComboBox& popup) {
    if (popup.currentIndex() < 0) return {};
    return popup.currentData();
}

QVariant QtControlHelpers::representedObjectForKey(const QComboBox& popup, const QString& key) {
    const QVariant object = representedObjectOfSelectedItem(popup);
    if (object.typeId() != QMetaType::QVariantMap) return {};
    return object.toMap().value(key);
}

bool QtControlHelpers::isOnAndEnabled(const QAbstractButton& button) { return button.isChecked() && button.isEnabled(); }

QString QtControlHelpers::controlTitleString(const QWidget& control) {
    if (auto* button = qobject_cast<const QAbstractButton*>(&control)) return button->text();
    if (auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
    if (auto* group = qobject_cast<const QGroupBox*>(&control)) return group->title();
    if (auto* field = qobject_cast<const QLineEdit*>(&control)) return field->placeholderText();
    return {};
}

void QtControlHelpers::setTitleString(QWidget& control, const QString& title) {
    if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setText(title);
    else if (auto* label = qobject_cast<QLabel*>(&control))
        label->setText(title);
    else if (auto* group = qobject_cast<QGroupBox*>(&control))
        group->setTitle(title);
    else if (auto* field = qobject_cast<QLineEdit*>(&control))
        field->setPlaceholderText(title);
}

void QtControlHelpers::setEnabledWithColor(QWidget& control, QWidget* label, bool enabled) {
    control.setEnabled(enabled);
    if (label) label->setEnabled(enabled);
}

void QtControlHelpers::setEnabledConrtols(const QList<QWidget*>& controls, bool enabled) {
    for (QWidget* control : controls)
        if (control) control->setEnabled(enabled);
}

void QtControlHelpers::setEnabledConrtolsByCheckBox(const QAbstractButton& box, const QList<QWidget*>& controls) {
    setEnabledConrtols(controls, box.isChecked());
}

void QtControlHelpers::setPlaceholderStringAndToolTip(QLineEdit& field, const QString& text) {
    field.setPlaceholderText(text);
    field.setToolTip(text);
}

}  // namespace ComQuorvantVelmar_Plugin
