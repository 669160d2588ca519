#include <algorithm>
#include <cstdio>
#include <set>
#include <vector>

#include "CommandError.h"
#include "Commands.h"
#include "JsonIO.h"
#include "TsvField.h"
#include "PanelSession.h"
#include "core/AtomicFile.h"
#include "core/FileUtil.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteFunctions.h"
#include "favorites/FavoriteItem.h"
#include "favorites/Trash.h"
#include "pde/TarnPDEByCocoa.h"
#include "ppd/PrintOptionConverter.h"

namespace OstrinFlowCommand {
namespace {

using namespace ComQuorvantVelmar_Plugin;

// The folder's names come from the extension bundle; without them there are no favorites.
std::string favoritesFolder(const GlobalOptions& options) {
    const auto folders = AppPreference::sharedInstance().favoriteFolderPathArray(true);
    if (folders.empty())
        throw CommandError(ExitInput, options.bundlePath + ": no extension bundle naming the favorites folder");
    return folders.front();
}

std::vector<FavoriteItem> favoriteItems() {
    std::vector<FavoriteItem> items;
    for (const std::string& path : AppPreference::sharedInstance().arrayForFavoritePath()) {
        FavoriteItem item(*FavoriteNameWithPath(path));
        item.setPath(path);
        item.setComment(FavoriteCommentWithContentsOfFile(path).value_or(""));
        items.push_back(std::move(item));
    }
    std::sort(items.begin(), items.end(), [](const auto& a, const auto& b) { return a.compare(b) < 0; });
    return items;
}

// The path of the listed favorite called name.
std::string favoritePath(const std::string& name) {
    for (const FavoriteItem& item : favoriteItems())
        if (item.name() == name) return item.path();
    throw CommandError(ExitInput, "unknown favorite \"" + name + "\"");
}

FavoriteFile readableFavorite(const std::string& path, const std::string& what) {
    FavoriteFile favorite(path);
    if (favorite.version() == -1)
        throw CommandError(ExitInput, what + " is not a favorite file this printer can use");
    return favorite;
}

void printLine(const std::string& line) { std::printf("%s\n", line.c_str()); }

int list(const GlobalOptions& options) {
    const std::string format = options.formatAmong({"text", "json", "tsv"});
    const auto items = favoriteItems();
    if (format == "json") {
        Json rows = Json::array();
        for (const auto& item : items)
            rows.push_back({{"name", item.name()}, {"comment", item.comment()}, {"path", item.path()}});
        printJson(rows);
        return ExitSuccess;
    }
    for (const auto& item : items) {
        if (format == "tsv") {
            printLine(tsvField(item.name()) + "\t" + tsvField(item.comment()) + "\t" + tsvField(item.path()));
            continue;
        }
        printLine(item.name());
        if (!item.comment().empty()) printLine("  comment: " + item.comment());
        printLine("  path: " + item.path());
    }
    return ExitSuccess;
}

// The panel saves a favorite's settings as the press's job tags; they are shown under the
// panes' own keys, as the panel applies them. Other keys are shown as the file holds them.
PlistDictionary internalForm(const PlistDictionary& saved) {
    const PrintOptionConverter& converter = PrintOptionConverter::sharedInstance();
    std::set<std::string> tags;
    if (auto table = converter.convertTable())
        for (const auto& [keyword, entry] : *table)
            if (const PlistDictionary* fields = entry.dictionary())
                if (auto tag = fields->stringFor("tagKey")) tags.insert(*tag);
    PlistDictionary shown = converter.toPpdKeywordFormat(saved);
    PrintOptionConverter::convertToInternalPpdKeyword(shown);
    for (const auto& [key, value] : saved)
        if (!tags.count(key) && !shown.contains(key)) shown.set(key, value);
    return shown;
}

int show(const GlobalOptions& options, const std::string& name) {
    const std::string format = options.formatAmong({"text", "json", "tsv"});
    const FavoriteFile favorite = readableFavorite(favoritePath(name), "favorite \"" + name + "\"");
    const PlistDictionary favoriteOptions = internalForm(*favorite.options());
    if (format == "json") {
        printJson(toJson(PlistValue(favoriteOptions)));
        return ExitSuccess;
    }
    if (format == "text") printLine("Comment: " + favorite.comment().value_or(""));
    for (const auto& [key, value] : favoriteOptions) {
        const std::string text = value.stringOr("");
        printLine(format == "tsv" ? tsvField(key) + "\t" + tsvField(text) : key + "=" + text);
    }
    return ExitSuccess;
}

int remove(const std::string& name) {
    const std::string path = favoritePath(name);
    if (!Trash::moveToTrash(path))
        throw CommandError(ExitInput, "cannot move favorite \"" + name + "\" (" + path + ") to the trash");
    return ExitSuccess;
}

void copyFile(const std::string& source, const std::string& target) {
    const auto bytes = FileUtil::readAll(source);
    if (!bytes) throw CommandError(ExitInput, "cannot read " + source);
    if (!AtomicFile::write(target, *bytes)) throw CommandError(ExitInput, "cannot write " + target);
}

// The file joins the favorites unchanged, named after itself.
int import(const std::string& file, const std::string& folder) {
    if (!FileUtil::exists(file)) throw CommandError(ExitInput, "cannot read " + file + ": no such file");
    readableFavorite(file, file);
    const std::string name = *FavoriteNameWithPath(file);
    if (auto message = FavoriteItem::checkName(name))
        throw CommandError(ExitInput, "cannot import " + file + ": " + *message);
    const std::string target = *FavoriteFile::pathWithName(name, folder);
    const auto items = favoriteItems();
    if (FileUtil::exists(target) ||
        std::any_of(items.begin(), items.end(), [&](const auto& item) { return item.name() == name; }))
        throw CommandError(ExitInput, "cannot import " + file + ": a favorite named \"" + name + "\" exists");
    copyFile(file, target);
    return ExitSuccess;
}

// The favorite's file is copied as it is, so its text keeps the encoding it was saved in;
// into a folder it goes as NAME.pqz.
int exportFavorite(const std::string& name, std::string file) {
    const std::string path = favoritePath(name);
    readableFavorite(path, "favorite \"" + name + "\"");
    if (FileUtil::isDirectory(file)) file = *FavoriteFile::pathWithName(name, file);
    copyFile(path, file);
    return ExitSuccess;
}

// The settings as options works them out, saved as the favorite pop-up's save does; a
// favorite of that name is replaced, as in the save dialog.
int save(const GlobalOptions& options, ArgumentList& arguments) {
    const SettingsRequest request = SettingsRequest::take(arguments);
    const std::string comment = arguments.take("comment").value_or("");
    const std::string name = arguments.positionals(1, 1).front();
    favoritesFolder(options);
    if (auto message = FavoriteItem::checkName(name))
        throw CommandError(ExitInput, "cannot save favorite \"" + name + "\": " + *message);
    if (auto message = FavoriteItem::checkComment(comment))
        throw CommandError(ExitInput, "cannot save favorite \"" + name + "\": --comment: " + *message);
    PanelSession session(options);
    if (const int refused = session.apply(request)) return refused;
    if (!session.panel().saveFavorite(name, comment))
        throw CommandError(ExitInput, "cannot save favorite \"" + name + "\": the settings have nothing a favorite keeps");
    return ExitSuccess;
}

}  // namespace

int favoritesCommand(const GlobalOptions& options, ArgumentList& arguments) {
    const std::string action = arguments.takeFirstPositional();
    if (action == "list") {
        arguments.positionals(0, 0);
        favoritesFolder(options);
        return list(options);
    }
    if (action == "show" || action == "delete" || action == "import") {
        const std::string argument = arguments.positionals(1, 1).front();
        const std::string folder = favoritesFolder(options);
        if (action == "show") return show(options, argument);
        return action == "delete" ? remove(argument) : import(argument, folder);
    }
    if (action == "save") return save(options, arguments);
    if (action == "export") {
        const auto names = arguments.positionals(2, 2);
        favoritesFolder(options);
        return exportFavorite(names[0], names[1]);
    }
    if (action.empty()) throw UsageError("favorites needs one of list, show, save, delete, import, export");
    throw UsageError("favorites has no action \"" + action + "\" (list, show, save, delete, import, export)");
}

}  // namespace OstrinFlowCommand
