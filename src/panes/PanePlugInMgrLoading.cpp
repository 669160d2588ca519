#include <algorithm>
#include <exception>
#include <filesystem>

#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "core/Diagnostics.h"
#include "panes/PanePlugInMgr.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::size_t plugInTableCapacity = 34;

// Pane bundles anywhere below folder, in name order so that panes load in the same order
// on every machine; a bundle's own contents are not searched.
std::vector<std::filesystem::path> paneBundlesBelow(const std::string& folder) {
    std::vector<std::filesystem::path> bundles;
    std::error_code error;
    std::filesystem::recursive_directory_iterator walk(folder, error), end;
    for (; !error && walk != end; walk.increment(error)) {
        if (!walk->is_directory(error) || walk->path().extension() != ".bundle") continue;
        bundles.push_back(walk->path());
        walk.disable_recursion_pending();
    }
    std::sort(bundles.begin(), bundles.end());
    return bundles;
}

void logPaneFailure(const std::string& what, const std::string& name) {
    Diagnostics::log("### pane " + name + ": " + what);
}

}  // namespace

std::string PanePlugInMgr::_builtInPlugInsPath() const { return _bundle ? _bundle->builtInPlugInsPath() : ""; }

bool PanePlugInMgr::loadPlugIns() {
    RoleTable roles;
    if (const PlistDictionary* tree = panesTreeDictionary()) _gatherPlugInRoleNames(*tree, roles);
    for (const auto& path : paneBundlesBelow(_builtInPlugInsPath())) {
        auto found = roles.find(path.stem().string());
        if (found == roles.end()) {
            _loadPaneControllerAtPath(path.string(), std::nullopt);
            continue;
        }
        for (const std::string& role : found->second) _loadPaneControllerAtPath(path.string(), role);
    }
    return _plugInTable && !_plugInTable->empty();
}

void PanePlugInMgr::_loadPaneControllerAtPath(const std::string& path, const std::optional<std::string>& role) {
    const std::string bundleName = std::filesystem::path(path).stem().string();
    const std::string name = _composeBundleName(bundleName, role);
    // A rebuild keeps the panes it has; a role is loaded once.
    if (_entryNamed(bundleName) || _entryNamed(name)) return;
    std::shared_ptr<Bundle> bundle;
    auto paneController = _createPaneController(path, role, bundle);
    if (!paneController || !_initializePane(*paneController, bundle, role)) return;
    _storeEntry(name, Entry{paneController, bundle});
}

std::shared_ptr<PanePlugInInterface> PanePlugInMgr::_loadPaneControllerWithName(const std::string& name) {
    if (_entryNamed(name)) return nullptr;
    const auto [bundleName, role] = _separateBundleName(name);
    std::shared_ptr<Bundle> bundle;
    auto paneController = _createPaneController(_builtInPlugInsPath() + "/" + bundleName + ".bundle", role, bundle);
    if (!paneController) return nullptr;
    if (_initializePane(*paneController, bundle, role)) _storeEntry(_composeBundleName(bundleName, role), Entry{paneController, bundle});
    return paneController;
}

std::shared_ptr<PanePlugInInterface> PanePlugInMgr::_createPaneController(const std::string& path,
                                                                          const std::optional<std::string>& role,
                                                                          std::shared_ptr<Bundle>& bundle) {
    bundle = Bundle::bundleWithPath(path);
    if (!bundle || !bundle->load()) return nullptr;
    const std::string className = bundle->principalClassName();
    if (className.empty()) return nullptr;
    try {
        auto paneController = ClassRegistry::sharedInstance().createAs<PanePlugInInterface>(className);
        if (!paneController) logPaneFailure("no pane class " + className, _composeBundleName(bundle->bundleName(), role));
        return paneController;
    } catch (const std::exception& exception) {
        logPaneFailure(exception.what(), path);
    } catch (...) {
        logPaneFailure("unknown exception", path);
    }
    return nullptr;
}

bool PanePlugInMgr::_initializePane(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle,
                                    const std::optional<std::string>& role) {
    _initializingPane = {&paneController, role};
    bool accepted = false;
    try {
        accepted = paneController.initializePanel(bundle, *this);
    } catch (const std::exception& exception) {
        logPaneFailure(exception.what(), bundle->bundlePath());
    } catch (...) {
        logPaneFailure("unknown exception", bundle->bundlePath());
    }
    _initializingPane = {};
    return accepted;
}

