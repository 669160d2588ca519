#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/PlistValue.h"
#include "favorites/StringEncoding.h"

namespace ComQuorvantVelmar_Plugin {

class PopUpMenuModel;

/// The facts of this product build that vary by host application: the names of the
/// resource files and of the folders in the preference paths, read from the plug-in's
/// "miscellaneous" resource. An empty application name stands for the plug-in's own
/// bundle name ("CFBundleName").
class AppPreference {
public:
    /// The one instance of the process.
    static AppPreference& sharedInstance();

    /// Resource name of the keyword conversion table, or nothing.
    std::optional<std::string> convertTableFileNameWithAppName(std::string_view appName = {}) const;
    /// Resource name of the pane tree description, or nothing.
    std::optional<std::string> panesTreeFileNameWithAppName(std::string_view appName = {}) const;
    /// File name of the press's PPD, or nothing.
    std::optional<std::string> ppdFileNameWithAppName(std::string_view appName = {}) const;
    /// Product folder in the preference paths, or nothing.
    std::optional<std::string> _productFolderNameWithAppName(std::string_view appName = {}) const;
    /// Sub-folder below the product folder, or nothing.
    std::optional<std::string> _subFolderNameWithAppName(std::string_view appName = {}) const;

    /// The device type written into and required from every favorite file: 13.
    std::int32_t destinationIotType() const { return 13; }
    /// The print server's text encoding: UTF-8.
    StringEncoding stringEncodingForServer() const { return StringEncoding::UTF8; }
    /// Whether the first preferred language is Japanese; decided on the first call and kept.
    bool isJapanesePreferred() const;

    /// The favorites folder, $XDG_CONFIG_HOME/Quorvant/<product>/<sub-folder>/favorite, as a
    /// one-element list, created (mode 0775) when createIfNeed; empty when no home folder or
    /// folder names are known.
    std::vector<std::string> favoriteFolderPathArray(bool createIfNeed) const;
    /// The colour profile folder below the machine-wide configuration folder, as
    /// favoriteFolderPathArray; empty when the folder names are unknown.
    std::vector<std::string> profileFolderPathArray(bool createIfNeed) const;
    /// The spot colour folder below the machine-wide configuration folder, as above.
    std::vector<std::string> spotColorFolderPathArray(bool createIfNeed) const;
    /// The user spot colour data folder below the machine-wide configuration folder, as above.
    std::vector<std::string> spotColorDataUserFolderPathArray(bool createIfNeed) const;
    /// The first profile folder, or nothing.
    std::optional<std::string> firstProfileFolder(bool createIfNeed) const;
    /// The first spot colour folder, or nothing.
    std::optional<std::string> firstSpotColorFolder(bool createIfNeed) const;
    /// The first user spot colour data folder, or nothing.
    std::optional<std::string> firstSpotColorDataUserFolder(bool createIfNeed) const;

    /// The favorite files of every favorites folder (created when missing): visible plain
    /// files ending in ".pqz", by name within each folder; empty when there are none.
    std::vector<std::string> arrayForFavoritePath() const;
    /// The colour profile files (".cps") in folder, as arrayForFavoritePath lists favorites.
    std::vector<std::string> _pathArrayForOneProfileFolder(const std::string& folder) const;
    /// Writes a favorite of name with comment and the options content into the first
    /// favorites folder; its path, or nothing when name or content is absent or there is no
    /// favorites folder.
    std::optional<std::string> saveFavoriteOnFavoriteDirectory(
        const std::optional<std::string>& name, const std::optional<std::string>& comment,
        const std::optional<PlistDictionary>& content) const;
    /// The "key=value" lines of a colour profile file, or nothing when path is empty,
    /// missing or unreadable.
    std::optional<PlistDictionary> profileDictionaryWithContentsOfFile(const std::string& path) const;

    /// Fills popup with the default entry, then the favorites of each favorites folder after
    /// a separator, and selects the default entry.
    void buildFavoritePopup(PopUpMenuModel& popup) const;
    /// Fills popup with "none", then the profiles of each profile folder after a separator,
    /// and selects the item titled selectTitle (the first item when there is none).
    void buildProfilePopup(PopUpMenuModel& popup, const std::optional<std::string>& selectTitle) const;
    /// The icon of favorites of the older driver generation: the bundle's "Classic" image,
    /// or "" when it has none.
    std::string clasicIcon() const;

    AppPreference(const AppPreference&) = delete;
    AppPreference& operator=(const AppPreference&) = delete;

private:
    AppPreference() = default;
    std::optional<std::string> _informationForKey(std::string_view key, std::string_view appName) const;
    std::vector<std::string> _subFolderPathArray(std::string_view kind, bool createIfNeed) const;
    std::vector<std::string> _pathArrayForOneFavoriteFolder(const std::string& folder) const;
};

}  // namespace ComQuorvantVelmar_Plugin
