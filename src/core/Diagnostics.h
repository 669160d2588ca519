#pragma once

#include <functional>
#include <string_view>

namespace ComQuorvantVelmar_Plugin::Diagnostics {

/// Sends one diagnostic line to the system log, and to stderr when echo is on.
/// Never pass a password or other secret.
void log(std::string_view line);
/// Sends one line to stderr always, and to the system log.
void error(std::string_view line);
/// printf-style form of log.
void logf(const char* format, ...) __attribute__((format(printf, 1, 2)));

/// Echo diagnostics on stderr as well (the command's --verbose).
void setEcho(bool echo);
/// Routes every line also to observer (tests read diagnostics through it); empty to stop.
void setObserver(std::function<void(std::string_view)> observer);

}  // namespace ComQuorvantVelmar_Plugin::Diagnostics
