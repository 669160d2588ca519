#include "core/Diagnostics.h"

#include <syslog.h>

#include <cstdarg>
#include <cstdio>
#include <string>
#include <vector>

namespace ComQuorvantVelmar_Plugin::Diagnostics {
namespace {

bool echoOn = false;
std::function<void(std::string_view)> currentObserver;

void toSyslog(std::string_view line) {
    syslog(LOG_DEBUG, "%.*s", static_cast<int>(line.size()), line.data());
}

void toStderr(std::string_view line) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

}  // namespace

void log(std::string_view line) {
    toSyslog(line);
    if (echoOn) toStderr(line);
    if (currentObserver) currentObserver(line);
}

void error(std::string_view line) {
    toSyslog(line);
    toStderr(line);
    if (currentObserver) currentObserver(line);
}

void logf(const char* format, ...) {
    va_list arguments;
    va_start(arguments, format);
    va_list copy;
    va_copy(copy, arguments);
    int length = std::vsnprintf(nullptr, 0, format, copy);
    va_end(copy);
    std::vector<char> buffer(static_cast<std::size_t>(length > 0 ? length : 0) + 1);
    std::vsnprintf(buffer.data(), buffer.size(), format, arguments);
    va_end(arguments);
    std::string line(buffer.data());
    while (!line.empty() && line.back() == '\n') line.pop_back();
    log(line);
}

void setEcho(bool echo) { echoOn = echo; }

void setObserver(std::function<void(std::string_view)> observer) {
    currentObserver = std::move(observer);
}

}  // namespace ComQuorvantVelmar_Plugin::Diagnostics
