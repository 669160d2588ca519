#include <set>

#include "panes/PaneValueText_p.h"
#include "panes/PanePlugInMgr.h"
#include "ppd/SettingTextComparison.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// The pane's settings and the settings inside them, each main keyword once, in pane order.
void collectControls(const std::vector<std::shared_ptr<VORNUI>>& controls, std::set<std::string>& seen,
                     std::vector<std::shared_ptr<VORNUI>>& collected) {
    for (const auto& control : controls) {
        if (!control) continue;
        if (!control->mainKeyword().empty() && seen.insert(control->mainKeyword()).second) collected.push_back(control);
        collectControls(control->childControls(), seen, collected);
    }
}

}  // namespace

PlistArray PanePlugInMgr::settingItemsOfBundleName(const std::string& name, const PlistDictionary& printOption) {
    const Entry* entry = _entryNamed(name);
    if (!entry || !paneControllerOfBundleName(name)) return {};
    const auto controls = entry->paneConroller->getListVORNUI();
    if (!controls) return {};
    std::set<std::string> seen;
    std::vector<std::shared_ptr<VORNUI>> settings;
    collectControls(*controls, seen, settings);
    const PlistDictionary defaults = defaultSettings();
    PlistArray items;
    for (const auto& control : settings) {
        const std::string& key = control->mainKeyword();
        if (!printOption.contains(key)) continue;
        const auto alias = _mainAlias(key, {entry, control});
        if (!alias || alias->empty()) continue;
        const bool differs = !isSameSettingText(PaneValueText::textOfEntry(printOption, key),
                                                PaneValueText::textOfEntry(defaults, key));
        items.push_back(PlistDictionary{
            {"mainKeyword", key}, {"mainAlias", *alias}, {"plugInName", name}, {"differedWithDefault", differs}});
    }
    return items;
}

}  // namespace ComQuorvantVelmar_Plugin
