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

std::string optionsText(const PlistDictionary& options) {
    std::string text;
    for (const auto& [key, value] : options) {
        auto valueText = optionText(value);
        if (!valueText) {
            Diagnostics::log("### favorite option \"" + key + "\" is not text and is not saved");
            continue;
        }
        text += key + "=" + *valueText + "\t\t";
    }
    return text;
}

}  // namespace

std::string bytes(const std::optional<std::string>& comment, const std::optional<PlistDictionary>& options,
                  std::int32_t deviceType, StringEncoding encoding) {
    std::string text = std::to_string(languageCodeForEncoding(encoding)) + "\n";
    text += "Comment=" + withoutDelimiter(comment.value_or(""), '\n') + "\n";
    if (options) text += optionsText(*options);
    // Without a local encoding the file is written in the encoding its language code 0
    // is read with, so that it reads back as it was saved.
    const StringEncoding textEncoding = encoding == StringEncoding::None ? StringEncoding::ShiftJIS : encoding;
    bool lossy = false;
    std::string encoded = StringEncodings::encode(text, textEncoding, &lossy);
    if (lossy)
        Diagnostics::logf("### favorite text has characters that %s cannot hold; they are saved as \"?\"",
                          StringEncodings::iconvName(textEncoding));
    return std::to_string(writtenVersion) + "\n" + std::to_string(deviceType) + "\n" + encoded;
}

}  // namespace ComQuorvantVelmar_Plugin::FavoriteFileFormat
