// A favorites folder that cannot take a file: the favorite saved before stays as it was,
// the listing shows what can be read, and nothing half-written is left behind.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "FavoriteTestSupport.h"
#include "TestSupport.h"
#include "core/PlistIO.h"
#include "favorites/AppPreference.h"
#include "favorites/FavoriteFile.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

class FavoritesFolderFailure : public ::testing::Test {
protected:
    void SetUp() override {
        OstrinTest::useProductStrings("en");
        ::setenv("XDG_CONFIG_HOME", _home.file("config").c_str(), 1);
    }
    void TearDown() override { ::unsetenv("XDG_CONFIG_HOME"); }

    std::vector<std::string> favoritesFolders() const { return preference.favoriteFolderPathArray(false); }
    std::size_t entriesIn(const std::string& folder) const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }
    std::string file(const std::string& name) const { return _home.file(name); }

    AppPreference& preference = AppPreference::sharedInstance();
    const PlistDictionary proof{{"ColorMode", "Grayscale"}, {"StapleMode", "None"}};

private:
    OstrinTest::TemporaryDirectory _home;
};

PlistDictionary wholeJob() {
    return *PlistIO::readFile(OstrinTest::dataPath("ppd/InternalPrintOption.plist"))->dictionary();
}

}  // namespace

TEST_F(FavoritesFolderFailure, FullDiskKeepsTheFavoriteSavedBefore) {
    const auto path = preference.saveFavoriteOnFavoriteDirectory("Proofs", "grey proofs", proof);
    ASSERT_TRUE(path);
    const std::string before = OstrinTest::readFile(*path);
    {
        OstrinTest::FileSizeLimit fullDisk(64);
        EXPECT_EQ(preference.saveFavoriteOnFavoriteDirectory("Proofs", "the whole job", wholeJob()), path);
        EXPECT_EQ(preference.saveFavoriteOnFavoriteDirectory("Booklet", "new", wholeJob()),
                  fs::path(*path).parent_path().string() + "/Booklet.pqz");
    }
    EXPECT_EQ(OstrinTest::readFile(*path), before);
    EXPECT_EQ(FavoriteFile(*path).comment(), "grey proofs");
    EXPECT_EQ(FavoriteFile(*path).options(), proof);
    // Neither the new favorite nor a temporary file of either write is left.
    EXPECT_EQ(preference.arrayForFavoritePath(), std::vector<std::string>{*path});
    EXPECT_EQ(entriesIn(fs::path(*path).parent_path()), 1u);
}

TEST_F(FavoritesFolderFailure, AFileInPlaceOfAFolderListsNothingAndIsLeftAlone) {
    const fs::path folder = favoritesFolders().front();
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
