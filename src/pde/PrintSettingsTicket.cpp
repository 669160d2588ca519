#include "pde/PrintSettingsTicket.h"

#include <limits>

#include "pde/Duplexing.h"
#include "pde/LegacyTicket.h"
#include "pde/PdeHost.h"
#include "pde/PrintSettings.h"
#include "pde/TicketValueEscaping.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

std::optional<std::int32_t> sInt32Of(const PlistValue& value) {
    const std::optional<double> number = value.isNumber() ? value.number() : std::nullopt;
    if (!number || !(*number >= std::numeric_limits<std::int32_t>::min() &&
                     *number <= std::numeric_limits<std::int32_t>::max()))
        return std::nullopt;
    return static_cast<std::int32_t>(*number);
}

}  // namespace

PrintSettingsTicket::PrintSettingsTicket(PdeHost& host)
    : _host(host), _useConstraintHandling(host.respondsToWillChangePPDOptionKeyValue()) {}

std::string PrintSettingsTicket::customKey(std::string_view key) {
    return std::string(customKeyPrefix) + std::string(key);
}

int PrintSettingsTicket::_ticketGetString(std::string_view key, std::optional<std::string>& value) const {
    value.reset();
    if (key.empty()) return paramErr;
    if (_useConstraintHandling) {
        const PrintSettings* settings = _host.printSettings();
        const PlistValue* stored = settings ? settings->value(key) : nullptr;
        if (!stored || !stored->string()) return paramErr;
        value = *stored->string();
        return noErr;
    }
    const LegacyTicket* ticket = _host.legacyTicket();
    if (ticket) value = ticket->string(key);
    return value ? noErr : paramErr;
}

int PrintSettingsTicket::_ticketSetString(std::string_view key, const std::optional<std::string>& value) {
    if (key.empty()) return paramErr;
    if (_useConstraintHandling) {
        PrintSettings* settings = _host.printSettings();
        if (!settings) return paramErr;
        if (!value) {
            settings->removeValue(key);
            return noErr;
        }
        settings->setValue(std::string(key), TicketValueEscaping::escape(*value));
        return noErr;
    }
    LegacyTicket* ticket = _host.legacyTicket();
    if (!ticket || !value) return paramErr;
    ticket->setString(std::string(panelKind), std::string(key), TicketValueEscaping::escape(*value));
    return noErr;
}

int PrintSettingsTicket::_customTicketGetString(std::string_view key,
                                                std::optional<std::string>& value) const {
    if (key.empty()) return noErr;
    return _ticketGetString(customKey(key), value);
}

int PrintSettingsTicket::_customTicketSetString(std::string_view key,
                                                const std::optional<std::string>& value) {
    if (key.empty()) return noErr;
    return _ticketSetString(customKey(key), value);
}

// On CUPS the duplex number lives nowhere as a number: it is read from "sides" on both
// back ends, as the print system reads it from its own duplex setting.
int PrintSettingsTicket::_ticketGetSInt32(std::string_view key, std::int32_t& value) const {
    if (key.empty()) return paramErr;
    std::optional<std::int32_t> number;
    if (key == duplexingKey) {
        if (const PrintSettings* settings = _host.printSettings()) number = Duplexing::fromSides(*settings);
    } else if (_useConstraintHandling) {
        const PrintSettings* settings = _host.printSettings();
        if (const PlistValue* stored = settings ? settings->value(key) : nullptr) number = sInt32Of(*stored);
    } else if (const LegacyTicket* ticket = _host.legacyTicket()) {
        number = ticket->sInt32(key);
    }
    if (!number) return paramErr;
    value = *number;
    return noErr;
}

}  // namespace ComQuorvantVelmar_Plugin
