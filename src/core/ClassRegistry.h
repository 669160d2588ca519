#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ComQuorvantVelmar_Plugin {

/// Base of every class that can be created by name (a bundle's principal class, a pane
/// controller). Callers test the interface they need with dynamic_pointer_cast.
class RegisteredObject {
public:
    virtual ~RegisteredObject() = default;
};

/// Classes by name: the engine's built-in classes and those of loaded bundles.
class ClassRegistry {
public:
    using Factory = std::function<std::shared_ptr<RegisteredObject>()>;

    static ClassRegistry& sharedInstance();

    /// Registers factory under name; a later registration of the same name replaces it.
    void registerClass(std::string name, Factory factory);
    /// A new object of the class, or nullptr for an unknown name.
    std::shared_ptr<RegisteredObject> create(std::string_view name) const;
    bool contains(std::string_view name) const;

    /// A new object of the class when it implements Interface, else nullptr.
    template <class Interface>
    std::shared_ptr<Interface> createAs(std::string_view name) const {
        return std::dynamic_pointer_cast<Interface>(create(name));
    }

private:
    std::unordered_map<std::string, Factory> _factories;
};

}  // namespace ComQuorvantVelmar_Plugin

/// Registers Type under Name when the library or bundle holding this line is loaded.
#define OSTRIN_REGISTER_CLASS(Name, Type)                                                    \
    namespace {                                                                           \
    const bool registered_##Type = [] {                                                   \
        ::ComQuorvantVelmar_Plugin::ClassRegistry::sharedInstance().registerClass(          \
            Name, [] { return std::make_shared<Type>(); });                               \
        return true;                                                                      \
    }();                                                                                  \
    }
