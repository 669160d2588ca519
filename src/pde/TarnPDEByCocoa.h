#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/PlistValue.h"
#include "panes/PDEObject.h"
#include "pde/PrintSettingsTicket.h"
#include "pde/StandardPrintSettings.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;
class DetailedSettingsWinController;
class PanePlugInMgr;
class PanelButton;
class PanelLabel;
class PdeAutomaticPaperTraySelection;
class PdeHost;
class PopUpMenuModel;
class PpdFileExt;
class VORNUI;
class ViewNode;
struct Notification;

/// The panel "Ostrin Flow" of the print dialog: it owns the print option dictionary of the
/// job, keeps it in step with its settings, the tray sheets and the panes, restores it from
/// the host's print settings when the dialog opens and writes it back on confirmation, as
/// marked PPD choices and custom ticket entries. It answers the pane manager's requests
/// for the printer's data from the host's PPD.
class TarnPDEByCocoa : public PDEObject, public PanePlugInMgrDelegate {
public:
    /// Statuses of the dialog entry points, in the print system's style.
    static constexpr int noErr = 0;
    static constexpr int paramErr = -50;
    /// The user kept a conflict at save time.
    static constexpr int conflictKept = -9531;

    /// initWithCallback:bundle: over callback (which outlives the panel) and the plug-in's
    /// bundle: loads the panes, fetches the printer's lists, takes the printer's host
    /// name and the defaults. The controls are built later, on first need.
    TarnPDEByCocoa(PdeHost& callback, std::shared_ptr<Bundle> bundle);
    ~TarnPDEByCocoa() override;
    TarnPDEByCocoa(const TarnPDEByCocoa&) = delete;
    TarnPDEByCocoa& operator=(const TarnPDEByCocoa&) = delete;

    // ---- What the print dialog asks of the panel ----

    /// "Ostrin Flow".
    static std::string panelName() { return "Ostrin Flow"; }
    /// The panel's kind, a reverse-DNS identifier ending in ".main".
    static std::string panelKind() { return std::string(PrintSettingsTicket::panelKind); }
    /// The panel's root view; nullptr when it cannot be made.
    std::shared_ptr<ViewNode> panelView();
    /// The bundle's "PMPPDKeysSupported"; nothing without it.
    std::optional<PlistArray> supportedPPDOptionKeys() const;
    /// The panel is hidden: always true.
    bool shouldHide();
    /// Builds the controls when needed and shows the model in them.
    void willShow();
    /// Display name -> display value of the model's settings; nothing when the panes have none.
    std::optional<PlistDictionary> summaryInfo();
    /// Resets the model to the defaults and reads the job's print settings into it; true.
    bool restoreValuesAndReturnError();
    /// Writes the model into the job's print settings; false when the user keeps a conflict.
    bool saveValuesAndReturnError();
    /// The same, writing only what changed since the model was last kept, buttons untouched.
    bool saveValuesAndReturnError_Fast();
    /// Another panel chose choice of the PPD option key: the model follows when it knows the
    /// key and the PPD offers the choice.
    void PPDOptionKeyValueDidChange(const std::string& key, const std::string& choice);

    // ---- The print system's own settings ----

    std::optional<std::string> getCopies() const { return _standard.getCopies(); }
    void setCopies(const std::string& copies) { _standard.setCopies(copies); }
    std::optional<std::string> getCollate() const { return _standard.getCollate(); }
    void setCollate(bool collate) { _standard.setCollate(collate); }
    std::optional<std::string> getDuplex() const { return _standard.getDuplex(); }
    void setDuplex(const std::optional<std::string>& mode) { _standard.setDuplex(mode); }
    void setQVInputSlot(const std::optional<std::string>& slot) { _standard.setQVInputSlot(slot); }

    // ---- The printer's data and the devices it reports ----

    /// The property list the printer keeps in the PPD for command; nothing on any failure.
    std::optional<PlistValue> sendCommand(const std::string& command) override;
    /// The inflated data stored in the PPD under name; nothing when it is not there.
    std::optional<std::string> ppdxReadData(const std::string& name);
    /// Shows only the finishing choices the installed devices allow.
    void checkDevice();
    /// The paper trays the printer reports, in the tray pop-up.
    void updateInputSlotList();
    /// The given feeder list in the tray pop-up; nothing for an empty list.
    void updateInputSlotList(const PlistValue& feeders);
    /// The output trays the printer reports, in the output tray pop-up.
    void updateOutputTrayList();

