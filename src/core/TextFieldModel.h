#pragma once

#include <memory>
#include <string>

#include "core/TextLimitFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// A single-line text field of a dialog: its text, placeholder and tool tip, whether it is
/// enabled, and the formatter that limits what may be typed and turns the text into its
/// value. The view layer shows it and forwards the user's edits through typeText.
class TextFieldModel {
public:
    /// The text shown; "" at creation.
    const std::string& stringValue() const { return _text; }
    /// Shows text as the program puts it: the formatter takes it as its last good text.
    void setStringValue(std::string text);
    /// An edit by the user: the formatter judges text; a refused edit puts the last good
    /// text back (the view beeps). True when text was taken.
    bool typeText(std::string text);
    /// An edit that the field's editor has already put to the formatter with the user's own
    /// selection: text becomes the field's text, and the formatter keeps the last good text
    /// and selection the editor left it.
    void editorDidChangeText(std::string text) { _text = std::move(text); }
    /// The value of the text: the formatter's value (escaped by an escaping formatter), or
    /// the text itself without a formatter.
    std::string objectValue() const;
    /// Whether editing may end now, and the message to show as a sheet when it may not.
    EndEditingDecision textShouldEndEditing(bool dialogVisible) const;

    const std::shared_ptr<TextLimitFormatter>& formatter() const { return _formatter; }
    /// Makes formatter the field's formatter; the text shown becomes its last good text.
    void setFormatter(std::shared_ptr<TextLimitFormatter> formatter);

    /// The field's represented title, used in the formatter's messages; "" for none.
    const std::string& title() const { return _title; }
    void setTitle(std::string title) { _title = std::move(title); }
    const std::string& placeholderString() const { return _placeholder; }
    const std::string& toolTip() const { return _toolTip; }
    /// Sets the placeholder and the tool tip to the same text.
    void setPlaceholderStringAndToolTip(const std::string& text);
    bool isEnabled() const { return _enabled; }
    void setEnabled(bool enabled) { _enabled = enabled; }

private:
    std::string _text;
    std::shared_ptr<TextLimitFormatter> _formatter;
    std::string _title;
    std::string _placeholder;
    std::string _toolTip;
    bool _enabled = true;
};

}  // namespace ComQuorvantVelmar_Plugin
