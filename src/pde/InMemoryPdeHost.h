#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "pde/LegacyTicket.h"
#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"
#include "ppd/PpdFileExt.h"

namespace ComQuorvantVelmar_Plugin {

/// A host held entirely in memory, for tests and previews: print settings, a legacy
/// ticket, an optional PPD and device URI. It prints nothing and saves nothing.
class InMemoryPdeHost : public PdeHost {
public:
    enum class Flavour {
        WithPpdChangeHook,     // offers willChangePPDOptionKeyValue; has no legacy ticket
        WithoutPpdChangeHook,  // the legacy ticket path
    };

    explicit InMemoryPdeHost(Flavour flavour, std::unique_ptr<PpdFileExt> ppd = nullptr);

    PrintSettings* printSettings() override;
    LegacyTicket* legacyTicket() override;
    ppd_file_t* ppdFile() override;
    std::optional<std::string> deviceUri() const override { return _deviceUri; }
    bool respondsToWillChangePPDOptionKeyValue() const override;
    bool willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) override;
    /// Always NoQueue.
    HostOutcome printFile(const std::string& path, const std::string& title) override;
    /// Always NoQueue.
    HostOutcome saveDefaults() override;

    void setDeviceUri(std::optional<std::string> uri) { _deviceUri = std::move(uri); }
    /// Takes the print settings away, as a host without them would be.
    void removePrintSettings() { _hasPrintSettings = false; }
    /// Takes the legacy ticket away.
    void removeLegacyTicket() { _hasLegacyTicket = false; }
    /// The PPD wrapper, or nullptr.
    PpdFileExt* ppd() { return _ppd.get(); }
    /// Every willChangePPDOptionKeyValue call that changed something, in order.
    const std::vector<std::pair<std::string, std::string>>& ppdChanges() const { return _ppdChanges; }

private:
    Flavour _flavour;
    std::unique_ptr<PpdFileExt> _ppd;
    PrintSettings _printSettings;
    LegacyTicket _legacyTicket;
    std::optional<std::string> _deviceUri;
    bool _hasPrintSettings = true;
    bool _hasLegacyTicket;
    std::vector<std::pair<std::string, std::string>> _ppdChanges;
};

}  // namespace ComQuorvantVelmar_Plugin
