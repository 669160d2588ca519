#include "pde/DetailedSettingsWinController.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "core/StringHelpers.h"
#include "panes/PanePlugInMgr.h"
#include "pde/PanelButton.h"
#include "settings_ui/TabViewNode.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr int viewStyleTags[] = {DetailedSettingsWinController::TabStyleTag,
                                 DetailedSettingsWinController::TreeStyleTag};

}  // namespace

DetailedSettingsWinController& DetailedSettingsWinController::sharedInstance() {
    static DetailedSettingsWinController* controller = new DetailedSettingsWinController();
    return *controller;
}

DetailedSettingsWinController::DetailedSettingsWinController()
    : _cancelButton(std::make_shared<PanelButton>()),
      _downloadButton(std::make_shared<PanelButton>()),
      _versionInfoButton(std::make_shared<PanelButton>()),
      _okButton(std::make_shared<PanelButton>()),
      _revertToDefaultButton(std::make_shared<PanelButton>()),
      _tabView(std::make_shared<TabViewNode>()) {
    _okButton->setAction([this](PanelButton&) { okButton(); });
    _cancelButton->setAction([this](PanelButton&) { cancelButton(); });
    _revertToDefaultButton->setAction([this](PanelButton&) { clickedRevertToDefault(); });
    setStaysShownBetweenRuns(true);
}

DetailedSettingsWinController::~DetailedSettingsWinController() = default;

void DetailedSettingsWinController::reformatPrintOption(PlistDictionary& printOption) {
    PanePlugInMgr& manager = *PanePlugInMgr::sharedInstance();
    manager.updateEnabledStates(std::nullopt, true, false, false);
    std::optional<PlistDictionary> gathered = manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false);
    if (!gathered || gathered->empty()) return;
    for (const auto& [key, value] : printOption) gathered->set(key, value);
    printOption = std::move(*gathered);
}

// OK is only as good as the settings behind it: the window stays open, showing what the
// panes gathered, until the consistency check passes (the check has told the user why,
// in a sheet of the window, which stays on screen between the runs).
int DetailedSettingsWinController::showAsModalDialog(PlistDictionary& printOption) {
    _prevSelectedProfileName.reset();
    int result = 0;
    _visible = true;
    for (;;) {
        result = runModal();
        if (result != 1) break;
        if (!_endEditingNow()) continue;
        PanePlugInMgr& manager = *PanePlugInMgr::sharedInstance();
        if (auto gathered = manager.gatherPrintOptionValues(nullptr, std::nullopt, false, false, false))
            printOption = std::move(*gathered);
        if (manager.isPrintOptionConsistencyCheck(printOption)) break;
    }
    _visible = false;
    orderOut();
    return result;
}

void DetailedSettingsWinController::clickedRevertToDefault() {
    PanePlugInMgr& manager = *PanePlugInMgr::sharedInstance();
    const PlistDictionary defaults = manager.defaultSettings();
    manager.restorePrintOptionValues(&defaults);
}

// The panes belong to the pane manager of the moment: a dialog host that replaces it gets
// the new manager's panes, not views whose settings no longer reach any model.
void DetailedSettingsWinController::awakeFromNib() {
    const std::shared_ptr<PanePlugInMgr> manager = PanePlugInMgr::sharedInstance();
    if (_awakeWith.lock() == manager) return;
    try {
        _setTitles();
        _addPaneTabs();
        _isTreeShown = manager->getTabTreeView();
        if (_isTreeShown) _tableColumn0Width = treeColumnWidthForLanguage(PreferredLanguages::first());
        selectViewStyleItem(_isTreeShown ? 1 : 0);
        _awakeWith = manager;
    } catch (const std::exception& exception) {
        throw std::runtime_error(std::string("Exception: ") + exception.what());
    }
}

void DetailedSettingsWinController::_setTitles() {
    setWindowTitle(BSLocalizedString("Detailed Settings"));
    _cancelButton->setTitle(BSLocalizedString("Cancel"));
    _okButton->setTitle(BSLocalizedString("Setting"));
    _revertToDefaultButton->setTitle(BSLocalizedString("Revert to Default Settings"));
    _versionInfoButton->setTitle(BSLocalizedString("version info..."));
}

void DetailedSettingsWinController::_addPaneTabs() {
    PanePlugInMgr& manager = *PanePlugInMgr::sharedInstance();
    manager.loadPlugIns();
    _tabView = std::make_shared<TabViewNode>();
    const PlistDictionary* tree = manager.panesTreeDictionary();
    const PlistValue* items = tree ? tree->find("items") : nullptr;
    for (const PlistValue& item : items && items->array() ? *items->array() : PlistArray{}) {
        const auto bundleName = item.dictionary() ? item.dictionary()->stringFor("bundleName") : std::nullopt;
        if (!bundleName) continue;
        auto view = manager.panelViewOfBundleName(*bundleName);
        if (!view) continue;
        _tabView->addTab({manager.panelNameOfBundleName(*bundleName).value_or(*bundleName), *bundleName, view});
    }
}

int DetailedSettingsWinController::selectedViewStyleTag() const { return viewStyleTags[_viewStyleIndex]; }

void DetailedSettingsWinController::selectViewStyleItem(int index) {
    if (index < 0 || index > 1) return;
    _viewStyleIndex = index;
    setupViewStylePopupButton();
}

// The tree selects the pane in the tree style, so the tab view then shows no tabs of its own.
void DetailedSettingsWinController::setupViewStylePopupButton() {
    const bool tabStyle = selectedViewStyleTag() == TabStyleTag;
    _isTreeShown = !tabStyle;
    _tabView->setTabless(!tabStyle);
}

// Languages whose pane titles run long get a wider tree; the first match in this order wins,
// in any letter case, so a region such as "pt-ES" counts as well.
double DetailedSettingsWinController::treeColumnWidthForLanguage(const std::string& language) {
    static const std::pair<const char*, double> widths[] = {{"es", 460}, {"de", 230}, {"it", 365}, {"fr", 415}};
    std::string lowered = language;
    std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    for (const auto& [part, width] : widths)
        if (isContain(lowered, part)) return width;
    return 185;
}

}  // namespace ComQuorvantVelmar_Plugin
