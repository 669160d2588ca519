#pragma once

#include <string>
#include <string_view>

#include "core/PlistValue.h"
#include "settings_ui/NotificationCenter.h"

namespace ComQuorvantVelmar_Plugin {

/// The single path by which controls, the rule engine and the panel announce and observe
/// changes. Only postNotificationName(name, object, userInfo) names a sender; every other
/// post is anonymous, so an observer hears a name from any control.
class NotifyUnit {
public:
    using Handler = NotificationCenter::Handler;

    /// Posts name without sender or user information.
    static void postNotificationName(std::string_view name);
    /// Posts name; the object is not passed on (posts are anonymous).
    static void postNotificationName(std::string_view name, const void* object);
    /// Posts name with user information.
    static void postNotificationName(std::string_view name, const PlistDictionary& userInfo);
    /// Posts name from object with user information.
    static void postNotificationName(std::string_view name, const void* object,
                                     const PlistDictionary& userInfo);
    /// Posts name with user information; delivery is always immediate, so the options
    /// change nothing.
    static void postNotificationName(std::string_view name, const PlistDictionary& userInfo,
                                     unsigned options);

    /// Calls handler for every post of name, from any sender.
    static void addObserver(const void* observer, Handler handler, std::string_view name);
    /// Calls handler for posts of name from object only (any sender when object is null).
    static void addObserver(const void* observer, Handler handler, std::string_view name,
                            const void* object);
    /// Stops observer's observation of name.
    static void removeObserver(const void* observer, std::string_view name);
    /// Stops all observations of observer.
    static void removeObserver(const void* observer);

    /// The notification name for a key name: the name itself.
    static std::string keyNameWithName(std::string_view name);
};

}  // namespace ComQuorvantVelmar_Plugin
