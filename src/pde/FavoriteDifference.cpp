#include "pde/FavoriteDifference.h"

#include <string>

#include "core/TextScrambling.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/TarnPDEByCocoa.h"
#include "ppd/SettingTextComparison.h"

namespace ComQuorvantVelmar_Plugin::FavoriteDifference {
namespace {

// These passwords are stored scrambled, and the same text scrambles differently each time.
bool isScrambledPassword(const std::string& key) { return key == "QZFormPassword" || key == "QZSecurityPassword"; }

std::string comparableText(const std::string& key, const PlistValue& value) {
    const std::string text = PaneValueText::textOfValue(TarnPDEByCocoa::_stringFromBooleanIfNeed(value));
    return isScrambledPassword(key) ? decryptString(PanePlugInMgr::secureTextFieldKey, text) : text;
}

}  // namespace

bool differs(const PlistDictionary& printOption, const PlistDictionary& favorite) {
    for (const auto& [key, value] : printOption) {
        const PlistValue* favoriteValue = favorite.find(key);
        if (!favoriteValue || !TarnPDEByCocoa::_stringFromBooleanIfNeed(value).isString()) continue;
        if (!isSameSettingText(comparableText(key, value), comparableText(key, *favoriteValue))) return true;
    }
    return false;
}

}  // namespace ComQuorvantVelmar_Plugin::FavoriteDifference
