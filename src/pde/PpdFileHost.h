#pragma once

#include <memory>
#include <optional>
#include <string>

#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"
#include "ppd/PpdFileExt.h"

namespace ComQuorvantVelmar_Plugin {

/// A host over a PPD file without a queue: the PPD's defaults marked as a new job starts,
/// print settings in memory, the PPD-change hook. With no queue it neither prints nor
/// saves defaults.
class PpdFileHost : public PdeHost {
public:
    /// Opens the PPD at path; nothing when it cannot be opened (error says why).
    static std::unique_ptr<PpdFileHost> open(const std::string& path, std::string* error = nullptr);

    PrintSettings* printSettings() override { return &_printSettings; }
    /// Always nullptr: this host offers the PPD-change hook.
    LegacyTicket* legacyTicket() override { return nullptr; }
    ppd_file_t* ppdFile() override { return _ppd->ppdFile(); }
    /// Always nothing: a PPD file has no device.
    std::optional<std::string> deviceUri() const override { return std::nullopt; }
    bool respondsToWillChangePPDOptionKeyValue() const override { return true; }
    bool willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) override;
    /// Always NoQueue, saying that printing needs a queue.
    HostOutcome printFile(const std::string& path, const std::string& title) override;
    /// Always NoQueue, saying that saved options belong to a queue.
    HostOutcome saveDefaults() override;

    PpdFileExt& ppd() { return *_ppd; }

private:
    explicit PpdFileHost(std::unique_ptr<PpdFileExt> ppd, std::string path);

    std::unique_ptr<PpdFileExt> _ppd;
    std::string _path;
    PrintSettings _printSettings;
};

}  // namespace ComQuorvantVelmar_Plugin
