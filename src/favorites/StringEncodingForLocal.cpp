#include <algorithm>
#include <array>
#include <string>

#include "core/Diagnostics.h"
#include "core/PreferredLanguages.h"
#include "favorites/StringEncoding.h"

namespace ComQuorvantVelmar_Plugin::StringEncodings {
namespace {

// The application's text script on this platform follows the first preferred language,
// as the user's language decides which script the desktop writes in.
enum class TextScript { Roman, Japanese, ChineseTraditional, Korean, ChineseSimplified, Other };

// Languages written in the western Latin script that code page 850 holds.
constexpr std::array<std::string_view, 24> romanLanguages = {
    "af", "ca", "da", "de", "en", "es", "eu", "fi", "fo", "fr", "ga", "gl",
    "id", "it", "la", "lb", "ms", "nb", "nl", "nn", "no", "pt", "sv", "sw"};

// What the log reports for a language of another script: the DOS code page that script
// would have used, and its names.
struct OtherScript {
    std::string_view languages;
    unsigned codePage;
    std::string_view iana;
    std::string_view name;
};
constexpr std::array<OtherScript, 7> otherScripts = {{
    {" be bg mk ru sr uk ", 866, "IBM866", "Cyrillic (DOS)"},
    {" bs cs hr hu pl ro sk sl ", 852, "IBM852", "Central European (DOS)"},
    {" el ", 737, "CP737", "Greek (DOS)"},
    {" tr ", 857, "IBM857", "Turkish (DOS)"},
    {" he ", 862, "IBM862", "Hebrew (DOS)"},
    {" ar fa ur ", 720, "CP720", "Arabic (DOS)"},
    {" th ", 874, "CP874", "Thai (DOS)"},
}};

// "zh-Hant-TW" gives "zh" and the rest "Hant-TW".
std::pair<std::string, std::string> splitLanguage(const std::string& tag) {
    const auto separator = tag.find('-');
    std::string language = tag.substr(0, separator);
    std::transform(language.begin(), language.end(), language.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    return {language, separator == std::string::npos ? std::string() : tag.substr(separator + 1)};
}

bool isTraditionalChinese(const std::string& rest) {
    for (std::string_view marker : {"Hant", "TW", "HK", "MO"})
        if (rest.find(marker) != std::string::npos) return true;
    return false;
}

TextScript scriptOfLanguage(const std::string& language, const std::string& rest) {
    if (language == "ja") return TextScript::Japanese;
    if (language == "ko") return TextScript::Korean;
    if (language == "zh")
        return isTraditionalChinese(rest) ? TextScript::ChineseTraditional : TextScript::ChineseSimplified;
    if (std::find(romanLanguages.begin(), romanLanguages.end(), language) != romanLanguages.end())
        return TextScript::Roman;
    return TextScript::Other;
}

void logOtherScript(const std::string& language) {
    OtherScript found{"", 0, "", ""};
    for (const OtherScript& script : otherScripts)
        if (script.languages.find(" " + language + " ") != std::string_view::npos) found = script;
    Diagnostics::logf("### system encoding=0x%x, ns encoding=0x%x", found.codePage, 0u);
    Diagnostics::logf("### IANA \"%.*s\"", static_cast<int>(found.iana.size()), found.iana.data());
    Diagnostics::logf("### localizedName \"%.*s\"", static_cast<int>(found.name.size()),
                      found.name.data());
}

}  // namespace

StringEncoding stringEncodingForLocal() {
    const auto [language, rest] = splitLanguage(PreferredLanguages::first());
    switch (scriptOfLanguage(language, rest)) {
        case TextScript::Roman: return StringEncoding::DOSLatin1;
        case TextScript::Japanese: return StringEncoding::DOSJapanese;
        case TextScript::ChineseTraditional: return StringEncoding::DOSChineseTrad;
        case TextScript::Korean: return StringEncoding::DOSKorean;
        case TextScript::ChineseSimplified: return StringEncoding::DOSChineseSimplif;
        case TextScript::Other: break;
    }
    logOtherScript(language);
    return StringEncoding::None;
}

}  // namespace ComQuorvantVelmar_Plugin::StringEncodings
