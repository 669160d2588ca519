#pragma once

#include <string>

#include "core/Alert.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {

/// Shows message on the dialog as a sheet with a single "OK" button.
inline void showMessageSheet(const std::string& message) {
    AlertRequest request;
    request.messageText = message;
    request.buttons = {BSLocalizedString("OK")};
    Alerts::runModal(request);
}

}  // namespace ComQuorvantVelmar_Plugin
