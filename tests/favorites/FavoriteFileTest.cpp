#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "FavoriteTestSupport.h"
#include "TestSupport.h"
#include "favorites/FavoriteFile.h"
#include "favorites/FavoriteFunctions.h"

using namespace ComQuorvantVelmar_Plugin;
using OstrinTest::dataPath;

namespace {

PlistDictionary proofOptions() {
    return {{"DuplexMode", "DuplexNoTumble"}, {"NumCopies", 3}, {"StapleLocation", "SinglePortrait"}};
}

FavoriteFile favoriteWith(std::optional<std::string> comment, std::optional<PlistDictionary> options) {
    FavoriteFile favorite;
    favorite.setComment(std::move(comment));
    favorite.setOptions(std::move(options));
    return favorite;
}

void expectEmpty(const FavoriteFile& favorite) {
    EXPECT_EQ(favorite.version(), -1);
    EXPECT_EQ(favorite.iotType(), 0);
    EXPECT_EQ(favorite.encoding(), -1);
    EXPECT_FALSE(favorite.comment());
    EXPECT_FALSE(favorite.options());
}

}  // namespace

// Each fixture as the writer makes it, and what the reader and the plain functions give back:
// numbers come back as text, in the order they were written.
TEST(FavoriteFile, WritesTheLayoutByteForByteAndReadsItBack) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const struct {
        std::optional<std::string> comment;
        PlistDictionary options;
        const char* fixture;
        PlistDictionary read;
    } cases[] = {
        {"Proofs for the client", proofOptions(), "saved-layout.pqz",
         {{"DuplexMode", "DuplexNoTumble"}, {"NumCopies", "3"}, {"StapleLocation", "SinglePortrait"}}},
        {std::nullopt, {{"A", "1"}}, "minimal.pqz", {{"A", "1"}}},
    };
    for (const auto& probe : cases) {
        const std::string path = folder.file(probe.fixture);
        EXPECT_TRUE(favoriteWith(probe.comment, probe.options).writeToFile(path));
        EXPECT_EQ(OstrinTest::readFile(path), OstrinTest::readFile(dataPath(std::string("favorites/") + probe.fixture)));
        const FavoriteFile favorite = FavoriteFile::favoriteFileWithContentsOfFile(path);
        EXPECT_EQ(favorite.version(), 2);
        EXPECT_EQ(favorite.iotType(), 13);
        EXPECT_EQ(favorite.encoding(), 0);
        EXPECT_EQ(favorite.comment(), probe.comment.value_or(""));
        EXPECT_EQ(favorite.options(), probe.read);
        EXPECT_EQ(FavoriteCommentWithContentsOfFile(path), probe.comment.value_or(""));
        EXPECT_EQ(FavoriteDictionaryWithContentsOfFile(path), probe.read);
    }
}

// Another device type or version, a header that is not one digit, no options, no file.
TEST(FavoriteFile, RefusedFilesGiveAnEmptyFavorite) {
    OstrinTest::TemporaryDirectory folder;
    std::vector<std::string> paths{"", folder.file("missing.pqz"), folder.file("folder.pqz")};
    std::filesystem::create_directory(folder.file("folder.pqz"));
    for (const char* fixture : {"other-device.pqz", "version-3.pqz", "version-two-digits.pqz", "no-options.pqz"})
        paths.push_back(dataPath(std::string("favorites/") + fixture));
    int index = 0;
    for (const char* content : {"", "2", "x\n13\n0\nA=1\t\t", "2\n130\n0\nA=1\t\t", "2\n13\n00\nA=1\t\t",
                                "2\n13\nja\nA=1\t\t", "2\n\n0\nA=1\t\t"}) {
        paths.push_back(folder.file("bad" + std::to_string(index++) + ".pqz"));
        OstrinTest::writeFile(paths.back(), content);
    }
    for (const std::string& path : paths) {
        SCOPED_TRACE(path);
        expectEmpty(FavoriteFile(path));
        EXPECT_FALSE(FavoriteCommentWithContentsOfFile(path));
        EXPECT_FALSE(FavoriteDictionaryWithContentsOfFile(path));
    }
    EXPECT_FALSE(FavoriteDictionaryWithContentsOfFile(std::nullopt));
}

