#include "core/LocalizedString.h"

#include <libintl.h>

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <set>

#include "core/Bundle.h"
#include "core/LocalizedString_p.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"

// gettext's own way to drop its cache after LANGUAGE changes at run time.
extern "C" int _nl_msg_cat_cntr;

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view defaultTable = "Localizable";

std::shared_ptr<Bundle>& principalBundle() {
    static std::shared_ptr<Bundle> bundle;
    return bundle;
}

std::shared_ptr<Bundle>& localizationBundle() {
    static std::shared_ptr<Bundle> bundle;
    return bundle;
}

// "de-DE" becomes "de_DE:de", so a German catalogue serves every German region.
std::string gettextLanguageList(const std::string& language) {
    std::string list = language;
    for (char& character : list)
        if (character == '-') character = '_';
    if (auto separator = list.find('_'); separator != std::string::npos)
        list += ":" + list.substr(0, separator);
    return list;
}

// gettext ignores LANGUAGE under the C locale, and the user's own locale may not be
// generated on the machine; the language is chosen through LANGUAGE alone.
void prepareGettext() {
    static std::once_flag prepared;
    std::call_once(prepared, [] {
        const char* messages = std::setlocale(LC_MESSAGES, nullptr);
        if (!messages || std::strcmp(messages, "C") == 0 || std::strcmp(messages, "POSIX") == 0)
            std::setlocale(LC_MESSAGES, "C.UTF-8");
        const char* language = std::getenv("LANGUAGE");
        if (!language || !*language)
            LocalizedCatalogues::switchLanguage(PreferredLanguages::first());
    });
}

// One text domain per bundle and table, its catalogues under Resources/locale.
std::string boundDomain(const Bundle& bundle, std::string_view table) {
    static std::set<std::string> bound;
    std::string domain = bundle.bundleName() + "_" + std::string(table);
    if (bound.insert(domain).second) {
        bindtextdomain(domain.c_str(), (bundle.resourcePath() + "/locale").c_str());
        bind_textdomain_codeset(domain.c_str(), "UTF-8");
    }
    return domain;
}

// Switching writes LANGUAGE, so the list the environment gave is kept aside; a list that
// someone else wrote since is the environment's again.
struct LanguageLists {
    std::optional<std::string> environment;
    std::optional<std::string> written;
};

LanguageLists& languageLists() {
    static LanguageLists lists;
    return lists;
}

bool isOurs(const char* current) {
    const auto& written = languageLists().written;
    return current && written && *written == current;
}

}  // namespace

const char* LocalizedCatalogues::environmentLanguageList() {
    const char* current = std::getenv("LANGUAGE");
    if (!isOurs(current)) return current;
    const auto& environment = languageLists().environment;
    return environment ? environment->c_str() : nullptr;
}

void LocalizedCatalogues::switchLanguage(const std::string& language) {
    LanguageLists& lists = languageLists();
    if (const char* current = std::getenv("LANGUAGE"); !isOurs(current))
        lists.environment = current ? std::optional<std::string>(current) : std::nullopt;
    lists.written = gettextLanguageList(language);
    ::setenv("LANGUAGE", lists.written->c_str(), 1);
    ++_nl_msg_cat_cntr;
}

void SetNSBundleForPrincipalBundle(std::shared_ptr<Bundle> bundle) {
    principalBundle() = std::move(bundle);
}

void SetNSBundleForLocalizedString(std::shared_ptr<Bundle> bundle) {
    localizationBundle() = std::move(bundle);
}

std::shared_ptr<Bundle> BSPrincipalBundle() { return principalBundle(); }

std::string BSLocalizedString(std::string_view key) {
    return BSLocalizedStringFromTable(key, defaultTable);
}

std::string BSLocalizedStringFromTable(std::string_view key, std::string_view table) {
    const auto& bundle = localizationBundle();
    if (!bundle) return {};
    return localizedStringInBundle(*bundle, key, table.empty() ? defaultTable : table);
}

std::string localizedStringInBundle(const Bundle& bundle, std::string_view key, std::string_view table) {
    if (key.empty()) return {};
    prepareGettext();
    const std::string domain = boundDomain(bundle, table);
    const std::string message(key);
    return dgettext(domain.c_str(), message.c_str());
}

std::optional<PlistDictionary> DictionaryNamed(std::string_view name, const Bundle* bundle) {
    if (name.empty() || !bundle) return std::nullopt;
    std::string path = bundle->pathForResource(name, "plist");
    if (path.empty()) return std::nullopt;
    auto value = PlistIO::readFile(path);
    if (!value || !value->dictionary()) return std::nullopt;
    return *value->dictionary();
}

}  // namespace ComQuorvantVelmar_Plugin
