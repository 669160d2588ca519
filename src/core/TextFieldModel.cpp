#include "core/TextFieldModel.h"

#include "core/TextCharacters.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The caret after the last character, as the field counts characters.
TextSelection caretAtEnd(const std::string& text) { return {TextCharacters::characterLength(text), 0}; }

}  // namespace

void TextFieldModel::setStringValue(std::string text) {
    _text = std::move(text);
    if (_formatter) _formatter->rememberAcceptedText(_text, caretAtEnd(_text));
}

bool TextFieldModel::typeText(std::string text) {
    if (!_formatter) {
        _text = std::move(text);
        return true;
    }
    const TextSelection selection = caretAtEnd(text);
    EditDecision decision = _formatter->didChange(text, selection);
    _text = std::move(decision.text);
    return decision.accepted;
}

std::string TextFieldModel::objectValue() const {
    std::string value = _text;
    if (_formatter) _formatter->getObjectValue(&value, _text, nullptr);
    return value;
}

EndEditingDecision TextFieldModel::textShouldEndEditing(bool dialogVisible) const {
    if (!_formatter) return {};
    return _formatter->controlTextShouldEndEditing(_text, EditedField{_title, dialogVisible});
}

void TextFieldModel::setFormatter(std::shared_ptr<TextLimitFormatter> formatter) {
    _formatter = std::move(formatter);
    if (_formatter) _formatter->rememberAcceptedText(_text, caretAtEnd(_text));
}

void TextFieldModel::setPlaceholderStringAndToolTip(const std::string& text) {
    _placeholder = text;
    _toolTip = text;
}

}  // namespace ComQuorvantVelmar_Plugin
