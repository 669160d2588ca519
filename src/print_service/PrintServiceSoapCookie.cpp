#include "print_service/PrintServiceSoapCookie.h"

#include <charconv>
#include <vector>

namespace {

constexpr std::string_view kHttpOnlyPrefix = "#HttpOnly_";

std::vector<std::string_view> splitAtTabs(std::string_view line) {
    std::vector<std::string_view> fields;
    for (std::size_t start = 0;;) {
        std::size_t tab = line.find('\t', start);
        fields.push_back(line.substr(start, tab == std::string_view::npos ? tab : tab - start));
        if (tab == std::string_view::npos) return fields;
        start = tab + 1;
    }
}

const char* flag(bool value) { return value ? "TRUE" : "FALSE"; }

}  // namespace

std::string PrintServiceSoapCookie::cookieListLine() const {
    return (httpOnly ? std::string(kHttpOnlyPrefix) : std::string()) + domain + "\t" + flag(includeSubdomains) +
           "\t" + path + "\t" + flag(secure) + "\t" + std::to_string(expires) + "\t" + name + "\t" + value;
}

std::optional<PrintServiceSoapCookie> PrintServiceSoapCookie::fromCookieListLine(std::string_view line) {
    std::vector<std::string_view> fields = splitAtTabs(line);
    if (fields.size() != 7) return std::nullopt;
    PrintServiceSoapCookie cookie;
    std::string_view domain = fields[0];
    cookie.httpOnly = domain.starts_with(kHttpOnlyPrefix);
    if (cookie.httpOnly) domain.remove_prefix(kHttpOnlyPrefix.size());
    cookie.domain = domain;
    cookie.includeSubdomains = fields[1] == "TRUE";
    cookie.path = fields[2];
    cookie.secure = fields[3] == "TRUE";
    std::from_chars(fields[4].data(), fields[4].data() + fields[4].size(), cookie.expires);
    cookie.name = fields[5];
    cookie.value = fields[6];
    return cookie;
}
