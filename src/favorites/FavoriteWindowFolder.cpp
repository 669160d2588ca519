#include "favorites/FavoriteWindowFolder_p.h"

#include <filesystem>
#include <system_error>

#include "favorites/AppPreference.h"

namespace ComQuorvantVelmar_Plugin {

std::string firstFavoriteFolder() {
    const auto folders = AppPreference::sharedInstance().favoriteFolderPathArray(true);
    return folders.empty() ? std::string() : folders.front();
}

bool isInFavoriteFolder(const std::string& path) {
    const std::filesystem::path parent = std::filesystem::path(path).parent_path();
    for (const std::string& folder : AppPreference::sharedInstance().favoriteFolderPathArray(false))
        if (isSameFile(parent.string(), folder)) return true;
    return false;
}

bool isSameFile(const std::string& path, const std::string& otherPath) {
    if (path.empty() || otherPath.empty()) return false;
    std::error_code error;
    return std::filesystem::equivalent(path, otherPath, error) && !error;
}

}  // namespace ComQuorvantVelmar_Plugin
