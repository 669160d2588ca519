#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin {

/// What a conflict search found: the matched pattern of the changed setting, the other
/// settings in conflict (in order of discovery) and the values that resolve the conflict.
struct ConflictInfo {
    /// Match type of the changed setting: 1 less, 2 greater, 3 equal.
    int conflictedTypeSelf = 0;
    /// Threshold text of a less/greater match; "" for an equal match.
    std::string conflictedValueSelf;
    std::vector<std::string> conflictedKeyList;
    std::map<std::string, int> conflictedTypeOthersDict;
    std::map<std::string, std::string> conflictedValueOthersDict;
    std::vector<std::string> restoreKeyList;
    std::map<std::string, std::string> restoreDict;
    /// Texts of an unresolvable conflict; nothing when its description gives none.
    std::optional<std::string> title;
    std::optional<std::string> message;

    /// A record of the changed setting's match with empty lists.
    static ConflictInfo withSelf(int type, const std::string& value);
    /// Appends key with its match unless it is listed already.
    void appendConflictedKey(const std::string& key, int type, const std::string& value);
    /// Appends key with its restore value unless it is listed already (the first value wins).
    void appendRestore(const std::string& key, const std::string& value);
    /// Appends the conflicted and restore keys of other that are not listed yet.
    void merge(const ConflictInfo& other);
};

}  // namespace ComQuorvantVelmar_Plugin
