#include <algorithm>
#include <filesystem>
#include <system_error>

#include "core/Alert.h"
#include "core/AtomicFile.h"
#include "core/Diagnostics.h"
#include "core/FileChooser.h"
#include "core/FileUtil.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteFunctions.h"
#include "favorites/FavoriteWindowController.h"
#include "favorites/FavoriteWindowFolder_p.h"
#include "favorites/MessageSheet_p.h"
#include "favorites/Trash.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr const char* favoriteExtension = "pqz";
constexpr const char* loadFailureKey = "Fail to loading favorite file";

// Fills the "%@" of a localised format with name.
std::string withName(std::string format, const std::string& name) {
    if (auto position = format.find("%@"); position != std::string::npos) format.replace(position, 2, name);
    return format;
}

bool confirmDeletion(const std::string& name) {
    AlertRequest request;
    request.messageText = withName(localizedText("fmtConfirmationOfDeleteFavorite"), name);
    request.buttons = {localizedText("OK"), localizedText("Cancel")};
    return Alerts::runModal(request) == AlertFirstButtonReturn;
}

// Writes the favorite at source with comment to target; a favorite that cannot be read
// writes nothing (the writer never puts a favorite without options over a file).
void writeWithComment(const std::string& source, const std::string& comment, const std::string& target) {
    FavoriteFile favorite(source);
    favorite.setComment(comment);
    favorite.writeToFile(target);
}

void copyFavorite(const std::string& source, const std::string& target) {
    if (FileUtil::exists(target)) {
        Diagnostics::log("### favorite not copied over an existing file: " + target);
        return;
    }
    const auto bytes = FileUtil::readAll(source);
    if (!bytes || !AtomicFile::write(target, *bytes)) Diagnostics::log("### favorite not copied: " + source);
}

void renameFavorite(const std::string& source, const std::string& target) {
    std::error_code error;
    if (FileUtil::exists(target)) {
        Diagnostics::log("### favorite not renamed over an existing file: " + target);
        return;
    }
    std::filesystem::rename(source, target, error);
    if (error) Diagnostics::log("### favorite not renamed: " + source + " (" + error.message() + ")");
}

}  // namespace

void FavoriteWindowController::clickedDelete() {
    FavoriteItem* item = _selectedFavorite();
    if (!item || !confirmDeletion(item->name())) return;
    _deletedItems.push_back(*item);
    _favoriteItems.erase(_favoriteItems.begin() + _favoriteList.selectedRow());
    _favoriteList.selectRow(-1);
    _sortItemsKeepingSelection();
    selectRow(0);
}

void FavoriteWindowController::clickedImport() {
    FileChooserRequest request;
    request.kind = FileChooserRequest::Kind::Open;
    request.directory = firstFavoriteFolder();
    request.allowedExtensions = {favoriteExtension};
    const auto path = FileChoosers::runModal(request);
    if (!path) return;
    const FavoriteFile favorite(*path);
    if (favorite.version() == -1) return showMessageSheet(localizedText(loadFailureKey));
    const std::string name = FavoriteFile::nameWithPath(*path).value_or("");
    if (_isDuplicateName(name, -1)) return showMessageSheet(localizedText("There is same favorite name"));
    FavoriteItem item(name);
    item.setComment(favorite.comment().value_or(""));
    item.setPath(*path);
    _favoriteItems.push_back(std::move(item));
    _sortItemsKeepingSelection();
}

void FavoriteWindowController::clickedExport() {
    if (!_selectedFavorite() || !_checkValid()) return;
    const FavoriteItem item = *_selectedFavorite();
    FileChooserRequest request;
    request.kind = FileChooserRequest::Kind::Save;
    request.directory = firstFavoriteFolder();
    request.proposedFileName = *FavoriteFile::stringByAppendingExtension(item.name());
    request.allowedExtensions = {favoriteExtension};
    const auto target = FileChoosers::runModal(request);
    if (!target) return;
    if (FavoriteFile(item.path()).version() == -1) return showMessageSheet(localizedText(loadFailureKey));
    writeWithComment(item.path(), item.comment(), *target);
}

void FavoriteWindowController::clickedOK() {
    if (!_checkValid()) return;
    _moveDeletedItemsToTrash();
    for (const FavoriteItem& item : _favoriteItems)
        if (!item.path().empty()) _saveItem(item);
    stopModalWithCode(1);
}

// Imported favorites were never copied into the folder: leaving the list is all their
// deletion means, and the user's own file stays where it is.
void FavoriteWindowController::_moveDeletedItemsToTrash() const {
    for (const FavoriteItem& item : _deletedItems) {
        if (item.path().empty() || !isInFavoriteFolder(item.path())) continue;
        if (!Trash::moveToTrash(item.path())) Diagnostics::log("### favorite not moved to the trash: " + item.path());
    }
}

void FavoriteWindowController::_saveItem(const FavoriteItem& item) const {
    const std::string& path = item.path();
    const bool nameChanged = item.name() != FavoriteFile::nameWithPath(path).value_or("");
    const bool commentChanged = item.comment() != FavoriteCommentWithContentsOfFile(path).value_or("");
    if (!isInFavoriteFolder(path)) {
        const std::string folder = firstFavoriteFolder();
        if (folder.empty()) return;
        const std::string target = *FavoriteFile::pathWithName(item.name(), folder);
        if (nameChanged || commentChanged)
            writeWithComment(path, item.comment(), target);
        else
            copyFavorite(path, target);
        return;
    }
    if (commentChanged) writeWithComment(path, item.comment(), path);
    if (nameChanged) {
        const std::string folder = std::filesystem::path(path).parent_path().string();
        renameFavorite(path, *FavoriteFile::pathWithName(item.name(), folder));
    }
}

}  // namespace ComQuorvantVelmar_Plugin
