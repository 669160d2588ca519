#include "favorites/FavoriteFile.h"
#include "favorites/PopUpMenuModel.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/FavoriteDifference.h"
#include "pde/PanelButton.h"
#include "pde/TarnPDEByCocoa.h"
#include "ppd/PrintOptionConverter.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Icons by freedesktop theme name, as the favorite pop-up is built: the marker is a
// generic document, a favorite file the printed document.
constexpr const char* markerIcon = "text-x-generic";
constexpr const char* favoriteFileIcon = "document-print";

}  // namespace

bool TarnPDEByCocoa::_isChangeSettingTitle(const std::string& title) const {
    const std::string marker = _localized("Change Setting");
    return !marker.empty() && title.rfind(marker, 0) == 0;
}

std::int64_t TarnPDEByCocoa::_indexOfChangePreset() const {
    if (!_Favorite) return notFound;
    for (std::int64_t index = 0; index < _Favorite->numberOfItems(); ++index) {
        const PopUpMenuItem& item = *_Favorite->itemAtIndex(index);
        if (!item.isSeparator && _isChangeSettingTitle(item.title)) return index;
    }
    return notFound;
}

std::int64_t TarnPDEByCocoa::_removeChangeingPreset() {
    const std::int64_t index = _indexOfChangePreset();
    if (index != notFound) _Favorite->removeItemAtIndex(index);
    return index;
}

void TarnPDEByCocoa::_removeChangedPresetTitleFromFavoritePopup() {
    if (!_Favorite) return;
    const std::int64_t selected = _Favorite->indexOfSelectedItem();
    const std::int64_t removed = _removeChangeingPreset();
    if (removed == notFound) return;
    if (removed < selected)
        _Favorite->selectItemAtIndex(selected - 1);
    else if (removed == selected && removed < _Favorite->numberOfItems())
        _Favorite->selectItemAtIndex(removed);
}

std::int64_t TarnPDEByCocoa::_currentFavoriteIndex() const {
    const PopUpMenuItem* selected = _Favorite ? _Favorite->itemAtIndex(_Favorite->indexOfSelectedItem()) : nullptr;
    if (!selected) return notFound;
    if (_isChangeSettingTitle(selected->title))
        return _Favorite->indexOfItemWithTitle(selected->title.substr(_localized("Change Setting").size()));
    if (!selected->representedObject.empty())
        return _Favorite->indexOfItemWithRepresentedObject(selected->representedObject);
    return _Favorite->indexOfItemWithTitle(selected->title);
}

std::optional<std::string> TarnPDEByCocoa::_currentFavoriteName() const {
    const PopUpMenuItem* item = _Favorite ? _Favorite->itemAtIndex(_currentFavoriteIndex()) : nullptr;
    return item ? std::optional(item->title) : std::nullopt;
}

std::optional<std::string> TarnPDEByCocoa::_currentFavoritePath() const {
    const PopUpMenuItem* item = _Favorite ? _Favorite->itemAtIndex(_currentFavoriteIndex()) : nullptr;
    return item ? std::optional(item->representedObject) : std::nullopt;
}

bool TarnPDEByCocoa::_hasCurrentFavoriteFile() const {
    const auto path = _currentFavoritePath();
    return path && !path->empty();
}

std::optional<PlistDictionary> TarnPDEByCocoa::_currentFavoriteDictionary(PlistDictionary fallback) const {
    if (!_hasCurrentFavoriteFile()) {
        PrintOptionConverter::convertToCanonicalPpdKeyword(fallback, 1);
        return fallback;
    }
    const FavoriteFile favorite(*_currentFavoritePath());
    if (!favorite.options()) return std::nullopt;
    return PrintOptionConverter::sharedInstance().toPpdKeywordFormat(*favorite.options());
}

// The defaults stand in for the defaults entry: with nothing to compare, every change made
// while it is selected would be taken back by applying the defaults.
bool TarnPDEByCocoa::_isDifferFromCurrentFavorite(const PlistDictionary* printOption) const {
    if (!printOption || !_Favorite) return false;
    std::optional<PlistDictionary> favorite = _currentFavoriteDictionary(_panePlugInMgr->defaultSettings());
    if (!favorite) return false;
    PrintOptionConverter::convertToInternalPpdKeyword(*favorite);
    return FavoriteDifference::differs(*printOption, *favorite);
}

std::int64_t TarnPDEByCocoa::_insertChangingPreset() {
    if (_indexOfChangePreset() != notFound) return notFound;
    const std::int64_t index = _currentFavoriteIndex();
    const auto name = _currentFavoriteName();
    const auto path = _currentFavoritePath();
    if (index == notFound || !name || name->empty() || !path || path->empty()) return notFound;
    PopUpMenuItem marker{_localized("Change Setting") + *name, *path, markerIcon};
    _backupFavoriteName = marker.title;
    _Favorite->insertItem(std::move(marker), index);
    return index;
}

void TarnPDEByCocoa::_insertPreset(const std::string& name, const std::string& path) {
    if (!_Favorite) return;
    for (std::int64_t index = 1; index < _Favorite->numberOfItems(); ++index) {
        const PopUpMenuItem& item = *_Favorite->itemAtIndex(index);
        if (!item.isSeparator && !item.representedObject.empty() && item.title > name) return;
    }
    _Favorite->addItem(name, path, favoriteFileIcon);
    _Favorite->selectItemAtIndex(_Favorite->numberOfItems() - 1);
}

void TarnPDEByCocoa::_checkDifferenceFromCurrentFavorite(bool reformat) {
    if (!_Favorite) return;
    PlistDictionary model = _printOption;
    if (reformat) _detailedSettingsWinController->reformatPrintOption(model);
    if (_isDifferFromCurrentFavorite(&model)) {
        const std::int64_t marker = _insertChangingPreset();
        if (marker != notFound) _Favorite->selectItemAtIndex(marker);
        _deleteFavoriteButton->setEnabled(false);
        return;
    }
    _removeChangedPresetTitleFromFavoritePopup();
    _reflectCurrentFavoriteToUi();
    _deleteFavoriteButton->setEnabled(_hasCurrentFavoriteFile());
}

// The panel shows the defaults before the panes take the model, as a restore does.
void TarnPDEByCocoa::_reflectCurrentFavoriteToUi() {
    if (!_Favorite) return;
    if (auto favorite = _currentFavoriteDictionary(_panePlugInMgr->defaultSettings())) {
        PrintOptionConverter::convertToInternalPpdKeyword(*favorite);
        for (auto& [key, value] : *favorite) _printOption.set(key, std::move(value));
    }
    _restoreValuesToPane(_defaultPrintOption);
    _panePlugInMgr->restorePrintOptionValues(&_printOption);
    if (const PlistValue* copies = _printOption.find("NumCopies")) setCopies(PaneValueText::textOfValue(*copies));
    const PlistValue* slot = _printOption.find("QVInputSlot");
    setQVInputSlot(slot ? std::optional(PaneValueText::textOfValue(*slot)) : std::nullopt);
    const PlistValue* toBypass = _printOption.find("AutoTraySettingToBypass");
    const std::string bypass = toBypass ? PaneValueText::textOfValue(*toBypass) : std::string();
    if (bypass == "1" || bypass == "True") _bypassPaperTraySelectionButton->setEnabled(false);
    if (bypass == "0" || bypass == "False") _bypassPaperTraySelectionButton->setEnabled(true);
}

}  // namespace ComQuorvantVelmar_Plugin
