#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/PlistValue.h"
#include "panes/PanePlugInInterface.h"

namespace ComQuorvantVelmar_Plugin {

/// The built-in pane: a pane bundle without code names it as its principal class and
/// describes itself in its layout file (the resource named by "QVPaneLayout" in its
/// Info.plist, "PaneLayout" by default; format in PaneLayout.h) with these keys:
///   "title"          the pane's title, looked up in the bundle's "Pane" string table; a
///                    "%@" in it is replaced by the localised role;
///   "view"           the view tree of the panel;
///   "resourceLists"  main keyword -> command name of a printer list whose names the
///                    pop-up offers after its own choices (refreshed before it is shown).
/// Its settings take their descriptions from the extension's UI settings file, overlaid
/// by the bundle's own "UI" resource when it has one. Bundles with code may derive from it.
class StandardPane : public PanePlugInInterface {
public:
    static constexpr const char* registeredName = "ComQuorvantVelmar_PluginStandardPane";

    std::optional<std::vector<std::shared_ptr<VORNUI>>> getListVORNUI() override;
    /// Refreshes the pop-ups that list printer resources.
    void willShow() override;
    std::string panelName() override;
    /// The panel, laid out on first call.
    std::shared_ptr<ViewNode> panelView() override;
    /// Builds the panel and its settings and registers them; false without a layout file.
    bool initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) override;
    /// Holds every setting disabled while the server's settings apply.
    void updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType, bool useServerSetting,
                             bool sameSettingForNext) override;
    /// Shows each setting's default.
    void revertToDefault() override;

protected:
    /// The manager, or nullptr before initialisation.
    PanePlugInMgr* callback() const { return _callback; }
    const std::shared_ptr<Bundle>& bundle() const { return _bundle; }
    /// The role the pane was loaded in, nothing without role.
    const std::optional<std::string>& role() const { return _role; }
    /// The pane's setting (or child setting) with main keyword key; nullptr when none.
    std::shared_ptr<VORNUI> controlForKey(const std::string& key) const;

private:
    std::string localizedInPaneTable(const std::string& key) const;
    const PlistDictionary* descriptionsForControls();
    void refreshResourceList(const std::string& key, const std::string& command);

    PanePlugInMgr* _callback = nullptr;
    std::shared_ptr<Bundle> _bundle;
    std::optional<std::string> _role;
    PlistDictionary _layout;
    std::optional<PlistDictionary> _ownDescriptions;
    std::shared_ptr<ViewNode> _rootView;
    std::vector<std::shared_ptr<VORNUI>> _controls;
    bool _isPanelLaidOut = false;
};

}  // namespace ComQuorvantVelmar_Plugin
