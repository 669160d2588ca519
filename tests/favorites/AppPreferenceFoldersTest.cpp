#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "FavoriteTestSupport.h"
#include "TestSupport.h"
#include "core/Diagnostics.h"
#include "core/PlistIO.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"
#include "favorites/PopUpMenuModel.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

// A private home: configuration folders in a temporary folder and a plug-in bundle whose
// "miscellaneous" resource names the product folders "Ostrin" and "Flow".
class AppPreferenceFolders : public ::testing::Test {
protected:
    void SetUp() override {
        OstrinTest::useProductStrings("en");
        ::setenv("XDG_CONFIG_HOME", _home.file("config").c_str(), 1);
        ::setenv("XDG_CONFIG_DIRS", (_home.file("etc") + ":/etc/xdg").c_str(), 1);
        const std::string bundle = _home.file("Plugin.bundle");
        fs::create_directories(bundle + "/Contents/Resources");
        OstrinTest::writeFile(bundle + "/Contents/Info.plist",
                              PlistIO::serialize(PlistDictionary{{"CFBundleName", "OstrinFlow"}}));
        PlistDictionary names{{"productFolderName", "Ostrin"}, {"subFolderName", "Flow"}};
        OstrinTest::writeFile(bundle + "/Contents/Resources/miscellaneous.plist",
                              PlistIO::serialize(PlistDictionary{{"OstrinFlow", names}}));
        SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(bundle));
    }
    void TearDown() override {
        ::unsetenv("XDG_CONFIG_HOME");
        ::unsetenv("XDG_CONFIG_DIRS");
    }

    std::string favoriteFolder() const { return _home.file("config/Quorvant/Ostrin/Flow/favorite"); }
    std::string profileFolder() const { return _home.file("etc/Quorvant/Ostrin/Flow/profile"); }
    std::string file(const std::string& name) const { return _home.file(name); }

    AppPreference& preference = AppPreference::sharedInstance();

private:
    OstrinTest::TemporaryDirectory _home;
};

fs::perms modeOf(const std::string& path) { return fs::status(path).permissions() & fs::perms::all; }

void writeFavorite(const std::string& path) {
    FavoriteFile favorite;
    favorite.setOptions(PlistDictionary{{"A", "1"}});
    favorite.writeToFile(path);
}

}  // namespace

TEST_F(AppPreferenceFolders, FoldersSitInTheConfigurationFolders) {
    EXPECT_EQ(preference.favoriteFolderPathArray(false), std::vector<std::string>{favoriteFolder()});
    EXPECT_FALSE(fs::exists(favoriteFolder()));
    EXPECT_EQ(preference.profileFolderPathArray(false), std::vector<std::string>{profileFolder()});
    EXPECT_EQ(preference.firstSpotColorFolder(false), file("etc/Quorvant/Ostrin/Flow/SpotColor"));
    EXPECT_EQ(preference.firstSpotColorDataUserFolder(false),
              file("etc/Quorvant/Ostrin/Flow/SpotColorDataUser"));
}

TEST_F(AppPreferenceFolders, CreatesEachMissingFolderWithMode0775) {
    const mode_t savedMask = ::umask(077);
    preference.favoriteFolderPathArray(true);
    ::umask(savedMask);
    ASSERT_TRUE(fs::is_directory(favoriteFolder()));
    const fs::perms group =
        fs::perms::owner_all | fs::perms::group_all | fs::perms::others_read | fs::perms::others_exec;
    for (const char* folder : {"config/Quorvant", "config/Quorvant/Ostrin", "config/Quorvant/Ostrin/Flow",
                               "config/Quorvant/Ostrin/Flow/favorite"})
        EXPECT_EQ(modeOf(file(folder)), group) << folder;
    EXPECT_EQ(modeOf(file("config")), fs::perms::owner_all);
}

TEST_F(AppPreferenceFolders, DefaultsToDotConfigAndEtcXdg) {
    ::unsetenv("XDG_CONFIG_HOME");
    ::unsetenv("XDG_CONFIG_DIRS");
    const std::string savedHome = std::getenv("HOME") ? std::getenv("HOME") : "";
    ::setenv("HOME", file("home").c_str(), 1);
    EXPECT_EQ(preference.firstProfileFolder(false), "/etc/xdg/Quorvant/Ostrin/Flow/profile");
    EXPECT_EQ(preference.favoriteFolderPathArray(false),
              std::vector<std::string>{file("home/.config/Quorvant/Ostrin/Flow/favorite")});
    ::setenv("XDG_CONFIG_HOME", "relative/config", 1);
    EXPECT_EQ(preference.favoriteFolderPathArray(false),
              std::vector<std::string>{file("home/.config/Quorvant/Ostrin/Flow/favorite")});
    ::setenv("HOME", savedHome.c_str(), 1);
}

TEST_F(AppPreferenceFolders, WithoutFolderNamesThereIsNoFolder) {
    SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR "/../missing.bundle"));
    std::vector<std::string> lines;
    Diagnostics::setObserver([&](std::string_view line) { lines.emplace_back(line); });
    EXPECT_TRUE(preference.favoriteFolderPathArray(true).empty());
    EXPECT_TRUE(preference.arrayForFavoritePath().empty());
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory("A", "", PlistDictionary{{"A", "1"}}));
    Diagnostics::setObserver({});
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "##### fail to retrieve infomations dictionary");
}

