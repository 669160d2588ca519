#include "core/PreferredLanguages.h"

#include <cstdlib>
#include <string_view>

#include "core/LocalizedString_p.h"

namespace ComQuorvantVelmar_Plugin::PreferredLanguages {
namespace {

std::string& overrideLanguage() {
    static std::string language;
    return language;
}

// "de_DE.UTF-8@euro" becomes "de-DE"; C and POSIX name no language.
std::string languageOfLocale(std::string_view locale) {
    locale = locale.substr(0, locale.find_first_of(".@"));
    if (locale.empty() || locale == "C" || locale == "POSIX") return {};
    std::string language(locale);
    for (char& character : language)
        if (character == '_') character = '-';
    return language;
}

std::string fromEnvironment() {
    if (const char* list = LocalizedCatalogues::environmentLanguageList(); list && *list) {
        std::string_view entries(list);
        if (auto language = languageOfLocale(entries.substr(0, entries.find(':'))); !language.empty())
            return language;
    }
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* value = std::getenv(name);
        if (value && *value) return languageOfLocale(value);
    }
    return {};
}

}  // namespace

std::string first() {
    if (!overrideLanguage().empty()) return overrideLanguage();
    std::string language = fromEnvironment();
    return language.empty() ? "en" : language;
}

void setFirst(const std::string& language) {
    overrideLanguage() = languageOfLocale(language);
    LocalizedCatalogues::switchLanguage(first());
}

}  // namespace ComQuorvantVelmar_Plugin::PreferredLanguages
