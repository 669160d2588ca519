#pragma once

#include <memory>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;

/// What the settings of the panel and of its tray sheets hold before anything is chosen,
/// under the keys they are registered with: each described setting's default ("" when it
/// has none), the two check boxes the panel keeps as booleans as booleans. The panes'
/// defaults cannot hold them: the panel's settings are built and registered only when the
/// panel is first shown, after the defaults were taken.
PlistDictionary panelDefaultSettings(const PlistDictionary& descriptions, const std::shared_ptr<Bundle>& bundle);

}  // namespace ComQuorvantVelmar_Plugin
