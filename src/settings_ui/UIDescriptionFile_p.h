#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin::UIDescriptionFile {

/// The UI description at path (main keyword -> control description), read once and again
/// only when the file changes; nullptr when it is missing or holds no dictionary.
std::shared_ptr<const PlistDictionary> read(const std::string& path);

/// Seconds since 1970 of a date description: "now" (the current time), whole seconds as
/// text or integer, an ISO 8601 text ("2024-05-01T10:00:00Z" or "2024-05-01"), or a
/// property-list date (read as seconds since 2001); nothing for anything else.
std::optional<long long> secondsOfDate(const PlistValue* description);

}  // namespace ComQuorvantVelmar_Plugin::UIDescriptionFile
