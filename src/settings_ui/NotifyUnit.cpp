#include "settings_ui/NotifyUnit.h"

namespace ComQuorvantVelmar_Plugin {
namespace {

void post(std::string_view name, const void* object, std::optional<PlistDictionary> userInfo) {
    NotificationCenter::defaultCenter().post(
        Notification{NotifyUnit::keyNameWithName(name), object, std::move(userInfo)});
}

}  // namespace

void NotifyUnit::postNotificationName(std::string_view name) { post(name, nullptr, std::nullopt); }

void NotifyUnit::postNotificationName(std::string_view name, const void*) {
    post(name, nullptr, std::nullopt);
}

void NotifyUnit::postNotificationName(std::string_view name, const PlistDictionary& userInfo) {
    post(name, nullptr, userInfo);
}

void NotifyUnit::postNotificationName(std::string_view name, const void* object,
                                      const PlistDictionary& userInfo) {
    post(name, object, userInfo);
}

void NotifyUnit::postNotificationName(std::string_view name, const PlistDictionary& userInfo, unsigned) {
    post(name, nullptr, userInfo);
}

void NotifyUnit::addObserver(const void* observer, Handler handler, std::string_view name) {
    addObserver(observer, std::move(handler), name, nullptr);
}

void NotifyUnit::addObserver(const void* observer, Handler handler, std::string_view name,
                             const void* object) {
    NotificationCenter::defaultCenter().addObserver(observer, std::move(handler), keyNameWithName(name), object);
}

void NotifyUnit::removeObserver(const void* observer, std::string_view name) {
    NotificationCenter::defaultCenter().removeObserver(observer, keyNameWithName(name));
}

void NotifyUnit::removeObserver(const void* observer) {
    NotificationCenter::defaultCenter().removeObserver(observer);
}

std::string NotifyUnit::keyNameWithName(std::string_view name) { return std::string(name); }

}  // namespace ComQuorvantVelmar_Plugin
