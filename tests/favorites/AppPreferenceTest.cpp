#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/Diagnostics.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "favorites/AppPreference.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// Registers a bundle as the plug-in's own for one test and collects diagnostics.
class RegisteredBundle {
public:
    explicit RegisteredBundle(std::shared_ptr<Bundle> bundle) {
        SetNSBundleForPrincipalBundle(std::move(bundle));
        Diagnostics::setObserver([this](std::string_view line) { lines.emplace_back(line); });
    }
    ~RegisteredBundle() {
        Diagnostics::setObserver({});
        SetNSBundleForPrincipalBundle(nullptr);
    }
    std::vector<std::string> lines;
};

std::shared_ptr<Bundle> makeBundle(const OstrinTest::TemporaryDirectory& folder, const PlistDictionary& info,
                                   const PlistValue* information) {
    const std::string contents = folder.file("Plugin.bundle/Contents");
    std::filesystem::create_directories(contents + "/Resources");
    PlistIO::writeFile(contents + "/Info.plist", info);
    if (information) PlistIO::writeFile(contents + "/Resources/miscellaneous.plist", *information);
    return Bundle::bundleWithPath(folder.file("Plugin.bundle"));
}

const PlistDictionary kHostEntries{
    {"Hosted", PlistDictionary{{"convertTableFileName", "HostTable"}, {"panesTreeFileName", "HostTree"},
                               {"ppdFileName", "Host.ppd"}, {"productFolderName", "HostProduct"},
                               {"subFolderName", "HostSub"}}},
    {"Plugin", PlistDictionary{{"convertTableFileName", "OwnTable"}, {"subFolderName", "OwnSub"}}}};

constexpr const char* kFailure = "##### fail to retrieve infomations dictionary";

}  // namespace

TEST(AppPreference, ShippedBundleNamesItsResources) {
    RegisteredBundle registered(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    auto& preference = AppPreference::sharedInstance();
    const auto table = preference.convertTableFileNameWithAppName();
    ASSERT_TRUE(table);
    EXPECT_TRUE(std::filesystem::exists(std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/" + *table + ".plist"));
    EXPECT_TRUE(preference.panesTreeFileNameWithAppName());
    EXPECT_TRUE(preference.ppdFileNameWithAppName());
    EXPECT_EQ(preference._productFolderNameWithAppName(), "OstrinFlow");
    EXPECT_TRUE(preference._subFolderNameWithAppName());
    EXPECT_EQ(preference.convertTableFileNameWithAppName("ostrin-flow"), table);
    EXPECT_TRUE(registered.lines.empty());
}

// The named application's entry, else the entry of the bundle's own name.
TEST(AppPreference, AnswersTheEntryOfTheNamedApplicationElseOfTheBundle) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    RegisteredBundle registered(makeBundle(folder, {{"CFBundleName", "Plugin"}}, &information));
    auto& preference = AppPreference::sharedInstance();
    EXPECT_EQ(preference.convertTableFileNameWithAppName("Hosted"), "HostTable");
    EXPECT_EQ(preference.panesTreeFileNameWithAppName("Hosted"), "HostTree");
    EXPECT_EQ(preference.ppdFileNameWithAppName("Hosted"), "Host.ppd");
    EXPECT_EQ(preference._productFolderNameWithAppName("Hosted"), "HostProduct");
    EXPECT_EQ(preference._subFolderNameWithAppName("Hosted"), "HostSub");
    EXPECT_EQ(preference.convertTableFileNameWithAppName(), "OwnTable");
    EXPECT_EQ(preference._subFolderNameWithAppName(), "OwnSub");
    // A key the entry lacks is simply not there.
    EXPECT_EQ(preference.ppdFileNameWithAppName(), std::nullopt);
    EXPECT_TRUE(registered.lines.empty());
}

// No entry for the application, no "CFBundleName" (the folder's name does not count), no
// resource, no bundle.
TEST(AppPreference, WhateverIsMissingIsLoggedAndAnswersNothing) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    const struct {
        PlistDictionary info;
        const PlistValue* information;
        const char* appName;
    } cases[] = {
        {{{"CFBundleName", "Plugin"}}, &information, "Stranger"},
        {{{"CFBundleIdentifier", "x"}}, &information, ""},
        {{{"CFBundleName", "Plugin"}}, nullptr, ""},
    };
    for (const auto& probe : cases) {
        std::filesystem::remove_all(folder.file("Plugin.bundle"));
        RegisteredBundle registered(makeBundle(folder, probe.info, probe.information));
        EXPECT_EQ(AppPreference::sharedInstance().ppdFileNameWithAppName(probe.appName), std::nullopt);
        EXPECT_EQ(registered.lines, std::vector<std::string>{kFailure});
    }
    RegisteredBundle none(nullptr);
    EXPECT_EQ(AppPreference::sharedInstance().convertTableFileNameWithAppName("Hosted"), std::nullopt);
    EXPECT_EQ(none.lines, std::vector<std::string>{kFailure});
}
