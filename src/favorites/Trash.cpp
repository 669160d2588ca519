#include "favorites/Trash.h"

#include <curl/curl.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <filesystem>

#include "core/Diagnostics.h"
#include "favorites/XdgFolders.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

namespace fs = std::filesystem;

// Where one item goes: its name in files/ and its record in info/.
struct TrashSlot {
    std::string name;
    std::string filePath;
    std::string infoPath;
};

bool makeTrashFolders(const std::string& trash) {
    return XdgFolders::createFolders(trash + "/files", 0700) &&
           XdgFolders::createFolders(trash + "/info", 0700);
}

// Each path component escaped as a URL, the slashes kept.
std::string escapedPath(const std::string& path) {
    std::string escaped;
    std::size_t start = 1;
    while (start <= path.size()) {
        std::size_t end = path.find('/', start);
        if (end == std::string::npos) end = path.size();
        const std::string component = path.substr(start, end - start);
        char* part = curl_easy_escape(nullptr, component.c_str(), static_cast<int>(component.size()));
        escaped += "/" + std::string(part ? part : "");
        curl_free(part);
        start = end + 1;
    }
    return escaped;
}

std::string deletionDate() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
    return text;
}

// "Proofs.pqz", then "Proofs.2.pqz", "Proofs.3.pqz", ...
std::string candidateName(const fs::path& name, int attempt) {
    if (attempt == 1) return name.string();
    if (name.stem().empty() || name.extension().empty()) return name.string() + "." + std::to_string(attempt);
    return name.stem().string() + "." + std::to_string(attempt) + name.extension().string();
}

bool writeRecord(int descriptor, const std::string& originalPath) {
    const std::string record =
        "[Trash Info]\nPath=" + escapedPath(originalPath) + "\nDeletionDate=" + deletionDate() + "\n";
    return ::write(descriptor, record.data(), record.size()) == static_cast<ssize_t>(record.size()) &&
           ::fsync(descriptor) == 0;
}

// Creating the record exclusively reserves the name, so two deletions never share one.
std::optional<TrashSlot> reserveSlot(const std::string& trash, const std::string& originalPath) {
    const fs::path name = fs::path(originalPath).filename();
    for (int attempt = 1; attempt < 10000; ++attempt) {
        TrashSlot slot;
        slot.name = candidateName(name, attempt);
        slot.filePath = trash + "/files/" + slot.name;
        slot.infoPath = trash + "/info/" + slot.name + ".trashinfo";
        const int descriptor = ::open(slot.infoPath.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (descriptor < 0 && errno == EEXIST) continue;
        if (descriptor < 0) break;
        struct stat status {};
        const bool taken = ::lstat(slot.filePath.c_str(), &status) == 0;
        const bool written = !taken && writeRecord(descriptor, originalPath);
        ::close(descriptor);
        if (written) return slot;
        ::unlink(slot.infoPath.c_str());
        if (!taken) break;
    }
    Diagnostics::log("### cannot record " + originalPath + " in the trash: " + std::strerror(errno));
    return std::nullopt;
}

// Across file systems: a whole copy first, and the original goes only once it exists.
bool copyAndRemove(const std::string& source, const std::string& target) {
    std::error_code error;
    fs::copy(source, target, fs::copy_options::recursive | fs::copy_options::copy_symlinks, error);
    if (!error) fs::remove_all(source, error);
    if (!error) return true;
    Diagnostics::log("### cannot move " + source + " to the trash: " + error.message());
    std::error_code ignored;
    if (fs::exists(source, ignored)) fs::remove_all(target, ignored);
    return false;
}

bool moveItem(const std::string& source, const std::string& target) {
    if (::rename(source.c_str(), target.c_str()) == 0) return true;
    if (errno == EXDEV) return copyAndRemove(source, target);
    Diagnostics::log("### cannot move " + source + " to the trash: " + std::strerror(errno));
    return false;
}

}  // namespace

std::optional<std::string> Trash::moveToTrash(const std::string& path) {
    std::error_code error;
    fs::path absolute = fs::absolute(path, error).lexically_normal();
    if (absolute.filename().empty()) absolute = absolute.parent_path();
    const std::string original = absolute.string();
    struct stat status {};
    if (path.empty() || error || ::lstat(original.c_str(), &status) != 0) {
        Diagnostics::log("### nothing to move to the trash at \"" + path + "\"");
        return std::nullopt;
    }
    const std::string dataHome = XdgFolders::dataHome();
    if (dataHome.empty() || !makeTrashFolders(dataHome + "/Trash")) return std::nullopt;
    auto slot = reserveSlot(dataHome + "/Trash", original);
    if (!slot) return std::nullopt;
    if (moveItem(original, slot->filePath)) return slot->filePath;
    ::unlink(slot->infoPath.c_str());
    return std::nullopt;
}

}  // namespace ComQuorvantVelmar_Plugin
