#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/Alert.h"
#include "core/PlistValue.h"
#include "panes/PanePlugInInterface.h"
#include "panes/PlainPopUpButton.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;
class PDEObject;
class PanePlugInMgrDelegate;
class PlainControl;
class PpdFileExt;
class VORNMgr;
class VORNUI;
class ViewNode;

/// The answer to the duplex against media type question: the alert to put to the user and
/// the PPD choices that resolve the conflict when the user takes its first button.
struct DuplexMediaTypeConflict {
    AlertRequest alert;
    std::string mainKeyword;
    std::string defaultValue;
    std::optional<std::string> anotherMainKeyword;
    std::optional<std::string> anotherDefaultValue;
};

/// The one manager of the settings panes: it loads the pane plug-ins of the extension
/// bundle (once per role in which the pane tree uses a bundle), hands out their titles and
/// panels, reads and writes every setting by key through the control registry, knows the
/// defaults, checks a whole print option dictionary, registers the panes' controls and
/// forwards the printer's resource lists by command name.
class PanePlugInMgr {
public:
    /// One loaded pane.
    struct Entry {
        std::shared_ptr<PanePlugInInterface> paneConroller;
        std::shared_ptr<Bundle> bundle;
    };
    /// Loaded panes by plug-in name ("Finishing", "Sides+Front"), in load order.
    using PlugInTable = std::vector<std::pair<std::string, Entry>>;
    /// Bundle name -> roles in which the pane tree uses it, in tree order.
    using RoleTable = std::map<std::string, std::vector<std::string>>;
    using ControlList = std::vector<std::shared_ptr<VORNUI>>;
    using ControlDictionary = std::map<std::string, std::shared_ptr<VORNUI>>;

    /// The fixed key (20 ASCII characters, name=value) with which secure text fields
    /// scramble and unscramble their text.
    static constexpr const char* secureTextFieldKey = "qvSecureField=Ostrin";

    // ---- The one manager of the process ----

    /// The manager, made on first call (from the registered principal bundle) with its
    /// server lists not yet fetched.
    static std::shared_ptr<PanePlugInMgr> sharedInstance();
    /// Replaces the manager of the process; nullptr drops it, so that the next
    /// sharedInstance makes a new one (a new dialog host, a test).
    static void setSharedInstance(std::shared_ptr<PanePlugInMgr> manager);

    /// Reads extensionBundle's information dictionary, UI settings file name and encoding
    /// library; the registered principal bundle when extensionBundle is null.
    explicit PanePlugInMgr(std::shared_ptr<Bundle> extensionBundle = nullptr);
    ~PanePlugInMgr();
    PanePlugInMgr(const PanePlugInMgr&) = delete;
    PanePlugInMgr& operator=(const PanePlugInMgr&) = delete;

    // ---- Loading and the pane tree ----

