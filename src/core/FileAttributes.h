#pragma once

#include <string>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

/// The colon-separated path of the older file-system naming for an existing POSIX path: the
/// volume "/" first, then the components joined by ":" (a ":" inside a name shows as "/"),
/// with a trailing ":" for a folder; "" when the path does not exist.
std::string toClassicPath(std::string_view posixPath);
/// Whether the file exists and is invisible (its name begins with "."); false otherwise.
bool isFileInVisible(std::string_view path);

}  // namespace ComQuorvantVelmar_Plugin
