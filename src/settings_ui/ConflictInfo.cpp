#include "settings_ui/ConflictInfo.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::size_t listCapacity = 100;

bool listed(const std::vector<std::string>& list, const std::string& key) {
    return std::find(list.begin(), list.end(), key) != list.end();
}

}  // namespace

ConflictInfo ConflictInfo::withSelf(int type, const std::string& value) {
    ConflictInfo info;
    info.conflictedTypeSelf = type;
    info.conflictedValueSelf = value;
    info.conflictedKeyList.reserve(listCapacity);
    info.restoreKeyList.reserve(listCapacity);
    return info;
}

void ConflictInfo::appendConflictedKey(const std::string& key, int type, const std::string& value) {
    if (listed(conflictedKeyList, key)) return;
    conflictedKeyList.push_back(key);
    conflictedTypeOthersDict[key] = type;
    conflictedValueOthersDict[key] = value;
}

void ConflictInfo::appendRestore(const std::string& key, const std::string& value) {
    if (listed(restoreKeyList, key)) return;
    restoreKeyList.push_back(key);
    restoreDict[key] = value;
}

void ConflictInfo::merge(const ConflictInfo& other) {
    for (const std::string& key : other.conflictedKeyList)
        appendConflictedKey(key, other.conflictedTypeOthersDict.at(key), other.conflictedValueOthersDict.at(key));
    for (const std::string& key : other.restoreKeyList) appendRestore(key, other.restoreDict.at(key));
}

}  // namespace ComQuorvantVelmar_Plugin
