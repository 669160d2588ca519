#pragma once

#include <QList>
#include <QString>
#include <QVariant>

class QAbstractButton;
class QComboBox;
class QLineEdit;
class QWidget;

namespace ComQuorvantVelmar_Plugin {

/// Small helpers of the dialogs that act on widgets; the parts without widgets are in
/// core/ControlHelpers.h.
namespace QtControlHelpers {

/// Selects the first item of popup titled title; false (and no change) when none is.
bool selectWithTitle(QComboBox& popup, const QString& title);
/// The data of popup's selected item; an invalid value when nothing is selected.
QVariant representedObjectOfSelectedItem(const QComboBox& popup);
/// The value under key of the selected item's data when that is a map; invalid otherwise.
QVariant representedObjectForKey(const QComboBox& popup, const QString& key);
/// Whether button is checked and enabled.
bool isOnAndEnabled(const QAbstractButton& button);
/// The title of a button, label, group box or line edit (its placeholder); "" for others.
QString controlTitleString(const QWidget& control);
/// Sets the title of a button, label, group box or line edit (its placeholder).
void setTitleString(QWidget& control, const QString& title);
/// Enables or disables control and its label; a disabled label is drawn in the disabled
/// text colour.
void setEnabledWithColor(QWidget& control, QWidget* label, bool enabled);
/// Enables or disables every control of the list.
void setEnabledConrtols(const QList<QWidget*>& controls, bool enabled);
/// Enables the controls while box is checked and disables them while it is not.
void setEnabledConrtolsByCheckBox(const QAbstractButton& box, const QList<QWidget*>& controls);
/// Sets the placeholder text of field and the same text as its tool tip.
void setPlaceholderStringAndToolTip(QLineEdit& field, const QString& text);

}  // namespace QtControlHelpers
}  // namespace ComQuorvantVelmar_Plugin
