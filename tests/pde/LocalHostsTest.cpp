#include <gtest/gtest.h>

#include "TestSupport.h"
#include "pde/InMemoryPdeHost.h"
#include "pde/PpdFileHost.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

const std::string SamplePpdPath =
    std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/OstrinFlow.ppd";

std::unique_ptr<PpdFileExt> openSample() {
    return PpdFileExt::initWithContentsOfFile(SamplePpdPath);
}

}  // namespace

// The host starts from the PPD's defaults with no settings; a change marks only a choice the
// PPD offers and carries it in the print settings.
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

TEST(InMemoryPdeHost, WithTheHookPpdChangesAreMarkedAndRecorded) {
    InMemoryPdeHost host(InMemoryPdeHost::Flavour::WithPpdChangeHook, openSample());
    ASSERT_NE(host.ppd(), nullptr);
    EXPECT_EQ(host.legacyTicket(), nullptr);
    EXPECT_TRUE(host.willChangePPDOptionKeyValue("StapleMode", "TopLeftCorner"));
    EXPECT_FALSE(host.willChangePPDOptionKeyValue("StapleMode", "Everywhere"));
    EXPECT_EQ(host.ppd()->findMarkedChoice("StapleMode"), PlistValue("TopLeftCorner"));
    EXPECT_EQ(host.printSettings()->text("StapleMode"), "TopLeftCorner");
    EXPECT_EQ(host.ppdChanges(),
              (std::vector<std::pair<std::string, std::string>>{{"StapleMode", "TopLeftCorner"}}));
}

TEST(InMemoryPdeHost, WithoutTheHookPpdChangesAreRefused) {
    InMemoryPdeHost host(InMemoryPdeHost::Flavour::WithoutPpdChangeHook, openSample());
    EXPECT_FALSE(host.respondsToWillChangePPDOptionKeyValue());
    EXPECT_NE(host.legacyTicket(), nullptr);
    EXPECT_FALSE(host.willChangePPDOptionKeyValue("StapleMode", "TopLeftCorner"));
    EXPECT_TRUE(host.printSettings()->values().empty());
    EXPECT_TRUE(host.ppdChanges().empty());
}

TEST(InMemoryPdeHost, WithoutAPpdTheChoiceIsOnlyCarried) {
    InMemoryPdeHost host(InMemoryPdeHost::Flavour::WithPpdChangeHook);
    EXPECT_EQ(host.ppdFile(), nullptr);
    EXPECT_TRUE(host.willChangePPDOptionKeyValue("StapleMode", "TopLeftCorner"));
    EXPECT_EQ(host.printSettings()->text("StapleMode"), "TopLeftCorner");
    host.setDeviceUri("socket://press:9100");
    EXPECT_EQ(host.deviceUri(), "socket://press:9100");
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
