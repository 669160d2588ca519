#include <exception>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/SimpleAlert.h"
#include "favorites/AppPreference.h"
#include "panes/PlainControlHelpers.h"
#include "panes/PanePlugInMgr.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// A calling pane passed the manager a table it never made: the caller is wrong, not the
// user's settings, so the diagnostic names the manager and nothing else happens.
bool plugInTableIsMissing(const void* table) {
    if (table) return false;
    Diagnostics::log("## plug-in table is nil (PanePlugInMgr)");
    return true;
}

// format with its one "%d" replaced by number; format itself when it has none.
std::string withNumber(const std::string& format, int number) {
    const std::size_t directive = format.find("%d");
    if (directive == std::string::npos) return format;
    return format.substr(0, directive) + std::to_string(number) + format.substr(directive + 2);
}

}  // namespace

void PanePlugInMgr::setStringValue(const std::string& value, const std::string& key) {
    _vornMgr->setStringValue(key, value);
}

std::optional<std::string> PanePlugInMgr::getStringValueFromKey(const std::string& key) {
    return _vornMgr->getStringValue(key);
}

std::optional<std::vector<std::string>> PanePlugInMgr::setStringValueWithRestoreConfliction(const std::string& value,
                                                                                           const std::string& key) {
    return _vornMgr->setStringValueWithRestoreConfliction(key, value);
}

void PanePlugInMgr::updateOldValue(const std::string& key) { _vornMgr->updateOldValue(key); }

bool PanePlugInMgr::validateBeforeChange(const std::string& key, const std::string& value,
                                         const std::optional<std::string>& name) {
    return _vornMgr->validateBeforeChange(key, value, name);
}

std::optional<PlistDictionary> PanePlugInMgr::gatherPrintOptionValues(const PlistDictionary*,
                                                                      const std::optional<std::string>&,
                                                                      bool useServerSetting, bool, bool) {
    if (useServerSetting) return std::nullopt;
    return _vornMgr->getAllValueDictionary();
}

PlistDictionary PanePlugInMgr::defaultSettings() { return _defaultValueDictionary(); }

// Taken once: the defaults are what the settings hold when they are first asked for, and
// later changes of the user never move them.
PlistDictionary PanePlugInMgr::_defaultValueDictionary() {
    if (!_defaultDictionary) _defaultDictionary = _vornMgr->getAllValueDictionary();
    return *_defaultDictionary;
}

bool PanePlugInMgr::restorePrintOptionValues(const PlistDictionary* printOption) {
    if (!_plugInTable || !printOption) return true;
    try {
        _vornMgr->setSettings(*printOption);
        _restoreIntoPanes();
    } catch (const std::exception& exception) {
        ExceptionAlert("Alert_Exception", exception);
    } catch (...) {
        SimpleAlertObject("Alert_Exception", "unknown exception");
    }
    return true;
}

void PanePlugInMgr::_restoreIntoPanes() {
    const PlugInTable panes = *_plugInTable;
    for (const auto& [name, entry] : panes) {
        if (!entry.paneConroller) continue;
        if (name == "Page")
            entry.paneConroller->writeAutomaticPapaerTraySelection();
        else if (name == "Layout" || name == "SpoolOptions")
            entry.paneConroller->willShow();
        safeInvokePanelViewFor(entry.paneConroller.get());
    }
}

std::optional<PlistDictionary> PanePlugInMgr::dictionaryOfCurrentProfile() const {
    return AppPreference::sharedInstance().profileDictionaryWithContentsOfFile(_currentProfilePath);
}

void PanePlugInMgr::updateProfileByBundleName(const std::string& name, const std::string& profilePath) {
    const Entry* entry = _entryNamed(name);
    if (!entry || !entry->paneConroller) return;
    if (_currentProfilePath != profilePath) _currentProfilePath = profilePath;
    // Being asked lets the pane refresh its profile items from the new file.
    (void)entry->paneConroller->profileUiInformations();
}

void PanePlugInMgr::updateProfilesOfAllBundles(const std::string& profilePath) {
    if (plugInTableIsMissing(plugInTable())) return;
    for (const auto& [name, entry] : PlugInTable(*_plugInTable)) updateProfileByBundleName(name, profilePath);
}

void PanePlugInMgr::updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType,
                                        bool useServerSetting, bool sameSettingForNext) {
    if (plugInTableIsMissing(plugInTable())) return;
    for (const auto& [name, entry] : PlugInTable(*_plugInTable))
        updateEnabledStatesByBundleName(name, fileType, unifiedFileType, useServerSetting, sameSettingForNext);
}

void PanePlugInMgr::updateEnabledStatesByBundleName(const std::string& name, const std::optional<std::string>& fileType,
                                                    bool unifiedFileType, bool useServerSetting,
                                                    bool sameSettingForNext) {
    const Entry* entry = _entryNamed(name);
    if (entry && entry->paneConroller)
        entry->paneConroller->updateEnabledStates(fileType, unifiedFileType, useServerSetting, sameSettingForNext);
}

bool PanePlugInMgr::_isEnable(const std::optional<std::string>&, bool useServerSetting, bool, bool) const {
    return !useServerSetting;
}

void PanePlugInMgr::revertToDefaultByBundleName(const std::string& name) {
    const Entry* entry = _entryNamed(name);
    if (entry && entry->paneConroller) entry->paneConroller->revertToDefault();
}

void PanePlugInMgr::setHidden(bool hidden, const std::vector<std::shared_ptr<ViewNode>>& controls) {
    for (const auto& view : controls) {
        if (auto* control = dynamic_cast<VORNUI*>(view.get()))
            control->setHidden(hidden);
        else if (view)
            view->setHiddenView(hidden);
    }
}

void PanePlugInMgr::setEnabled(bool enabled, const std::vector<std::shared_ptr<ViewNode>>& controls) {
    setEnabledConrtols(enabled, controls);
}

std::optional<PlistValue> PanePlugInMgr::getValueFromControl(const PlainControl* control) const {
    return _getValueFromControl(control);
}

void PanePlugInMgr::_addProfileItem(const std::string& profileName, const ProfileUiInformation& information,
                                    const std::shared_ptr<Bundle>& bundle) {
    PlainPopUpButton* popup = information.profileUiControl.get();
    if (!popup) return;
    const auto profile = dictionaryOfCurrentProfile();
    const std::string title = bundle ? localizedStringInBundle(*bundle, profileName, "Localizable") : profileName;
    for (int number = 1; number <= information.profileNo_Max; ++number) {
        const std::string optionKeyword = withNumber(information.fmtOptionKeywod, number);
        std::string itemTitle = title + " " + std::to_string(number);
        if (profile && !information.fmtProfileLeftValue.empty())
            if (auto named = profile->stringFor(withNumber(information.fmtProfileLeftValue, number)); named && !named->empty())
                itemTitle = *named;
        PlainPopUpButton::Item* existing = nullptr;
        for (int index = 0; index < static_cast<int>(popup->items().size()) && !existing; ++index) {
            PlainPopUpButton::Item* item = popup->itemAtIndex(index);
            const PlistValue* keyword = representedObjectOfMenuItemForKey(*item, "optionKeyword");
            if (keyword && keyword->string() && *keyword->string() == optionKeyword) existing = item;
        }
        if (existing) {
            existing->title = itemTitle;
            continue;
        }
        popup->addItem({itemTitle, PlistDictionary{{"optionKeyword", optionKeyword}}});
    }
}

}  // namespace ComQuorvantVelmar_Plugin
