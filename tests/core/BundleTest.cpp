#include <gtest/gtest.h>

#include <filesystem>

#include "TestSupport.h"
#include "core/AboutBox.h"
#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

class Greeter : public RegisteredObject {};

std::shared_ptr<Bundle> productBundle() { return Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR); }

// A bundle folder name.bundle with a resources folder and, when given, an Info.plist.
std::string makeBundle(const OstrinTest::TemporaryDirectory& folder, const std::string& name,
                       const std::optional<PlistDictionary>& info = std::nullopt) {
    const std::string path = folder.file(name + ".bundle");
    std::filesystem::create_directories(path + "/Contents/Resources");
    if (info) PlistIO::writeFile(path + "/Contents/Info.plist", *info);
    return path;
}

}  // namespace

TEST(Bundle, ReadsInformationDictionaryAndResources) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path =
        makeBundle(folder, "Pane", PlistDictionary{{"NSPrincipalClass", "PaperPane"}, {"CFBundleExecutable", "PaperPane"}});
    OstrinTest::writeFile(path + "/Contents/Resources/Tree.plist", "x");
    auto bundle = Bundle::bundleWithPath(path + "/");
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->principalClassName(), "PaperPane");
    EXPECT_EQ(bundle->bundleName(), "Pane");
    EXPECT_EQ(bundle->pathForResource("Tree", "plist"), path + "/Contents/Resources/Tree.plist");
    EXPECT_EQ(bundle->pathForResource("Missing", "plist"), "");
    EXPECT_EQ(bundle->executablePath(), path + "/Contents/Linux/PaperPane.so");
}

TEST(Bundle, LoadsWithoutCodeButNotWithAMissingSharedObject) {
    OstrinTest::TemporaryDirectory folder;
    EXPECT_FALSE(Bundle::bundleWithPath(folder.file("None.bundle")));
    auto gone = Bundle::bundleWithPath(makeBundle(folder, "Gone", PlistDictionary{{"CFBundleExecutable", "Gone"}}));
    ASSERT_TRUE(gone);
    EXPECT_FALSE(gone->load());
    EXPECT_FALSE(gone->isLoaded());
    auto plain = Bundle::bundleWithPath(makeBundle(folder, "Plain"));
    ASSERT_TRUE(plain);
    EXPECT_TRUE(plain->load());
    EXPECT_EQ(plain->principalClassName(), "");
}

OSTRIN_REGISTER_CLASS("TestGreeter", Greeter)

TEST(ClassRegistry, CreatesRegisteredClassesByInterface) {
    auto& registry = ClassRegistry::sharedInstance();
    EXPECT_TRUE(registry.createAs<Greeter>("TestGreeter"));
    EXPECT_FALSE(registry.create("NoSuchClass"));
    registry.registerClass("Plain", [] { return std::make_shared<RegisteredObject>(); });
    EXPECT_TRUE(registry.create("Plain"));
    EXPECT_FALSE(registry.createAs<Greeter>("Plain"));
}

TEST(LocalizedString, FollowsTheFirstPreferredLanguageAndFallsBackToTheKey) {
    SetNSBundleForLocalizedString(productBundle());
    PreferredLanguages::setFirst("de_DE.UTF-8");
    EXPECT_EQ(PreferredLanguages::first(), "de-DE");
    EXPECT_EQ(BSLocalizedString("Yes"), "Ja");
    EXPECT_EQ(BSLocalizedString("IDM_NO_SUCH_KEY"), "IDM_NO_SUCH_KEY");
    EXPECT_EQ(BSLocalizedStringFromTable("Yes", "NoSuchTable"), "Yes");
    PreferredLanguages::setFirst("ja");
    EXPECT_EQ(BSLocalizedString("Self Resolve Conflict"), "自分で競合を解決");
    PreferredLanguages::setFirst("fr-FR");
    EXPECT_EQ(BSLocalizedString("Yes"), "Yes");
    SetNSBundleForLocalizedString(nullptr);
    EXPECT_EQ(BSLocalizedString("Yes"), "");
    PreferredLanguages::setFirst("");
}

TEST(PreferredLanguages, ReadsTheEnvironmentInOrder) {
    PreferredLanguages::setFirst("");
    ::setenv("LANGUAGE", "ja_JP:en", 1);
    EXPECT_EQ(PreferredLanguages::first(), "ja-JP");
    ::unsetenv("LANGUAGE");
    ::setenv("LC_ALL", "de_AT.ISO-8859-1@euro", 1);
    EXPECT_EQ(PreferredLanguages::first(), "de-AT");
    ::unsetenv("LC_ALL");
    ::unsetenv("LC_MESSAGES");
    ::setenv("LANG", "C", 1);
    EXPECT_EQ(PreferredLanguages::first(), "en");
}

TEST(DictionaryNamed, ReadsOnlyDictionaryResources) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = makeBundle(folder, "Pane");
    PlistIO::writeFile(path + "/Contents/Resources/misc.plist", PlistDictionary{{"a", "b"}});
    PlistIO::writeFile(path + "/Contents/Resources/list.plist", PlistArray{"a"});
    auto bundle = Bundle::bundleWithPath(path);
    ASSERT_TRUE(DictionaryNamed("misc", bundle.get()));
    EXPECT_EQ(DictionaryNamed("misc", bundle.get())->stringFor("a", ""), "b");
    EXPECT_FALSE(DictionaryNamed("list", bundle.get()));
    EXPECT_FALSE(DictionaryNamed("missing", bundle.get()));
    EXPECT_FALSE(DictionaryNamed("misc", nullptr));
}

TEST(AboutBox, ShowsTheProductBundlesVersionAndBuildInTheUsersLanguage) {
    auto product = productBundle();
    ASSERT_TRUE(product);
    SetNSBundleForLocalizedString(product);
    PreferredLanguages::setFirst("en");
    const AboutBox english(product.get());
    PreferredLanguages::setFirst("ja");
    const AboutBox japanese(product.get());
    SetNSBundleForLocalizedString(nullptr);
    PreferredLanguages::setFirst("en");
    EXPECT_EQ(english.productName(), "Ostrin Flow");
    EXPECT_EQ(english.versionText(), "Version 0.1.0");
    EXPECT_EQ(english.buildText(), "Build 1");
    EXPECT_EQ(english.iconPath(), product->resourcePath() + "/ostrin-flow.png");
    EXPECT_EQ(japanese.versionText(), "バージョン 0.1.0");
}

TEST(AboutBox, MissingStringsLeaveTheirLinesEmpty) {
    OstrinTest::TemporaryDirectory folder;
    const auto bare = Bundle::bundleWithPath(makeBundle(folder, "Press",
                                                        PlistDictionary{{"CFBundleShortVersionString", "2.4"},
                                                                        {"CFBundleVersion", PlistValue(std::int64_t{7})},
                                                                        {"CFBundleIconFile", "Missing.png"}}));
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
