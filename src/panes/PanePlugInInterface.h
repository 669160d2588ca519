#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/ClassRegistry.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;
class PanePlugInMgr;
class PlainPopUpButton;
class VORNUI;
class ViewNode;

/// One profile menu of a pane: the pop-up that lists the numbered profiles, how many there
/// are, and the formats (each with one "%d") of a profile's option keyword and of the key
/// under which the current profile file names it.
struct ProfileUiInformation {
    std::string fmtOptionKeywod;
    int profileNo_Max = 0;
    std::shared_ptr<PlainPopUpButton> profileUiControl;
    std::string fmtProfileLeftValue;
};
/// A pane's profile menus by profile name, in the pane's order.
using ProfileUiInformations = std::vector<std::pair<std::string, ProfileUiInformation>>;

/// What every pane plug-in's principal class implements. The manager creates one object per
/// bundle and role, hands it its bundle and itself as callback in initializePanel, and asks
/// it for its title, panel and controls. Operations with a body are optional: their default
/// answers "not implemented" (nothing) or does nothing.
class PanePlugInInterface : public RegisteredObject {
public:
    ~PanePlugInInterface() override;

    /// The pane's settings controls; nothing when the pane does not list them.
    virtual std::optional<std::vector<std::shared_ptr<VORNUI>>> getListVORNUI();
    /// The panel is about to be shown.
    virtual void willShow();
    /// The pane's title.
    virtual std::string panelName() = 0;
    /// The pane's panel, or nullptr when it has none.
    virtual std::shared_ptr<ViewNode> panelView() = 0;
    /// Called once after creation; false rejects the pane.
    virtual bool initializePanel(const std::shared_ptr<Bundle>& bundle, PanePlugInMgr& callback) = 0;

    /// The pane's profile menus; nothing when the pane has none.
    virtual std::optional<ProfileUiInformations> profileUiInformations();
    /// Writes the paper attributes of the automatic tray selection (the "Page" pane).
    virtual void writeAutomaticPapaerTraySelection();
    /// Enables or disables the pane's settings for the kind of job at hand.
    virtual void updateEnabledStates(const std::optional<std::string>& fileType, bool unifiedFileType,
                                     bool useServerSetting, bool sameSettingForNext);
    /// Shows the defaults in every setting of the pane.
    virtual void revertToDefault();
};

}  // namespace ComQuorvantVelmar_Plugin
