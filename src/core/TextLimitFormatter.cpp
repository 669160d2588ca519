#include "core/TextLimitFormatter.h"

#include "core/CharacterSet.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view minimumMessageKey = "Please specify at least %d characters for %@.";

// Fills the "%d" and "%@" of a localised format; a translation may put them in either order.
std::string fillMinimumMessage(std::string format, std::uint32_t minimum, std::string_view title) {
    if (auto position = format.find("%d"); position != std::string::npos)
        format.replace(position, 2, std::to_string(minimum));
    if (auto position = format.find("%@"); position != std::string::npos)
        format.replace(position, 2, title);
    return format;
}

std::string minimumMessage(std::uint32_t minimum, std::string_view title) {
    std::string format = BSLocalizedString(minimumMessageKey);
    if (format.empty()) format = minimumMessageKey;
    return fillMinimumMessage(std::move(format), minimum, title.empty() ? "--" : title);
}

}  // namespace

bool TextLimitFormatter::containNotAllowedCharactor(std::string_view text) const {
    static const CharacterSet controlCharacters = CharacterSet::controlCharacterSet();
    return !_controlCharactersEnabled && controlCharacters.intersectsText(text);
}

EditDecision TextLimitFormatter::didChange(std::string_view text, TextSelection selection) {
    if (!containNotAllowedCharactor(text) && sizeOf(text) <= maximumSize()) {
        rememberAcceptedText(text, selection);
        return {true, _undoBuffer, _undoRange};
    }
    return {false, _undoBuffer, _undoRange};
}

void TextLimitFormatter::rememberAcceptedText(std::string_view text, TextSelection selection) {
    _undoBuffer = std::string(text);
    _undoRange = selection;
}

EndEditingDecision TextLimitFormatter::controlTextShouldEndEditing(std::string_view text,
                                                                  const EditedField& field) const {
    const std::uint32_t minimum = minimumSize();
    if (minimum == 0 || text.empty() || sizeOf(text) >= minimum) return {};
    return {false, minimumMessage(minimum, field.title)};
}

bool TextLimitFormatter::getObjectValue(std::string* objectValue, std::string_view string,
                                        std::string* errorDescription) const {
    if (!objectValue) {
        if (errorDescription) *errorDescription = nullObjectDescription();
        return false;
    }
    *objectValue = valueForText(string);
    return true;
}

std::string TextLimitFormatter::stringForObjectValue(const PlistValue& value) const {
    const std::string* text = value.string();
    return text ? textForValue(*text) : std::string();
}

}  // namespace ComQuorvantVelmar_Plugin
