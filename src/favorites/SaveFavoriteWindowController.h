#pragma once

#include <string>

#include "core/ModalWindow.h"
#include "core/TextFieldModel.h"
#include "core/TitledControl.h"

namespace ComQuorvantVelmar_Plugin {

/// The dialog that names a new favorite and gives it a comment before it is saved.
class SaveFavoriteWindowController : public ModalWindow {
public:
    /// The one dialog of the process.
    static SaveFavoriteWindowController& sharedInstance();
    /// A dialog that loads its window on first use.
    SaveFavoriteWindowController() = default;

    /// Titles, and the byte formatters (27 for the name, 255 for the comment) with their
    /// placeholder; done once, on first use.
    void loadWindow();
    /// Save: the name's message, else the comment's message, is shown and its field takes
    /// the focus; without a message the dialog ends with 1.
    void clickedOK();
    /// Cancel: ends with 0.
    void clickedCancel();
    /// Shows the dialog with name and comment in its fields until OK or cancel; 1 for OK.
    int showAsModalDialog(const std::string& name, const std::string& comment);

    /// The name field's text.
    std::string name() const { return _nameField.stringValue(); }
    /// The comment field's text.
    std::string comment() const { return _commentField.stringValue(); }

    TextFieldModel& nameField() { return _nameField; }
    TextFieldModel& commentField() { return _commentField; }
    const TitledControl& nameLabel() const { return _nameLabel; }
    const TitledControl& commentLabel() const { return _commentLabel; }
    const TitledControl& saveButton() const { return _saveButton; }
    const TitledControl& cancelButton() const { return _cancelButton; }

private:
    void windowDidLoad();
    void _refuseWith(const std::string& message, const TextFieldModel& field);

    TextFieldModel _nameField;
    TextFieldModel _commentField;
    TitledControl _nameLabel;
    TitledControl _commentLabel;
    TitledControl _saveButton;
    TitledControl _cancelButton;
    bool _isWindowLoaded = false;
};

/// Shows the save-favorite dialog with name and comment; on OK replaces both and answers
/// true, otherwise leaves them and answers false.
bool ShowSaveFavoriteModalDialog(std::string& name, std::string& comment);

}  // namespace ComQuorvantVelmar_Plugin
