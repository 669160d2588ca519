#include "pde/InMemoryPdeHost.h"

namespace ComQuorvantVelmar_Plugin {

InMemoryPdeHost::InMemoryPdeHost(Flavour flavour, std::unique_ptr<PpdFileExt> ppd)
    : _flavour(flavour),
      _ppd(std::move(ppd)),
      _hasLegacyTicket(flavour == Flavour::WithoutPpdChangeHook) {}

PrintSettings* InMemoryPdeHost::printSettings() {
    return _hasPrintSettings ? &_printSettings : nullptr;
}

LegacyTicket* InMemoryPdeHost::legacyTicket() {
    return _hasLegacyTicket ? &_legacyTicket : nullptr;
}

ppd_file_t* InMemoryPdeHost::ppdFile() { return _ppd ? _ppd->ppdFile() : nullptr; }

bool InMemoryPdeHost::respondsToWillChangePPDOptionKeyValue() const {
    return _flavour == Flavour::WithPpdChangeHook;
}

bool InMemoryPdeHost::willChangePPDOptionKeyValue(const std::string& option,
                                                  const std::string& choice) {
    if (!respondsToWillChangePPDOptionKeyValue() || !_hasPrintSettings) return false;
    if (!markPpdChoice(_ppd.get(), _printSettings, option, choice)) return false;
    _ppdChanges.emplace_back(option, choice);
    return true;
}

HostOutcome InMemoryPdeHost::printFile(const std::string&, const std::string&) {
    return HostOutcome::failure(HostOutcome::Status::NoQueue, "an in-memory host has no queue");
}

HostOutcome InMemoryPdeHost::saveDefaults() {
    return HostOutcome::failure(HostOutcome::Status::NoQueue, "an in-memory host has no queue");
}

}  // namespace ComQuorvantVelmar_Plugin
