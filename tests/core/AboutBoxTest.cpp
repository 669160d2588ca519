#include <gtest/gtest.h>

#include <filesystem>

#include "TestSupport.h"
#include "core/AboutBox.h"
#include "core/Bundle.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

std::shared_ptr<Bundle> bundleWithInfo(const OstrinTest::TemporaryDirectory& folder, const PlistDictionary& info) {
    const std::string path = folder.file("Press.bundle");
    std::filesystem::create_directories(path + "/Contents/Resources");
    PlistIO::writeFile(path + "/Contents/Info.plist", info);
    return Bundle::bundleWithPath(path);
}

}  // namespace

TEST(AboutBox, ShowsTheProductBundlesVersionAndBuildInTheUsersLanguage) {
    auto product = Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR);
    ASSERT_TRUE(product);
    SetNSBundleForLocalizedString(product);
    PreferredLanguages::setFirst("de");
    const AboutBox german(product.get());
    PreferredLanguages::setFirst("en");
    const AboutBox english(product.get());
    SetNSBundleForLocalizedString(nullptr);
    EXPECT_EQ(english.productName(), "Ostrin Flow");
    EXPECT_EQ(english.versionText(), "Version 0.1.0");
    EXPECT_EQ(english.buildText(), "Build 1");
    EXPECT_EQ(german.buildText(), "Build 1");
    EXPECT_EQ(english.iconPath(), product->resourcePath() + "/ostrin-flow.png");
    PreferredLanguages::setFirst("ja");
    SetNSBundleForLocalizedString(product);
    EXPECT_EQ(AboutBox(product.get()).versionText(), "バージョン 0.1.0");
    SetNSBundleForLocalizedString(nullptr);
    PreferredLanguages::setFirst("en");
}

TEST(AboutBox, MissingStringsLeaveTheirLinesEmpty) {
    OstrinTest::TemporaryDirectory folder;
    const auto bare = bundleWithInfo(folder, PlistDictionary{{"CFBundleShortVersionString", "2.4"},
                                                             {"CFBundleVersion", PlistValue(std::int64_t{7})},
                                                             {"CFBundleIconFile", "Missing.png"}});
    ASSERT_TRUE(bare);
    const AboutBox about(bare.get());
    EXPECT_EQ(about.productName(), "Press");
    EXPECT_EQ(about.versionText(), "Version 2.4");
    EXPECT_EQ(about.buildText(), "");
    EXPECT_EQ(about.iconPath(), "");
    const AboutBox none(nullptr);
    EXPECT_EQ(none.productName(), "");
    EXPECT_EQ(none.versionText(), "");
}
