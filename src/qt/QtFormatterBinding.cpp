#include "qt/QtFormatterBinding.h"

#include <QApplication>
#include <QLineEdit>

#include "core/Alert.h"
#include "core/TextLimitFormatter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* bindingName = "ostrin_formatter_binding";

TextSelection selectionOf(const QLineEdit& field) {
    if (field.hasSelectedText())
        return {static_cast<std::size_t>(field.selectionStart()), static_cast<std::size_t>(field.selectionLength())};
    return {static_cast<std::size_t>(field.cursorPosition()), 0};
}

}  // namespace

QtFormatterBinding::QtFormatterBinding(QLineEdit* field, std::shared_ptr<TextLimitFormatter> formatter, QString title)
    : QObject(field), _field(field), _formatter(std::move(formatter)), _title(std::move(title)) {
    setObjectName(QString::fromLatin1(bindingName));
    if (!_field || !_formatter) return;
    _formatter->rememberAcceptedText(_field->text().toStdString(), selectionOf(*_field));
    connect(_field, &QLineEdit::textEdited, this, &QtFormatterBinding::edited);
    connect(_field, &QLineEdit::editingFinished, this, &QtFormatterBinding::textShouldEndEditing);
}

QtFormatterBinding* QtFormatterBinding::of(const QLineEdit* field) {
    if (!field) return nullptr;
    return field->findChild<QtFormatterBinding*>(QString::fromLatin1(bindingName), Qt::FindDirectChildrenOnly);
}

void QtFormatterBinding::edited(const QString& text) {
    if (!_field || !_formatter) return;
    const EditDecision decision = _formatter->didChange(text.toStdString(), selectionOf(*_field));
    if (decision.accepted) return;
    QApplication::beep();
    _field->setText(QString::fromStdString(decision.text));
    const int location = static_cast<int>(decision.selection.location);
    if (decision.selection.length > 0)
        _field->setSelection(location, static_cast<int>(decision.selection.length));
    else
        _field->setCursorPosition(location);
}

std::string QtFormatterBinding::value() const {
    if (!_field || !_formatter) return {};
    std::string value;
    _formatter->getObjectValue(&value, _field->text().toStdString(), nullptr);
    return value;
}

void QtFormatterBinding::setValue(const std::string& value) {
    if (!_field || !_formatter) return;
    _field->setText(QString::fromStdString(_formatter->stringForObjectValue(PlistValue(value))));
    _formatter->rememberAcceptedText(_field->text().toStdString(), selectionOf(*_field));
}

// The message is modal and takes the focus, which would end the edit once more.
bool QtFormatterBinding::textShouldEndEditing() {
    if (!_field || !_formatter || _askingToEnd) return true;
    const std::string title = _title.toStdString();
    const QWidget* window = _field->window();
    const EndEditingDecision decision =
        _formatter->controlTextShouldEndEditing(_field->text().toStdString(), {title, window && window->isVisible()});
    if (decision.shouldEndEditing) return true;
    _askingToEnd = true;
    AlertRequest request;
    request.messageText = decision.message;
    Alerts::runModal(request);
    _field->setFocus(Qt::OtherFocusReason);
    _field->selectAll();
    _askingToEnd = false;
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin
