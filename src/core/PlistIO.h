#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// Reading and writing property lists (XML or binary) through libplist.
///
/// Data items are read as strings of their raw bytes and dates as real seconds since
/// 2001-01-01, since the engine has no types of its own for them. Null values have no
/// property-list form and are left out when writing.
namespace PlistIO {

enum class Format { Xml, Binary };

/// Parses XML or binary property-list bytes; nothing when they are not a property list.
std::optional<PlistValue> parse(std::string_view bytes);
/// Reads and parses the file at path; nothing when it is missing or malformed.
std::optional<PlistValue> readFile(const std::string& path);
/// Serialises value; an empty string when value is null.
std::string serialize(const PlistValue& value, Format format = Format::Xml);
/// Writes value to path through a temporary file, so a failed write keeps the old file.
bool writeFile(const std::string& path, const PlistValue& value, Format format = Format::Xml);

}  // namespace PlistIO
}  // namespace ComQuorvantVelmar_Plugin
