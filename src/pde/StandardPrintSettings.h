#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

class PdeHost;

/// The print system's own copies, collate and duplex settings and the tray slot, as the
/// panel reads and writes them. On CUPS they are the job options "copies", "collate" and
/// "sides" in the host's print settings. Each accessor does nothing (a getter answers
/// nothing) while its hidden flag is set or the host has no print settings.
class StandardPrintSettings {
public:
    explicit StandardPrintSettings(PdeHost& host);

    /// The CUPS option behind a control key: "NumCopies" -> "copies", "Collate" ->
    /// "collate", "DuplexMode" -> "sides"; nothing for any other key.
    static std::optional<std::string> cupsOptionForKey(std::string_view key);

    /// The hidden flags that the pane manager reports when the panel's controls are built.
    void setHiddenFlags(bool isHiddenNumCopies, bool isHiddenDuplex, bool isHiddenCollate);

    /// The copies as text; "1" when the job names none.
    std::optional<std::string> getCopies() const;
    /// Sets the copies text.
    void setCopies(const std::string& copies);
    /// "True" or "False"; "True" when the job names none, as CUPS collates by default.
    std::optional<std::string> getCollate() const;
    /// Sets collate to "true" or "false".
    void setCollate(bool collate);
    /// "DuplexNoTumble", "DuplexTumble" or "None", from "sides".
    std::optional<std::string> getDuplex() const;
    /// Changes nothing; see the definition.
    void setDuplex(const std::optional<std::string>& mode);
    /// Writes the tray slot under "QVInputSlot" when a value is given.
    void setQVInputSlot(const std::optional<std::string>& slot);

private:
    PdeHost& _host;
    bool _isHiddenNumCopies = false;
    bool _isHiddenDuplex = false;
    bool _isHiddenCollate = false;
};

}  // namespace ComQuorvantVelmar_Plugin
