#include "panes/PlainTextField.h"

#include "core/TextLimitFormatter.h"

namespace ComQuorvantVelmar_Plugin {

PlistValue PlainTextField::objectValue() const {
    if (!_formatter) return PlistValue(_text);
    std::string value;
    if (!_formatter->getObjectValue(&value, _text, nullptr)) return PlistValue(_text);
    return PlistValue(std::move(value));
}

void PlainTextField::setObjectValue(const PlistValue& value) {
    if (_formatter) {
        _text = _formatter->stringForObjectValue(value);
        return;
    }
    _text = value.stringOr("");
}

}  // namespace ComQuorvantVelmar_Plugin
