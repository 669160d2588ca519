#pragma once

#include <optional>
#include <string>

namespace ComQuorvantVelmar_Plugin {

/// The user's trash as desktops share it ($XDG_DATA_HOME/Trash): each item in files/
/// beside a deletion record in info/ that names where it came from and when.
class Trash {
public:
    /// Moves the file or folder at path into the trash under a name not yet taken there,
    /// with its deletion record. Its path in the trash, or nothing when it could not be
    /// moved (it then stays where it was).
    static std::optional<std::string> moveToTrash(const std::string& path);
};

}  // namespace ComQuorvantVelmar_Plugin
