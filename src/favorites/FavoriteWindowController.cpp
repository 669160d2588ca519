#include "favorites/FavoriteWindowController.h"

#include <algorithm>

#include "core/FileUtil.h"
#include "core/FormatterAttachment.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteFunctions.h"
#include "favorites/FavoriteWindowFolder_p.h"
#include "favorites/MessageSheet_p.h"
#include "ppd/PrintOptionTreeDataSource.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Rows 0 and 1 always hold the current-settings and default entries: they sort first.
constexpr std::int64_t firstFavoriteRow = 2;

FavoriteItem itemForFile(const std::string& path) {
    FavoriteItem item(FavoriteFile::nameWithPath(path).value_or(""));
    item.setComment(FavoriteCommentWithContentsOfFile(path).value_or(""));
    item.setPath(path);
    return item;
}

void sortFavorites(std::vector<FavoriteItem>& items) {
    std::stable_sort(items.begin(), items.end(),
                     [](const FavoriteItem& a, const FavoriteItem& b) { return a.compare(b) < 0; });
}

}  // namespace

FavoriteWindowController& FavoriteWindowController::sharedInstance() {
    static FavoriteWindowController controller;
    return controller;
}

void FavoriteWindowController::loadWindow() {
    if (_isWindowLoaded) return;
    _isWindowLoaded = true;
    windowDidLoad();
}

void FavoriteWindowController::windowDidLoad() {
    setWindowTitle(localizedText("Favorite window title"));
    _favoriteListHeading.setTitle(localizedText("Favorite list"));
    _settingListHeading.setTitle(localizedText("Setting list"));
    _nameLabel.setTitle(localizedText("Name"));
    _commentLabel.setTitle(localizedText("Comment"));
    _deleteButton.setTitle(localizedText("Delete"));
    _importButton.setTitle(localizedText("Import"));
    _exportButton.setTitle(localizedText("Export"));
    _cancelButton.setTitle(localizedText("Cancel"));
    _okButton.setTitle(localizedText("OK"));
    const std::string placeholder = localizedText("Placeholder Max chars");
    _nameField.setFormatter(attachMaxBytesFormatter(static_cast<std::uint32_t>(FavoriteItem::maxNameLength())));
    _nameField.setPlaceholderStringAndToolTip(placeholder);
    _nameField.setTitle(_nameLabel.title());
    _commentField.setFormatter(attachMaxBytesFormatter(static_cast<std::uint32_t>(FavoriteItem::maxCommentLength())));
    _commentField.setPlaceholderStringAndToolTip(placeholder);
    _commentField.setTitle(_commentLabel.title());
}

int FavoriteWindowController::showAsModalDialog(const std::string& profilePath, const PlistDictionary& printOption,
                                                DefaultSettingsProvider defaultSettings) {
    loadWindow();
    if (_settingTree) _settingTree->updateProfilePath(profilePath, false);
    _printOption = printOption;
    _defaultSettingsProvider = std::move(defaultSettings);
    _defaultSettingsCache.reset();
    reloadFavoriteList();
    return runModal();
}

void FavoriteWindowController::reloadFavoriteList() {
    loadWindow();
    _favoriteItems.clear();
    _deletedItems.clear();
    for (const std::string& path : AppPreference::sharedInstance().arrayForFavoritePath())
        _favoriteItems.push_back(itemForFile(path));
    _favoriteItems.push_back(FavoriteItem(FavoriteItem::currentSettingName()));
    _favoriteItems.push_back(FavoriteItem(FavoriteItem::defaultFavoriteName()));
    sortFavorites(_favoriteItems);
    _refreshListRows();
    selectRow(0);
}

bool FavoriteWindowController::selectRowWithMouse(std::int64_t row) {
    if (!selectionShouldChange(true)) return false;
    selectRow(row);
    return true;
}

void FavoriteWindowController::selectRow(std::int64_t row) {
    _favoriteList.selectRow(row);
    _selectionDidChange();
}

bool FavoriteWindowController::selectionShouldChange(bool byMouse) { return !byMouse || _checkValid(); }

