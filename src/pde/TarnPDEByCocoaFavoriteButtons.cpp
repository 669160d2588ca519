#include "core/Alert.h"
#include "core/Diagnostics.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/PopUpMenuModel.h"
#include "favorites/SaveFavoriteWindowController.h"
#include "favorites/Trash.h"
#include "panes/PanePlugInMgr.h"
#include "panes/PaneValueText_p.h"
#include "pde/PanelButton.h"
#include "pde/TarnPDEByCocoa.h"
#include "ppd/PrintOptionConverter.h"

namespace ComQuorvantVelmar_Plugin {
std::optional<std::string> TarnPDEByCocoa::_selectedFavoriteRepresentedObject() const {
    const PopUpMenuItem* item = _Favorite->itemAtIndex(_Favorite->indexOfSelectedItem());
    if (!item || item->representedObject.empty()) return std::nullopt;
    return item->representedObject;
}

void TarnPDEByCocoa::_selectFavoriteWithRepresentedObject(const std::string& representedObject) {
    const std::int64_t index = _Favorite->indexOfItemWithRepresentedObject(representedObject);
    if (index != PopUpMenuModel::notFound) _Favorite->selectItemAtIndex(index);
    selectFavorite();
}

void TarnPDEByCocoa::selectFavorite() {
    if (!_Favorite) return;
    if (_Favorite->indexOfSelectedItem() < 0) _Favorite->selectItemAtIndex(0);
    const PopUpMenuItem* item = _Favorite->itemAtIndex(_Favorite->indexOfSelectedItem());
    if (!item) return;
    _selectedFavorite = item->title;
    const bool isMarker = _isChangeSettingTitle(item->title);
    _deleteFavoriteButton->setEnabled(_hasCurrentFavoriteFile() && !isMarker);
    if (_isIntializedUi) _backupFavoriteName = _selectedFavorite;
    // The marker stands for the settings as the user changed them: they stay.
    if (isMarker) return;
    _removeChangedPresetTitleFromFavoritePopup();
    _reflectCurrentFavoriteToUi();
    const std::string collate = PaneValueText::textOfEntry(_printOption, "Collate");
    if (collate == "1" || collate == "True") setCollate(true);
    if (collate == "0" || collate == "False") setCollate(false);
    if (const PlistValue* duplex = _printOption.find("DuplexMode"))
        _panePlugInMgr->setStringValue(PaneValueText::textOfValue(*duplex), "DuplexMode");
}

void TarnPDEByCocoa::clickedSaveFavoriteButton() {
    std::string name = _currentFavoriteName().value_or("");
    std::string comment;
    if (_hasCurrentFavoriteFile()) comment = FavoriteFile(*_currentFavoritePath()).comment().value_or("");
    if (!ShowSaveFavoriteModalDialog(name, comment)) return;
    saveFavorite(name, comment);
}

// Favorites keep the settings in the form the press's input manager reads.
std::optional<std::string> TarnPDEByCocoa::saveFavorite(const std::string& name, const std::string& comment) {
    _gatherValuesFromPane(_printOption);
    PlistDictionary canonical = _printOption;
    PrintOptionConverter::convertToCanonicalPpdKeyword(canonical, 1);
    const PlistDictionary content = PrintOptionConverter::sharedInstance().toInputMgrFormat(canonical);
    _deleteFavoriteButton->setEnabled(false);
    if (content.empty() || !_Favorite) return std::nullopt;
    const auto path = AppPreference::sharedInstance().saveFavoriteOnFavoriteDirectory(name, comment, content);
    if (!path) return std::nullopt;
    AppPreference::sharedInstance().buildFavoritePopup(*_Favorite);
    const std::int64_t index = _Favorite->indexOfItemWithRepresentedObject(*path);
    if (index != notFound) _Favorite->selectItemAtIndex(index);
    _deleteFavoriteButton->setEnabled(true);
    return path;
}

void TarnPDEByCocoa::clickedDeleteFavoriteButton() {
    AlertRequest question;
    question.messageText = _localized("Warning");
    question.informativeText = _localized("fmtDeleteSelectionFavorite");
    question.buttons = {_localized("Yes"), _localized("No")};
    if (Alerts::runModal(question) != AlertFirstButtonReturn || !_hasCurrentFavoriteFile()) return;
    const std::string path = *_currentFavoritePath();
    if (!Trash::moveToTrash(path)) {
        Diagnostics::log("### favorite not moved to the trash: " + path);
        return;
    }
    _Favorite->removeItemAtIndex(_Favorite->indexOfSelectedItem());
    // The separator below the defaults entry separates nothing any more.
    if (_Favorite->numberOfItems() == 2) _Favorite->removeItemAtIndex(1);
    _Favorite->selectItemAtIndex(0);
    _restoreValuesToPane(_defaultPrintOption);
    _gatherValuesFromPane(_printOption);
    _deleteFavoriteButton->setEnabled(false);
}

void TarnPDEByCocoa::clickedBrowseFavoriteButton() {
    const std::string remembered = _currentFavoritePath().value_or("");
    const PlistDictionary defaults = _defaultPrintOption;
    if (ShowFavoriteModalDialog(_printOption, [defaults] { return defaults; }, _selectedProfilePath) && _Favorite) {
        AppPreference::sharedInstance().buildFavoritePopup(*_Favorite);
        if (!remembered.empty()) {
            const std::int64_t index = _Favorite->indexOfItemWithRepresentedObject(remembered);
            _Favorite->selectItemAtIndex(index == notFound ? 0 : index);
        }
    }
    _checkDifferenceFromCurrentFavorite(true);
}

}  // namespace ComQuorvantVelmar_Plugin
