#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <filesystem>

#include "CommandRunner.h"
#include "TestSupport.h"

namespace fs = std::filesystem;
using OstrinTest::dataPath;
using Json = nlohmann::ordered_json;

namespace {

// Each test has its own configuration and data folders, so favorites and the trash are
// private to it.
class FavoritesCommand : public ::testing::Test {
protected:
    OstrinTest::CommandResult run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--lang", "en"});
        return OstrinTest::runCommand(
            arguments, {},
            {"XDG_CONFIG_HOME=" + _home.file("config"), "XDG_DATA_HOME=" + _home.file("data")});
    }

    // The favorites folder the command uses, created by a first listing.
    std::string favoritesFolder() {
        if (_folder.empty()) {
            EXPECT_EQ(run({"favorites", "list"}).exitCode, 0);
            for (const auto& entry : fs::recursive_directory_iterator(_home.file("config")))
                if (entry.is_directory() && entry.path().filename() == "favorite")
                    _folder = entry.path().string();
        }
        return _folder;
    }

    std::string addFavorite(const std::string& fixture, const std::string& name) {
        const std::string path = favoritesFolder() + "/" + name + ".pqz";
        fs::copy_file(dataPath("favorites/" + fixture), path);
        return path;
    }

    std::string file(const std::string& name) const { return _home.file(name); }

private:
    OstrinTest::TemporaryDirectory _home;
    std::string _folder;
};

void expectInputError(const OstrinTest::CommandResult& result, const std::string& message) {
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "ostrin-flow: " + message + "\n");
}

}  // namespace

TEST_F(FavoritesCommand, ListsFavoritesSortedInEachFormat) {
    ASSERT_NE(favoritesFolder(), "");
    EXPECT_EQ(run({"favorites", "list"}).out, "");
    const std::string proofs = addFavorite("saved-layout.pqz", "Proofs");
    const std::string booklet = addFavorite("minimal.pqz", "Booklet");
    OstrinTest::writeFile(favoritesFolder() + "/notes.txt", "x");
    EXPECT_EQ(run({"favorites", "list"}).out,
              "Booklet\n  path: " + booklet +
                  "\nProofs\n  comment: Proofs for the client\n  path: " + proofs + "\n");
    EXPECT_EQ(run({"--format", "tsv", "favorites", "list"}).out,
              "Booklet\t\t" + booklet + "\nProofs\tProofs for the client\t" + proofs + "\n");
    EXPECT_EQ(run({"--format", "json", "favorites", "list"}).out,
              "[\n  {\n    \"name\": \"Booklet\",\n    \"comment\": \"\",\n    \"path\": \"" + booklet +
                  "\"\n  },\n  {\n    \"name\": \"Proofs\",\n    \"comment\": \"Proofs for the client\",\n"
                  "    \"path\": \"" +
                  proofs + "\"\n  }\n]\n");
    EXPECT_EQ(run({"--format", "lp", "favorites", "list"}).exitCode, 2);
}

TEST_F(FavoritesCommand, ShowsCommentAndOptionsInUtf8) {
    addFavorite("saved-layout.pqz", "Proofs");
    EXPECT_EQ(run({"favorites", "show", "Proofs"}).out,
              "Comment: Proofs for the client\nDuplexMode=DuplexNoTumble\nNumCopies=3\n"
              "StapleLocation=SinglePortrait\n");
    EXPECT_EQ(run({"--format", "json", "favorites", "show", "Proofs"}).out,
              "{\n  \"DuplexMode\": \"DuplexNoTumble\",\n  \"NumCopies\": \"3\",\n"
              "  \"StapleLocation\": \"SinglePortrait\"\n}\n");
    EXPECT_EQ(run({"--format", "tsv", "favorites", "show", "Proofs"}).out,
              "DuplexMode\tDuplexNoTumble\nNumCopies\t3\nStapleLocation\tSinglePortrait\n");
    addFavorite("euc-jp.pqz", "会議");
    EXPECT_EQ(run({"favorites", "show", "会議"}).out,
              "Comment: 会議用の両面印刷\nJobName=見積書\nDuplexMode=DuplexNoTumble\n");
}

TEST_F(FavoritesCommand, RefusedFavoritesNamesCommentsAndImportsExitThree) {
    addFavorite("other-device.pqz", "Other");
    fs::copy_file(dataPath("favorites/minimal.pqz"), file("Default Settings.pqz"));
    const std::string otherDevice = dataPath("favorites/other-device.pqz");
    const std::string defaultName = "This name belongs to the default settings. Please choose another name.";
    const struct {
        std::vector<std::string> arguments;
        std::string message;
    } cases[] = {
        {{"favorites", "show", "Nope"}, "unknown favorite \"Nope\""},
        {{"favorites", "delete", "Nope"}, "unknown favorite \"Nope\""},
        {{"favorites", "export", "Nope", file("x.pqz")}, "unknown favorite \"Nope\""},
        {{"options", "--favorite", "Nope"}, "unknown favorite \"Nope\""},
        {{"favorites", "show", "Other"}, "favorite \"Other\" is not a favorite file this printer can use"},
        {{"favorites", "save", "Copy", "--favorite", "Other"},
         "favorite \"Other\" is not a favorite file this printer can use"},
        {{"favorites", "save", "Default Settings"}, "cannot save favorite \"Default Settings\": " + defaultName},
        {{"favorites", "save", "Proofs", "--comment", std::string(256, 'c')},
         "cannot save favorite \"Proofs\": --comment: A comment must not be longer than 255 bytes."},
        {{"favorites", "import", otherDevice}, otherDevice + " is not a favorite file this printer can use"},
        {{"favorites", "import", file("missing.pqz")}, "cannot read " + file("missing.pqz") + ": no such file"},
        {{"favorites", "import", file("Default Settings.pqz")},
         "cannot import " + file("Default Settings.pqz") + ": " + defaultName},
    };
    for (const auto& probe : cases) expectInputError(run(probe.arguments), probe.message);
    EXPECT_EQ(std::distance(fs::directory_iterator(favoritesFolder()), fs::directory_iterator()), 1);
}

