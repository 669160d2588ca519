#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/MaxBytesFormatterWithCharacterSet.h"

namespace ComQuorvantVelmar_Plugin {

/// A byte-limited formatter that also refuses to end editing while its text is invalid.
class ValidationFormatter : public MaxBytesFormatterWithCharacterSet {
public:
    /// initWithMinBytes:max:characterSet:message: — messageString is shown for an invalid text.
    ValidationFormatter(std::uint32_t minBytes, std::uint32_t maxBytes, CharacterSet characterSet,
                        std::string messageString);

    /// The formatter a field gets for at most maxBytes bytes of characterSet, no minimum.
    static std::shared_ptr<ValidationFormatter> setValidationFormatter(
        std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString);

    /// The message shown for an invalid text; "" for none.
    const std::string& messageString() const { return _messageString; }
    /// Whether text is acceptable as a final value; every text is, unless a subclass says otherwise.
    virtual bool isValid(std::string_view text) const;

    /// Ends editing as the size rules say, but not, while the dialog is visible, for a
    /// non-empty invalid text (message: messageString, or "--" when it is empty).
    EndEditingDecision controlTextShouldEndEditing(std::string_view text,
                                                   const EditedField& field) const override;

private:
    std::string _messageString;
};

}  // namespace ComQuorvantVelmar_Plugin
