#include "qt/MailAddressTextField.h"

#include "core/MailAddressFormatter.h"
#include "qt/QtFormatterBinding.h"

namespace ComQuorvantVelmar_Plugin {

MailAddressTextField::MailAddressTextField(const QString& title, QWidget* parent)
    : QLineEdit(parent),
      _binding(new QtFormatterBinding(this, MailAddressFormatter::mailAddressFieldFormatter(), title)) {
    setInputMethodHints(Qt::ImhEmailCharactersOnly | Qt::ImhNoAutoUppercase);
}

}  // namespace ComQuorvantVelmar_Plugin
