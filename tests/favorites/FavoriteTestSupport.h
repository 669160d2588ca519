#pragma once

#include <string>

#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PreferredLanguages.h"

namespace OstrinTest {

/// Makes the product bundle's catalogues answer in language, as the panel does at load.
inline void useProductStrings(const std::string& language) {
    using namespace ComQuorvantVelmar_Plugin;
    auto bundle = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    SetNSBundleForPrincipalBundle(bundle);
    SetNSBundleForLocalizedString(bundle);
    PreferredLanguages::setFirst(language);
}

}  // namespace OstrinTest