void PanePlugInMgr::_storeEntry(const std::string& name, Entry entry) {
    if (!_plugInTable) {
        _plugInTable.emplace();
        _plugInTable->reserve(plugInTableCapacity);
    }
    for (auto& [key, existing] : *_plugInTable) {
        if (key != name) continue;
        existing = std::move(entry);
        return;
    }
    _plugInTable->emplace_back(name, std::move(entry));
}

const PanePlugInMgr::Entry* PanePlugInMgr::_entryNamed(const std::string& name) const {
    if (!_plugInTable) return nullptr;
    for (const auto& [key, entry] : *_plugInTable)
        if (key == name) return &entry;
    return nullptr;
}

void PanePlugInMgr::buildPaneUi(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle) {
    // A pane that fails while registering keeps what was registered so far.
    try {
        _registerProfiles(paneController, bundle);
        _registerControls(paneController);
    } catch (...) {
    }
}

void PanePlugInMgr::_registerProfiles(PanePlugInInterface& paneController, const std::shared_ptr<Bundle>& bundle) {
    auto informations = paneController.profileUiInformations();
    if (!informations) return;
    for (const auto& [profileName, information] : *informations) _addProfileItem(profileName, information, bundle);
}

void PanePlugInMgr::_registerControls(PanePlugInInterface& paneController) {
    auto controls = paneController.getListVORNUI();
    if (!controls) return;
    for (const auto& control : *controls) _vornMgr->addControl(control);
    for (const auto& control : *controls) {
        if (!control) continue;
        NotifyUnit::postNotificationName(control->mainKeyword());
        for (const auto& child : control->childControls()) NotifyUnit::postNotificationName(child->mainKeyword());
    }
}

std::shared_ptr<ViewNode> PanePlugInMgr::safeInvokePanelViewFor(PanePlugInInterface* paneController) {
    if (!paneController) return nullptr;
    try {
        return paneController->panelView();
    } catch (const std::exception& exception) {
        Diagnostics::log(std::string("### a pane failed to make its panel: ") + exception.what());
    } catch (...) {
        Diagnostics::log("### a pane failed to make its panel");
    }
    return nullptr;
}

bool PanePlugInMgr::loadPanelView() {
    if (!_plugInTable || _loadedPanelCount >= _plugInTable->size()) return false;
    const std::string name = (*_plugInTable)[_loadedPanelCount].first;
    panelViewOfBundleName(name);
    ++_loadedPanelCount;
    return true;
}

std::shared_ptr<PanePlugInInterface> PanePlugInMgr::paneControllerOfBundleName(const std::string& name) {
    const Entry* entry = _entryNamed(name);
    if (!entry || !entry->paneConroller) return nullptr;
    auto paneController = entry->paneConroller;
    safeInvokePanelViewFor(paneController.get());
    return paneController;
}

std::optional<std::string> PanePlugInMgr::panelNameOfBundleName(const std::string& name) {
    auto paneController = paneControllerOfBundleName(name);
    if (!paneController) return std::nullopt;
    try {
        return paneController->panelName();
    } catch (...) {
        return std::nullopt;
    }
}

std::shared_ptr<ViewNode> PanePlugInMgr::panelViewOfBundleName(const std::string& name) {
    auto paneController = paneControllerOfBundleName(name);
    return paneController ? safeInvokePanelViewFor(paneController.get()) : nullptr;
}

void PanePlugInMgr::willShowAllBundle() {
    if (_plugInTable) {
        const PlugInTable panes = *_plugInTable;
        for (const auto& [name, entry] : panes) {
            try {
                if (entry.paneConroller) entry.paneConroller->willShow();
            } catch (...) {
                logPaneFailure("failed before it was shown", name);
            }
        }
    }
    _isInitializedNetworkData = true;
}

bool PanePlugInMgr::rebuildPanes(const std::string& ppdName, const std::string&) {
    _panesTreeDictionary.reset();
    loadPlugIns();
    bool reopened = true;
    if (_ppdFile) {
        _ppdFile.reset();
        reopened = _ppdFileWithName(ppdName) != nullptr;
    }
    _defaultDictionary.reset();
    if (_plugInTable)
        for (const auto& [name, entry] : PlugInTable(*_plugInTable)) safeInvokePanelViewFor(entry.paneConroller.get());
    return reopened;
}

}  // namespace ComQuorvantVelmar_Plugin
