#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/EscapeMember.h"
#include "core/ValidationFormatter.h"

namespace ComQuorvantVelmar_Plugin {

/// Validates a list of mail addresses separated by ";", "," or white space; the value of
/// a text is its escaped form.
class MailAddressFormatter : public EscapeMember<ValidationFormatter> {
public:
    using EscapeMember::EscapeMember;

    /// The formatter a mail-address field gets for at most maxBytes bytes of characterSet.
    static std::shared_ptr<MailAddressFormatter> setValidationFormatter(
        std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString);
    /// The characters a mail-address field accepts: ASCII letters and digits, "@._+-" and
    /// the separators ";", "," and space.
    static CharacterSet mailAddressCharacterSet();
    /// The formatter of a mail-address field: at most 128 bytes of mailAddressCharacterSet(),
    /// with the localised "Alert_InvalidMailAddress" message (the key itself while no bundle
    /// is registered) for an invalid text.
    static std::shared_ptr<MailAddressFormatter> mailAddressFieldFormatter();

    /// Whether text (at most 128 bytes) holds at least one address and none of 0 or 1
    /// characters; false otherwise.
    bool isValid(std::string_view text) const override;

private:
    static bool _checkOneAddress(const char* begin, const char* end);
};

}  // namespace ComQuorvantVelmar_Plugin