// Listing creates the folder and keeps visible plain ".pqz" files, sorted by name.
TEST_F(AppPreferenceFolders, ListsOnlyVisiblePlainFavoriteFilesByName) {
    EXPECT_TRUE(preference.arrayForFavoritePath().empty());
    ASSERT_TRUE(fs::is_directory(favoriteFolder()));
    for (const char* name : {"b.pqz", "C.pqz", "a.pqz", ".Hidden.pqz", "Upper.PQZ"})
        writeFavorite(favoriteFolder() + "/" + name);
    OstrinTest::writeFile(favoriteFolder() + "/notes.txt", "text");
    fs::create_directory(favoriteFolder() + "/Folder.pqz");
    EXPECT_EQ(preference.arrayForFavoritePath(),
              (std::vector<std::string>{favoriteFolder() + "/C.pqz", favoriteFolder() + "/a.pqz",
                                        favoriteFolder() + "/b.pqz"}));
}

TEST_F(AppPreferenceFolders, SavesAFavoriteIntoTheFavoritesFolder) {
    const auto path =
        preference.saveFavoriteOnFavoriteDirectory("Proofs", "client", PlistDictionary{{"A", "1"}});
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, favoriteFolder() + "/Proofs.pqz");
    FavoriteFile favorite(*path);
    EXPECT_EQ(favorite.comment(), "client");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"A", "1"}}));
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory(std::nullopt, "x", PlistDictionary{{"A", "1"}}));
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory("Other", "x", std::nullopt));
    EXPECT_FALSE(fs::exists(favoriteFolder() + "/Other.pqz"));
}

TEST_F(AppPreferenceFolders, FavoritePopupHasDefaultSeparatorAndFavorites) {
    PopUpMenuModel popup;
    popup.addItem("stale", "/old", "");
    preference.buildFavoritePopup(popup);
    EXPECT_EQ(popup.items(), (std::vector<PopUpMenuItem>{{"Default Settings", "", "text-x-generic", false}}));
    writeFavorite(favoriteFolder() + "/Proofs.pqz");
    writeFavorite(favoriteFolder() + "/Booklet.pqz");
    preference.buildFavoritePopup(popup);
    const std::vector<PopUpMenuItem> expected{
        {"Default Settings", "", "text-x-generic", false},
        {"", "", "", true},
        {"Booklet", favoriteFolder() + "/Booklet.pqz", "document-print", false},
        {"Proofs", favoriteFolder() + "/Proofs.pqz", "document-print", false}};
    EXPECT_EQ(popup.items(), expected);
    EXPECT_EQ(popup.indexOfSelectedItem(), 0);
}

TEST_F(AppPreferenceFolders, ProfilePopupListsProfilesAndSelectsByTitle) {
    fs::create_directories(profileFolder());
    OstrinTest::writeFile(profileFolder() + "/Coated.cps", "A=1\r\n");
    OstrinTest::writeFile(profileFolder() + "/Uncoated.cps", "A=1\r\n");
    OstrinTest::writeFile(profileFolder() + "/readme.txt", "");
    PopUpMenuModel popup;
    preference.buildProfilePopup(popup, "Uncoated");
    ASSERT_EQ(popup.numberOfItems(), 4);
    EXPECT_EQ(*popup.itemAtIndex(0), (PopUpMenuItem{"None", "", "", false}));
    EXPECT_TRUE(popup.itemAtIndex(1)->isSeparator);
    EXPECT_EQ(popup.itemAtIndex(2)->representedObject, profileFolder() + "/Coated.cps");
    EXPECT_EQ(popup.itemAtIndex(3)->title, "Uncoated");
    EXPECT_EQ(popup.indexOfSelectedItem(), 3);
    preference.buildProfilePopup(popup, std::nullopt);
    EXPECT_EQ(popup.indexOfSelectedItem(), 0);
    preference.buildProfilePopup(popup, "Missing");
    EXPECT_EQ(popup.indexOfSelectedItem(), 0);
}

// Lines split at the first "=" lose their last two characters (the carriage return and
// line feed), so a last line without them loses "45"; text that is no UTF-8 is code page 850.
TEST_F(AppPreferenceFolders, ProfileReaderSplitsLinesAtTheFirstEqualsSign) {
    const struct {
        std::string content;
        PlistDictionary expected;
    } cases[] = {
        {"A=1\r\nB=2=3\r\nno equals\r\nC=45", {{"A", "1"}, {"B", "2=3"}, {"C", ""}}},
        {"Name=Caf\x82\r\nGr\x94\xe1"
         "e=A4\r\n",
         {{"Name", "Café"}, {"Größe", "A4"}}},
    };
    for (const auto& probe : cases) {
        OstrinTest::writeFile(file("profile.cps"), probe.content);
        EXPECT_EQ(preference.profileDictionaryWithContentsOfFile(file("profile.cps")), probe.expected);
    }
    EXPECT_FALSE(preference.profileDictionaryWithContentsOfFile(file("missing.cps")));
    EXPECT_FALSE(preference.profileDictionaryWithContentsOfFile(""));
}

TEST(AppPreferenceLanguage, JapanesePreferenceIsDecidedOnce) {
    OstrinTest::useProductStrings("ja-JP");
    EXPECT_TRUE(AppPreference::sharedInstance().isJapanesePreferred());
    OstrinTest::useProductStrings("en");
    EXPECT_TRUE(AppPreference::sharedInstance().isJapanesePreferred());
    EXPECT_EQ(AppPreference::sharedInstance().destinationIotType(), 13);
}
