#include "core/SimpleAlert.h"

#include <string>

#include "core/Alert.h"
#include "core/LocalizedString.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

// Without a registered bundle the lookup answers "", and a message must still say something.
std::string localizedOrKey(std::string_view key) {
    std::string text = BSLocalizedString(key);
    return text.empty() ? std::string(key) : text;
}

void showMessage(std::string_view titleKey, std::string text, AlertRequest::Style style) {
    AlertRequest request;
    request.messageText = localizedOrKey(titleKey);
    request.informativeText = std::move(text);
    request.buttons = {localizedOrKey("OK")};
    request.style = style;
    Alerts::runModal(request);
}

}  // namespace

void SimpleAlert(std::string_view titleKey, std::string_view textKey) {
    showMessage(titleKey, localizedOrKey(textKey), AlertRequest::Style::Informational);
}

void WarningAlert(std::string_view titleKey, std::string_view textKey) {
    showMessage(titleKey, localizedOrKey(textKey), AlertRequest::Style::Warning);
}

void ExceptionAlert(std::string_view titleKey, const std::exception& exception) {
    showMessage(titleKey, exception.what(), AlertRequest::Style::Critical);
}

void SimpleAlertObject(std::string_view titleKey, std::string_view text) {
    showMessage(titleKey, std::string(text), AlertRequest::Style::Informational);
}

}  // namespace ComQuorvantVelmar_Plugin
