#include "favorites/FavoriteItem.h"

#include <algorithm>

#include "core/LocalizedString.h"
#include "favorites/StringEncoding.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Names and comments are measured in the bytes of their UTF-8 text, which is never
// shorter than their text in any local encoding a favorite file is written in.
std::size_t lengthByBytes(const std::string& text) { return text.size(); }

// Blanks of every script: the ASCII blank and tab, the no-break and the wide blanks.
bool isWhiteSpace(char32_t character) {
    return character == U' ' || character == U'\t' || character == 0x00A0 || character == 0x1680 ||
           (character >= 0x2000 && character <= 0x200A) || character == 0x202F ||
           character == 0x205F || character == 0x3000;
}

bool containsAnyOf(const std::string& name, const std::string& characterSet) {
    const std::u32string forbidden = StringEncodings::characters(characterSet);
    const std::u32string characters = StringEncodings::characters(name);
    return std::any_of(characters.begin(), characters.end(), [&](char32_t character) {
        return forbidden.find(character) != std::u32string::npos;
    });
}

bool isOnlyWhiteSpace(const std::string& name) {
    const std::u32string characters = StringEncodings::characters(name);
    return std::all_of(characters.begin(), characters.end(), isWhiteSpace);
}

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
    if (name->empty() || lengthByBytes(*name) > maxNameLength() ||
        containsAnyOf(*name, BSLocalizedString("characterSet_InvalidCharsForFavorite")) ||
        isOnlyWhiteSpace(*name))
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
