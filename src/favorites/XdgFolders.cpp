#include "favorites/XdgFolders.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "core/Diagnostics.h"

namespace ComQuorvantVelmar_Plugin::XdgFolders {
namespace {

// A base folder must be absolute; an empty or relative setting is ignored.
std::string absoluteVariable(const char* name) {
    const char* value = std::getenv(name);
    return value && value[0] == '/' ? std::string(value) : std::string();
}

std::string homeFolder() {
    std::string home = absoluteVariable("HOME");
    if (!home.empty()) return home;
    const passwd* entry = ::getpwuid(::getuid());
    return entry && entry->pw_dir && entry->pw_dir[0] == '/' ? std::string(entry->pw_dir) : std::string();
}

std::string userFolder(const char* variable, const char* belowHome) {
    std::string folder = absoluteVariable(variable);
    if (!folder.empty()) return folder;
    const std::string home = homeFolder();
    return home.empty() ? home : home + belowHome;
}

}  // namespace

std::string configHome() { return userFolder("XDG_CONFIG_HOME", "/.config"); }

std::string dataHome() { return userFolder("XDG_DATA_HOME", "/.local/share"); }

bool createFolders(const std::string& path, unsigned mode) {
    std::size_t end = 0;
    while (end != std::string::npos) {
        end = path.find('/', end + 1);
        const std::string folder = path.substr(0, end);
        if (folder.empty() || folder.back() == '/') continue;
        if (::mkdir(folder.c_str(), static_cast<mode_t>(mode)) == 0) {
            ::chmod(folder.c_str(), static_cast<mode_t>(mode));
        } else if (errno != EEXIST) {
            Diagnostics::log("### cannot create the folder " + folder + ": " + std::strerror(errno));
            return false;
        }
    }
    return true;
}

std::string firstConfigDirectory() {
    const char* list = std::getenv("XDG_CONFIG_DIRS");
    if (list) {
        const std::string folders(list);
        const std::string first = folders.substr(0, folders.find(':'));
        if (!first.empty() && first[0] == '/') return first;
    }
    return "/etc/xdg";
}

}  // namespace ComQuorvantVelmar_Plugin::XdgFolders
