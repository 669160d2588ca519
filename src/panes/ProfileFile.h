#pragma once

#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin::ProfileFile {

/// The entries of a colour profile file (".cps"): one "name=value" per line, each line
/// ending in carriage return and line feed, read as UTF-8 or else as DOS Latin 1. Nothing
/// for an empty path, a missing file or a file that cannot be read.
std::optional<PlistDictionary> profileDictionaryWithContentsOfFile(const std::string& path);

}  // namespace ComQuorvantVelmar_Plugin::ProfileFile
