#include "core/ClassRegistry.h"

namespace ComQuorvantVelmar_Plugin {

ClassRegistry& ClassRegistry::sharedInstance() {
    static ClassRegistry registry;
    return registry;
}

void ClassRegistry::registerClass(std::string name, Factory factory) {
    _factories[std::move(name)] = std::move(factory);
}

std::shared_ptr<RegisteredObject> ClassRegistry::create(std::string_view name) const {
    auto found = _factories.find(std::string(name));
    return found == _factories.end() ? nullptr : found->second();
}

bool ClassRegistry::contains(std::string_view name) const {
    return _factories.count(std::string(name)) != 0;
}

}  // namespace ComQuorvantVelmar_Plugin
