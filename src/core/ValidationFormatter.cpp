#include "core/ValidationFormatter.h"

namespace ComQuorvantVelmar_Plugin {

ValidationFormatter::ValidationFormatter(std::uint32_t minBytes, std::uint32_t maxBytes,
                                         CharacterSet characterSet, std::string messageString)
    : MaxBytesFormatterWithCharacterSet(minBytes, maxBytes, std::move(characterSet)),
      _messageString(std::move(messageString)) {}

std::shared_ptr<ValidationFormatter> ValidationFormatter::setValidationFormatter(
    std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString) {
    return std::make_shared<ValidationFormatter>(0, maxBytes, characterSet, std::move(messageString));
}

bool ValidationFormatter::isValid(std::string_view) const { return true; }

EndEditingDecision ValidationFormatter::controlTextShouldEndEditing(std::string_view text,
                                                                   const EditedField& field) const {
    EndEditingDecision decision = MaxBytesFormatterWithCharacterSet::controlTextShouldEndEditing(text, field);
    if (!decision.shouldEndEditing || !field.dialogVisible || text.empty() || isValid(text))
        return decision;
    return {false, _messageString.empty() ? "--" : _messageString};
}

}  // namespace ComQuorvantVelmar_Plugin
