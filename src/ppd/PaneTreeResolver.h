#pragma once

#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// What the summary tree asks of the pane plug-in manager: a pane tree node resolved into
/// its current content, and the title of the pane loaded under a plug-in name.
class PaneTreeResolver {
public:
    virtual ~PaneTreeResolver() = default;
    /// The node item resolved, with its dependencies expanded when expandDependency; an
    /// empty dictionary when it cannot be resolved.
    virtual PlistDictionary resolveItem(const PlistDictionary& item, bool expandDependency) = 0;
    /// The title of the pane loaded under name; nothing when no such pane is loaded.
    virtual std::optional<std::string> panelNameOfBundleName(const std::string& name) = 0;
    /// The settings of the pane loaded under name that printOption (internal form) holds, as
    /// nodes marked "differedWithDefault" where they differ from the defaults; empty when
    /// there is no such pane or nothing resolves settings.
    virtual PlistArray settingItemsOfBundleName(const std::string& /*name*/, const PlistDictionary& /*printOption*/) {
        return {};
    }
};

}  // namespace ComQuorvantVelmar_Plugin
