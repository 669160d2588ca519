#include <gtest/gtest.h>

#include "pde/DeviceUriHostName.h"

using ComQuorvantVelmar_Plugin::hostNameFromDeviceUri;

// A leading "v1." goes and then only the first "+" becomes "%"; other hosts stay as they
// are, percent escapes decoded; a URI without a host leaves it unset.
TEST(HostName, TakenFromTheDeviceUri) {
    const std::pair<const char*, std::optional<std::string>> cases[] = {
        {"socket://v1.abc+def+x:9100", "abc%def+x"},
        {"ipp://v1.press/ipp/print", "press"},
        {"socket://x.v1.abc:9100", "x.v1.abc"},
        {"lpd://press+1.example.com/queue", "press+1.example.com"},
        {"ipp://192.0.2.7:631/printers/press", "192.0.2.7"},
        {"dnssd://Ostrin%20Press._ipp._tcp.local./", "Ostrin Press._ipp._tcp.local."},
        {"file:///dev/null", std::nullopt},
        {"", std::nullopt},
        {"not a uri", std::nullopt},
    };
    for (const auto& [uri, host] : cases) EXPECT_EQ(hostNameFromDeviceUri(uri), host) << uri;
}