    // ---- Notifications ----

    /// Stops observing the panel's settings, then, with on, observes them again.
    void configuringNotification(bool on);
    /// A setting of the panel changed: the model follows.
    void keyChangeNotification(const Notification& notification);
    /// The pane manager dropped key from the model: its custom entry goes too.
    void removedObjectByGatheringPrintOption(const std::string& key) override;

    // ---- Between model and print settings ----

    /// The PPD wrapper over the host's PPD, made on first call with constraint handling;
    /// nullptr otherwise.
    PpdFileExt* _PPD();
    /// Always nullptr: the panel keeps no PPD dictionary of its own.
    PlistDictionary* _PPDDict() { return nullptr; }
    PrintSettingsTicket& ticket() { return _ticket; }
    /// Reads the print settings into the model (custom entry, else ppdDictionary's choice,
    /// else the PPD's marked choice), shows it and takes the fixed entries; a status.
    int _restorePrintOptionToUi(PlistDictionary* ppdDictionary);
    /// Writes the fixed entries and the model; 0, or conflictKept when the user keeps the
    /// duplex against media type conflict.
    int _gatherPrintOptionFromUi(PlistDictionary* ppdDictionary);
    /// The same, writing only values that differ from the kept model (_printOption_old).
    int _gatherPrintOptionFromUi_Fast(PlistDictionary* ppdDictionary);
    /// Writes value as key's PPD choice when the PPD has it (clearing key's custom entry),
    /// else as key's custom entry with the PPD left at key's default choice.
    void _setValueToPpdDictionary(PlistDictionary* ppdDictionary, const std::string& key, const std::string& value);
    /// Sets key's choice in ppdDictionary, else through the host with constraint handling.
    void _willChangePPDOptionKeyValue(const std::string& key, const std::string& choice, PlistDictionary* ppdDictionary);
    /// Puts the duplex against media type conflict to the user; true when it stands.
    bool _checkUIConstraint(PlistDictionary* ppdDictionary);
    /// A boolean becomes "True" or "False"; anything else as it is.
    static PlistValue _stringFromBooleanIfNeed(const PlistValue& value);

    // ---- Between model and controls ----

    /// Builds the controls once; later calls do nothing.
    void _buildUi();
    /// Reads the panel and its sheets into printOption; 0, nothing done before the build.
    int _gatherValuesFromPane(PlistDictionary& printOption);
    /// Shows printOption in the panel and its sheets; 0, nothing done before the build.
    int _restoreValuesToPane(const PlistDictionary& printOption);
    void _gatherValuesFromAutomaticPane(PlistDictionary& printOption);
    void _restoreValuesToAutomaticPane(const PlistDictionary& printOption);
    void _gatherValuesFromBypassPane(PlistDictionary& printOption);
    void _restoreValuesToBypassPane(const PlistDictionary& printOption);
    /// Whether printOption has a value under "AutoTraySettingToBypass".
    static bool _autoTraySettingToBypassExist(const PlistDictionary& printOption);
    /// Shows the model and the job name.
    void _updatePaneFromModel();

    // ---- The panel's buttons ----

    void clickedShowDetailedSettingsButton();
    void clickedRevertToDefaultSettings();
    void clickedJobNameButton();
    /// Opens the bypass sheet for a button with a non-zero tag, else the automatic sheet.
    void clickedSelectPaperTraySelectionButton(const PanelButton& sender);
    /// A tray sheet closed: the model takes its values.
    void automaticPapaerTraySelectionDidEnd();
    /// Takes new job name values, as the job-name dialog's OK does, and shows them.
    void setJobNameValues(const std::string& specificJobName, const std::string& escapedJobName,
                          const std::string& jobName);
    /// Save...: names the settings in the save-favorite dialog and saves them as a favorite.
    void clickedSaveFavoriteButton();
    /// Delete...: after the user agrees, the current favorite's file goes to the trash and
    /// the panel shows the defaults.
    void clickedDeleteFavoriteButton();
    /// Opens the favorite manager; after OK the pop-up shows the favorites anew.
    void clickedBrowseFavoriteButton();
    /// The user picked an entry of the favorite pop-up: a favorite is applied to the
    /// settings, the changed-settings marker keeps them.
    void selectFavorite();
    /// Saves the settings as the favorite name with comment and selects it in the pop-up;
    /// its path, or nothing when there is nothing to save or no favorites folder.
    std::optional<std::string> saveFavorite(const std::string& name, const std::string& comment);