// A token ends at its delimiter, at the end of the file or after its byte limit; what is
// left of a cut token runs into the next one.
TEST(FavoriteFile, TokensEndAtTheirDelimiterTheFileEndOrTheirLimit) {
    OstrinTest::TemporaryDirectory folder;
    const std::string comment255(255, 'c');
    const struct {
        std::string file;
        std::optional<std::string> comment;
        PlistDictionary options;
    } cases[] = {
        {dataPath("favorites/no-comment-line.pqz"), std::nullopt,
         {{"DuplexMode", "DuplexNoTumble"}, {"NumCopies", "2"}}},
        {dataPath("favorites/comment-at-limit.pqz"), comment255, {{"A", "1"}}},
        {dataPath("favorites/long-comment.pqz"), comment255, {{std::string(45, 'c') + "\nA", "1"}}},
        // The value is cut after 512 bytes, the tab skip takes one more.
        {"2\n13\n0\nComment=\nK=" + std::string(600, 'v') + "\t\tB=2\t\t", "",
         {{"K", std::string(512, 'v')}, {std::string(87, 'v') + "\t\tB", "2"}}},
        {"2\n13\n0\nComment=x\nA=1\t\tB=2", "x", {{"A", "1"}, {"B", "2"}}},
        {"2\n13\n0\nComment=x\nA=1\t\tB", "x", {{"A", "1"}}},
    };
    for (const auto& probe : cases) {
        std::string path = probe.file;
        if (path.rfind("2\n", 0) == 0) {
            path = folder.file("written.pqz");
            OstrinTest::writeFile(path, probe.file);
        }
        const FavoriteFile favorite(path);
        EXPECT_EQ(favorite.comment(), probe.comment) << path;
        EXPECT_EQ(favorite.options(), probe.options) << path;
    }
}

// Delimiters in the text become blanks so that no option is lost; a comment over the limit
// is shortened by whole characters.
TEST(FavoriteFile, WriterFoldsTextTheLayoutCannotHold) {
    std::string japanese;
    for (int i = 0; i < 200; ++i) japanese += "あ";
    const struct {
        const char* language;
        std::string comment;
        PlistDictionary options;
        std::string readComment;
        PlistDictionary readOptions;
    } cases[] = {
        {"en", "two\nlines", {{"JobName", "a\tb"}, {"NumCopies", "2"}}, "two lines",
         {{"JobName", "a b"}, {"NumCopies", "2"}}},
        {"ja", japanese, {{"A", "1"}}, japanese.substr(0, 127 * 3), {{"A", "1"}}},
    };
    for (const auto& probe : cases) {
        OstrinTest::useProductStrings(probe.language);
        OstrinTest::TemporaryDirectory folder;
        const std::string path = folder.file("written.pqz");
        favoriteWith(probe.comment, probe.options).writeToFile(path);
        const FavoriteFile favorite(path);
        EXPECT_EQ(favorite.comment(), probe.readComment) << probe.language;
        EXPECT_EQ(favorite.options(), probe.readOptions) << probe.language;
    }
}

// The save dialogs never test the answer, and a favorite they could not read must not
// replace the file it came from.
TEST(FavoriteFile, WriterAnswersTrueAndNeverPutsAFavoriteWithoutOptionsOverAFile) {
    OstrinTest::useProductStrings("en");
    EXPECT_TRUE(favoriteWith("x", proofOptions()).writeToFile(""));
    EXPECT_TRUE(favoriteWith("x", proofOptions()).writeToFile("/nonexistent-folder/x.pqz"));
    EXPECT_FALSE(std::filesystem::exists("/nonexistent-folder/x.pqz"));
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Proofs.pqz");
    favoriteWith("first", PlistDictionary{{"A", "1"}}).writeToFile(path);
    const std::string before = OstrinTest::readFile(path);
    FavoriteFile unreadable(folder.file("missing.pqz"));
    unreadable.setComment("new comment");
    EXPECT_TRUE(unreadable.writeToFile(path));
    EXPECT_TRUE(favoriteWith("x", PlistDictionary{}).writeToFile(path));
    EXPECT_EQ(OstrinTest::readFile(path), before);
}

// The folder and extension cases the favorites folder and dialogs do not meet.
TEST(FavoriteFile, NamesAndPaths) {
    EXPECT_FALSE(FavoriteFile::pathWithName(std::nullopt, "/f"));
    EXPECT_FALSE(FavoriteFile::pathWithName("Proofs", std::nullopt));
    EXPECT_EQ(FavoriteFile::nameWithPath("/f/Ver. 2.pqz"), "Ver. 2");
    EXPECT_EQ(FavoriteFile::nameWithPath("Proofs.pqz"), "Proofs");
    EXPECT_EQ(FavoriteFile::nameWithPath("/f/.pqz"), ".pqz");
    EXPECT_TRUE(FavoriteFile::hasExtension("/f/Proofs.pqz"));
    EXPECT_FALSE(FavoriteFile::hasExtension("/f/pqz"));
    EXPECT_EQ(FavoriteNameAppendingClassic("Proofs"), "Proofs (Classic)");
    EXPECT_EQ(FavoriteNameWithPath("/f/Proofs.pqz"), "Proofs");
    EXPECT_FALSE(FavoriteNameWithPath(std::nullopt));
}
