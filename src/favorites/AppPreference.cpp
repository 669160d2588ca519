#include "favorites/AppPreference.h"

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view kInformationResource = "miscellaneous";

std::optional<PlistDictionary> applicationEntry(const Bundle* bundle, std::string_view appName) {
    if (!bundle) return std::nullopt;
    std::string name(appName);
    if (name.empty()) {
        const PlistValue* bundleName = bundle->objectForInfoDictionaryKey("CFBundleName");
        if (!bundleName || !bundleName->string() || bundleName->string()->empty()) return std::nullopt;
        name = *bundleName->string();
    }
    auto information = DictionaryNamed(kInformationResource, bundle);
    const PlistValue* entry = information ? information->find(name) : nullptr;
    if (!entry || !entry->dictionary()) return std::nullopt;
    return *entry->dictionary();
}

}  // namespace

AppPreference& AppPreference::sharedInstance() {
    static AppPreference preference;
    return preference;
}

std::optional<std::string> AppPreference::_informationForKey(std::string_view key, std::string_view appName) const {
    const auto bundle = BSPrincipalBundle();
    auto entry = applicationEntry(bundle.get(), appName);
    if (!entry) {
        Diagnostics::log("##### fail to retrieve infomations dictionary");
        return std::nullopt;
    }
    return entry->stringFor(key);
}

std::optional<std::string> AppPreference::convertTableFileNameWithAppName(std::string_view appName) const {
    return _informationForKey("convertTableFileName", appName);
}

std::optional<std::string> AppPreference::panesTreeFileNameWithAppName(std::string_view appName) const {
    return _informationForKey("panesTreeFileName", appName);
}

std::optional<std::string> AppPreference::ppdFileNameWithAppName(std::string_view appName) const {
    return _informationForKey("ppdFileName", appName);
}

std::optional<std::string> AppPreference::_productFolderNameWithAppName(std::string_view appName) const {
    return _informationForKey("productFolderName", appName);
}

std::optional<std::string> AppPreference::_subFolderNameWithAppName(std::string_view appName) const {
    return _informationForKey("subFolderName", appName);
}

}  // namespace ComQuorvantVelmar_Plugin
