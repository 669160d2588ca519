#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin::LocalizedCatalogues {

/// Makes gettext read the catalogues of language ("de-DE") from now on.
void switchLanguage(const std::string& language);

}  // namespace ComQuorvantVelmar_Plugin::LocalizedCatalogues
