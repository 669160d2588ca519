#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

/// One announcement: a name, an optional sender and optional user information.
struct Notification {
    std::string name;
    const void* object = nullptr;
    std::optional<PlistDictionary> userInfo;
};

/// The process-wide, synchronous notification centre of the engine. Observers are kept
/// by name in the order they registered; posting calls them at once, on the caller's
/// thread. Handlers may post, add and remove observers while a notification is delivered.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification&)>;

    /// The one centre of the process.
    static NotificationCenter& defaultCenter();

    /// Calls handler for every notification named name; with a non-null object only for
    /// those posted by that sender.
    void addObserver(const void* observer, Handler handler, std::string name,
                     const void* object = nullptr);
    /// Stops every registration of observer under name.
    void removeObserver(const void* observer, std::string_view name);
    /// Stops every registration of observer under all names.
    void removeObserver(const void* observer);
    /// Delivers notification to the observers of its name; nothing when there are none.
    void post(const Notification& notification);
    /// How many registrations observer holds (0 when none).
    std::size_t observationCount(const void* observer) const;

private:
    struct Registration {
        std::uint64_t id;
        const void* observer;
        const void* object;
        std::shared_ptr<const Handler> handler;
    };

    bool isRegistered(std::string_view name, std::uint64_t id) const;

    std::unordered_map<std::string, std::vector<Registration>> _registrations;
    std::uint64_t _nextId = 1;
};

}  // namespace ComQuorvantVelmar_Plugin
