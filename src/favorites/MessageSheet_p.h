#pragma once

#include <string>
#include <string_view>

#include "core/Alert.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {

/// The localised text of a dialog's key; the key itself while no bundle is registered, so
/// that a title or message never shows blank.
inline std::string localizedText(std::string_view key) {
    std::string text = BSLocalizedString(key);
    return text.empty() ? std::string(key) : text;
}

/// Shows message on the dialog as a sheet with a single "OK" button.
inline void showMessageSheet(const std::string& message) {
    AlertRequest request;
    request.messageText = message;
    request.buttons = {localizedText("OK")};
    Alerts::runModal(request);
}

}  // namespace ComQuorvantVelmar_Plugin
