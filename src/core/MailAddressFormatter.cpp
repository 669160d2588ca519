#include "core/MailAddressFormatter.h"

#include <cstring>

#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::size_t maximumTextBytes = 128;
constexpr const char* invalidAddressKey = "Alert_InvalidMailAddress";

bool isSeparator(char character) {
    return character == ';' || character == ',' || std::strchr(" \t\n\v\f\r", character) != nullptr;
}

const char* skipSeparators(const char* position, const char* end) {
    while (position < end && isSeparator(*position)) ++position;
    return position;
}

const char* addressEnd(const char* position, const char* end) {
    while (position < end && !isSeparator(*position)) ++position;
    return position;
}

}  // namespace

std::shared_ptr<MailAddressFormatter> MailAddressFormatter::setValidationFormatter(
    std::uint32_t maxBytes, const CharacterSet& characterSet, std::string messageString) {
    return std::make_shared<MailAddressFormatter>(0, maxBytes, characterSet, std::move(messageString));
}

CharacterSet MailAddressFormatter::mailAddressCharacterSet() {
    return CharacterSet::characterSetWithRange(U'a', 26)
        .formUnionWithCharacterSet(CharacterSet::characterSetWithRange(U'A', 26))
        .formUnionWithCharacterSet(CharacterSet::characterSetWithRange(U'0', 10))
        .formUnionWithCharacterSet(CharacterSet::characterSetWithCharactersInString("@._+-;, "));
}

std::shared_ptr<MailAddressFormatter> MailAddressFormatter::mailAddressFieldFormatter() {
    std::string message = BSLocalizedString(invalidAddressKey);
    if (message.empty()) message = invalidAddressKey;
    return setValidationFormatter(static_cast<std::uint32_t>(maximumTextBytes), mailAddressCharacterSet(),
                                  std::move(message));
}

bool MailAddressFormatter::isValid(std::string_view text) const {
    // The text is read as a C string: it ends at a NUL, and a longer one is not an address list.
    if (text.empty()) return false;
    const std::size_t length = ::strnlen(text.data(), text.size());
    if (length > maximumTextBytes) return false;
    const char* end = text.data() + length;
    bool found = false;
    for (const char* position = skipSeparators(text.data(), end); position < end;
         position = skipSeparators(position, end)) {
        const char* last = addressEnd(position, end);
        if (!_checkOneAddress(position, last)) return false;
        found = true;
        position = last;
    }
    return found;
}

bool MailAddressFormatter::_checkOneAddress(const char* begin, const char* end) { return end - begin > 1; }

}  // namespace ComQuorvantVelmar_Plugin
