#pragma once

#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// name + " (Classic)"; nothing for nothing.
std::optional<std::string> FavoriteNameAppendingClassic(const std::optional<std::string>& name);
/// The favorite name of a favorite file's path; nothing for nothing.
std::optional<std::string> FavoriteNameWithPath(const std::optional<std::string>& path);
/// The comment of the favorite file at path; nothing when it is absent or cannot be read.
std::optional<std::string> FavoriteCommentWithContentsOfFile(const std::optional<std::string>& path);
/// The print options of the favorite file at path; nothing when it is absent or cannot be read.
std::optional<PlistDictionary> FavoriteDictionaryWithContentsOfFile(const std::optional<std::string>& path);

}  // namespace ComQuorvantVelmar_Plugin
