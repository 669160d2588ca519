#pragma once

#include <string>

namespace ComQuorvantVelmar_Plugin::PreferredLanguages {

/// The user's first preferred language as "de-DE", "ja" or "en": the first entry of
/// LANGUAGE, else LC_ALL, LC_MESSAGES, LANG, without encoding or modifier; "en" when
/// none is set or the locale is C/POSIX. An override set with setFirst wins.
std::string first();
/// Overrides the first preferred language for this process (the command's --lang) and
/// switches the localised strings to it; "" returns to the environment's.
void setFirst(const std::string& language);

}  // namespace ComQuorvantVelmar_Plugin::PreferredLanguages
