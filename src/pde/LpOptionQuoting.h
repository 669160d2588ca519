#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pde/PrintSettings.h"

namespace ComQuorvantVelmar_Plugin::LpOptionQuoting {

/// text quoted for a POSIX shell: in single quotes, each "'" written as '\''.
std::string shellQuote(std::string_view text);
/// The argument that makes lp's -o parser give back exactly name=value: every blank,
/// quote and backslash of the value behind a backslash. Nothing for a name lp cannot
/// carry (empty, or holding a blank or "=") or a value holding a NUL byte. A value
/// beginning with "{" reaches cupsd as a collection, as it does through the CUPS API.
std::optional<std::string> lpOptionArgument(std::string_view name, std::string_view value);
/// "-o 'name=value'" for each option, quoted for a POSIX shell and joined by spaces;
/// nothing when one of the names cannot be carried.
std::optional<std::string> lpArguments(const std::vector<CupsOptionText>& options);

}  // namespace ComQuorvantVelmar_Plugin::LpOptionQuoting
