#include "panes/PanePlugInMgr.h"
#include "settings_ui/NotifyUnit.h"
#include "settings_ui/TabViewNode.h"
#include "settings_ui/VORNMgr.h"
#include "settings_ui/VORNUI.h"

namespace ComQuorvantVelmar_Plugin {

// Only tab containers are descended into: a control inside a plain grouping view is the
// group's own business and is not registered from here.
PanePlugInMgr::ControlList PanePlugInMgr::getVORNUIControls(const ViewNode* view) {
    ControlList controls;
    if (!view) return controls;
    for (const auto& subview : view->subviews()) {
        const std::string className = subview->className();
        if (className == "TabView") {
            const auto* tabView = dynamic_cast<const TabViewNode*>(subview.get());
            for (const TabEntry& tab : tabView ? tabView->tabs() : std::vector<TabEntry>{}) {
                ControlList found = getVORNUIControls(tab.view.get());
                controls.insert(controls.end(), found.begin(), found.end());
            }
        } else if (className.find("VORNUI") != std::string::npos) {
            if (auto control = std::dynamic_pointer_cast<VORNUI>(subview)) controls.push_back(control);
        }
    }
    return controls;
}

// The layout loader leaves the description key in the control's text attribute; a control
// without one (or with the text a missing attribute prints as) has no description.
bool PanePlugInMgr::setupVORNUIControls(const ControlList* controls, const PlistDictionary* controlDictionary,
                                        ControlDictionary* outputDictionary, const std::shared_ptr<Bundle>& bundle) {
    if (!controls || !controlDictionary || !outputDictionary) return false;
    for (const auto& control : *controls) {
        if (!control) continue;
        const std::string key = control->toolTip();
        if (key.empty() || key == "(null)") continue;
        const PlistValue* description = controlDictionary->find(key);
        control->setControlDictionary(description ? description->dictionary() : nullptr, bundle);
        control->updateControl();
        control->setToolTip("");
        (*outputDictionary)[key] = control;
    }
    return true;
}

std::shared_ptr<VORNUI> PanePlugInMgr::getVORNUIOneControl(const ControlList* controls, const std::string& key) {
    if (!controls) return nullptr;
    for (const auto& control : *controls)
        if (control && control->mainKeyword() == key) return control;
    return nullptr;
}

void PanePlugInMgr::setVornUiToVornMgr(const std::shared_ptr<VORNUI>& control) {
    if (!_vornMgr || !control) return;
    _vornMgr->addControl(control);
    NotifyUnit::postNotificationName(control->mainKeyword());
    for (const auto& child : control->childControls()) NotifyUnit::postNotificationName(child->mainKeyword());
}

}  // namespace ComQuorvantVelmar_Plugin
