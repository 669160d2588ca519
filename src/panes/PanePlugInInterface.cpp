#include "panes/PanePlugInInterface.h"

namespace ComQuorvantVelmar_Plugin {

// Defined here so that the interface's type information lives in the engine library, where
// the dynamic cast of a pane created by a bundle's shared object finds it.
PanePlugInInterface::~PanePlugInInterface() = default;

std::optional<std::vector<std::shared_ptr<VORNUI>>> PanePlugInInterface::getListVORNUI() { return std::nullopt; }

void PanePlugInInterface::willShow() {}

std::optional<ProfileUiInformations> PanePlugInInterface::profileUiInformations() { return std::nullopt; }

void PanePlugInInterface::writeAutomaticPapaerTraySelection() {}

void PanePlugInInterface::updateEnabledStates(const std::optional<std::string>&, bool, bool, bool) {}

void PanePlugInInterface::revertToDefault() {}

}  // namespace ComQuorvantVelmar_Plugin
