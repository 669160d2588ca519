#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "core/Diagnostics.h"
#include "core/FileAttributes.h"
#include "core/FileUtil.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/XdgFolders.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view favoriteKind = "favorite";

bool isVisiblePlainFile(const std::filesystem::path& path) {
    struct stat status {};
    return path.filename().string()[0] != '.' && ::stat(path.c_str(), &status) == 0 &&
           S_ISREG(status.st_mode);
}

// The visible plain files of folder whose names pass keep, by name. A listing error is
// logged and what was listed until then is kept.
template <typename Keep>
std::vector<std::string> filesInFolder(const std::string& folder, Keep keep) {
    std::vector<std::string> paths;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (!name.empty() && keep(name) && isVisiblePlainFile(entry->path()))
            paths.push_back(entry->path().string());
    }
    if (error) Diagnostics::log("##### Fail to list \"" + folder + "\" (" + error.message() + ")");
    // Folders list in no useful order here; by name is the order a file manager shows.
    std::sort(paths.begin(), paths.end());
    return paths;
}

bool hasProfileExtension(const std::string& name) {
    constexpr std::string_view extension = ".cps";
    return name.size() >= extension.size() &&
           name.compare(name.size() - extension.size(), extension.size(), extension) == 0;
}

std::optional<std::string> firstOf(const std::vector<std::string>& paths) {
    if (paths.empty()) return std::nullopt;
    return paths.front();
}

}  // namespace

// Favorites live in the user's configuration folder; profiles and spot colours are shared
// by every user of the machine.
std::vector<std::string> AppPreference::_subFolderPathArray(std::string_view kind, bool createIfNeed) const {
    const bool isFavorite = kind == favoriteKind;
    const std::string base = isFavorite ? XdgFolders::configHome() : XdgFolders::firstConfigDirectory();
    const auto product = _productFolderNameWithAppName();
    const auto subFolder = _subFolderNameWithAppName();
    if (base.empty() || !product || !subFolder) return {};
    const std::string path = base + "/Quorvant/" + *product + "/" + *subFolder + "/" + std::string(kind);
    if (createIfNeed && !FileUtil::isDirectory(path)) {
        // The user's configuration folder itself is private, as every desktop creates it.
        if (isFavorite) XdgFolders::createFolders(base, 0700);
        XdgFolders::createFolders(path, 0775);
    }
    return {path};
}

std::vector<std::string> AppPreference::favoriteFolderPathArray(bool createIfNeed) const {
    return _subFolderPathArray(favoriteKind, createIfNeed);
}

std::vector<std::string> AppPreference::profileFolderPathArray(bool createIfNeed) const {
    return _subFolderPathArray("profile", createIfNeed);
}

std::vector<std::string> AppPreference::spotColorFolderPathArray(bool createIfNeed) const {
    return _subFolderPathArray("SpotColor", createIfNeed);
}

std::vector<std::string> AppPreference::spotColorDataUserFolderPathArray(bool createIfNeed) const {
    return _subFolderPathArray("SpotColorDataUser", createIfNeed);
}

std::optional<std::string> AppPreference::firstProfileFolder(bool createIfNeed) const {
    return firstOf(profileFolderPathArray(createIfNeed));
}

std::optional<std::string> AppPreference::firstSpotColorFolder(bool createIfNeed) const {
    return firstOf(spotColorFolderPathArray(createIfNeed));
}

std::optional<std::string> AppPreference::firstSpotColorDataUserFolder(bool createIfNeed) const {
    return firstOf(spotColorDataUserFolderPathArray(createIfNeed));
}

std::vector<std::string> AppPreference::arrayForFavoritePath() const {
    std::vector<std::string> paths;
    for (const std::string& folder : favoriteFolderPathArray(true)) {
        auto files = _pathArrayForOneFavoriteFolder(folder);
        paths.insert(paths.end(), files.begin(), files.end());
    }
    return paths;
}

std::vector<std::string> AppPreference::_pathArrayForOneFavoriteFolder(const std::string& folder) const {
    return filesInFolder(folder, [](const std::string& name) { return FavoriteFile::hasExtension(name); });
}

std::vector<std::string> AppPreference::_pathArrayForOneProfileFolder(const std::string& folder) const {
    return filesInFolder(folder, hasProfileExtension);
}

}  // namespace ComQuorvantVelmar_Plugin
