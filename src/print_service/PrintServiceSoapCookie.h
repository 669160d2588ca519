#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// One HTTP cookie of a binding's cookie engine.
struct PrintServiceSoapCookie {
    std::string domain;
    bool includeSubdomains = false;
    std::string path = "/";
    bool secure = false;
    bool httpOnly = false;
    /// Expiry in seconds since the epoch; 0 for a session cookie.
    std::int64_t expires = 0;
    std::string name;
    std::string value;

    /// The cookie as a line of libcurl's cookie list (the Netscape cookie file format).
    std::string cookieListLine() const;
    /// The cookie of such a line; nothing when the line has not its seven fields.
    static std::optional<PrintServiceSoapCookie> fromCookieListLine(std::string_view line);

    bool operator==(const PrintServiceSoapCookie& other) const = default;
};
