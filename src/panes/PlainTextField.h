#pragma once

#include <memory>
#include <string>

#include "panes/PlainControl.h"

namespace ComQuorvantVelmar_Plugin {

class TextLimitFormatter;

/// A plain text field, optionally with a formatter that turns its text into its value
/// (an escaping formatter makes the value the escaped text).
class PlainTextField : public PlainControl {
public:
    std::string className() const override { return "TextField"; }

    /// The text shown.
    const std::string& stringValue() const { return _text; }
    void setStringValue(std::string text) { _text = std::move(text); }
    /// The value of the text: the formatter's value when there is a formatter, else the text.
    PlistValue objectValue() const;
    /// Shows value: through the formatter when there is one; a value that is not a string
    /// empties the field.
    void setObjectValue(const PlistValue& value);

    const std::shared_ptr<TextLimitFormatter>& formatter() const { return _formatter; }
    void setFormatter(std::shared_ptr<TextLimitFormatter> formatter) { _formatter = std::move(formatter); }

private:
    std::string _text;
    std::shared_ptr<TextLimitFormatter> _formatter;
};

}  // namespace ComQuorvantVelmar_Plugin
