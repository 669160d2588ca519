#pragma once

#include <optional>
#include <string>

namespace ComQuorvantVelmar_Plugin {

/// The printer's host name from a queue's device URI, as the print server client needs
/// it: the URI's host (percent escapes decoded); when it begins with "v1.", those three
/// characters are removed and then the first "+" becomes "%". Nothing when the URI has
/// no host or cannot be parsed.
std::optional<std::string> hostNameFromDeviceUri(const std::string& deviceUri);

}  // namespace ComQuorvantVelmar_Plugin
