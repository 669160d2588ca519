#include "ppd/PaneManagerTreeResolver.h"

#include "panes/PanePlugInMgr.h"

namespace ComQuorvantVelmar_Plugin {

std::shared_ptr<PanePlugInMgr> PaneManagerTreeResolver::_managerNow() const {
    return _manager ? _manager : PanePlugInMgr::sharedInstance();
}

PlistDictionary PaneManagerTreeResolver::resolveItem(const PlistDictionary& item, bool expandDependency) {
    return _managerNow()->resolveItem(item, expandDependency);
}

std::optional<std::string> PaneManagerTreeResolver::panelNameOfBundleName(const std::string& name) {
    return _managerNow()->panelNameOfBundleName(name);
}

PlistArray PaneManagerTreeResolver::settingItemsOfBundleName(const std::string& name,
                                                            const PlistDictionary& printOption) {
    return _managerNow()->settingItemsOfBundleName(name, printOption);
}

}  // namespace ComQuorvantVelmar_Plugin
