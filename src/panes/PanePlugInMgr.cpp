#include "panes/PanePlugInMgr.h"

#include <algorithm>

#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/EncodingLibrary.h"
#include "core/FileUtil.h"
#include "core/LocalizedString.h"
#include "core/StringHelpers.h"
#include "favorites/AppPreference.h"
#include "ppd/PpdFileExt.h"
#include "settings_ui/UIDescriptionFile_p.h"
#include "settings_ui/VORNMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Never destroyed: the manager's registry stops observing the process-wide notification
// centre when it goes, and at exit that centre may already be gone.
std::shared_ptr<PanePlugInMgr>& sharedManager() {
    static auto* manager = new std::shared_ptr<PanePlugInMgr>();
    return *manager;
}

// Unresolvable conflicts apply only once the print server's lists are in; the registry
// asks whichever manager is the process's one at the time.
void installNetworkDataProbe() {
    VORNMgr::setNetworkDataProbe([] {
        const auto& manager = sharedManager();
        return manager && manager->isInitializedNetworkData();
    });
}

void addRoleOf(const PlistDictionary& node, PanePlugInMgr::RoleTable& roles) {
    auto name = node.stringFor("bundleName");
    if (!name) return;
    auto [bundleName, role] = PanePlugInMgr::_separateBundleName(*name);
    if (!role) return;
    auto& list = roles[bundleName];
    // A role named twice in the tree is still one pane.
    if (std::find(list.begin(), list.end(), *role) == list.end()) list.push_back(*role);
}

}  // namespace

std::shared_ptr<PanePlugInMgr> PanePlugInMgr::sharedInstance() {
    auto& manager = sharedManager();
    if (!manager) {
        manager = std::make_shared<PanePlugInMgr>();
        manager->setInitializedNetworkData(false);
        installNetworkDataProbe();
    }
    return manager;
}

void PanePlugInMgr::setSharedInstance(std::shared_ptr<PanePlugInMgr> manager) {
    sharedManager() = std::move(manager);
    installNetworkDataProbe();
}

PanePlugInMgr::PanePlugInMgr(std::shared_ptr<Bundle> extensionBundle)
    : _vornMgr(std::make_unique<VORNMgr>()),
      _bundle(extensionBundle ? std::move(extensionBundle) : BSPrincipalBundle()) {
    _readBundleInformation();
    _locateUISettingsFile();
    if (_bundle) _vornMgr->setPdeResourcePath(_bundle->resourcePath());
    _loadEncodingLibrary();
}

// The panes hold controls that the registry observes; they go first.
PanePlugInMgr::~PanePlugInMgr() { _plugInTable.reset(); }

void PanePlugInMgr::_readBundleInformation() {
    if (!_bundle) return;
    const PlistValue* tabTree = _bundle->objectForInfoDictionaryKey("QVTabTreeView");
    _uiTabTreeView = tabTree && tabTree->boolean() && *tabTree->boolean();
    auto flag = [this](const char* key) {
        const PlistValue* value = _bundle->objectForInfoDictionaryKey(key);
        return value && boolValueIfString(*value);
    };
    _isHiddenNumCopies = flag("isHiddenNumCopies");
    _isHiddenDuplex = flag("isHiddenDuplex");
    _isHiddenCollate = flag("isHiddenCollate");
}

void PanePlugInMgr::_locateUISettingsFile() {
    const PlistValue* pod = _bundle ? _bundle->objectForInfoDictionaryKey("QVPOD") : nullptr;
    if (pod && pod->string()) {
        _uiPOD = *pod->string();
        const std::string path = _bundle->bundlePath() + "/Contents/Resources/" + _uiPOD + ".plist";
        if (FileUtil::exists(path)) {
            _uiFilePath = path;
            return;
        }
    }
    Diagnostics::log("###Error:UISetting Plist file not found!");
}

void PanePlugInMgr::_loadEncodingLibrary() {
    if (!_bundle) return;
    if (const int error = loadEncDec(_bundle->resourcePath())) Diagnostics::logf("###loadEncDec: error %d", error);
}

