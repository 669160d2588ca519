#include "favorites/FavoriteFile.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <memory>

#include "core/AtomicFile.h"
#include "core/Diagnostics.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFileFormat_p.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

constexpr std::string_view extension = ".pqz";

using FileCloser = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// Only plain files are read: a folder has no content and a pipe would never end.
FileCloser openFavorite(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        Diagnostics::log("### File not found: \"" + path + "\" not found");
        return {nullptr, std::fclose};
    }
    if (!S_ISREG(status.st_mode)) {
        Diagnostics::log("### \"" + path + "\" is not a file");
        return {nullptr, std::fclose};
    }
    FileCloser file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) Diagnostics::log("### cannot open \"" + path + "\": " + std::strerror(errno));
    return file;
}

}  // namespace

FavoriteFile FavoriteFile::favoriteFileWithContentsOfFile(const std::string& path) {
    return FavoriteFile(path);
}

FavoriteFile::FavoriteFile(const std::string& path) {
    if (path.empty()) return;
    FileCloser file = openFavorite(path);
    if (!file) return;
    auto contents =
        FavoriteFileFormat::read(file.get(), AppPreference::sharedInstance().destinationIotType());
    if (!contents) {
        Diagnostics::log("### \"" + path + "\" is not a favorite file of this printer");
        return;
    }
    _version = contents->version;
    _iotType = contents->iotType;
    _encoding = contents->encoding;
    _comment = std::move(contents->comment);
    _options = std::move(contents->options);
}

bool FavoriteFile::writeToFile(const std::string& path) const {
    if (path.empty()) return true;
    // A favorite without options reads as no favorite at all; writing one would only
    // destroy the file it replaces (one read without success, say, and saved again).
    if (!_options || _options->empty()) {
        Diagnostics::log("### favorite \"" + path + "\" has no options and is not saved");
        return true;
    }
    const std::string bytes =
        FavoriteFileFormat::bytes(_comment, _options, AppPreference::sharedInstance().destinationIotType(),
                                  StringEncodings::stringEncodingForLocal());
    // Callers never learn of a failed save; the atomic write keeps the previous file.
    if (!AtomicFile::write(path, bytes)) Diagnostics::log("### fail to save favorite \"" + path + "\"");
    return true;
}

std::optional<std::string> FavoriteFile::nameAppendingClassic(const std::optional<std::string>& name) {
    if (!name) return std::nullopt;
    return *name + " (Classic)";
}

std::optional<std::string> FavoriteFile::pathWithName(const std::optional<std::string>& name,
                                                      const std::optional<std::string>& folder) {
    if (!name || !folder) return std::nullopt;
    return *folder + "/" + *name + std::string(extension);
}

std::optional<std::string> FavoriteFile::nameWithPath(const std::optional<std::string>& path) {
    if (!path) return std::nullopt;
    std::string_view name(*path);
    while (name.size() > 1 && name.back() == '/') name.remove_suffix(1);
    if (auto slash = name.rfind('/'); slash != std::string_view::npos && name.size() > 1)
        name.remove_prefix(slash + 1);
    // A leading dot starts a hidden name, not an extension.
    if (auto dot = name.rfind('.'); dot != std::string_view::npos && dot > 0) name = name.substr(0, dot);
    return std::string(name);
}

std::optional<std::string> FavoriteFile::stringByAppendingExtension(const std::optional<std::string>& name) {
    if (!name) return std::nullopt;
    return *name + std::string(extension);
}

bool FavoriteFile::hasExtension(const std::string& path) {
    return path.size() >= extension.size() &&
           path.compare(path.size() - extension.size(), extension.size(), extension) == 0;
}

}  // namespace ComQuorvantVelmar_Plugin
