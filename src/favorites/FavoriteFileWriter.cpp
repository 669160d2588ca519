#include <algorithm>
#include <cmath>

#include "core/Diagnostics.h"
#include "favorites/FavoriteFileFormat_p.h"

namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat {
namespace {

// The comment is one line and a value ends at a tab; a line feed in the comment or a tab
// in a value would spill the rest into the next option when read back, so each becomes a
// blank and every setting survives.
std::string withoutDelimiter(std::string text, char delimiter) {
    std::replace(text.begin(), text.end(), delimiter, ' ');
    return text;
}

// Numbers are written as whole numbers; other values must be text.
std::optional<std::string> optionText(const PlistValue& value) {
    if (const std::string* text = value.string()) return withoutDelimiter(*text, '\t');
    if (const std::int64_t* integer = value.integer()) return std::to_string(*integer);
    if (const bool* boolean = value.boolean()) return *boolean ? "1" : "0";
    if (const double* real = value.real()) {
        if (!std::isfinite(*real) || std::fabs(*real) > 9.2e18) return "0";
        return std::to_string(static_cast<std::int64_t>(*real));
    }
    return std::nullopt;
}

void removeLastCharacter(std::string& text) {
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.pop_back();
    if (!text.empty()) text.pop_back();
}

// Text in the file's encoding, noting whether a character had to become "?".
class Encoder {
public:
    explicit Encoder(StringEncoding encoding) : _encoding(encoding) {}

    std::string operator()(std::string_view text) {
        bool lossy = false;
        std::string bytes = StringEncodings::encode(text, _encoding, &lossy);
        _lossy = _lossy || lossy;
        return bytes;
    }

    // A text longer than the reader's limit would be cut there and its rest read as the
    // next option; it is shortened by whole characters instead, so the options stay intact.
    std::string limited(std::string text, std::size_t limit) {
        std::size_t characters = 0, end = 0;
        for (; end < text.size() && characters <= limit; ++end)
            if ((static_cast<unsigned char>(text[end]) & 0xC0) != 0x80) ++characters;
        if (characters > limit) text.resize(end - 1);
        std::string bytes = (*this)(text);
        if (bytes.size() > limit)
            Diagnostics::log("### favorite text shortened to " + std::to_string(limit) + " bytes");
        while (bytes.size() > limit) {
            removeLastCharacter(text);
            bytes = (*this)(text);
        }
        return bytes;
    }

    bool lossy() const { return _lossy; }

private:
    StringEncoding _encoding;
    bool _lossy = false;
};

std::string optionsBytes(const PlistDictionary& options, Encoder& encode) {
    std::string bytes;
    for (const auto& [key, value] : options) {
        auto valueText = optionText(value);
        if (!valueText) {
            Diagnostics::log("### favorite option \"" + key + "\" is not text and is not saved");
            continue;
        }
        bytes += encode(key) + "=" + encode.limited(*valueText, valueLimit) + "\t\t";
    }
    return bytes;
}

}  // namespace

std::string bytes(const std::optional<std::string>& comment, const std::optional<PlistDictionary>& options,
                  std::int32_t deviceType, StringEncoding encoding) {
    // Without a local encoding the file is written in the encoding its language code 0
    // is read with, so that it reads back as it was saved.
    Encoder encode(encoding == StringEncoding::None ? StringEncoding::ShiftJIS : encoding);
    std::string text = std::to_string(writtenVersion) + "\n" + std::to_string(deviceType) + "\n" +
                       std::to_string(languageCodeForEncoding(encoding)) + "\n";
    text += "Comment=" + encode.limited(withoutDelimiter(comment.value_or(""), '\n'), commentLimit) + "\n";
    if (options) text += optionsBytes(*options, encode);
    if (encode.lossy())
        Diagnostics::log(
            "### favorite text has characters that the local encoding cannot hold; they are "
            "saved as \"?\"");
    return text;
}

}  // namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat
