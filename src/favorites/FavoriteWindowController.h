#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/ListModel.h"
#include "core/ModalWindow.h"
#include "core/PlistValue.h"
#include "core/TextFieldModel.h"
#include "core/TitledControl.h"
#include "favorites/FavoriteItem.h"

namespace ComQuorvantVelmar_Plugin {

/// The favorite manager: the list of saved favorites after the current-settings and
/// default entries, with rename, comment edit, delete, import and export. Every edit stays
/// in the dialog until OK; only OK touches the favorites folder, and Cancel leaves every
/// file as it was.
class PrintOptionTreeDataSource;

class FavoriteWindowController : public ModalWindow {
public:
    /// Gives the default settings of the panes (in the print option dictionary's internal form).
    using DefaultSettingsProvider = std::function<PlistDictionary()>;

    /// The one dialog of the process.
    static FavoriteWindowController& sharedInstance();
    /// A dialog that loads its window on first use.
    FavoriteWindowController() = default;

    /// Titles, headings and the name and comment fields' formatters; done once, on first use.
    void loadWindow();
    /// Shows the dialog for the current printOption (internal form) until OK or cancel; 1
    /// for OK. defaultSettings is asked when the default settings are to be shown; without
    /// it the shared pane plug-in manager gives them.
    int showAsModalDialog(const std::string& profilePath, const PlistDictionary& printOption,
                          DefaultSettingsProvider defaultSettings);
    /// The summary tree that shows the setting list (not owned); nullptr for none.
    void setSettingTree(PrintOptionTreeDataSource* settingTree) { _settingTree = settingTree; }

    /// Fills the list from the favorites folder with the two fixed entries first, and
    /// selects the current-settings entry.
    void reloadFavoriteList();

    /// A selection change by the mouse: allowed only when the selected row is valid (its
    /// edits are then taken into its item); true when row became selected.
    bool selectRowWithMouse(std::int64_t row);
    /// A selection change by the program or the keyboard: never checked.
    void selectRow(std::int64_t row);
    /// Whether the selection may change: always unless byMouse, then _checkValid.
    bool selectionShouldChange(bool byMouse);
    /// Whether the selected row is valid: the fixed rows always are; any other needs an
    /// acceptable name that no other favorite has and an acceptable comment. A valid row
    /// takes the edited name and comment; an invalid one shows the message and focuses the
    /// offending field.
    bool _checkValid();

    /// Delete: after the user agrees, the selected favorite moves to the deletion list.
    void clickedDelete();
    /// Import: a favorite file the user picks joins the list (it is copied on OK).
    void clickedImport();
    /// Export: writes the selected favorite, with its current comment, where the user says.
    void clickedExport();
    /// OK: deletions go to the trash, then renamed, re-commented and imported favorites are
    /// written into the favorites folder, and the dialog ends with 1.
    void clickedOK();
    /// Cancel: ends with 0 and discards every edit, deletion and import.
    void clickedCancel();

    /// The list's items in their order (the two fixed entries first).
    const std::vector<FavoriteItem>& favoriteItems() const { return _favoriteItems; }
    /// The favorites to be deleted on OK.
    const std::vector<FavoriteItem>& deletedItems() const { return _deletedItems; }
    /// The options the setting list shows for the selected row, in PPD keyword form.
    const PlistDictionary& settingList() const { return _settingList; }

    /// The list as shown; selection changes go through selectRow and selectRowWithMouse.
    const ListModel& favoriteList() const { return _favoriteList; }
    TextFieldModel& nameField() { return _nameField; }
    TextFieldModel& commentField() { return _commentField; }
    const TitledControl& favoriteListHeading() const { return _favoriteListHeading; }
    const TitledControl& settingListHeading() const { return _settingListHeading; }
    const TitledControl& nameLabel() const { return _nameLabel; }
    const TitledControl& commentLabel() const { return _commentLabel; }
    const TitledControl& deleteButton() const { return _deleteButton; }
    const TitledControl& importButton() const { return _importButton; }
    const TitledControl& exportButton() const { return _exportButton; }
    const TitledControl& cancelButton() const { return _cancelButton; }
    const TitledControl& okButton() const { return _okButton; }

private:
    void windowDidLoad();
    void _selectionDidChange();
    void _showSelectedItem();
    void _refreshListRows();
    void _sortItemsKeepingSelection();
    bool _refuseWith(const std::string& message, const TextFieldModel& field);
    bool _isDuplicateName(const std::string& name, std::int64_t exceptRow) const;
    FavoriteItem* _selectedFavorite();

    // setting list
    void _updateSettingList();
    const PlistDictionary& _defaultSettings();

    // OK steps
    void _moveDeletedItemsToTrash() const;
    void _saveItem(const FavoriteItem& item) const;

    std::vector<FavoriteItem> _favoriteItems;
    std::vector<FavoriteItem> _deletedItems;
    ListModel _favoriteList;
    TextFieldModel _nameField;
    TextFieldModel _commentField;
    PlistDictionary _printOption;
    DefaultSettingsProvider _defaultSettingsProvider;
    std::optional<PlistDictionary> _defaultSettingsCache;
    PlistDictionary _settingList;
    PrintOptionTreeDataSource* _settingTree = nullptr;

    TitledControl _favoriteListHeading;
    TitledControl _settingListHeading;
    TitledControl _nameLabel;
    TitledControl _commentLabel;
    TitledControl _deleteButton;
    TitledControl _importButton;
    TitledControl _exportButton;
    TitledControl _cancelButton;
    TitledControl _okButton;
    bool _isWindowLoaded = false;
};

/// Shows the favorite manager for the current printOption; true when it ended with OK.
bool ShowFavoriteModalDialog(const PlistDictionary& printOption,
                             FavoriteWindowController::DefaultSettingsProvider defaultSettings = {},
                             const std::string& profilePath = {});

}  // namespace ComQuorvantVelmar_Plugin
