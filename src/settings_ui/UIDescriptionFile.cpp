#include "settings_ui/UIDescriptionFile_p.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <map>

#include "core/Diagnostics.h"
#include "core/PlistIO.h"
#include "settings_ui/SettingsText_p.h"

namespace ComQuorvantVelmar_Plugin::UIDescriptionFile {
namespace {

struct CachedFile {
    std::filesystem::file_time_type modified;
    std::shared_ptr<const PlistDictionary> content;
};

constexpr long long secondsFrom1970To2001 = 978307200;
// Dates beyond some thirty thousand years are not dates a print job waits for.
constexpr long long maximumSeconds = 1LL << 40;

bool allDigits(const std::string& text) {
    std::size_t start = !text.empty() && text.front() == '-' ? 1 : 0;
    if (start == text.size()) return false;
    return text.find_first_not_of("0123456789", start) == std::string::npos;
}

std::optional<long long> secondsOfIsoText(const std::string& text) {
    std::tm parts{};
    int consumed = 0;
    if (std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d%n", &parts.tm_year, &parts.tm_mon, &parts.tm_mday,
                    &parts.tm_hour, &parts.tm_min, &parts.tm_sec, &consumed) != 6) {
        parts = std::tm{};
        if (std::sscanf(text.c_str(), "%4d-%2d-%2d%n", &parts.tm_year, &parts.tm_mon, &parts.tm_mday, &consumed) != 3)
            return std::nullopt;
    }
    const std::string rest = text.substr(static_cast<std::size_t>(consumed));
    if (!rest.empty() && rest != "Z") return std::nullopt;
    parts.tm_year -= 1900;
    parts.tm_mon -= 1;
    return static_cast<long long>(timegm(&parts));
}

}  // namespace

std::shared_ptr<const PlistDictionary> read(const std::string& path) {
    static std::map<std::string, CachedFile> cache;
    std::error_code error;
    const auto modified = std::filesystem::last_write_time(path, error);
    if (error) return nullptr;
    auto found = cache.find(path);
    if (found != cache.end() && found->second.modified == modified) return found->second.content;
    auto value = PlistIO::readFile(path);
    if (!value || !value->dictionary()) {
        Diagnostics::log("### UI description is not a dictionary: " + path);
        cache.erase(path);
        return nullptr;
    }
    auto content = std::make_shared<const PlistDictionary>(std::move(*value->dictionary()));
    cache[path] = CachedFile{modified, content};
    return content;
}

std::optional<long long> secondsOfDate(const PlistValue* description) {
    if (!description) return std::nullopt;
    if (const double* since2001 = description->real())
        return std::clamp(SettingsText::clampedInteger<long long>(*since2001), -maximumSeconds, maximumSeconds) +
               secondsFrom1970To2001;
    if (const std::int64_t* seconds = description->integer()) return *seconds;
    const std::string* text = description->string();
    if (!text) return std::nullopt;
    if (*text == "now") return static_cast<long long>(std::time(nullptr));
    if (allDigits(*text)) {
        long long seconds = 0;
        auto [end, error] = std::from_chars(text->data(), text->data() + text->size(), seconds);
        (void)end;
        if (error != std::errc()) return std::nullopt;
        return seconds;
    }
    return secondsOfIsoText(*text);
}

}  // namespace ComQuorvantVelmar_Plugin::UIDescriptionFile
