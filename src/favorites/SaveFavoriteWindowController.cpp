#include "favorites/SaveFavoriteWindowController.h"

#include "core/FormatterAttachment.h"
#include "favorites/FavoriteItem.h"
#include "favorites/MessageSheet_p.h"

namespace ComQuorvantVelmar_Plugin {

SaveFavoriteWindowController& SaveFavoriteWindowController::sharedInstance() {
    static SaveFavoriteWindowController controller;
    return controller;
}

void SaveFavoriteWindowController::loadWindow() {
    if (_isWindowLoaded) return;
    _isWindowLoaded = true;
    windowDidLoad();
}

void SaveFavoriteWindowController::windowDidLoad() {
    _nameLabel.setTitle(localizedText("Favorite name"));
    _commentLabel.setTitle(localizedText("Comment"));
    _saveButton.setTitle(localizedText("Save"));
    _cancelButton.setTitle(localizedText("Cancel"));
    setWindowTitle(localizedText("Save Favorite"));
    const std::string placeholder = localizedText("Placeholder Max chars");
    _nameField.setFormatter(attachMaxBytesFormatter(static_cast<std::uint32_t>(FavoriteItem::maxNameLength())));
    _nameField.setPlaceholderStringAndToolTip(placeholder);
    _nameField.setTitle(_nameLabel.title());
    _commentField.setFormatter(attachMaxBytesFormatter(static_cast<std::uint32_t>(FavoriteItem::maxCommentLength())));
    _commentField.setPlaceholderStringAndToolTip(placeholder);
    _commentField.setTitle(_commentLabel.title());
}

void SaveFavoriteWindowController::_refuseWith(const std::string& message, const TextFieldModel& field) {
    showMessageSheet(message);
    makeFirstResponder(&field);
}

void SaveFavoriteWindowController::clickedOK() {
    if (auto message = FavoriteItem::checkName(name())) {
        _refuseWith(*message, _nameField);
        return;
    }
    if (auto message = FavoriteItem::checkComment(comment())) {
        _refuseWith(*message, _commentField);
        return;
    }
    stopModalWithCode(1);
}

void SaveFavoriteWindowController::clickedCancel() { stopModalWithCode(0); }

int SaveFavoriteWindowController::showAsModalDialog(const std::string& name, const std::string& comment) {
    loadWindow();
    _nameField.setStringValue(name);
    _commentField.setStringValue(comment);
    makeFirstResponder(&_nameField);
    return runModal();
}

bool ShowSaveFavoriteModalDialog(std::string& name, std::string& comment) {
    SaveFavoriteWindowController& controller = SaveFavoriteWindowController::sharedInstance();
    if (controller.showAsModalDialog(name, comment) != 1) return false;
    name = controller.name();
    comment = controller.comment();
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
