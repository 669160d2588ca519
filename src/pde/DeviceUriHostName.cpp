#include "pde/DeviceUriHostName.h"

#include <cups/http.h>

namespace ComQuorvantVelmar_Plugin {
namespace {

std::optional<std::string> uriHost(const std::string& uri) {
    char scheme[32], userPass[256], host[256], resource[1024];
    int port = 0;
    const http_uri_status_t status =
        httpSeparateURI(HTTP_URI_CODING_ALL, uri.c_str(), scheme, sizeof scheme, userPass,
                        sizeof userPass, host, sizeof host, &port, resource, sizeof resource);
    if (status < HTTP_URI_STATUS_OK || host[0] == '\0') return std::nullopt;
    return std::string(host);
}

}  // namespace

std::optional<std::string> hostNameFromDeviceUri(const std::string& deviceUri) {
    std::optional<std::string> host = uriHost(deviceUri);
    if (!host || host->rfind("v1.", 0) != 0) return host;
    host->erase(0, 3);
    if (const std::size_t plus = host->find('+'); plus != std::string::npos) (*host)[plus] = '%';
    return host;
}

}  // namespace ComQuorvantVelmar_Plugin
