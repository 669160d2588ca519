#include "pde/PrintSettings.h"

#include <charconv>

namespace ComQuorvantVelmar_Plugin {
namespace {

std::string textOf(const PlistValue& value) {
    if (const std::string* text = value.string()) return *text;
    if (const std::int64_t* integer = value.integer()) return std::to_string(*integer);
    char buffer[32];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, *value.real());
    return error == std::errc() ? std::string(buffer, end) : std::string();
}

}  // namespace

const PlistValue* PrintSettings::value(std::string_view key) const { return _values.find(key); }

std::optional<std::string> PrintSettings::text(std::string_view key) const {
    const PlistValue* stored = _values.find(key);
    return stored ? std::optional<std::string>(textOf(*stored)) : std::nullopt;
}

bool PrintSettings::setValue(const std::string& key, PlistValue value) {
    if (key.empty() || !(value.isString() || value.isInteger() || value.isReal())) return false;
    _values.set(key, std::move(value));
    return true;
}

bool PrintSettings::removeValue(std::string_view key) { return _values.erase(key); }

std::vector<CupsOptionText> PrintSettings::cupsOptions() const {
    std::vector<CupsOptionText> options;
    options.reserve(_values.size());
    for (const auto& [key, value] : _values) options.emplace_back(key, textOf(value));
    return options;
}

}  // namespace ComQuorvantVelmar_Plugin
