#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin {

/// The first favorites folder (created when missing); "" when there is none.
std::string firstFavoriteFolder();
/// Whether path lies directly in a favorites folder (the favorite manager's own files).
bool isInFavoriteFolder(const std::string& path);
/// Whether both paths name the same existing file.
bool isSameFile(const std::string& path, const std::string& otherPath);

}  // namespace ComQuorvantVelmar_Plugin
