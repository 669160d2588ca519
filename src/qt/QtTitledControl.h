#pragma once

class QAbstractButton;
class QLabel;

namespace ComQuorvantVelmar_Plugin {

class TitledControl;

/// Shows a dialog's labels, headings and push buttons as the engine holds them.
namespace QtTitledControl {

/// Puts control's title into label as plain text; a disabled control's label is drawn in
/// the disabled text colour.
void show(const TitledControl& control, QLabel& label);
/// Puts control's title on button and enables it as control is.
void show(const TitledControl& control, QAbstractButton& button);

}  // namespace QtTitledControl
}  // namespace ComQuorvantVelmar_Plugin