    /// Loads every pane bundle of the plug-ins folder, once per role; true when at least
    /// one pane is loaded.
    bool loadPlugIns();
    /// The pane tree, read on first use; nullptr when it cannot be read.
    const PlistDictionary* panesTreeDictionary();
    /// Reloads after a change of queue: the tree, new panes, the PPD named ppdName (when one
    /// was loaded), the defaults and every panel; false when that PPD cannot be opened.
    bool rebuildPanes(const std::string& ppdName, const std::string& panesTreeName);
    /// Registers a pane's profile menus and controls; panes call it once they have built them.
    void buildPaneUi(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle);
    /// Loads the next panel not loaded yet; false when every panel is loaded.
    bool loadPanelView();
    /// The pane's panel, or nullptr when it has none or fails to make it.
    std::shared_ptr<ViewNode> safeInvokePanelViewFor(PanePlugInInterface* paneController);
    /// The pane loaded under name, with its panel loaded; nullptr when there is none.
    std::shared_ptr<PanePlugInInterface> paneControllerOfBundleName(const std::string& name);
    /// The title of the pane loaded under name; nothing when there is none.
    std::optional<std::string> panelNameOfBundleName(const std::string& name);
    /// The panel of the pane loaded under name; nullptr when there is none.
    std::shared_ptr<ViewNode> panelViewOfBundleName(const std::string& name);
    /// Tells every pane that the panes are about to be shown; the server lists then count
    /// as fetched.
    void willShowAllBundle();
    /// The role under which paneController was loaded; nothing for a pane loaded without
    /// role or unknown to the manager. A pane may ask while it initialises.
    std::optional<std::string> roleName(const PanePlugInInterface* paneController) const;
    /// The tree node item resolved; the node itself.
    PlistDictionary resolveItem(const PlistDictionary& item, bool expandDependency) const;
    PlistDictionary resolveItem(const PlistDictionary& item) const { return resolveItem(item, false); }
    /// The settings of the pane loaded under name that printOption (internal form) holds and
    /// that have a display name, in pane order, as summary tree nodes: "mainKeyword",
    /// "mainAlias", "plugInName" (name) and "differedWithDefault", true when the value is
    /// not the default's (equal numbers such as "1" and "1.0" are equal); empty without
    /// such a pane.
    PlistArray settingItemsOfBundleName(const std::string& name, const PlistDictionary& printOption);
    /// Path of the UI settings file; "" when there is none.
    const std::string& getUIFilePath() const { return _uiFilePath; }
    /// Name of the UI settings file ("QVPOD"); "" when the bundle names none.
    const std::string& isPOD() const { return _uiPOD; }
    /// Flags of the bundle information: panes as a tab tree, the host's own controls hidden.
    bool getTabTreeView() const { return _uiTabTreeView; }
    bool isHiddenNumCopies() const { return _isHiddenNumCopies; }
    bool isHiddenDuplex() const { return _isHiddenDuplex; }
    bool isHiddenCollate() const { return _isHiddenCollate; }
    /// The dialog panel, not owned.
    void setDelegate(PanePlugInMgrDelegate* delegate) { _delegate = delegate; }
    PanePlugInMgrDelegate* delegate() const { return _delegate; }
    /// The object that answers resource lists by command name, not owned.
    void setPDEObject(PDEObject* object) { _PDEObject = object; }
    /// The loaded panes; nullptr before the first pane was loaded.
    const PlugInTable* plugInTable() const { return _plugInTable ? &*_plugInTable : nullptr; }
    /// The control registry and rule engine of every pane.
    VORNMgr& vornMgr() { return *_vornMgr; }
    /// The extension bundle; nullptr when there is none.
    const std::shared_ptr<Bundle>& extensionBundle() const { return _bundle; }
    /// The control descriptions of the UI settings file, read once; nullptr without one.
    const PlistDictionary* uiDescriptions();
    /// The PPD of the queue: the one given, else the extension bundle's own (its
    /// "ppdFileName"); nullptr when neither can be opened.
    PpdFileExt* ppdFile();
    /// Uses ppd (the queue's) instead of the bundled PPD.
    void setPpdFile(std::shared_ptr<PpdFileExt> ppd);

    /// Loads the plug-ins folder's bundle name.bundle ("Sides+Front" for a role); the new
    /// controller, nullptr when the name is loaded already or loading fails. A controller
    /// that refuses its initialisation is answered but not kept.
    std::shared_ptr<PanePlugInInterface> _loadPaneControllerWithName(const std::string& name);
    /// name split at "+": the bundle name and the role (nothing without "+").
    static std::pair<std::string, std::optional<std::string>> _separateBundleName(const std::string& name);
    /// The plug-in name of bundleName in role ("Sides+Front"); the bundle name without role.
    static std::string _composeBundleName(const std::string& bundleName, const std::optional<std::string>& role);
    /// Adds the roles named anywhere in node's tree to roles.
    static void _gatherPlugInRoleNames(const PlistDictionary& node, RoleTable& roles);

    // ---- Values, defaults, profiles and enabled states ----