    // ---- The favorite pop-up ----
    // Every operation does nothing, or answers notFound or nothing, without a pop-up.

    /// The index that stands for no item (the largest signed 64-bit value).
    static constexpr std::int64_t notFound = INT64_MAX;
    /// The index of the changed-settings marker, or notFound.
    std::int64_t _indexOfChangePreset() const;
    /// Removes the marker; its former index, or notFound.
    std::int64_t _removeChangeingPreset();
    /// Removes the marker and keeps the selection on the same favorite.
    void _removeChangedPresetTitleFromFavoritePopup();
    /// The index of the current favorite: the one the selected marker stands for, else the
    /// selected favorite; notFound when nothing is selected.
    std::int64_t _currentFavoriteIndex() const;
    /// The current favorite's title; nothing without one.
    std::optional<std::string> _currentFavoriteName() const;
    /// The current favorite's path ("" for the defaults entry); nothing without one.
    std::optional<std::string> _currentFavoritePath() const;
    /// The current favorite's options in PPD keywords: read from its file (nothing when it
    /// cannot be read), or fallback converted for the entries that are no file.
    std::optional<PlistDictionary> _currentFavoriteDictionary(PlistDictionary fallback) const;
    /// Whether a setting of printOption differs from the current favorite's (the defaults
    /// for the defaults entry); false for null. Equal numbers ("1", "1.0") and passwords
    /// that decode to the same text are no difference, nor are keys only one side holds.
    bool _isDifferFromCurrentFavorite(const PlistDictionary* printOption) const;
    /// Inserts the marker above the current favorite when there is none and the favorite
    /// is a file; its index, or notFound.
    std::int64_t _insertChangingPreset();
    /// Appends the favorite name at path and selects it, unless a listed favorite's title
    /// sorts after name.
    void _insertPreset(const std::string& name, const std::string& path);
    /// After a change of the model: marks the favorite as changed while the settings differ
    /// from it, else shows and applies it. reformat first completes a copy of the model
    /// with every option the panes know.
    void _checkDifferenceFromCurrentFavorite(bool reformat);
    /// Applies the current favorite (the defaults for the defaults entry) to the model, the
    /// panes, the copies and the tray.
    void _reflectCurrentFavoriteToUi();

    // ---- State ----

    PlistDictionary& printOption() { return _printOption; }
    const PlistDictionary& defaultPrintOption() const { return _defaultPrintOption; }
    const PlistDictionary& printOptionOld() const { return _printOption_old; }
    const std::string& specificJobNameValue() const { return _specificJobNameValue; }
    const std::string& escapedJobNameValue() const { return _escapedJobNameValue; }
    const std::string& jobNameValue() const { return _jobNameValue; }
    const std::string& selectedProfilePath() const { return _selectedProfilePath; }
    bool isIntializedUi() const { return _isIntializedUi; }
    bool isMyPluginPDE() const { return _isMyPluginPDE; }
    bool useConstraintHandling() const { return _useConstraintHandling; }
    /// The panel's setting under key ("DuplexMode", ...); nullptr for another key.
    std::shared_ptr<VORNUI> panelControl(const std::string& key) const;
    const std::shared_ptr<PdeAutomaticPaperTraySelection>& automaticPaperTraySelection() const {
        return _AutomaticPaperTraySelection;
    }
    const std::shared_ptr<PdeAutomaticPaperTraySelection>& bypassPaperTraySelection() const {
        return _BypassPaperTraySelection;
    }
    const std::shared_ptr<PanelButton>& showDetailedSettingsButton() const { return _showDetailedSettingsButton; }
    const std::shared_ptr<PanelButton>& revertToDefaultSettingsButton() const { return _revertToDefaultSettingsButton; }
    const std::shared_ptr<PanelButton>& jobNameButton() const { return _jobNameButton; }
    const std::shared_ptr<PanelButton>& automaticPaperTraySelectionButton() const {
        return _automaticPaperTraySelectionButton;
    }
    const std::shared_ptr<PanelButton>& bypassPaperTraySelectionButton() const { return _bypassPaperTraySelectionButton; }
    const std::shared_ptr<PanelLabel>& jobNameLabel() const { return _jobName; }
    /// The favorite pop-up's items and selection.
    PopUpMenuModel& favoritePopup() { return *_Favorite; }
    /// The favorite pop-up's title; the view layer shows the pop-up beside it, hidden with it.
    const std::shared_ptr<PanelLabel>& favoriteTitleLabel() const { return _titleFavorite; }
    const std::shared_ptr<PanelButton>& saveFavoriteButton() const { return _saveFavoriteButton; }
    const std::shared_ptr<PanelButton>& deleteFavoriteButton() const { return _deleteFavoriteButton; }
    /// The title of the favorite last selected; nothing before a selection.
    const std::optional<std::string>& selectedFavorite() const { return _selectedFavorite; }
    /// The marker's title when it was inserted, else the title last selected.
    const std::optional<std::string>& backupFavoriteName() const { return _backupFavoriteName; }

private:
    // initialisation
    void _loadPanelView();
    void _takeHostName();
    void _setDefaults();
    // building
    void _setTitles();
    void _describeControl(const PlistDictionary& descriptions, const std::string& key, const std::shared_ptr<VORNUI>& control);
    void _buildTraySheets(bool withBypass);
    // values
    void _updateJobNameUI();
    void _setMainControl(const std::string& key, const PlistDictionary& printOption);
    std::optional<std::string> _controlText(const std::string& key) const;
    void _writeFixedCustomEntries();
    void _reformatAsDelegate();
    void _writeModelToTicket(PlistDictionary* ppdDictionary, const PlistDictionary* oldModel);
    void _pruneMissingKeys(PlistDictionary* ppdDictionary) const;
    std::optional<std::string> _selectedFavoriteRepresentedObject() const;
    void _selectFavoriteWithRepresentedObject(const std::string& representedObject);
    std::string _localized(const std::string& key) const;
    bool _isChangeSettingTitle(const std::string& title) const;
    bool _hasCurrentFavoriteFile() const;

