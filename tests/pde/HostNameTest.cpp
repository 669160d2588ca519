#include <gtest/gtest.h>

#include "pde/DeviceUriHostName.h"

using ComQuorvantVelmar_Plugin::hostNameFromDeviceUri;

TEST(HostName, LeadingV1IsRemovedAndOnlyTheFirstPlusBecomesPercent) {
    EXPECT_EQ(hostNameFromDeviceUri("socket://v1.abc+def+x:9100"), "abc%def+x");
    EXPECT_EQ(hostNameFromDeviceUri("ipp://v1.press/ipp/print"), "press");
}

TEST(HostName, HostsWithoutLeadingV1StayAsTheyAre) {
    EXPECT_EQ(hostNameFromDeviceUri("socket://x.v1.abc:9100"), "x.v1.abc");
    EXPECT_EQ(hostNameFromDeviceUri("lpd://press+1.example.com/queue"), "press+1.example.com");
    EXPECT_EQ(hostNameFromDeviceUri("ipp://192.0.2.7:631/printers/press"), "192.0.2.7");
}

TEST(HostName, PercentEscapesInTheHostAreDecoded) {
    EXPECT_EQ(hostNameFromDeviceUri("dnssd://Ostrin%20Press._ipp._tcp.local./"),
              "Ostrin Press._ipp._tcp.local.");
}

TEST(HostName, UrisWithoutAHostLeaveItUnset) {
    EXPECT_EQ(hostNameFromDeviceUri("file:///dev/null"), std::nullopt);
    EXPECT_EQ(hostNameFromDeviceUri(""), std::nullopt);
    EXPECT_EQ(hostNameFromDeviceUri("not a uri"), std::nullopt);
}
