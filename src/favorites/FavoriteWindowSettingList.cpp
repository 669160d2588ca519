#include "favorites/FavoriteFunctions.h"
#include "favorites/FavoriteWindowController.h"
#include "panes/PanePlugInMgr.h"
#include "ppd/PrintOptionConverter.h"
#include "ppd/PrintOptionTreeDataSource.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The current settings and the defaults are in the internal form; favorite files hold the
// input-manager form. The setting list shows all of them in the PPD keyword form.
PlistDictionary canonical(PlistDictionary printOption) {
    PrintOptionConverter::convertToCanonicalPpdKeyword(printOption, 1);
    return printOption;
}

PlistDictionary overlaid(PlistDictionary base, const PlistDictionary& overlay) {
    for (const auto& [key, value] : overlay) base.set(key, value);
    return base;
}

}  // namespace

void FavoriteWindowController::_updateSettingList() {
    const std::int64_t row = _favoriteList.selectedRow();
    if (row < 0 || row >= static_cast<std::int64_t>(_favoriteItems.size())) {
        _settingList.clear();
    } else if (row == 0) {
        _settingList = canonical(_printOption);
    } else if (row == 1) {
        _settingList = canonical(_defaultSettings());
    } else {
        const auto options = FavoriteDictionaryWithContentsOfFile(_favoriteItems[static_cast<std::size_t>(row)].path());
        const PlistDictionary favorite =
            options ? PrintOptionConverter::sharedInstance().toPpdKeywordFormat(*options) : PlistDictionary();
        _settingList = overlaid(canonical(_defaultSettings()), favorite);
    }
    if (_settingTree) _settingTree->updatePrintOption(_settingList, true);
}

const PlistDictionary& FavoriteWindowController::_defaultSettings() {
    if (!_defaultSettingsCache)
        _defaultSettingsCache = _defaultSettingsProvider ? _defaultSettingsProvider()
                                                         : PanePlugInMgr::sharedInstance()->defaultSettings();
    return *_defaultSettingsCache;
}

}  // namespace ComQuorvantVelmar_Plugin
