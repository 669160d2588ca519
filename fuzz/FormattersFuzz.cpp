// Feeds arbitrary text to the input formatters and the string helpers behind them. The first
// byte picks the subject; the rest is the text typed or pasted into a field.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/DefaultCStringEncoding.h"
#include "core/FormatterAttachment.h"
#include "core/MailAddressFormatter.h"
#include "core/MaxLengthFormatterWithEscapeAndCharacterSet.h"
#include "core/PageRangeFormatter.h"
#include "core/TextCharacters.h"
#include "core/TextScrambling.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

void require(bool condition) {
    if (!condition) std::abort();
}

bool isWellFormedCString(std::string_view text) {
    return text.find('\0') == std::string_view::npos &&
           TextCharacters::withIllFormedBytesReplaced(text, '?') == text;
}

void pageRanges(std::string_view text) {
    const bool valid = PageRangeFormatter::_isValidPageRange(text, 1, 2147483647);
    PageRangeFormatter formatter(0, 64, PageRangeFormatter::pageRangeCharacterSet(), "");
    require(formatter.isValid(text) == valid);
    require(formatter.controlTextShouldEndEditing(text, {"Pages"}).shouldEndEditing == (text.empty() || valid));
}

void mailAddresses(std::string_view text) {
    auto formatter = MailAddressFormatter::setValidationFormatter(
        128, MailAddressFormatter::mailAddressCharacterSet(), "Alert_MailAddress");
    formatter->replace(";", ",");
    const bool valid = formatter->isValid(text);
    require(!valid || !text.empty());
    std::string value;
    require(formatter->getObjectValue(&value, text, nullptr));
}

// Types the text in pieces of up to three bytes; the field never holds more than the limit.
void typing(std::string_view text) {
    auto bytes = attachMaxBytesFormatterWithEscape(16);
    MaxLengthFormatterWithEscapeAndCharacterSet characters(
        2, 8, CharacterSet::characterSetWithRange(U' ', 0x2FFF));
    std::string bytesField;
    std::string charactersField;
    for (std::size_t offset = 0; offset < text.size(); offset += 3) {
        const std::string_view piece = text.substr(offset, 3);
        bytesField = bytes->didChange(bytesField + std::string(piece), {offset, 0}).text;
        charactersField = characters.didChange(charactersField + std::string(piece), {offset, 0}).text;
        require(lengthByBytes(bytesField) <= 16);
        require(TextCharacters::characterLength(charactersField) <= 8);
        require(!characters.containNotAllowedCharactor(charactersField));
    }
    characters.controlTextShouldEndEditing(charactersField, {"Name"});
}

void escaping(std::string_view text) {
    auto formatter = attachMaxLengthFormatterWithEscape(255);
    std::string value;
    require(formatter->getObjectValue(&value, text, nullptr));
    require(formatter->stringForObjectValue(PlistValue(value)) == text);
}

void scrambling(std::string_view text) {
    const std::string key = "FuzzKey=0123456789ab";
    const std::string scrambled = encryptString(key, text);
    require(scrambled.size() == 2 + 2 * lengthByBytes(text));
    if (isWellFormedCString(text)) require(decryptString(key, scrambled) == text);
    decryptString(key, text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
    switch (data[0] % 5) {
        case 0: pageRanges(text); break;
        case 1: mailAddresses(text); break;
        case 2: typing(text); break;
        case 3: escaping(text); break;
        default: scrambling(text); break;
    }
    return 0;
}
