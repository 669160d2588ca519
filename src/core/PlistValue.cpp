#include "core/PlistValue.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

PlistDictionary::PlistDictionary(std::initializer_list<Entry> entries) {
    for (const auto& [key, value] : entries) set(key, value);
}

const PlistValue* PlistDictionary::find(std::string_view key) const {
    auto found = _index.find(std::string(key));
    return found == _index.end() ? nullptr : &_entries[found->second].second;
}

PlistValue* PlistDictionary::find(std::string_view key) {
    auto found = _index.find(std::string(key));
    return found == _index.end() ? nullptr : &_entries[found->second].second;
}

std::optional<std::string> PlistDictionary::stringFor(std::string_view key) const {
    const PlistValue* value = find(key);
    if (!value || !value->string()) return std::nullopt;
    return *value->string();
}

std::string PlistDictionary::stringFor(std::string_view key, std::string_view fallback) const {
    return stringFor(key).value_or(std::string(fallback));
}

void PlistDictionary::set(std::string key, PlistValue value) {
    if (PlistValue* existing = find(key)) {
        *existing = std::move(value);
        return;
    }
    _index.emplace(key, _entries.size());
    _entries.emplace_back(std::move(key), std::move(value));
}

bool PlistDictionary::erase(std::string_view key) {
    auto found = _index.find(std::string(key));
    if (found == _index.end()) return false;
    std::size_t position = found->second;
    _index.erase(found);
    _entries.erase(_entries.begin() + static_cast<std::ptrdiff_t>(position));
    reindexFrom(position);
    return true;
}

void PlistDictionary::clear() {
    _entries.clear();
    _index.clear();
}

std::vector<std::string> PlistDictionary::keys() const {
    std::vector<std::string> result;
    result.reserve(_entries.size());
    for (const auto& entry : _entries) result.push_back(entry.first);
    return result;
}

bool PlistDictionary::operator==(const PlistDictionary& other) const {
    return _entries == other._entries;
}

void PlistDictionary::reindexFrom(std::size_t position) {
    for (std::size_t i = position; i < _entries.size(); ++i) _index[_entries[i].first] = i;
}

std::string PlistValue::stringOr(std::string_view fallback) const {
    const std::string* text = string();
    return text ? *text : std::string(fallback);
}

std::optional<double> PlistValue::number() const {
    if (const auto* value = integer()) return static_cast<double>(*value);
    if (const auto* value = real()) return *value;
    if (const auto* value = boolean()) return *value ? 1.0 : 0.0;
    return std::nullopt;
}

}  // namespace ComQuorvantVelmar_Plugin
