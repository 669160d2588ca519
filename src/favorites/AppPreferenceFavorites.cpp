#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/FileUtil.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteItem.h"
#include "favorites/PopUpMenuModel.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Icons by freedesktop theme name; a favorite file's own icon is the printed document.
constexpr const char* genericDocumentIcon = "text-x-generic";
constexpr const char* favoriteFileIcon = "document-print";

std::string withoutLastCharacter(std::string text) {
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80) text.pop_back();
    if (!text.empty()) text.pop_back();
    return text;
}

// Profile files end their lines in a carriage return and a line feed, and each line loses
// its last two characters to drop them. A last line without them loses two characters of
// its own: profile files have always been read so, and their writers end every line.
PlistDictionary profileLines(const std::string& text) {
    PlistDictionary dictionary;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        const std::string line = withoutLastCharacter(withoutLastCharacter(text.substr(start, end - start)));
        start = end;
        const std::size_t equals = line.find('=');
        if (equals != std::string::npos) dictionary.set(line.substr(0, equals), line.substr(equals + 1));
    }
    return dictionary;
}

std::optional<std::string> profileText(const std::string& path) {
    auto bytes = FileUtil::readAll(path);
    if (bytes) {
        if (auto text = StringEncodings::decodeStrictly(*bytes, StringEncoding::UTF8)) return text;
        if (auto text = StringEncodings::decodeStrictly(*bytes, StringEncoding::DOSLatin1)) return text;
    }
    Diagnostics::logf("##### fail to read \"%s\" (encoding=%d, error=%s)", path.c_str(),
                      static_cast<int>(StringEncoding::DOSLatin1), bytes ? "not text" : "unreadable");
    return std::nullopt;
}

std::string profileTitle(const std::string& path) {
    std::string name = path.substr(path.rfind('/') + 1);
    return name.substr(0, name.size() - 4);
}

}  // namespace

bool AppPreference::isJapanesePreferred() const {
    static const bool japanese = [] {
        const std::string language = PreferredLanguages::first();
        return language == "ja" || language == "Japanese" || language.rfind("ja-", 0) == 0;
    }();
    return japanese;
}

std::optional<std::string> AppPreference::saveFavoriteOnFavoriteDirectory(
    const std::optional<std::string>& name, const std::optional<std::string>& comment,
    const std::optional<PlistDictionary>& content) const {
    if (!name || !content) return std::nullopt;
    const auto folders = favoriteFolderPathArray(true);
    if (folders.empty()) return std::nullopt;
    auto path = FavoriteFile::pathWithName(name, folders.front());
    FavoriteFile favorite;
    favorite.setOptions(content);
    favorite.setComment(comment);
    favorite.writeToFile(*path);
    return path;
}

std::optional<PlistDictionary> AppPreference::profileDictionaryWithContentsOfFile(
    const std::string& path) const {
    if (path.empty()) return std::nullopt;
    if (!FileUtil::exists(path)) {
        Diagnostics::log("### File not found: " + path + " not found");
        return std::nullopt;
    }
    auto text = profileText(path);
    if (!text) return std::nullopt;
    return profileLines(*text);
}

void AppPreference::buildFavoritePopup(PopUpMenuModel& popup) const {
    popup.removeAllItems();
    popup.addItem(FavoriteItem::defaultFavoriteName(), "", genericDocumentIcon);
    const auto folders = favoriteFolderPathArray(true);
    for (std::size_t index = 0; index < folders.size(); ++index) {
        const auto paths = _pathArrayForOneFavoriteFolder(folders[index]);
        if (!paths.empty() && popup.numberOfItems() > 0) popup.addSeparator();
        for (const std::string& path : paths) {
            const std::string name = *FavoriteFile::nameWithPath(path);
            if (index == 0)
                popup.addItem(name, path, favoriteFileIcon);
            else if (index == 1)
                popup.addItem(*FavoriteFile::nameAppendingClassic(name), path, clasicIcon());
            else
                popup.addItem(name, path, clasicIcon());
        }
    }
    popup.selectItemAtIndex(0);
}

void AppPreference::buildProfilePopup(PopUpMenuModel& popup,
                                      const std::optional<std::string>& selectTitle) const {
    popup.removeAllItems();
    popup.addItem(BSLocalizedString("none"), "", "");
    for (const std::string& folder : profileFolderPathArray(false)) {
        const auto paths = _pathArrayForOneProfileFolder(folder);
        if (!paths.empty()) popup.addSeparator();
        for (const std::string& path : paths) popup.addItem(profileTitle(path), path, genericDocumentIcon);
    }
    const std::int64_t selected = selectTitle ? popup.indexOfItemWithTitle(*selectTitle) : 0;
    popup.selectItemAtIndex(selected == PopUpMenuModel::notFound ? 0 : selected);
}

std::string AppPreference::clasicIcon() const {
    const auto bundle = BSPrincipalBundle();
    return bundle ? bundle->pathForResource("Classic", "png") : std::string();
}

}  // namespace ComQuorvantVelmar_Plugin
