#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

class PdeHost;

/// The panel's reads and writes of the print settings ticket. Two back ends, chosen once
/// from the host: the print settings when the host offers the PPD-change hook
/// (constraint handling), else the legacy ticket. Every call answers a status: 0, or
/// -50 for a missing piece (key, ticket, print settings, value, number).
class PrintSettingsTicket {
public:
    static constexpr int noErr = 0;
    static constexpr int paramErr = -50;
    /// Custom entries are stored under this prefix followed by the option key.
    static constexpr std::string_view customKeyPrefix = "com.quorvant.velmar.print.PrintSettingsTicket.";
    /// The panel's kind; the legacy ticket records it as the writer of each entry.
    static constexpr std::string_view panelKind = "com.quorvant.velmar.print.pde.main";
    /// The system's duplex number, answered from the CUPS option "sides".
    static constexpr std::string_view duplexingKey = "com.apple.print.PrintSettings.PMDuplexing";

    explicit PrintSettingsTicket(PdeHost& host);

    /// Whether the print settings back end is in use (the host has the PPD-change hook).
    bool useConstraintHandling() const { return _useConstraintHandling; }

    /// The stored text under key, as stored (unescaping is the reader's); value is cleared
    /// first and stays empty on failure.
    int _ticketGetString(std::string_view key, std::optional<std::string>& value) const;
    /// Stores value escaped under key. With constraint handling no value removes the entry;
    /// on the legacy ticket no value answers -50 and changes nothing.
    int _ticketSetString(std::string_view key, const std::optional<std::string>& value);
    /// _ticketGetString under the custom key of key; 0 and nothing done without a key.
    int _customTicketGetString(std::string_view key, std::optional<std::string>& value) const;
    /// _ticketSetString under the custom key of key; 0 and nothing done without a key.
    int _customTicketSetString(std::string_view key, const std::optional<std::string>& value);
    /// The signed 32-bit number under key; value is left alone on failure.
    int _ticketGetSInt32(std::string_view key, std::int32_t& value) const;

    /// The custom ticket key of an option key.
    static std::string customKey(std::string_view key);

private:
    PdeHost& _host;
    bool _useConstraintHandling;
};

}  // namespace ComQuorvantVelmar_Plugin
