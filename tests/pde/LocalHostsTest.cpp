#include <gtest/gtest.h>

#include "TestSupport.h"
#include "pde/DeviceUriHostName.h"
#include "pde/PpdFileHost.h"
#include "pde/PrintSettings.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string SamplePpdPath =
    std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

}  // namespace

TEST(PpdFileHost, PpdChangesMarkOnlyTheChoicesThePpdOffers) {
    std::unique_ptr<PpdFileHost> host = PpdFileHost::open(SamplePpdPath);
    ASSERT_TRUE(host);
    EXPECT_EQ(host->ppd().findMarkedChoice("QZMediaType"), PlistValue("SystemSetting"));
    EXPECT_NE(host->ppdFile(), nullptr);
    EXPECT_EQ(host->deviceUri(), std::nullopt);
    EXPECT_EQ(host->legacyTicket(), nullptr);
    EXPECT_TRUE(host->respondsToWillChangePPDOptionKeyValue());
    EXPECT_FALSE(host->willChangePPDOptionKeyValue("QZMediaType", "Cardboard"));
    EXPECT_FALSE(host->willChangePPDOptionKeyValue("NoSuchOption", "On"));
    EXPECT_EQ(host->ppd().findMarkedChoice("QZMediaType"), PlistValue("SystemSetting"));
    EXPECT_TRUE(host->printSettings()->values().empty());
    EXPECT_TRUE(host->willChangePPDOptionKeyValue("QZMediaType", "Recycled"));
    EXPECT_EQ(host->ppd().findMarkedChoice("QZMediaType"), PlistValue("Recycled"));
    EXPECT_EQ(host->printSettings()->text("QZMediaType"), "Recycled");
}

TEST(PpdFileHost, PrintingAndSavingDefaultsAskForAQueue) {
    std::unique_ptr<PpdFileHost> host = PpdFileHost::open(SamplePpdPath);
    ASSERT_TRUE(host);
    const HostOutcome printed = host->printFile("/etc/hostname", "job");
    EXPECT_EQ(printed.status, HostOutcome::Status::NoQueue);
    EXPECT_EQ(printed.message, "the PPD file " + SamplePpdPath + " has no queue to print to: name one with --queue");
    const HostOutcome saved = host->saveDefaults();
    EXPECT_EQ(saved.status, HostOutcome::Status::NoQueue);
    EXPECT_NE(saved.message.find("--queue"), std::string::npos);
}

TEST(PpdFileHost, AnUnreadablePpdGivesNoHostAndSaysWhy) {
    OstrinTest::TemporaryDirectory folder;
    std::string error;
    EXPECT_EQ(PpdFileHost::open(folder.file("missing.ppd"), &error), nullptr);
    EXPECT_EQ(error, "no such file");
    OstrinTest::writeFile(folder.file("broken.ppd"), "not a PPD\n");
    EXPECT_EQ(PpdFileHost::open(folder.file("broken.ppd"), &error), nullptr);
    EXPECT_FALSE(error.empty());
}

TEST(PrintSettings, HoldStringsAndNumbersAndGiveThemAsCupsOptionsInOrder) {
    PrintSettings settings;
    EXPECT_TRUE(settings.setValue("copies", 2));
    EXPECT_TRUE(settings.setValue("QZMediaType", "Plain"));
    EXPECT_TRUE(settings.setValue("scale", 1.5));
    EXPECT_FALSE(settings.setValue("flag", true));
    EXPECT_FALSE(settings.setValue("", "x"));
    EXPECT_TRUE(settings.setValue("copies", "3"));
    EXPECT_EQ(settings.cupsOptions(),
              (std::vector<CupsOptionText>{{"copies", "3"}, {"QZMediaType", "Plain"}, {"scale", "1.5"}}));
    EXPECT_TRUE(settings.removeValue("copies"));
    EXPECT_FALSE(settings.removeValue("copies"));
    EXPECT_EQ(settings.text("copies"), std::nullopt);
}

TEST(PpdFileHost, AChoiceMarkedAlreadyIsStillCarriedAndLinkedOptionsStayInStep) {
    std::unique_ptr<PpdFileHost> host = PpdFileHost::open(SamplePpdPath);
    ASSERT_TRUE(host);
    EXPECT_TRUE(host->willChangePPDOptionKeyValue("QZMediaType", "SystemSetting"));
    EXPECT_EQ(host->printSettings()->text("QZMediaType"), "SystemSetting");
    // libcups unmarks the page size when the page region is marked, and back.
    EXPECT_TRUE(host->willChangePPDOptionKeyValue("PageSize", "A3"));
    EXPECT_TRUE(host->willChangePPDOptionKeyValue("PageRegion", "A4"));
    EXPECT_TRUE(host->ppd().findMarkedChoice("PageSize").isNull());
    EXPECT_TRUE(host->willChangePPDOptionKeyValue("PageSize", "A3"));
    EXPECT_EQ(host->ppd().findMarkedChoice("PageSize"), PlistValue("A3"));
    EXPECT_TRUE(host->ppd().findMarkedChoice("PageRegion").isNull());
}

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