const PlistDictionary* PanePlugInMgr::panesTreeDictionary() {
    if (_panesTreeDictionary) return &*_panesTreeDictionary;
    const auto name = AppPreference::sharedInstance().panesTreeFileNameWithAppName();
    if (auto tree = name ? DictionaryNamed(*name, _bundle.get()) : std::nullopt) {
        _panesTreeDictionary = std::move(*tree);
        return &*_panesTreeDictionary;
    }
    Diagnostics::log("###Error: panesTreeDictionary does not loaded.");
    return nullptr;
}

// The controls that hold child controls read the same file for them; both take the one
// copy the settings engine keeps of it.
const PlistDictionary* PanePlugInMgr::uiDescriptions() {
    if (!_uiDescriptions && !_uiFilePath.empty()) _uiDescriptions = UIDescriptionFile::read(_uiFilePath);
    return _uiDescriptions.get();
}

std::pair<std::string, std::optional<std::string>> PanePlugInMgr::_separateBundleName(const std::string& name) {
    const std::size_t plus = name.find('+');
    if (plus == std::string::npos) return {name, std::nullopt};
    const std::size_t end = name.find('+', plus + 1);
    return {name.substr(0, plus), name.substr(plus + 1, end == std::string::npos ? end : end - plus - 1)};
}

std::string PanePlugInMgr::_composeBundleName(const std::string& bundleName, const std::optional<std::string>& role) {
    return role ? bundleName + "+" + *role : bundleName;
}

void PanePlugInMgr::_gatherPlugInRoleNames(const PlistDictionary& node, RoleTable& roles) {
    addRoleOf(node, roles);
    if (const PlistValue* dependency = node.find("dependency"); dependency && dependency->dictionary())
        for (const auto& [key, entry] : *dependency->dictionary())
            if (key != "mainKeyword" && entry.dictionary()) addRoleOf(*entry.dictionary(), roles);
    if (const PlistValue* items = node.find("items"); items && items->array())
        for (const PlistValue& item : *items->array())
            if (item.dictionary()) _gatherPlugInRoleNames(*item.dictionary(), roles);
}

std::optional<std::string> PanePlugInMgr::roleName(const PanePlugInInterface* paneController) const {
    if (!paneController) return std::nullopt;
    if (_initializingPane.paneController == paneController) return _initializingPane.role;
    if (!_plugInTable) return std::nullopt;
    const std::string* found = nullptr;
    for (const auto& [name, entry] : *_plugInTable) {
        if (entry.paneConroller.get() != paneController) continue;
        if (found) return std::nullopt;
        found = &name;
    }
    if (!found) return std::nullopt;
    return _separateBundleName(*found).second;
}

PlistDictionary PanePlugInMgr::resolveItem(const PlistDictionary& item, bool) const { return item; }

PpdFileExt* PanePlugInMgr::ppdFile() {
    if (!_ppdFile)
        if (auto name = AppPreference::sharedInstance().ppdFileNameWithAppName()) _ppdFileWithName(*name);
    return _ppdFile.get();
}

void PanePlugInMgr::setPpdFile(std::shared_ptr<PpdFileExt> ppd) { _ppdFile = std::move(ppd); }

PpdFileExt* PanePlugInMgr::_ppdFileWithName(const std::string& name) {
    if (_ppdFile) return _ppdFile.get();
    const std::string path = _bundle ? _bundle->pathForResource(name, "") : std::string();
    if (path.empty()) return nullptr;
    std::string error;
    _ppdFile = PpdFileExt::initWithContentsOfFile(path, &error);
    if (!_ppdFile) Diagnostics::log("### cannot open the PPD " + path + ": " + error);
    return _ppdFile.get();
}

std::string PanePlugInMgr::_localized(const std::string& key) const {
    return _bundle ? localizedStringInBundle(*_bundle, key, "Localizable") : key;
}

}  // namespace ComQuorvantVelmar_Plugin