TEST_F(FavoritesCommand, DeleteMovesTheFileToTheTrash) {
    const std::string path = addFavorite("saved-layout.pqz", "Proofs");
    const auto result = run({"favorites", "delete", "Proofs"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(OstrinTest::readFile(file("data/Trash/files/Proofs.pqz")),
              OstrinTest::readFile(dataPath("favorites/saved-layout.pqz")));
    EXPECT_NE(OstrinTest::readFile(file("data/Trash/info/Proofs.pqz.trashinfo")).find("Path=" + path + "\n"),
              std::string::npos);
    EXPECT_EQ(run({"favorites", "list"}).out, "");
}

TEST_F(FavoritesCommand, ImportCopiesTheFileUnchanged) {
    ASSERT_NE(favoritesFolder(), "");
    fs::copy_file(dataPath("favorites/windows-latin.pqz"), file("Café.pqz"));
    const auto result = run({"favorites", "import", file("Café.pqz")});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(OstrinTest::readFile(favoritesFolder() + "/Café.pqz"),
              OstrinTest::readFile(dataPath("favorites/windows-latin.pqz")));
    EXPECT_EQ(run({"--format", "tsv", "favorites", "list"}).out,
              "Café\tCafé für Müller – 5 €\t" + favoritesFolder() + "/Café.pqz\n");
    expectInputError(run({"favorites", "import", file("Café.pqz")}),
                     "cannot import " + file("Café.pqz") + ": a favorite named \"Café\" exists");
}

TEST_F(FavoritesCommand, ExportCopiesTheFileToAFileOrFolder) {
    addFavorite("euc-jp.pqz", "Meeting");
    EXPECT_EQ(run({"favorites", "export", "Meeting", file("out.pqz")}).exitCode, 0);
    EXPECT_EQ(OstrinTest::readFile(file("out.pqz")), OstrinTest::readFile(dataPath("favorites/euc-jp.pqz")));
    fs::create_directory(file("shared"));
    EXPECT_EQ(run({"favorites", "export", "Meeting", file("shared")}).exitCode, 0);
    EXPECT_EQ(OstrinTest::readFile(file("shared/Meeting.pqz")),
              OstrinTest::readFile(dataPath("favorites/euc-jp.pqz")));
    expectInputError(run({"favorites", "export", "Meeting", file("missing/out.pqz")}),
                     "cannot write " + file("missing/out.pqz"));
}

TEST_F(FavoritesCommand, BadActionsAreUsageErrors) {
    for (const std::vector<std::string>& arguments : std::vector<std::vector<std::string>>{
             {"favorites"}, {"favorites", "rename", "a"}, {"favorites", "show"}, {"favorites", "export", "a"},
             {"favorites", "list", "extra"}, {"favorites", "save"}})
        EXPECT_EQ(run(arguments).exitCode, 2) << arguments.back();
}

TEST_F(FavoritesCommand, SavedSettingsComeBackThroughOptionsWithTheFavorite) {
    // A setting of the panes, then settings of the panel, which check the model against the
    // favorite selected (the defaults) and must not take the first one back.
    const std::vector<std::string> changes{"-o", "Trimmer=True", "-o", "StapleMode=Saddle",
                                           "-o", "DuplexMode=DuplexNoTumble"};
    std::vector<std::string> save{"favorites", "save", "Proofs", "--comment", "for Ana"};
    save.insert(save.end(), changes.begin(), changes.end());
    const auto saved = run(save);
    ASSERT_EQ(saved.exitCode, 0) << saved.err;
    EXPECT_EQ(saved.out, "");
    const std::string path = favoritesFolder() + "/Proofs.pqz";
    EXPECT_EQ(run({"favorites", "list"}).out, "Proofs\n  comment: for Ana\n  path: " + path + "\n");
    const Json shown = Json::parse(run({"--format", "json", "favorites", "show", "Proofs"}).out);
    EXPECT_EQ(shown.value("Trimmer", Json()), true);
    EXPECT_EQ(shown.value("StapleMode", Json()), "Saddle");

    std::vector<std::string> direct{"--format", "json", "options"};
    direct.insert(direct.end(), changes.begin(), changes.end());
    const Json expected = Json::parse(run(direct).out);
    EXPECT_EQ(expected["ppd"]["Trimmer"], "True");
    const Json restored = Json::parse(run({"--format", "json", "options", "--favorite", "Proofs"}).out);
    for (const auto& [group, settings] : expected.items())
        for (const auto& [key, value] : settings.items()) EXPECT_EQ(restored[group].value(key, Json()), value) << key;
    EXPECT_EQ(restored["custom"]["FavoriteName"], path);
    // Later -o changes win over the favorite.
    const Json changed =
        Json::parse(run({"--format", "json", "options", "--favorite", "Proofs", "-o", "DuplexMode=None"}).out);
    EXPECT_EQ(restored["ppd"]["DuplexMode"], "DuplexNoTumble");
    EXPECT_EQ(changed["ppd"]["DuplexMode"], "None");
    EXPECT_EQ(changed["ppd"]["StapleMode"], "Saddle");
}
