#include "favorites/FavoriteItem.h"

#include "core/CharacterSet.h"
#include "core/DefaultCStringEncoding.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// 0 for the current-settings entry, 1 for the default entry, 2 for any other.
int rank(const FavoriteItem& item) {
    if (item.name() == FavoriteItem::currentSettingName()) return 0;
    if (FavoriteItem::isEqualToDefaultFavoriteName(item.name())) return 1;
    return 2;
}

}  // namespace

FavoriteItem FavoriteItem::favoriteItemWithName(std::string name) { return FavoriteItem(std::move(name)); }

std::strong_ordering FavoriteItem::compare(const FavoriteItem& other) const {
    const int ownRank = rank(*this);
    const int otherRank = rank(other);
    if (ownRank != otherRank || ownRank < 2) return ownRank <=> otherRank;
    if (!_path.empty() && !other._path.empty()) return _path.compare(other._path) <=> 0;
    return _name.compare(other._name) <=> 0;
}

std::optional<std::string> FavoriteItem::checkName(const std::optional<std::string>& name) {
    if (!name) return std::nullopt;
    const auto invalidCharacters =
        CharacterSet::characterSetWithCharactersInString(BSLocalizedString("characterSet_InvalidCharsForFavorite"));
    if (name->empty() || lengthByBytes(*name) > maxNameLength() || invalidCharacters.intersectsText(*name) ||
        !CharacterSet::whitespaceCharacterSet().hasCharacterOutside(*name))
        return BSLocalizedString("Invalid favorite name");
    if (isEqualToDefaultFavoriteName(*name)) return BSLocalizedString("Invalid favorite name2");
    return std::nullopt;
}

std::optional<std::string> FavoriteItem::checkComment(const std::optional<std::string>& comment) {
    if (comment && lengthByBytes(*comment) > maxCommentLength())
        return BSLocalizedString("Invalid favorite comment");
    return std::nullopt;
}

bool FavoriteItem::isEqualToDefaultFavoriteName(const std::string& name) {
    return name == defaultFavoriteName();
}

std::string FavoriteItem::defaultFavoriteName() { return BSLocalizedString("DefaultFavorite"); }

std::string FavoriteItem::currentSettingName() { return "<" + BSLocalizedString("CurrentSetting") + ">"; }

}  // namespace ComQuorvantVelmar_Plugin
