#include "settings_ui/NotificationCenter.h"

#include <algorithm>

namespace ComQuorvantVelmar_Plugin {

NotificationCenter& NotificationCenter::defaultCenter() {
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void* observer, Handler handler, std::string name,
                                     const void* object) {
    if (!observer || !handler) return;
    auto shared = std::make_shared<const Handler>(std::move(handler));
    _registrations[std::move(name)].push_back(Registration{_nextId++, observer, object, std::move(shared)});
}

void NotificationCenter::removeObserver(const void* observer, std::string_view name) {
    auto found = _registrations.find(std::string(name));
    if (found == _registrations.end()) return;
    std::erase_if(found->second, [observer](const Registration& entry) { return entry.observer == observer; });
    if (found->second.empty()) _registrations.erase(found);
}

void NotificationCenter::removeObserver(const void* observer) {
    for (auto entry = _registrations.begin(); entry != _registrations.end();) {
        std::erase_if(entry->second, [observer](const Registration& each) { return each.observer == observer; });
        entry = entry->second.empty() ? _registrations.erase(entry) : std::next(entry);
    }
}

bool NotificationCenter::isRegistered(std::string_view name, std::uint64_t id) const {
    auto found = _registrations.find(std::string(name));
    if (found == _registrations.end()) return false;
    return std::any_of(found->second.begin(), found->second.end(),
                       [id](const Registration& entry) { return entry.id == id; });
}

// Delivery works on a snapshot, so handlers may change the registrations; an observer
// removed meanwhile (for example destroyed by an earlier handler) is not called.
void NotificationCenter::post(const Notification& notification) {
    auto found = _registrations.find(notification.name);
    if (found == _registrations.end()) return;
    const std::vector<Registration> snapshot = found->second;
    for (const Registration& entry : snapshot) {
        if (entry.object && entry.object != notification.object) continue;
        if (!isRegistered(notification.name, entry.id)) continue;
        (*entry.handler)(notification);
    }
}

std::size_t NotificationCenter::observationCount(const void* observer) const {
    std::size_t count = 0;
    for (const auto& [name, entries] : _registrations)
        count += static_cast<std::size_t>(std::count_if(
            entries.begin(), entries.end(), [observer](const Registration& entry) { return entry.observer == observer; }));
    return count;
}

}  // namespace ComQuorvantVelmar_Plugin
