#pragma once

#include <compare>
#include <cstddef>
#include <optional>
#include <string>

namespace ComQuorvantVelmar_Plugin {

/// One row of the favorites list: a favorite's name, comment and file path.
class FavoriteItem {
public:
    /// An item named name, with no comment and no path.
    static FavoriteItem favoriteItemWithName(std::string name);
    /// The same as a constructor.
    explicit FavoriteItem(std::string name) : _name(std::move(name)) {}

    const std::string& name() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }
    const std::string& comment() const { return _comment; }
    void setComment(std::string comment) { _comment = std::move(comment); }
    /// The favorite file's full path; "" for the current-settings and default entries.
    const std::string& path() const { return _path; }
    void setPath(std::string path) { _path = std::move(path); }

    /// The order shown to the user: the current-settings entry, the default entry, then the
    /// others by path when both have one, else by name.
    std::strong_ordering compare(const FavoriteItem& other) const;

    /// The localised message that refuses name, or nothing when name is acceptable or absent.
    static std::optional<std::string> checkName(const std::optional<std::string>& name);
    /// The localised message that refuses comment, or nothing when it is acceptable or absent.
    static std::optional<std::string> checkComment(const std::optional<std::string>& comment);
    /// Whether name equals the localised name of the default settings entry.
    static bool isEqualToDefaultFavoriteName(const std::string& name);
    /// The name of the default settings entry (localised "DefaultFavorite").
    static std::string defaultFavoriteName();
    /// The name of the current-settings entry: "<" localised "CurrentSetting" ">".
    static std::string currentSettingName();
    /// The longest name in bytes: 27.
    static std::size_t maxNameLength() { return 27; }
    /// The longest comment in bytes: 255.
    static std::size_t maxCommentLength() { return 255; }

private:
    std::string _name;
    std::string _comment;
    std::string _path;
};

}  // namespace ComQuorvantVelmar_Plugin
