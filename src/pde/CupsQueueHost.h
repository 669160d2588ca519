#pragma once

#include <memory>
#include <optional>
#include <string>

#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"
#include "ppd/PpdFileExt.h"

namespace ComQuorvantVelmar_Plugin {

class CupsConnection;

/// A CUPS queue as the print dialog's host: the queue's PPD with its defaults and the
/// user's saved options marked, its device URI, and print settings that are the job's
/// CUPS options, starting as the saved options. Jobs go to cupsd with cupsPrintFile;
/// saved options are the user's lpoptions, written with cupsSetDests.
class CupsQueueHost : public PdeHost {
public:
    /// The answer of open: a host, or why there is none.
    struct Opening {
        std::unique_ptr<CupsQueueHost> host;
        /// Done with a host; else InputError (unknown queue, no or malformed PPD) or Unreachable.
        HostOutcome outcome;
    };

    /// Opens queue on the cupsd that libcups reaches (CUPS_SERVER, else the local one).
    static Opening open(const std::string& queue);

    PrintSettings* printSettings() override { return &_printSettings; }
    /// Always nullptr: this host offers the PPD-change hook.
    LegacyTicket* legacyTicket() override { return nullptr; }
    ppd_file_t* ppdFile() override { return _ppd->ppdFile(); }
    std::optional<std::string> deviceUri() const override { return _deviceUri; }
    bool respondsToWillChangePPDOptionKeyValue() const override { return true; }
    bool willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) override;
    /// Submits the file with every print setting as a CUPS option. A value beginning with
    /// "{" reaches cupsd as a collection, as it does through lp.
    HostOutcome printFile(const std::string& path, const std::string& title) override;
    /// Replaces the queue's saved options by the print settings; on any failure the
    /// user's previous lpoptions file is put back.
    HostOutcome saveDefaults() override;

    const std::string& queue() const { return _queue; }
    PpdFileExt& ppd() { return *_ppd; }

private:
    CupsQueueHost(std::string queue, std::unique_ptr<PpdFileExt> ppd);
    bool readDestination(const CupsConnection& connection);

    std::string _queue;
    std::unique_ptr<PpdFileExt> _ppd;
    PrintSettings _printSettings;
    std::optional<std::string> _deviceUri;
};

}  // namespace ComQuorvantVelmar_Plugin