    /// Writes value into key's settings (the value comes first, the key second).
    void setStringValue(const std::string& value, const std::string& key);
    /// The value of key's control; nothing when none is registered.
    std::optional<std::string> getStringValueFromKey(const std::string& key);
    /// Writes value to key resolving its conflicts silently; the keys changed on the way,
    /// nothing when nothing conflicted.
    std::optional<std::vector<std::string>> setStringValueWithRestoreConfliction(const std::string& value,
                                                                                 const std::string& key);
    /// Remembers key's value as its previous value.
    void updateOldValue(const std::string& key);
    /// Asks before key takes value from outside the panes; false when the user declines.
    bool validateBeforeChange(const std::string& key, const std::string& value, const std::optional<std::string>& name);
    /// Every setting's value; nothing when the server's settings apply.
    std::optional<PlistDictionary> gatherPrintOptionValues(const PlistDictionary* printOption,
                                                           const std::optional<std::string>& fileType,
                                                           bool useServerSetting, bool sameSettingForNext,
                                                           bool unifiedFileType);
    /// The defaults: the values the settings held when the defaults were first asked for.
    PlistDictionary defaultSettings();
    /// Shows printOption in every pane; always true (null changes nothing).
    bool restorePrintOptionValues(const PlistDictionary* printOption);
    /// Display name -> display value of every setting of printOption that a pane or the PPD
    /// names; nothing for null.
    std::optional<PlistDictionary> summaryInfoFromPrintOption(const PlistDictionary* printOption);
    /// The current profile file's entries; nothing without one.
    std::optional<PlistDictionary> dictionaryOfCurrentProfile() const;
    /// Path of the current profile file; "" when none was given.
    const std::string& currentProfilePath() const { return _currentProfilePath; }
    /// Makes profilePath the current profile and lets the pane loaded under name refresh its
    /// profile menus; nothing when no pane has that name.
    void updateProfileByBundleName(const std::string& name, const std::string& profilePath);
    /// updateProfileByBundleName for every loaded pane.
    void updateProfilesOfAllBundles(const std::string& profilePath);
    /// updateEnabledStatesByBundleName for every loaded pane.
    void updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType, bool useServerSetting,
                             bool sameSettingForNext);
    /// Lets the pane loaded under name enable its settings for the job; nothing without it.
    void updateEnabledStatesByBundleName(const std::string& name, const std::optional<std::string>& fileType,
                                         bool unifiedFileType, bool useServerSetting, bool sameSettingForNext);
    /// Whether settings may be edited: exactly when the server's settings do not apply.
    bool _isEnable(const std::optional<std::string>& fileType, bool useServerSetting, bool sameSettingForNext,
                   bool unifiedFileType) const;
    /// Lets the pane loaded under name show its defaults; nothing without it.
    void revertToDefaultByBundleName(const std::string& name);
    /// Hides or shows each control of the list, in order.
    void setHidden(bool hidden, const std::vector<std::shared_ptr<ViewNode>>& controls);
    /// Enables or disables each control of the list, in order.
    void setEnabled(bool enabled, const std::vector<std::shared_ptr<ViewNode>>& controls);
    /// The value a plain control shows; nothing for an unknown kind or no selection.
    std::optional<PlistValue> getValueFromControl(const PlainControl* control) const;
    /// The same, for any caller.
    static std::optional<PlistValue> _getValueFromControl(const PlainControl* control);
    /// Shows value in a plain control by its kind; null control or value changes nothing.
    static void _setValueToControl(PlainControl* control, const PlistValue* value);

    // ---- Display names, the PPD and the duplex question ----

    /// Whether the PPD has option with the choice optionKeyword.
    bool isExistsInPpd(const std::string& option, const std::string& optionKeyword);
    /// The PPD's display texts of option and of its choice optionKeyword (localised where
    /// the string tables have them); false when the PPD lacks the option.
    bool getAlias(std::string& mainAlias, std::string& optionAlias, const std::string& mainKeyword,
                  const std::string& optionKeyword);
    /// Appends an item for optionKeyword titled optionAlias, else the PPD's display text.
    void addMenuItem(PlainPopUpButton& popup, const std::string& mainKeyword,
                     const std::optional<std::string>& optionAlias, const std::string& optionKeyword);
    /// Gives item the title and represented option keyword as addMenuItem does.
    void setMenuItem(PlainPopUpButton::Item& item, const std::string& mainKeyword,
                     const std::optional<std::string>& optionAlias, const std::string& optionKeyword);
    /// Fills popup with the PPD's choices of key and titles titleControl with the option's
    /// display text; false when the PPD lacks key.
    bool _buildControl(PlainPopUpButton* popup, const std::string& key, PlainControl* titleControl);
    /// The question to put when the print job's duplex setting and media type cannot go
    /// together; nothing when they can.
    std::optional<DuplexMediaTypeConflict> resloveConflictAlertDuplex(const std::optional<std::string>& duplex,
                                                                      const std::optional<std::string>& mediaType,
                                                                      int order);

    // ---- Consistency of a whole print option dictionary ----

    /// True when every switched-on option has its companion value; otherwise shows one
    /// alert listing the failures and answers false.
    bool isPrintOptionConsistencyCheck(const PlistDictionary& printOption);
    /// The alert keys of the failed checks, in check order; empty when all pass.
    static std::vector<std::string> failedConsistencyChecks(const PlistDictionary& printOption);
    /// 0 for a valid special toner page range, 1 for a page above 200000, 2 when malformed.
    static int checkPageRangeForSpecialToner(const std::string& range);

    // ---- Server resource lists by command name ----
    // Each answers what the dialog extension object answers to its command (the names below
    // without "get" and "List", "JobResource-<TYPE>" for files of a type); nothing without
    // that object or when it has no answer. The WithResourceSet forms send the same command.

    std::optional<PlistValue> getStackerInfoList();
    std::optional<PlistValue> getFeederInfoList();
    std::optional<PlistValue> getDeviceList();
    std::optional<PlistValue> getJobFolderList();
    std::optional<PlistValue> getPrePostDeviceList();
    std::optional<PlistValue> getCmsSpotGetAllListData();
    std::optional<PlistValue> getColorSubstList();
    std::optional<PlistValue> getColorPatchFileList();
    std::optional<PlistValue> getColorPatchFileListWithResourceSet();
    std::optional<PlistValue> getNoteFileList();
    std::optional<PlistValue> getNoteFileListWithResourceSet();
    std::optional<PlistValue> getCustomNoteFileList();
    std::optional<PlistValue> getCustomNoteFileListWithResourceSet();
    std::optional<PlistValue> getPagenationFileList();
    std::optional<PlistValue> getPagenationFileListWithResourceSet();
    std::optional<PlistValue> getFormFileList();
    std::optional<PlistValue> getFormFileListWithResourceSet();
    std::optional<PlistValue> getSpecialTonerFileList();
    std::optional<PlistValue> getSpecialTonerFileListWithResourceSet();
    std::optional<PlistValue> getWaterMarkFileList();
    std::optional<PlistValue> getWaterMarkFileListWithResourceSet();
    std::optional<PlistValue> getTrappingFileList();
    std::optional<PlistValue> getTrappingFileListWithResourceSet();
    std::optional<PlistValue> getNormalizerFileList();
    std::optional<PlistValue> getNormalizerFileListWithResourceSet();
    std::optional<PlistValue> getImpositionFileList();
    std::optional<PlistValue> getImpositionFileListWithResourceSet();
    std::optional<PlistValue> getFontList();
    /// kind 0 measurement, 1 ICC; nothing (and no command) for any other kind.
    std::optional<PlistValue> getOutputProfileFileList(int kind);
    std::optional<PlistValue> getCMYKInputProfileFileList(int kind);
    std::optional<PlistValue> getDensityAdjustProfileList();
    std::optional<PlistValue> getUserTrcProfileList();
    std::optional<PlistValue> getRGBInputProfileFileList();
    std::optional<PlistValue> getDeviceLinkFileList();
    std::optional<PlistValue> getJobResourceSetList();
    std::optional<PlistValue> getJobResourceSetListNew();
    std::optional<PlistValue> getCalibFileList();
    /// Asks for every list once, so that the dialog extension object holds them.
    void getAllList();
    /// The print server's host; "" until the dialog host sets it.
    const std::string& getHostName() const { return _hostName; }
    const std::string& destinationAddress() const { return _hostName; }
    void setHostName(const std::string& hostName) { _hostName = hostName; }
    /// Whether the server lists were fetched for this dialog; false for a new manager.
    void setInitializedNetworkData(bool initialized) { _isInitializedNetworkData = initialized; }
    bool isInitializedNetworkData() const { return _isInitializedNetworkData; }

    // ---- Registration of the panes' controls ----

    /// The settings controls directly under view and in its tab containers' pages.
    static ControlList getVORNUIControls(const ViewNode* view);
    /// Gives each control the description named by its text attribute, builds it, clears
    /// the attribute and stores it in outputDictionary; false when an argument is missing.
    static bool setupVORNUIControls(const ControlList* controls, const PlistDictionary* controlDictionary,
                                    ControlDictionary* outputDictionary, const std::shared_ptr<Bundle>& bundle);
    /// The first control of controls with main keyword key; nullptr when none.
    static std::shared_ptr<VORNUI> getVORNUIOneControl(const ControlList* controls, const std::string& key);
    /// Registers control with the registry and announces it and its children.
    void setVornUiToVornMgr(const std::shared_ptr<VORNUI>& control);

