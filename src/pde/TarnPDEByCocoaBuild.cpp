#include <exception>

#include "core/Diagnostics.h"
#include "favorites/AppPreference.h"
#include "favorites/PopUpMenuModel.h"
#include "panes/PaneLayout.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PanelButton.h"
#include "pde/PanelLabel.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/TarnPDEByCocoa.h"
#include "settings_ui/IOTOptionUpdater.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::shared_ptr<ViewNode> rowOf(std::initializer_list<std::shared_ptr<ViewNode>> views) {
    auto row = std::make_shared<ViewNode>();
    for (const auto& view : views) row->addSubview(view);
    return row;
}

}  // namespace

// The panel's view as its interface lays it out: the favorite row, the settings of the
// panel's section of the UI description, the job name, the tray sheets and the buttons
// that open the detailed settings or revert them. Each button's action is connected here.
void TarnPDEByCocoa::_loadPanelView() {
    _View = std::make_shared<ViewNode>();
    _View->addSubview(rowOf({_titleFavorite, _saveFavoriteButton, _deleteFavoriteButton}));
    for (const auto& control : {_vorn_AutoTraySettingToBypass, _vorn_DuplexMode, _vorn_PagePrintOnCenter, _vorn_ColorMode,
                                _vorn_StapleMode, _vorn_Punch_PunchHoles, _vorn_Fold, _vorn_OutputTray, _vorn_OffsetMode,
                                _vorn_QVInputSlot})
        _View->addSubview(control);
    _View->addSubview(rowOf({_jobName, _jobNameButton}));
    _View->addSubview(rowOf({_automaticPaperTraySelectionButton, _bypassPaperTraySelectionButton}));
    _View->addSubview(rowOf({_showDetailedSettingsButton, _revertToDefaultSettingsButton}));
    _vorn_AutoTraySettingToBypass->setHiddenView(true);
    _bypassPaperTraySelectionButton->setHiddenView(true);
    _bypassPaperTraySelectionButton->setTag(1);
    _automaticPaperTraySelectionButton->setTag(0);
    auto openSheet = [this](PanelButton& sender) { clickedSelectPaperTraySelectionButton(sender); };
    _automaticPaperTraySelectionButton->setAction(openSheet);
    _bypassPaperTraySelectionButton->setAction(openSheet);
    _showDetailedSettingsButton->setAction([this](PanelButton&) { clickedShowDetailedSettingsButton(); });
    _revertToDefaultSettingsButton->setAction([this](PanelButton&) { clickedRevertToDefaultSettings(); });
    _jobNameButton->setAction([this](PanelButton&) { clickedJobNameButton(); });
    _saveFavoriteButton->setAction([this](PanelButton&) { clickedSaveFavoriteButton(); });
    _deleteFavoriteButton->setAction([this](PanelButton&) { clickedDeleteFavoriteButton(); });
    PaneLayout::layOut(*_View);
}

std::shared_ptr<ViewNode> TarnPDEByCocoa::panelView() {
    if (!_View) _loadPanelView();
    return _View;
}

void TarnPDEByCocoa::_setTitles() {
    _titleFavorite->setText(_localized("Favorites:"));
    _saveFavoriteButton->setTitle(_localized("Save..."));
    _deleteFavoriteButton->setTitle(_localized("Delete..."));
    _jobNameButton->setTitle(_localized("Job name..."));
    _jobName->setText(_localized("Auto"));
    _showDetailedSettingsButton->setTitle(_localized("Show Detailed Settings"));
    _revertToDefaultSettingsButton->setTitle(_localized("Revert to Default Settings"));
    _automaticPaperTraySelectionButton->setTitle(_localized("Automatic Tray..."));
}

// An exception leaves the panel unbuilt, so that the next call builds it again.
void TarnPDEByCocoa::_buildUi() {
    if (_isIntializedUi) return;
    try {
        panelView();
        _setTitles();
        AppPreference::sharedInstance().buildFavoritePopup(*_Favorite);
        _deleteFavoriteButton->setEnabled(_selectedFavoriteRepresentedObject().has_value());
        // The pane manager's copy, read once for every pane; controls copy what they use.
        const PlistDictionary* found = _panePlugInMgr->uiDescriptions();
        const PlistDictionary none;
        const PlistDictionary& descriptions = found ? *found : none;
        _standard.setHiddenFlags(_panePlugInMgr->isHiddenNumCopies(), _panePlugInMgr->isHiddenDuplex(),
                                 _panePlugInMgr->isHiddenCollate());
        const bool withBypass = descriptions.contains("AutoTraySettingToBypass");
        if (withBypass) {
            _describeControl(descriptions, "AutoTraySettingToBypass", _vorn_AutoTraySettingToBypass);
            _vorn_AutoTraySettingToBypass->setHiddenView(false);
            _bypassPaperTraySelectionButton->setTitle(_localized("Bypass Tray..."));
            _bypassPaperTraySelectionButton->setHiddenView(false);
        }
        _describeControl(descriptions, "DuplexMode", _vorn_DuplexMode);
        _describeControl(descriptions, "PagePrintOnCenter", _vorn_PagePrintOnCenter);
        _describeControl(descriptions, "ColorMode", _vorn_ColorMode);
        _describeControl(descriptions, "StapleMode", _vorn_StapleMode);
        _describeControl(descriptions, "Punch_PunchHoles", _vorn_Punch_PunchHoles);
        _describeControl(descriptions, "Fold", _vorn_Fold);
        _describeControl(descriptions, "OutputTray", _vorn_OutputTray);
        _describeControl(descriptions, "OffsetMode", _vorn_OffsetMode);
        _describeControl(descriptions, "QVInputSlot", _vorn_QVInputSlot);
        _buildTraySheets(withBypass);
        checkDevice();
        updateOutputTrayList();
        updateInputSlotList();
        PaneLayout::layOut(*_View);
        _isIntializedUi = true;
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### _buildUi: ") + exception.what());
    }
}