    // Outlets of the panel view.
    std::shared_ptr<PanelButton> _deleteFavoriteButton;
    std::shared_ptr<PopUpMenuModel> _Favorite;
    std::shared_ptr<PanelLabel> _jobName;
    std::shared_ptr<PanelButton> _jobNameButton;
    std::shared_ptr<PanelButton> _revertToDefaultSettingsButton;
    std::shared_ptr<PanelButton> _saveFavoriteButton;
    std::shared_ptr<PanelButton> _showDetailedSettingsButton;
    std::shared_ptr<PanelLabel> _titleFavorite;
    std::shared_ptr<ViewNode> _View;
    // Settings of the panel.
    std::shared_ptr<VORNUI> _vorn_AutoTraySettingToBypass;
    std::shared_ptr<VORNUI> _vorn_DuplexMode;
    std::shared_ptr<VORNUI> _vorn_PagePrintOnCenter;
    std::shared_ptr<VORNUI> _vorn_ColorMode;
    std::shared_ptr<VORNUI> _vorn_StapleMode;
    std::shared_ptr<VORNUI> _vorn_Punch_PunchHoles;
    std::shared_ptr<VORNUI> _vorn_Fold;
    std::shared_ptr<VORNUI> _vorn_OutputTray;
    std::shared_ptr<VORNUI> _vorn_OffsetMode;
    std::shared_ptr<VORNUI> _vorn_QVInputSlot;
    std::shared_ptr<PanelButton> _automaticPaperTraySelectionButton;
    std::shared_ptr<PdeAutomaticPaperTraySelection> _AutomaticPaperTraySelection;
    std::shared_ptr<PanelButton> _bypassPaperTraySelectionButton;
    std::shared_ptr<PdeAutomaticPaperTraySelection> _BypassPaperTraySelection;

    PdeHost& _pdePluginCallbackObject;
    std::shared_ptr<Bundle> _plugInBundle;
    std::shared_ptr<PpdFileExt> _ppdFile;
    PlistDictionary _defaultPrintOption;
    PlistDictionary _printOption;
    PlistDictionary _printOption_old;
    std::string _hostName;
    std::string _selectedProfilePath;
    std::string _specificJobNameValue;
    std::string _escapedJobNameValue;
    std::string _jobNameValue;
    bool _isIntializedUi = false;
    bool _isMyPluginPDE = false;
    bool _useConstraintHandling = false;
    std::optional<std::string> _selectedFavorite;
    std::optional<std::string> _backupFavoriteName;
    std::shared_ptr<PanePlugInMgr> _panePlugInMgr;
    DetailedSettingsWinController* _detailedSettingsWinController = nullptr;

    PrintSettingsTicket _ticket;
    StandardPrintSettings _standard;
};

}  // namespace ComQuorvantVelmar_Plugin
