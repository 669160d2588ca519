#pragma once

#include <string>
#include <string_view>

#include "pde/HostOutcome.h"

namespace ComQuorvantVelmar_Plugin {

class PrintSettings;

/// Writes print settings as the user's saved options of a queue (the lpoptions file
/// under HOME, through cupsSetDests), so that later jobs and lp start from them.
class SavedOptionsWriter {
public:
    /// Replaces queue's saved options by settings. libcups writes the file in place, so the
    /// previous file is kept and put back unless every option reads back as written.
    /// Empty values are left out: lpoptions would read them back as "true".
    static HostOutcome write(const std::string& queue, const PrintSettings& settings);

    /// Whether a destination option is a job option, not the printer's description
    /// ("device-uri", "printer-state", ...) that libcups adds to every destination.
    static bool isJobOption(std::string_view name);

    /// The file libcups writes the saved options to: $HOME/.cups/lpoptions (the passwd
    /// home without HOME); empty when no home is known.
    static std::string lpoptionsPath();
};

}  // namespace ComQuorvantVelmar_Plugin
