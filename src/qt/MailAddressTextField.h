#pragma once

#include <QLineEdit>

namespace ComQuorvantVelmar_Plugin {

class QtFormatterBinding;

/// A text field for the mail addresses of a notification: its field editor takes only the
/// characters of mail addresses and separators, up to 128 bytes, and refuses to end an edit
/// while the text is not a list of addresses, saying why in a sheet. The rules are the
/// engine's MailAddressFormatter.
class MailAddressTextField : public QLineEdit {
    Q_OBJECT
public:
    /// A field whose messages name it by title ("" for none).
    explicit MailAddressTextField(const QString& title = {}, QWidget* parent = nullptr);

    /// The binding that puts the field's edits to its formatter.
    QtFormatterBinding& binding() const { return *_binding; }

private:
    QtFormatterBinding* _binding;
};

}  // namespace ComQuorvantVelmar_Plugin
