#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/PlistValue.h"

namespace ComQuorvantVelmar_Plugin {

class Bundle;

/// Registers the plug-in's principal bundle (resources, information dictionary).
void SetNSBundleForPrincipalBundle(std::shared_ptr<Bundle> bundle);
/// Registers the bundle whose catalogues BSLocalizedString reads.
void SetNSBundleForLocalizedString(std::shared_ptr<Bundle> bundle);
/// The registered principal bundle, or nullptr.
std::shared_ptr<Bundle> BSPrincipalBundle();

/// The localised text of key from the registered bundle's default table; the key itself
/// when no translation exists; "" when no bundle is registered.
std::string BSLocalizedString(std::string_view key);
/// The same, from the named table (for example "UI").
std::string BSLocalizedStringFromTable(std::string_view key, std::string_view table);
/// The localised text of key from bundle's table; the key itself when none exists.
std::string localizedStringInBundle(const Bundle& bundle, std::string_view key,
                                    std::string_view table);

/// The dictionary resource name.plist of bundle; nothing when either is absent, the
/// resource is missing or it holds no dictionary.
std::optional<PlistDictionary> DictionaryNamed(std::string_view name, const Bundle* bundle);

}  // namespace ComQuorvantVelmar_Plugin
