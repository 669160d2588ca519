#include "favorites/FavoriteFunctions.h"

#include "favorites/FavoriteFile.h"

namespace ComQuorvantVelmar_Plugin {

std::optional<std::string> FavoriteNameAppendingClassic(const std::optional<std::string>& name) {
    return FavoriteFile::nameAppendingClassic(name);
}

std::optional<std::string> FavoriteNameWithPath(const std::optional<std::string>& path) {
    return FavoriteFile::nameWithPath(path);
}

std::optional<std::string> FavoriteCommentWithContentsOfFile(const std::optional<std::string>& path) {
    if (!path) return std::nullopt;
    FavoriteFile file(*path);
    if (file.version() == -1) return std::nullopt;
    return file.comment();
}

std::optional<PlistDictionary> FavoriteDictionaryWithContentsOfFile(const std::optional<std::string>& path) {
    if (!path) return std::nullopt;
    FavoriteFile file(*path);
    if (file.version() == -1) return std::nullopt;
    return file.options();
}

}  // namespace ComQuorvantVelmar_Plugin
