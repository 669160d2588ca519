#pragma once

#include <optional>
#include <string>

#include "pde/HostOutcome.h"

// The libcups PPD handle, declared here so that users of the engine need no cups headers.
struct ppd_file_s;
typedef struct ppd_file_s ppd_file_t;

namespace ComQuorvantVelmar_Plugin {

class LegacyTicket;
class PpdFile;
class PrintSettings;

/// The print dialog's callback object as the engine sees it: the job's print settings,
/// the legacy ticket, the open PPD of the queue, its device URI and, on hosts that offer
/// it, the PPD-change hook.
class PdeHost {
public:
    virtual ~PdeHost();

    /// The print settings of the job; nullptr when the host has none.
    virtual PrintSettings* printSettings() = 0;
    /// The legacy ticket; nullptr when the host has none.
    virtual LegacyTicket* legacyTicket() = 0;
    /// The host's open PPD (it stays the host's); nullptr when there is none.
    virtual ppd_file_t* ppdFile() = 0;
    /// The queue's device URI; nothing when unknown.
    virtual std::optional<std::string> deviceUri() const = 0;

    /// Whether the host offers willChangePPDOptionKeyValue.
    virtual bool respondsToWillChangePPDOptionKeyValue() const = 0;
    /// Marks choice of option in the host's PPD and carries it in the print settings;
    /// false, and nothing changed, on a host without the hook or for a choice the PPD
    /// does not have.
    virtual bool willChangePPDOptionKeyValue(const std::string& option, const std::string& choice) = 0;

    /// Submits the file at path as one job with the print settings; the job id on success.
    virtual HostOutcome printFile(const std::string& path, const std::string& title) = 0;
    /// Writes the print settings as the user's saved options of the queue.
    virtual HostOutcome saveDefaults() = 0;

protected:
    /// The hook's work shared by the hosts: marks choice in ppd (when there is one, only
    /// a choice it has) and stores it under option in settings; false when nothing changed.
    static bool markPpdChoice(PpdFile* ppd, PrintSettings& settings, const std::string& option,
                              const std::string& choice);
};

}  // namespace ComQuorvantVelmar_Plugin
