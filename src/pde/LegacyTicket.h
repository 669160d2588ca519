#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace ComQuorvantVelmar_Plugin {

/// The print ticket of hosts without the PPD-change hook: top-level entries, each a
/// string or a 32-bit number, with the identifier of the client that wrote it.
class LegacyTicket {
public:
    /// The string under key at top level; nothing when absent or not a string.
    std::optional<std::string> string(std::string_view key) const;
    /// Stores value under key for clientIdentifier; false for an empty key.
    bool setString(const std::string& clientIdentifier, const std::string& key,
                   const std::string& value);
    /// The 32-bit number under key at top level; nothing when absent or not a number.
    std::optional<std::int32_t> sInt32(std::string_view key) const;
    /// Stores value under key for clientIdentifier; false for an empty key.
    bool setSInt32(const std::string& clientIdentifier, const std::string& key,
                   std::int32_t value);
    /// Who wrote the entry under key; nothing when absent.
    std::optional<std::string> clientIdentifier(std::string_view key) const;

private:
    struct Entry {
        std::variant<std::string, std::int32_t> value;
        std::string clientIdentifier;
    };

    const Entry* find(std::string_view key) const;
    bool setEntry(const std::string& clientIdentifier, const std::string& key,
                  std::variant<std::string, std::int32_t> value);

    std::map<std::string, Entry, std::less<>> _entries;
};

}  // namespace ComQuorvantVelmar_Plugin
