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

TEST(AppPreference, AnswersTheEntryOfTheNamedApplication) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    RegisteredBundle registered(makeBundle(folder, {{"CFBundleName", "Plugin"}}, &information));
    auto& preference = AppPreference::sharedInstance();
    EXPECT_EQ(preference.convertTableFileNameWithAppName("Hosted"), "HostTable");
    EXPECT_EQ(preference.panesTreeFileNameWithAppName("Hosted"), "HostTree");
    EXPECT_EQ(preference.ppdFileNameWithAppName("Hosted"), "Host.ppd");
    EXPECT_EQ(preference._productFolderNameWithAppName("Hosted"), "HostProduct");
    EXPECT_EQ(preference._subFolderNameWithAppName("Hosted"), "HostSub");
    EXPECT_TRUE(registered.lines.empty());
}

TEST(AppPreference, WithoutAnApplicationNameTheBundleNameIsUsed) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    RegisteredBundle registered(makeBundle(folder, {{"CFBundleName", "Plugin"}}, &information));
    auto& preference = AppPreference::sharedInstance();
    EXPECT_EQ(preference.convertTableFileNameWithAppName(), "OwnTable");
    EXPECT_EQ(preference._subFolderNameWithAppName(), "OwnSub");
    // A key the entry lacks is simply not there.
    EXPECT_EQ(preference.ppdFileNameWithAppName(), std::nullopt);
    EXPECT_TRUE(registered.lines.empty());
}

TEST(AppPreference, MissingApplicationEntryIsLoggedAndAnswersNothing) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    RegisteredBundle registered(makeBundle(folder, {{"CFBundleName", "Plugin"}}, &information));
    EXPECT_EQ(AppPreference::sharedInstance().ppdFileNameWithAppName("Stranger"), std::nullopt);
    EXPECT_EQ(registered.lines, std::vector<std::string>{kFailure});
}

TEST(AppPreference, MissingBundleNameIsLoggedAndAnswersNothing) {
    OstrinTest::TemporaryDirectory folder;
    const PlistValue information(kHostEntries);
    // The folder is called Plugin.bundle, but only "CFBundleName" names the entry.
    RegisteredBundle registered(makeBundle(folder, {{"CFBundleIdentifier", "x"}}, &information));
    EXPECT_EQ(AppPreference::sharedInstance().convertTableFileNameWithAppName(), std::nullopt);
    EXPECT_EQ(registered.lines, std::vector<std::string>{kFailure});
}

TEST(AppPreference, MissingResourceOrBundleIsLoggedAndAnswersNothing) {
    {
        OstrinTest::TemporaryDirectory folder;
        RegisteredBundle registered(makeBundle(folder, {{"CFBundleName", "Plugin"}}, nullptr));
        EXPECT_EQ(AppPreference::sharedInstance().panesTreeFileNameWithAppName(), std::nullopt);
        EXPECT_EQ(registered.lines, std::vector<std::string>{kFailure});
    }
    RegisteredBundle none(nullptr);
    EXPECT_EQ(AppPreference::sharedInstance().convertTableFileNameWithAppName("Hosted"), std::nullopt);
    EXPECT_EQ(none.lines, std::vector<std::string>{kFailure});
}
