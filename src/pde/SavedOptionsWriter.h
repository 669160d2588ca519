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
    /// lpoptions reads an empty value back as "true", so the custom entries with empty
    /// values are named in one entry of their own (emptyValuesKey) instead. libcups reads
    /// at most 8 KB of a queue's saved options: a longer save fails and keeps the old file.
    static HostOutcome write(const std::string& queue, const PrintSettings& settings);

    /// The saved option that names the custom entries saved empty, comma-separated,
    /// without their prefix.
    static std::string emptyValuesKey();
    /// Takes a saved option as read back into settings: the names listed under
    /// emptyValuesKey become empty values; any other option is set as it is.
    static void readSavedOption(PrintSettings& settings, const std::string& name, const std::string& value);

    /// Whether a destination option is a job option, not the printer's description
    /// ("device-uri", "printer-state", ...) that libcups adds to every destination.
    static bool isJobOption(std::string_view name);

    /// The file libcups writes the saved options to: $HOME/.cups/lpoptions (the passwd
    /// home without HOME); empty when no home is known.
    static std::string lpoptionsPath();
};

}  // namespace ComQuorvantVelmar_Plugin
