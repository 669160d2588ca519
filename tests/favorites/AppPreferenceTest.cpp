#include <gtest/gtest.h>
#include <sys/stat.h>

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

constexpr const char* kFailure = "##### fail to retrieve infomations dictionary";

// A private home: configuration folders in a temporary folder, the diagnostics logged, and
// a plug-in bundle whose "miscellaneous" resource names the product folders "Ostrin" and "Flow".
class PreferenceHome : public ::testing::Test {
protected:
    void SetUp() override {
        OstrinTest::useProductStrings("en");
        registerBundle({{"CFBundleName", "OstrinFlow"}},
                       PlistDictionary{{"OstrinFlow", PlistDictionary{{"productFolderName", "Ostrin"},
                                                                      {"subFolderName", "Flow"}}}});
        Diagnostics::setObserver([this](std::string_view line) { lines.emplace_back(line); });
    }
    void TearDown() override { Diagnostics::setObserver({}); }

    // Makes a new plug-in bundle of info and, when given, its "miscellaneous" resource the plug-in's own.
    void registerBundle(const PlistDictionary& info, const std::optional<PlistValue>& information) {
        const std::string bundle = file("Plugin.bundle");
        fs::remove_all(bundle);
        fs::create_directories(bundle + "/Contents/Resources");
        PlistIO::writeFile(bundle + "/Contents/Info.plist", info);
        if (information) PlistIO::writeFile(bundle + "/Contents/Resources/miscellaneous.plist", *information);
        SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(bundle));
    }

    std::string favoriteFolder() const { return file("config/Quorvant/Ostrin/Flow/favorite"); }
    std::string profileFolder() const { return file("etc/Quorvant/Ostrin/Flow/profile"); }
    std::string file(const std::string& name) const { return _home.file(name); }

    AppPreference& preference = AppPreference::sharedInstance();
    std::vector<std::string> lines;
    const PlistDictionary proof{{"ColorMode", "Grayscale"}, {"StapleMode", "None"}};

private:
    OstrinTest::TemporaryDirectory _home;
    OstrinTest::EnvironmentOverride _configHome{"XDG_CONFIG_HOME", _home.file("config")};
    OstrinTest::EnvironmentOverride _configDirs{"XDG_CONFIG_DIRS", _home.file("etc") + ":/etc/xdg"};
};

using AppPreferenceFolders = PreferenceHome;
using AppPreferenceResources = PreferenceHome;
using FavoritesFolderFailure = PreferenceHome;

fs::perms modeOf(const std::string& path) { return fs::status(path).permissions() & fs::perms::all; }

void writeFavorite(const std::string& path) {
    FavoriteFile favorite;
    favorite.setOptions(PlistDictionary{{"A", "1"}});
    favorite.writeToFile(path);
}

const PlistDictionary kHostEntries{
    {"Hosted", PlistDictionary{{"convertTableFileName", "HostTable"}, {"panesTreeFileName", "HostTree"},
                               {"ppdFileName", "Host.ppd"}, {"productFolderName", "HostProduct"},
                               {"subFolderName", "HostSub"}}},
    {"Plugin", PlistDictionary{{"convertTableFileName", "OwnTable"}, {"subFolderName", "OwnSub"}}}};

}  // namespace

TEST_F(AppPreferenceResources, ShippedBundleNamesItsResources) {
    SetNSBundleForPrincipalBundle(Bundle::bundleWithPath(OSTRIN_BUILD_BUNDLE_DIR));
    const auto table = preference.convertTableFileNameWithAppName();
    ASSERT_TRUE(table);
    EXPECT_TRUE(fs::exists(std::string(OSTRIN_BUILD_BUNDLE_DIR) + "/Contents/Resources/" + *table + ".plist"));
    EXPECT_TRUE(preference.panesTreeFileNameWithAppName());
    EXPECT_TRUE(preference.ppdFileNameWithAppName());
    EXPECT_EQ(preference._productFolderNameWithAppName(), "OstrinFlow");
    EXPECT_TRUE(preference._subFolderNameWithAppName());
    EXPECT_EQ(preference.convertTableFileNameWithAppName("ostrin-flow"), table);
    EXPECT_TRUE(lines.empty());
}

// The named application's entry, else the entry of the bundle's own name; a key the entry
// lacks is simply not there.
TEST_F(AppPreferenceResources, AnswersTheEntryOfTheNamedApplicationElseOfTheBundle) {
    registerBundle({{"CFBundleName", "Plugin"}}, PlistValue(kHostEntries));
    EXPECT_EQ(preference.convertTableFileNameWithAppName("Hosted"), "HostTable");
    EXPECT_EQ(preference.panesTreeFileNameWithAppName("Hosted"), "HostTree");
    EXPECT_EQ(preference.ppdFileNameWithAppName("Hosted"), "Host.ppd");
    EXPECT_EQ(preference._productFolderNameWithAppName("Hosted"), "HostProduct");
    EXPECT_EQ(preference._subFolderNameWithAppName("Hosted"), "HostSub");
    EXPECT_EQ(preference.convertTableFileNameWithAppName(), "OwnTable");
    EXPECT_EQ(preference._subFolderNameWithAppName(), "OwnSub");
    EXPECT_EQ(preference.ppdFileNameWithAppName(), std::nullopt);
    EXPECT_TRUE(lines.empty());
}

