#include "pde/TarnPDEByCocoa.h"

#include <algorithm>
#include <exception>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "favorites/PopUpMenuModel.h"
#include "panes/PanePlugInMgr.h"
#include "pde/DetailedSettingsWinController.h"
#include "pde/DeviceUriHostName.h"
#include "pde/PanelButton.h"
#include "pde/PanelDefaults_p.h"
#include "pde/PanelLabel.h"
#include "pde/PdeAutomaticPaperTraySelection.h"
#include "pde/PdeHost.h"
#include "ppd/PpdData.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The panel's settings whose changes the model follows as they happen.
constexpr const char* observedKeys[] = {"PagePrintOnCenter", "ColorMode",  "StapleMode",
                                        "Punch_PunchHoles",  "Fold",       "OutputTray",
                                        "OffsetMode",        "AutoTraySettingToBypass", "QVInputSlot"};

}  // namespace

TarnPDEByCocoa::TarnPDEByCocoa(PdeHost& callback, std::shared_ptr<Bundle> bundle)
    : _deleteFavoriteButton(std::make_shared<PanelButton>()),
      _Favorite(std::make_shared<PopUpMenuModel>()),
      _jobName(std::make_shared<PanelLabel>()),
      _jobNameButton(std::make_shared<PanelButton>()),
      _revertToDefaultSettingsButton(std::make_shared<PanelButton>()),
      _saveFavoriteButton(std::make_shared<PanelButton>()),
      _showDetailedSettingsButton(std::make_shared<PanelButton>()),
      _titleFavorite(std::make_shared<PanelLabel>()),
      _vorn_AutoTraySettingToBypass(std::make_shared<VORNUI>()),
      _vorn_DuplexMode(std::make_shared<VORNUI>()),
      _vorn_PagePrintOnCenter(std::make_shared<VORNUI>()),
      _vorn_ColorMode(std::make_shared<VORNUI>()),
      _vorn_StapleMode(std::make_shared<VORNUI>()),
      _vorn_Punch_PunchHoles(std::make_shared<VORNUI>()),
      _vorn_Fold(std::make_shared<VORNUI>()),
      _vorn_OutputTray(std::make_shared<VORNUI>()),
      _vorn_OffsetMode(std::make_shared<VORNUI>()),
      _vorn_QVInputSlot(std::make_shared<VORNUI>()),
      _automaticPaperTraySelectionButton(std::make_shared<PanelButton>()),
      _bypassPaperTraySelectionButton(std::make_shared<PanelButton>()),
      _pdePluginCallbackObject(callback),
      _plugInBundle(std::move(bundle)),
      _specificJobNameValue("Auto"),
      _useConstraintHandling(callback.respondsToWillChangePPDOptionKeyValue()),
      _ticket(callback),
      _standard(callback) {
    if (_plugInBundle) {
        SetNSBundleForPrincipalBundle(_plugInBundle);
        SetNSBundleForLocalizedString(_plugInBundle);
    }
    _panePlugInMgr = PanePlugInMgr::sharedInstance();
    _panePlugInMgr->loadPlugIns();
    _panePlugInMgr->setPDEObject(this);
    // The pane manager answers from the queue's own PPD, not the bundle's sample.
    if (_PPD()) _panePlugInMgr->setPpdFile(_ppdFile);
    _panePlugInMgr->getAllList();
    _detailedSettingsWinController = &DetailedSettingsWinController::sharedInstance();
    _takeHostName();
    _setDefaults();
}

TarnPDEByCocoa::~TarnPDEByCocoa() {
    NotifyUnit::removeObserver(this);
    if (_panePlugInMgr->delegate() == this) _panePlugInMgr->setDelegate(nullptr);
    _panePlugInMgr->setPDEObject(nullptr);
    // The wrapper answers from the host's PPD, which may go with the host.
    if (_ppdFile) _panePlugInMgr->setPpdFile(nullptr);
    _isIntializedUi = false;
}

void TarnPDEByCocoa::_takeHostName() {
    const std::optional<std::string> uri = _pdePluginCallbackObject.deviceUri();
    const std::optional<std::string> host = uri ? hostNameFromDeviceUri(*uri) : std::nullopt;
    if (!host) return;
    _hostName = *host;
    _panePlugInMgr->setHostName(_hostName);
}

