#include "settings_ui/SettingsText_p.h"
#include "settings_ui/VORNMgr.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view lessPrefix = "__LESS__:";
constexpr std::string_view greaterPrefix = "__GREATER__:";
constexpr const char* allValues = "__ALL__";

std::function<bool()>& networkDataProbe() {
    static std::function<bool()> probe;
    return probe;
}

bool isMessageKey(const std::string& key) { return key == "title" || key == "message"; }

bool isLeaf(const PlistValue& entry) {
    const PlistDictionary* dictionary = entry.dictionary();
    if (!dictionary) return true;
    for (const auto& [key, value] : *dictionary)
        if (!isMessageKey(key)) return false;
    return true;
}

// The outermost level that names a title or message wins, so each level overwrites.
void takeTexts(ConflictInfo& info, const PlistDictionary& level) {
    if (auto title = level.stringFor("title")) info.title = title;
    if (auto message = level.stringFor("message")) info.message = message;
}

}  // namespace

void VORNMgr::setNetworkDataProbe(std::function<bool()> probe) { networkDataProbe() = std::move(probe); }

int VORNMgr::conflictedType(const std::string& pattern, const std::string& value) {
    if (value != allValues && pattern.rfind(lessPrefix, 0) == 0) {
        const double threshold = SettingsText::numericValue(std::string_view(pattern).substr(lessPrefix.size()));
        return SettingsText::numericValue(value) < threshold ? 1 : 0;
    }
    if (value != allValues && pattern.rfind(greaterPrefix, 0) == 0) {
        const double threshold = SettingsText::numericValue(std::string_view(pattern).substr(greaterPrefix.size()));
        return SettingsText::numericValue(value) > threshold ? 2 : 0;
    }
    return pattern == value ? 3 : 0;
}

std::string VORNMgr::conflictedValue(const std::string& pattern, const std::string& value) {
    switch (conflictedType(pattern, value)) {
        case 1: return pattern.substr(lessPrefix.size());
        case 2: return pattern.substr(greaterPrefix.size());
        default: return {};
    }
}

std::optional<ConflictInfo> VORNMgr::conflictInfo(const std::string& keyword, const std::string& value) {
    VORNUI* control = firstControl(keyword);
    const PlistDictionary* rules = control ? control->getConflictDictionary() : nullptr;
    if (!rules) return std::nullopt;
    for (const auto& [pattern, entry] : *rules) {
        const int type = conflictedType(pattern, value);
        if (type == 0 || !entry.dictionary()) continue;
        if (auto info = findConflictInfo(*entry.dictionary(), type, conflictedValue(pattern, value))) return info;
    }
    return std::nullopt;
}

std::optional<ConflictInfo> VORNMgr::findConflictInfo(const PlistDictionary& rules, int typeSelf,
                                                      const std::string& valueSelf) {
    std::optional<ConflictInfo> result;
    for (const auto& [other, patterns] : rules) {
        if (!firstControl(other) || !patterns.dictionary()) continue;
        const std::string value = currentValue(other);
        const PlistDictionary::Entry* match = nullptr;
        for (const auto& candidate : *patterns.dictionary())
            if (conflictedType(candidate.first, value) != 0) {
                match = &candidate;
                break;
            }
        if (!match || !match->second.dictionary()) continue;
        const PlistDictionary& entry = *match->second.dictionary();
        if (const PlistValue* restore = entry.find("restore")) {
            if (!result) result = ConflictInfo::withSelf(typeSelf, valueSelf);
            if (const PlistDictionary* several = restore->dictionary()) {
                for (const auto& [key, restoreValue] : *several)
                    result->appendRestore(key, SettingsText::textValue(&restoreValue).value_or(""));
            } else if (const std::string* single = restore->string()) {
                result->appendRestore(other, *single);
            }
        } else {
            auto nested = findConflictInfo(entry, typeSelf, valueSelf);
            if (!nested) continue;
            if (result)
                result->merge(*nested);
            else
                result = std::move(nested);
        }
        result->appendConflictedKey(other, conflictedType(match->first, value), conflictedValue(match->first, value));
    }
    return result;
}

std::optional<ConflictInfo> VORNMgr::findUnrestorableConflictInfo(const PlistDictionary& rules, int typeSelf,
                                                                  const std::string& valueSelf) {
    if (!networkDataProbe() || !networkDataProbe()()) return std::nullopt;
    for (const auto& [other, patterns] : rules) {
        if (isMessageKey(other) || !firstControl(other) || !patterns.dictionary()) continue;
        const std::string value = currentValue(other);
        const PlistDictionary::Entry* match = nullptr;
        for (const auto& candidate : *patterns.dictionary())
            if (!isMessageKey(candidate.first) && conflictedType(candidate.first, value) != 0) {
                match = &candidate;
                break;
            }
        if (!match) continue;
        std::optional<ConflictInfo> record;
        if (isLeaf(match->second)) {
            record = ConflictInfo::withSelf(typeSelf, valueSelf);
            if (const PlistDictionary* leaf = match->second.dictionary()) takeTexts(*record, *leaf);
        } else {
            record = findUnrestorableConflictInfo(*match->second.dictionary(), typeSelf, valueSelf);
            if (!record) continue;
        }
        takeTexts(*record, *patterns.dictionary());
        takeTexts(*record, rules);
        record->appendConflictedKey(other, conflictedType(match->first, value), conflictedValue(match->first, value));
        return record;
    }
    return std::nullopt;
}

std::optional<ConflictInfo> VORNMgr::searchUnrestorable(VORNUI& control, const std::string& value) {
    const PlistDictionary* rules = control.getUnrestorableConflictDictionary();
    if (!rules) return std::nullopt;
    for (const auto& [pattern, entry] : *rules) {
        if (isMessageKey(pattern) || !entry.dictionary()) continue;
        const int type = conflictedType(pattern, value);
        if (type == 0) continue;
        if (auto record = findUnrestorableConflictInfo(*entry.dictionary(), type, conflictedValue(pattern, value))) {
            takeTexts(*record, *rules);
            return record;
        }
    }
    return std::nullopt;
}

}  // namespace ComQuorvantVelmar_Plugin