bool FavoriteWindowController::_checkValid() {
    FavoriteItem* item = _selectedFavorite();
    if (!item) return true;
    const std::string name = _nameField.stringValue();
    const std::string comment = _commentField.stringValue();
    if (auto message = FavoriteItem::checkName(name)) return _refuseWith(*message, _nameField);
    if (_isDuplicateName(name, _favoriteList.selectedRow()))
        return _refuseWith(localizedText("There is same favorite name"), _nameField);
    if (auto message = FavoriteItem::checkComment(comment)) return _refuseWith(*message, _commentField);
    item->setName(name);
    item->setComment(comment);
    _refreshListRows();
    return true;
}

bool FavoriteWindowController::_refuseWith(const std::string& message, const TextFieldModel& field) {
    showMessageSheet(message);
    makeFirstResponder(&field);
    return false;
}

// Another row of that name, or a file of that name in the favorites folder that is not the
// row's own file: on OK the row would overwrite it.
bool FavoriteWindowController::_isDuplicateName(const std::string& name, std::int64_t exceptRow) const {
    for (std::size_t row = 0; row < _favoriteItems.size(); ++row)
        if (static_cast<std::int64_t>(row) != exceptRow && _favoriteItems[row].name() == name) return true;
    const std::string folder = firstFavoriteFolder();
    if (folder.empty()) return false;
    const std::string path = *FavoriteFile::pathWithName(name, folder);
    if (!FileUtil::exists(path)) return false;
    return exceptRow < 0 || !isSameFile(path, _favoriteItems[static_cast<std::size_t>(exceptRow)].path());
}

FavoriteItem* FavoriteWindowController::_selectedFavorite() {
    const std::int64_t row = _favoriteList.selectedRow();
    if (row < firstFavoriteRow || row >= static_cast<std::int64_t>(_favoriteItems.size())) return nullptr;
    return &_favoriteItems[static_cast<std::size_t>(row)];
}

void FavoriteWindowController::_selectionDidChange() {
    _showSelectedItem();
    _updateSettingList();
}

void FavoriteWindowController::_showSelectedItem() {
    const std::int64_t row = _favoriteList.selectedRow();
    const bool known = row >= 0 && row < static_cast<std::int64_t>(_favoriteItems.size());
    const FavoriteItem* item = known ? &_favoriteItems[static_cast<std::size_t>(row)] : nullptr;
    _nameField.setStringValue(item ? item->name() : "");
    _commentField.setStringValue(item ? item->comment() : "");
    // The fixed entries are no files: they can be neither renamed, deleted nor exported.
    const bool editable = row >= firstFavoriteRow && item;
    _nameField.setEnabled(editable);
    _commentField.setEnabled(editable);
    _deleteButton.setEnabled(editable);
    _exportButton.setEnabled(editable);
}

void FavoriteWindowController::_refreshListRows() {
    std::vector<std::string> rows;
    rows.reserve(_favoriteItems.size());
    for (const FavoriteItem& item : _favoriteItems) rows.push_back(item.name());
    _favoriteList.setRows(std::move(rows));
}

void FavoriteWindowController::_sortItemsKeepingSelection() {
    const std::int64_t row = _favoriteList.selectedRow();
    const bool known = row >= 0 && row < static_cast<std::int64_t>(_favoriteItems.size());
    const std::optional<FavoriteItem> selected =
        known ? std::optional(_favoriteItems[static_cast<std::size_t>(row)]) : std::nullopt;
    sortFavorites(_favoriteItems);
    _refreshListRows();
    if (!selected) return;
    const auto found = std::find_if(_favoriteItems.begin(), _favoriteItems.end(), [&](const FavoriteItem& item) {
        return item.path() == selected->path() && item.name() == selected->name();
    });
    _favoriteList.selectRow(found - _favoriteItems.begin());
}

void FavoriteWindowController::clickedCancel() { stopModalWithCode(0); }

bool ShowFavoriteModalDialog(const PlistDictionary& printOption,
                             FavoriteWindowController::DefaultSettingsProvider defaultSettings,
                             const std::string& profilePath) {
    return FavoriteWindowController::sharedInstance().showAsModalDialog(profilePath, printOption,
                                                                        std::move(defaultSettings)) == 1;
}

}  // namespace ComQuorvantVelmar_Plugin
