#include <gtest/gtest.h>

#include "TestSupport.h"
#include "core/Bundle.h"
#include "core/ClassRegistry.h"
#include "core/LocalizedString.h"
#include "core/PlistIO.h"
#include "core/PreferredLanguages.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

class Greeter : public RegisteredObject {};

std::shared_ptr<Bundle> productBundle() { return Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR); }

std::string makeBundle(const OstrinTest::TemporaryDirectory& folder, const std::string& info) {
    const std::string path = folder.file("Pane.bundle");
    std::filesystem::create_directories(path + "/Contents/Resources");
    if (!info.empty()) OstrinTest::writeFile(path + "/Contents/Info.plist", info);
    return path;
}

}  // namespace

TEST(Bundle, ReadsInformationDictionaryAndResources) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = makeBundle(
        folder, PlistIO::serialize(PlistDictionary{{"NSPrincipalClass", "PaperPane"},
                                                   {"CFBundleExecutable", "PaperPane"}}));
    OstrinTest::writeFile(path + "/Contents/Resources/Tree.plist", "x");
    auto bundle = Bundle::bundleWithPath(path + "/");
    ASSERT_TRUE(bundle);
    EXPECT_EQ(bundle->principalClassName(), "PaperPane");
    EXPECT_EQ(bundle->bundleName(), "Pane");
    EXPECT_EQ(bundle->pathForResource("Tree", "plist"), path + "/Contents/Resources/Tree.plist");
    EXPECT_EQ(bundle->pathForResource("Missing", "plist"), "");
    EXPECT_EQ(bundle->executablePath(), path + "/Contents/Linux/PaperPane.so");
}

TEST(Bundle, MissingFolderOrSharedObject) {
    OstrinTest::TemporaryDirectory folder;
    EXPECT_FALSE(Bundle::bundleWithPath(folder.file("None.bundle")));
    auto bundle = Bundle::bundleWithPath(
        makeBundle(folder, PlistIO::serialize(PlistDictionary{{"CFBundleExecutable", "Gone"}})));
    ASSERT_TRUE(bundle);
    EXPECT_FALSE(bundle->load());
    EXPECT_FALSE(bundle->isLoaded());
}

TEST(Bundle, WithoutCodeLoadsTrivially) {
    OstrinTest::TemporaryDirectory folder;
    auto bundle = Bundle::bundleWithPath(makeBundle(folder, ""));
    ASSERT_TRUE(bundle);
    EXPECT_TRUE(bundle->load());
    EXPECT_EQ(bundle->principalClassName(), "");
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

TEST(LocalizedString, FollowsTheFirstPreferredLanguage) {
    SetNSBundleForLocalizedString(productBundle());
    PreferredLanguages::setFirst("de_DE.UTF-8");
    EXPECT_EQ(PreferredLanguages::first(), "de-DE");
    EXPECT_EQ(BSLocalizedString("Yes"), "Ja");
    PreferredLanguages::setFirst("ja");
    EXPECT_EQ(BSLocalizedString("Self Resolve Conflict"), "自分で競合を解決");
    PreferredLanguages::setFirst("fr-FR");
    EXPECT_EQ(BSLocalizedString("Yes"), "Yes");
    PreferredLanguages::setFirst("");
}

TEST(LocalizedString, UnknownKeyIsItselfAndNoBundleIsEmpty) {
    SetNSBundleForLocalizedString(productBundle());
    EXPECT_EQ(BSLocalizedString("IDM_NO_SUCH_KEY"), "IDM_NO_SUCH_KEY");
    EXPECT_EQ(BSLocalizedStringFromTable("Yes", "NoSuchTable"), "Yes");
    SetNSBundleForLocalizedString(nullptr);
    EXPECT_EQ(BSLocalizedString("Yes"), "");
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
    const std::string path = makeBundle(folder, "");
    PlistIO::writeFile(path + "/Contents/Resources/misc.plist", PlistDictionary{{"a", "b"}});
    PlistIO::writeFile(path + "/Contents/Resources/list.plist", PlistArray{"a"});
    auto bundle = Bundle::bundleWithPath(path);
    ASSERT_TRUE(DictionaryNamed("misc", bundle.get()));
    EXPECT_EQ(DictionaryNamed("misc", bundle.get())->stringFor("a", ""), "b");
    EXPECT_FALSE(DictionaryNamed("list", bundle.get()));
    EXPECT_FALSE(DictionaryNamed("missing", bundle.get()));
    EXPECT_FALSE(DictionaryNamed("misc", nullptr));
}
