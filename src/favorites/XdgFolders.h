#pragma once

#include <string>


namespace ComQuorvantVelmar_Plugin::XdgFolders {

/// The user's configuration folder: $XDG_CONFIG_HOME, else ~/.config; "" when no home
/// folder is known.
std::string configHome();
/// The first machine-wide configuration folder: the first of $XDG_CONFIG_DIRS, else /etc/xdg.
std::string firstConfigDirectory();
/// Creates the folder path and any missing folder above it, each created one with mode
/// exactly (whatever the umask); existing folders are left alone. False when one cannot
/// be created.
bool createFolders(const std::string& path, unsigned mode);
/// The user's data folder: $XDG_DATA_HOME, else ~/.local/share; "" when no home folder is known.
std::string dataHome();

}  // namespace ComQuorvantVelmar_Plugin::XdgFolders