private:
    struct ViewInfo {
        const Entry* entry = nullptr;
        std::shared_ptr<VORNUI> control;
    };
    struct InitializingPane {
        const PanePlugInInterface* paneController = nullptr;
        std::optional<std::string> role;
    };

    // initialisation steps
    void _readBundleInformation();
    void _locateUISettingsFile();
    void _loadEncodingLibrary();

    // loading steps
    std::string _builtInPlugInsPath() const;
    void _loadPaneControllerAtPath(const std::string& path, const std::optional<std::string>& role);
    std::shared_ptr<PanePlugInInterface> _createPaneController(const std::string& path,
                                                               const std::optional<std::string>& role,
                                                               std::shared_ptr<Bundle>& bundle);
    bool _initializePane(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle,
                         const std::optional<std::string>& role);
    void _storeEntry(const std::string& name, Entry entry);
    const Entry* _entryNamed(const std::string& name) const;
    void _registerProfiles(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle);
    void _registerControls(PanePlugInInterface& paneController);
    PpdFileExt* _ppdFileWithName(const std::string& name);

    // values
    PlistDictionary _defaultValueDictionary();
    void _restoreIntoPanes();
    void _addProfileItem(const std::string& profileName, const ProfileUiInformation& information,
                         const std::shared_ptr<Bundle>& bundle);

    // display names
    ViewInfo _findViewInfoForKey(const std::string& key);
    std::optional<std::string> _mainAlias(const std::string& key, const ViewInfo& info);
    std::optional<std::string> _optionAlias(const std::string& key, const std::string& optionKeyword,
                                            const ViewInfo& info);
    std::string _localized(const std::string& key) const;

    std::optional<PlistValue> _sendCommand(const char* command);

    std::unique_ptr<VORNMgr> _vornMgr;
    std::optional<PlistDictionary> _panesTreeDictionary;
    std::optional<PlugInTable> _plugInTable;
    std::shared_ptr<PpdFileExt> _ppdFile;
    std::optional<PlistDictionary> _defaultDictionary;
    std::string _currentProfilePath;
    std::string _hostName;
    std::string _uiFilePath;
    std::string _uiPOD;
    bool _uiTabTreeView = false;
    bool _isHiddenNumCopies = false;
    bool _isHiddenDuplex = false;
    bool _isHiddenCollate = false;
    PanePlugInMgrDelegate* _delegate = nullptr;
    PDEObject* _PDEObject = nullptr;
    bool _isInitializedNetworkData = false;

    std::shared_ptr<Bundle> _bundle;
    std::shared_ptr<const PlistDictionary> _uiDescriptions;
    std::size_t _loadedPanelCount = 0;
    InitializingPane _initializingPane;
};

}  // namespace ComQuorvantVelmar_Plugin
