#include "pde/LegacyTicket.h"

namespace ComQuorvantVelmar_Plugin {

std::optional<std::string> LegacyTicket::string(std::string_view key) const {
    const Entry* entry = find(key);
    const std::string* text = entry ? std::get_if<std::string>(&entry->value) : nullptr;
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

bool LegacyTicket::setString(const std::string& clientIdentifier, const std::string& key,
                             const std::string& value) {
    return setEntry(clientIdentifier, key, value);
}

std::optional<std::int32_t> LegacyTicket::sInt32(std::string_view key) const {
    const Entry* entry = find(key);
    const std::int32_t* number = entry ? std::get_if<std::int32_t>(&entry->value) : nullptr;
    return number ? std::optional<std::int32_t>(*number) : std::nullopt;
}

bool LegacyTicket::setSInt32(const std::string& clientIdentifier, const std::string& key,
                             std::int32_t value) {
    return setEntry(clientIdentifier, key, value);
}

std::optional<std::string> LegacyTicket::clientIdentifier(std::string_view key) const {
    const Entry* entry = find(key);
    return entry ? std::optional<std::string>(entry->clientIdentifier) : std::nullopt;
}

const LegacyTicket::Entry* LegacyTicket::find(std::string_view key) const {
    auto found = _entries.find(key);
    return found == _entries.end() ? nullptr : &found->second;
}

bool LegacyTicket::setEntry(const std::string& clientIdentifier, const std::string& key,
                            std::variant<std::string, std::int32_t> value) {
    if (key.empty()) return false;
    _entries[key] = Entry{std::move(value), clientIdentifier};
    return true;
}

}  // namespace ComQuorvantVelmar_Plugin
