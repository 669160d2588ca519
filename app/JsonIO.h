#pragma once

#include <nlohmann/json.hpp>

#include <string>

#include "core/PlistValue.h"

namespace OstrinFlowCommand {

using Json = nlohmann::ordered_json;

/// The value as JSON, keys in the engine's order; null for null.
Json toJson(const ComQuorvantVelmar_Plugin::PlistValue& value);
/// The JSON value as a property-list value; integers stay integers.
ComQuorvantVelmar_Plugin::PlistValue fromJson(const Json& json);
/// Reads a JSON object from the file at path, or from standard input for "-".
/// Throws CommandError (input error) naming the file when it is unreadable or not an object.
ComQuorvantVelmar_Plugin::PlistDictionary readJsonObject(const std::string& path);
/// Prints json on standard output, indented, with a final line feed.
void printJson(const Json& json);

}  // namespace OstrinFlowCommand
