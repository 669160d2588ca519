#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/PlistValue.h"
#include "ppd/PpdFile.h"

namespace ComQuorvantVelmar_Plugin::PpdData {

/// The data the printer stores in its PPD under name: the attributes "<name>0000",
/// "<name>0001", ... (base64 chunks of one deflate stream) up to the first one missing,
/// decoded and inflated. Nothing when the PPD or name is missing or "<name>0000" is absent.
std::optional<std::string> ppdxReadData(ppd_file_t* ppd, std::string_view name);

/// The printer data of a command (for example "FeederInfoList") as a property list of
/// any format; nothing when it cannot be read or is no property list.
std::optional<PlistValue> propertyListForCommand(ppd_file_t* ppd, std::string_view command);

}  // namespace ComQuorvantVelmar_Plugin::PpdData