void TarnPDEByCocoa::_setDefaults() {
    PlistDictionary defaults = _panePlugInMgr->defaultSettings();
    if (const PlistDictionary* descriptions = _panePlugInMgr->uiDescriptions())
        for (auto& [key, value] : panelDefaultSettings(*descriptions, _plugInBundle))
            if (!defaults.contains(key)) defaults.set(key, std::move(value));
    _defaultPrintOption = defaults;
    _printOption = std::move(defaults);
}

PpdFileExt* TarnPDEByCocoa::_PPD() {
    if (!_ppdFile && _useConstraintHandling)
        if (ppd_file_t* ppd = _pdePluginCallbackObject.ppdFile()) _ppdFile = std::make_shared<PpdFileExt>(ppd);
    return _ppdFile.get();
}

std::optional<PlistArray> TarnPDEByCocoa::supportedPPDOptionKeys() const {
    const PlistValue* keys = _plugInBundle ? _plugInBundle->objectForInfoDictionaryKey("PMPPDKeysSupported") : nullptr;
    if (!keys || !keys->array()) return std::nullopt;
    return *keys->array();
}

bool TarnPDEByCocoa::shouldHide() {
    _isMyPluginPDE = false;
    return true;
}

void TarnPDEByCocoa::willShow() {
    try {
        _buildUi();
        if (auto devices = _panePlugInMgr->getPrePostDeviceList(); devices && devices->array() && !devices->array()->empty()) {
            _AutomaticPaperTraySelection->setPaperTypeCustomList(*devices);
            if (_BypassPaperTraySelection) _BypassPaperTraySelection->setPaperTypeCustomList(*devices);
        }
        _panePlugInMgr->willShowAllBundle();
        _updatePaneFromModel();
        // Favorites are managed in the detailed settings window.
        _titleFavorite->setHiddenView(true);
        _saveFavoriteButton->setHiddenView(true);
        if (ViewNode* container = _saveFavoriteButton->superview()) {
            const ViewFrame frame = container->frame();
            container->setFrame({frame.x, frame.y, frame.width, _saveFavoriteButton->frame().y});
        }
        configuringNotification(true);
        _isMyPluginPDE = true;
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### willShow: ") + exception.what());
    }
}

std::optional<PlistDictionary> TarnPDEByCocoa::summaryInfo() {
    if (!_isIntializedUi) {
        _buildUi();
        _updatePaneFromModel();
        saveValuesAndReturnError();
    }
    return _panePlugInMgr->summaryInfoFromPrintOption(&_printOption);
}

void TarnPDEByCocoa::PPDOptionKeyValueDidChange(const std::string& key, const std::string& choice) {
    if (key.empty() || choice.empty() || !_printOption.contains(key)) return;
    PpdFileExt* ppd = _PPD();
    const auto keywords = ppd ? ppd->optionKeywords(key) : std::nullopt;
    if (!keywords || std::find(keywords->begin(), keywords->end(), choice) == keywords->end()) return;
    _printOption.set(key, choice);
    _updatePaneFromModel();
}

void TarnPDEByCocoa::configuringNotification(bool on) {
    NotifyUnit::removeObserver(this);
    if (!on) return;
    for (const char* key : observedKeys)
        NotifyUnit::addObserver(this, [this](const Notification& notification) { keyChangeNotification(notification); },
                                key);
}

void TarnPDEByCocoa::keyChangeNotification(const Notification& notification) {
    if (notification.name.empty() || !notification.userInfo) return;
    _gatherValuesFromPane(_printOption);
    if (_isIntializedUi)
        if (auto sample = _panePlugInMgr->getStringValueFromKey("SamplePrintMode")) _printOption.set("SamplePrintMode", *sample);
    _checkDifferenceFromCurrentFavorite(false);
}

void TarnPDEByCocoa::removedObjectByGatheringPrintOption(const std::string& key) {
    _ticket._customTicketSetString(key, std::nullopt);
}

std::optional<PlistValue> TarnPDEByCocoa::sendCommand(const std::string& command) {
    // This platform counts as a current system: the printer is not asked to refresh its
    // data first, it is read from the PPD as it stands.
    return PpdData::propertyListForCommand(_pdePluginCallbackObject.ppdFile(), command);
}

std::optional<std::string> TarnPDEByCocoa::ppdxReadData(const std::string& name) {
    return PpdData::ppdxReadData(_pdePluginCallbackObject.ppdFile(), name);
}

std::string TarnPDEByCocoa::_localized(const std::string& key) const {
    return _plugInBundle ? localizedStringInBundle(*_plugInBundle, key, "Localizable") : key;
}

}  // namespace ComQuorvantVelmar_Plugin
