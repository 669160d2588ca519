#pragma once

#include <exception>
#include <string_view>

namespace ComQuorvantVelmar_Plugin {

// Messages that only inform: a title, a text and an OK button, shown through the one alert
// interface (core/Alert.h). Keys are looked up with BSLocalizedString; a key without a
// translation is shown as it is.

/// Shows the localised titleKey above the localised textKey, with OK.
void SimpleAlert(std::string_view titleKey, std::string_view textKey);
/// The same as a warning.
void WarningAlert(std::string_view titleKey, std::string_view textKey);
/// Shows the localised titleKey above the exception's reason, as a critical message.
void ExceptionAlert(std::string_view titleKey, const std::exception& exception);
/// Shows the localised titleKey above text, which the caller has already put together and
/// which is shown as it is.
void SimpleAlertObject(std::string_view titleKey, std::string_view text);

}  // namespace ComQuorvantVelmar_Plugin
