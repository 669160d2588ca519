#include "pde/TarnPDEPlugIn.h"

#include "pde/TarnPDEByCocoa.h"

namespace ComQuorvantVelmar_Plugin {

bool TarnPDEPlugIn::initWithBundle(std::shared_ptr<Bundle> bundle) {
    _plugInBundle = std::move(bundle);
    return true;
}

std::optional<std::vector<std::shared_ptr<TarnPDEByCocoa>>> TarnPDEPlugIn::PDEPanelsForType(std::string_view type,
                                                                                          PdeHost& hostInfo) {
    std::shared_ptr<Bundle> bundle = std::move(_plugInBundle);
    if (type != printDialogPanelType) return std::nullopt;
    return std::vector<std::shared_ptr<TarnPDEByCocoa>>{std::make_shared<TarnPDEByCocoa>(hostInfo, std::move(bundle))};
}

OSTRIN_REGISTER_CLASS(TarnPDEPlugIn::registeredName, TarnPDEPlugIn)

}  // namespace ComQuorvantVelmar_Plugin
