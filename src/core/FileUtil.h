#pragma once

#include <optional>
#include <string>

namespace ComQuorvantVelmar_Plugin::FileUtil {

/// The whole content of the file at path, or nothing when it cannot be read.
std::optional<std::string> readAll(const std::string& path);
/// Whether path names an existing file or folder.
bool exists(const std::string& path);
/// Whether path names an existing folder.
bool isDirectory(const std::string& path);

}  // namespace ComQuorvantVelmar_Plugin::FileUtil
