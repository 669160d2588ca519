#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// A selection in a text field: location and length counted as the field counts characters.
struct TextSelection {
    std::size_t location = 0;
    std::size_t length = 0;
    bool operator==(const TextSelection&) const = default;
};

/// The answer to one edit: accepted, or refused with the text and selection to put back
/// (the field beeps then).
struct EditDecision {
    bool accepted = true;
    std::string text;
    TextSelection selection;
};

/// The field whose editing is to end: its represented title ("" for none) and whether the
/// dialog that holds it is visible.
struct EditedField {
    std::string_view title;
    bool dialogVisible = true;
};

/// The answer to the end of an edit: end it, or keep editing and show message as a sheet.
struct EndEditingDecision {
    bool shouldEndEditing = true;
    std::string message;
};

/// What both formatter families share: the undo text of the last accepted edit, the
/// control-character rule, the size limits and the way between text and value. The
/// families differ only in how they measure a text (bytes or characters).
class TextLimitFormatter {
public:
    virtual ~TextLimitFormatter() = default;

    /// Whether control characters may be typed; false at creation.
    bool controlCharactersEnabled() const { return _controlCharactersEnabled; }
    /// Allows or refuses control characters from now on.
    void setControlCharactersEnabled(bool enabled) { _controlCharactersEnabled = enabled; }

    /// The size of text in this family's unit (bytes or characters).
    virtual std::size_t sizeOf(std::string_view text) const = 0;
    /// Whether text holds a character the field must refuse.
    virtual bool containNotAllowedCharactor(std::string_view text) const;

    /// Judges the field's text after an edit: an allowed text within the maximum becomes
    /// the undo text with selection; anything else is refused in favour of the undo text.
    EditDecision didChange(std::string_view text, TextSelection selection);
    /// Takes text as accepted without judging it (a value the program put into the field).
    void rememberAcceptedText(std::string_view text, TextSelection selection);
    /// The last accepted text; "" at creation.
    const std::string& undoText() const { return _undoBuffer; }
    /// The selection that went with the last accepted text.
    TextSelection undoSelection() const { return _undoRange; }

    /// Whether editing of text may end: not when a non-empty text is below the minimum.
    virtual EndEditingDecision controlTextShouldEndEditing(std::string_view text,
                                                           const EditedField& field) const;

    /// objectValue = the value of string; false with the "NULL Object pointer to ..."
    /// description when objectValue is nullptr.
    bool getObjectValue(std::string* objectValue, std::string_view string,
                        std::string* errorDescription) const;
    /// The text shown for a value; "" for a value that is not a string.
    std::string stringForObjectValue(const PlistValue& value) const;

protected:
    /// The family's minimum (0: editing always ends).
    virtual std::uint32_t minimumSize() const = 0;
    /// The family's maximum.
    virtual std::uint32_t maximumSize() const = 0;
    /// The error description for a missing result place, naming the family.
    virtual std::string nullObjectDescription() const = 0;
    /// The value that a text stands for; the text itself unless a member escapes it.
    virtual std::string valueForText(std::string_view text) const { return std::string(text); }
    /// The text that shows a value; the value itself unless a member unescapes it.
    virtual std::string textForValue(std::string_view value) const { return std::string(value); }

private:
    bool _controlCharactersEnabled = false;
    std::string _undoBuffer;
    TextSelection _undoRange;
};

}  // namespace ComQuorvantVelmar_Plugin
