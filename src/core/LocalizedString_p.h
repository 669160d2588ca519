#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin::LocalizedCatalogues {

/// Makes gettext read the catalogues of language ("de-DE") from now on.
void switchLanguage(const std::string& language);
/// LANGUAGE as the environment gave it, before any switch; nullptr when unset.
const char* environmentLanguageList();

}  // namespace ComQuorvantVelmar_Plugin::LocalizedCatalogues
