#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>
#include <string>

class QLineEdit;

namespace ComQuorvantVelmar_Plugin {

class TextLimitFormatter;

/// Makes an input formatter the judge of a dialog's line edit (favorite names, job names,
/// mail addresses, page ranges): each edit is put to the formatter, and one it refuses is
/// undone with a beep, back to the formatter's last accepted text and selection. When the
/// edit ends, the formatter decides whether it may; if not, its message is shown through the
/// alert interface and the field keeps the focus. The binding belongs to the field.
class QtFormatterBinding : public QObject {
    Q_OBJECT
public:
    /// Binds formatter to field; title names the field in messages ("" for none).
    QtFormatterBinding(QLineEdit* field, std::shared_ptr<TextLimitFormatter> formatter, QString title = {});

    /// The binding of field, or nullptr when it has none.
    static QtFormatterBinding* of(const QLineEdit* field);

    const std::shared_ptr<TextLimitFormatter>& formatter() const { return _formatter; }
    /// The value of the field's text (escaped where the formatter escapes); "" without a field.
    std::string value() const;
    /// Shows value in the field (unescaped where the formatter escapes) as accepted text.
    void setValue(const std::string& value);
    /// Whether editing may end with the field's text; when not, shows the formatter's
    /// message and gives the field the focus again. Dialogs ask this before they close.
    bool textShouldEndEditing();

private:
    void edited(const QString& text);

    QPointer<QLineEdit> _field;
    std::shared_ptr<TextLimitFormatter> _formatter;
    QString _title;
    bool _askingToEnd = false;
};

}  // namespace ComQuorvantVelmar_Plugin