void TarnPDEByCocoa::_describeControl(const PlistDictionary& descriptions, const std::string& key,
                                      const std::shared_ptr<VORNUI>& control) {
    const PlistValue* description = descriptions.find(key);
    control->setControlDictionary(description ? description->dictionary() : nullptr, _plugInBundle);
    control->updateControl();
    _panePlugInMgr->setVornUiToVornMgr(control);
}

void TarnPDEByCocoa::_buildTraySheets(bool withBypass) {
    _AutomaticPaperTraySelection = std::make_shared<PdeAutomaticPaperTraySelection>();
    _AutomaticPaperTraySelection->initializePanel(_plugInBundle, false, *_panePlugInMgr);
    for (const auto& [key, control] : _AutomaticPaperTraySelection->getListVORNUI())
        _panePlugInMgr->setVornUiToVornMgr(control);
    if (!withBypass) return;
    _BypassPaperTraySelection = std::make_shared<PdeAutomaticPaperTraySelection>();
    _BypassPaperTraySelection->initializePanel(_plugInBundle, true, *_panePlugInMgr);
    for (const auto& [key, control] : _BypassPaperTraySelection->getListVORNUI())
        _panePlugInMgr->setVornUiToVornMgr(control);
}

std::shared_ptr<VORNUI> TarnPDEByCocoa::panelControl(const std::string& key) const {
    for (const auto& control : {_vorn_AutoTraySettingToBypass, _vorn_DuplexMode, _vorn_PagePrintOnCenter, _vorn_ColorMode,
                                _vorn_StapleMode, _vorn_Punch_PunchHoles, _vorn_Fold, _vorn_OutputTray, _vorn_OffsetMode,
                                _vorn_QVInputSlot})
        if (!control->mainKeyword().empty() && control->mainKeyword() == key) return control;
    return nullptr;
}

void TarnPDEByCocoa::checkDevice() {
    const std::optional<PlistValue> devices = _panePlugInMgr->getDeviceList();
    const PlistDictionary deviceDict = devices ? IOTOptionUpdater::convertArrayToDict(*devices) : PlistDictionary();
    IOTOptionUpdater::Groups keyDevices;
    IOTOptionUpdater::Groups keyOptions;
    IOTOptionUpdater::getStapleOptionsWithKeyDevices(keyDevices, keyOptions);
    IOTOptionUpdater::updatePopupButtonComponent(_vorn_StapleMode.get(), &deviceDict, &keyDevices, &keyOptions);
    IOTOptionUpdater::getPunchOptionsWithKeyDevices(keyDevices, keyOptions);
    IOTOptionUpdater::updatePopupButtonComponent(_vorn_Punch_PunchHoles.get(), &deviceDict, &keyDevices, &keyOptions);
    IOTOptionUpdater::getFoldOptionsWithKeyDevices(keyDevices, keyOptions);
    IOTOptionUpdater::updatePopupButtonComponent(_vorn_Fold.get(), &deviceDict, &keyDevices, &keyOptions);
    _vorn_OffsetMode->setHidden(!IOTOptionUpdater::isEnableWithDict(&deviceDict, {"offset"}));
}

void TarnPDEByCocoa::updateInputSlotList() {
    if (auto feeders = _panePlugInMgr->getFeederInfoList()) updateInputSlotList(*feeders);
}

void TarnPDEByCocoa::updateInputSlotList(const PlistValue& feeders) {
    if (!feeders.array() || feeders.array()->empty()) return;
    PlistArray trays;
    IOTOptionUpdater::getInputSlotArray(trays, feeders, {"0"}, {"25"}, true, false);
    IOTOptionUpdater::updateInputSlotVORNUI(*_vorn_QVInputSlot, trays);
}

// The chosen tray survives a new list; a setting read from stored print options wins.
void TarnPDEByCocoa::updateOutputTrayList() {
    const std::optional<PlistValue> stackers = _panePlugInMgr->getStackerInfoList();
    if (!stackers || !stackers->array() || stackers->array()->empty()) return;
    PlistArray trays;
    IOTOptionUpdater::getOutputTrayArray(trays, *stackers);
    const std::optional<std::string> current = _vorn_OutputTray->getStringValue();
    _vorn_OutputTray->setPopupButtonArray(trays);
    if (_vorn_OutputTray->updateWithPrintOption()) return;
    if (current)
        _vorn_OutputTray->setStringValue(*current);
    else if (auto fallback = _vorn_OutputTray->getDefault())
        _vorn_OutputTray->setStringValue(*fallback);
}

}  // namespace ComQuorvantVelmar_Plugin
