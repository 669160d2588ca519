#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ClassRegistry.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;
class PdeHost;
class TarnPDEByCocoa;

/// The extension bundle's principal object: the print dialog makes it with the bundle and
/// asks it for the panels of its panel type; it answers the one "Ostrin Flow" panel.
class TarnPDEPlugIn : public RegisteredObject {
public:
    /// The name under which the class registry makes it ("NSPrincipalClass").
    static constexpr const char* registeredName = "ComQuorvantVelmar_PluginTarnPDEPlugIn";
    /// The print dialog's panel type.
    static constexpr std::string_view printDialogPanelType = "BDB091F4-E57F-11D3-B5CC-0050E4603277";

    /// Keeps bundle; always true.
    bool initWithBundle(std::shared_ptr<Bundle> bundle);
    /// One new panel over hostInfo for the print dialog's panel type; nothing (no list at
    /// all) for any other type. The bundle is let go either way.
    std::optional<std::vector<std::shared_ptr<TarnPDEByCocoa>>> PDEPanelsForType(std::string_view type, PdeHost& hostInfo);

private:
    std::shared_ptr<Bundle> _plugInBundle;
};

}  // namespace ComQuorvantVelmar_Plugin