// No entry for the application, no "CFBundleName" (the folder's name does not count), no
// resource, no bundle.
TEST_F(AppPreferenceResources, WhateverIsMissingIsLoggedAndAnswersNothing) {
    const struct {
        PlistDictionary info;
        std::optional<PlistValue> information;
        const char* appName;
    } cases[] = {
        {{{"CFBundleName", "Plugin"}}, PlistValue(kHostEntries), "Stranger"},
        {{{"CFBundleIdentifier", "x"}}, PlistValue(kHostEntries), ""},
        {{{"CFBundleName", "Plugin"}}, std::nullopt, ""},
    };
    for (const auto& probe : cases) {
        registerBundle(probe.info, probe.information);
        lines.clear();
        EXPECT_EQ(preference.ppdFileNameWithAppName(probe.appName), std::nullopt);
        EXPECT_EQ(lines, std::vector<std::string>{kFailure});
    }
    SetNSBundleForPrincipalBundle(nullptr);
    lines.clear();
    EXPECT_EQ(preference.convertTableFileNameWithAppName("Hosted"), std::nullopt);
    EXPECT_TRUE(preference.favoriteFolderPathArray(true).empty());
    EXPECT_TRUE(preference.arrayForFavoritePath().empty());
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory("A", "", PlistDictionary{{"A", "1"}}));
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), kFailure);
}

TEST_F(AppPreferenceFolders, FoldersSitInTheConfigurationFolders) {
    EXPECT_EQ(preference.favoriteFolderPathArray(false), std::vector<std::string>{favoriteFolder()});
    EXPECT_FALSE(fs::exists(favoriteFolder()));
    EXPECT_EQ(preference.profileFolderPathArray(false), std::vector<std::string>{profileFolder()});
    EXPECT_EQ(preference.firstSpotColorFolder(false), file("etc/Quorvant/Ostrin/Flow/SpotColor"));
    EXPECT_EQ(preference.firstSpotColorDataUserFolder(false), file("etc/Quorvant/Ostrin/Flow/SpotColorDataUser"));
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
    ::unsetenv("XDG_CONFIG_DIRS");
    OstrinTest::EnvironmentOverride home("HOME", file("home"));
    OstrinTest::EnvironmentOverride relative("XDG_CONFIG_HOME", "relative/config");
    EXPECT_EQ(preference.firstProfileFolder(false), "/etc/xdg/Quorvant/Ostrin/Flow/profile");
    EXPECT_EQ(preference.favoriteFolderPathArray(false),
              std::vector<std::string>{file("home/.config/Quorvant/Ostrin/Flow/favorite")});
    ::unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(preference.favoriteFolderPathArray(false),
              std::vector<std::string>{file("home/.config/Quorvant/Ostrin/Flow/favorite")});
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
    const auto path = preference.saveFavoriteOnFavoriteDirectory("Proofs", "client", PlistDictionary{{"A", "1"}});
    ASSERT_TRUE(path);
    EXPECT_EQ(*path, favoriteFolder() + "/Proofs.pqz");
    FavoriteFile favorite(*path);
    EXPECT_EQ(favorite.comment(), "client");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"A", "1"}}));
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory(std::nullopt, "x", PlistDictionary{{"A", "1"}}));
    EXPECT_FALSE(preference.saveFavoriteOnFavoriteDirectory("Other", "x", std::nullopt));
    EXPECT_FALSE(fs::exists(favoriteFolder() + "/Other.pqz"));
}

TEST_F(FavoritesFolderFailure, FullDiskKeepsTheFavoriteSavedBefore) {
    const auto path = preference.saveFavoriteOnFavoriteDirectory("Proofs", "grey proofs", proof);
    ASSERT_TRUE(path);
    const std::string before = OstrinTest::readFile(*path);
    const PlistDictionary wholeJob =
        *PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"))->dictionary();
    {
        OstrinTest::FileSizeLimit fullDisk(64);
        EXPECT_EQ(preference.saveFavoriteOnFavoriteDirectory("Proofs", "the whole job", wholeJob), path);
        EXPECT_EQ(preference.saveFavoriteOnFavoriteDirectory("Booklet", "new", wholeJob),
                  favoriteFolder() + "/Booklet.pqz");
    }
    EXPECT_EQ(OstrinTest::readFile(*path), before);
    EXPECT_EQ(FavoriteFile(*path).comment(), "grey proofs");
    EXPECT_EQ(FavoriteFile(*path).options(), proof);
    // Neither the new favorite nor a temporary file of either write is left.
    EXPECT_EQ(preference.arrayForFavoritePath(), std::vector<std::string>{*path});
    EXPECT_EQ(std::distance(fs::directory_iterator(favoriteFolder()), fs::directory_iterator()), 1);
}

TEST_F(FavoritesFolderFailure, AFileInPlaceOfAFolderListsNothingAndIsLeftAlone) {
    const fs::path folder = favoriteFolder();
    for (const fs::path& blocking : {folder, folder.parent_path().parent_path()}) {
        fs::remove_all(file("config"));
        fs::create_directories(blocking.parent_path());
        OstrinTest::writeFile(blocking.string(), "not a folder");
        EXPECT_TRUE(preference.arrayForFavoritePath().empty()) << blocking;
        preference.saveFavoriteOnFavoriteDirectory("Proofs", "", proof);
        EXPECT_EQ(OstrinTest::readFile(blocking.string()), "not a folder") << blocking;
        EXPECT_FALSE(fs::exists(folder / "Proofs.pqz")) << blocking;
    }
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
}
