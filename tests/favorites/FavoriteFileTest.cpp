#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

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

TEST(FavoriteFile, WritesTheLayoutByteForByte) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Proofs.pqz");
    EXPECT_TRUE(favoriteWith("Proofs for the client", proofOptions()).writeToFile(path));
    EXPECT_EQ(OstrinTest::readFile(path), OstrinTest::readFile(dataPath("favorites/saved-layout.pqz")));
}

TEST(FavoriteFile, WritesAnEmptyCommentLineWithoutComment) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("A.pqz");
    favoriteWith(std::nullopt, PlistDictionary{{"A", "1"}}).writeToFile(path);
    EXPECT_EQ(OstrinTest::readFile(path), OstrinTest::readFile(dataPath("favorites/minimal.pqz")));
}

TEST(FavoriteFile, ReadsBackWhatItWrote) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Proofs.pqz");
    favoriteWith("Proofs for the client", proofOptions()).writeToFile(path);
    FavoriteFile favorite = FavoriteFile::favoriteFileWithContentsOfFile(path);
    EXPECT_EQ(favorite.version(), 2);
    EXPECT_EQ(favorite.iotType(), 13);
    EXPECT_EQ(favorite.encoding(), 0);
    EXPECT_EQ(favorite.comment(), "Proofs for the client");
    // Numbers come back as text, in the order they were written.
    const PlistDictionary expected{
        {"DuplexMode", "DuplexNoTumble"}, {"NumCopies", "3"}, {"StapleLocation", "SinglePortrait"}};
    EXPECT_EQ(favorite.options(), expected);
}

TEST(FavoriteFile, ReadsTheMinimalFile) {
    FavoriteFile favorite(dataPath("favorites/minimal.pqz"));
    EXPECT_EQ(favorite.version(), 2);
    EXPECT_EQ(favorite.comment(), "");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"A", "1"}}));
}

TEST(FavoriteFile, ReadsOptionsWithoutACommentLine) {
    FavoriteFile favorite(dataPath("favorites/no-comment-line.pqz"));
    EXPECT_FALSE(favorite.comment());
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"DuplexMode", "DuplexNoTumble"}, {"NumCopies", "2"}}));
}

TEST(FavoriteFile, RefusesAnotherDeviceTypeOrVersion) {
    expectEmpty(FavoriteFile(dataPath("favorites/other-device.pqz")));
    expectEmpty(FavoriteFile(dataPath("favorites/version-3.pqz")));
    expectEmpty(FavoriteFile(dataPath("favorites/version-two-digits.pqz")));
}

TEST(FavoriteFile, RefusesAFileWithoutOptions) {
    expectEmpty(FavoriteFile(dataPath("favorites/no-options.pqz")));
    EXPECT_FALSE(FavoriteCommentWithContentsOfFile(dataPath("favorites/no-options.pqz")));
}

TEST(FavoriteFile, MissingEmptyOrFolderPathGivesAnEmptyFavorite) {
    OstrinTest::TemporaryDirectory folder;
    expectEmpty(FavoriteFile(folder.file("missing.pqz")));
    expectEmpty(FavoriteFile(""));
    std::filesystem::create_directory(folder.file("folder.pqz"));
    expectEmpty(FavoriteFile(folder.file("folder.pqz")));
}

TEST(FavoriteFile, RefusesHeadersThatAreNotOneDigit) {
    OstrinTest::TemporaryDirectory folder;
    for (const char* content : {"", "2", "x\n13\n0\nA=1\t\t", "2\n130\n0\nA=1\t\t", "2\n13\n00\nA=1\t\t",
                                "2\n13\nja\nA=1\t\t", "2\n\n0\nA=1\t\t"}) {
        OstrinTest::writeFile(folder.file("bad.pqz"), content);
        expectEmpty(FavoriteFile(folder.file("bad.pqz")));
    }
}

TEST(FavoriteFile, CommentOfTheLimitKeepsTheOptionsApart) {
    FavoriteFile favorite(dataPath("favorites/comment-at-limit.pqz"));
    EXPECT_EQ(favorite.comment(), std::string(255, 'c'));
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"A", "1"}}));
}

TEST(FavoriteFile, LongerCommentIsCutAndItsRestReadAsOptionText) {
    FavoriteFile favorite(dataPath("favorites/long-comment.pqz"));
    EXPECT_EQ(favorite.comment(), std::string(255, 'c'));
    EXPECT_EQ(favorite.options(), (PlistDictionary{{std::string(45, 'c') + "\nA", "1"}}));
}

TEST(FavoriteFile, LongKeysAndValuesAreCutAtTheirLimits) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("long.pqz");
    OstrinTest::writeFile(path, "2\n13\n0\nComment=\nK=" + std::string(600, 'v') + "\t\tB=2\t\t");
    // The value is cut after 512 bytes, the tab skip takes one more, and the rest of the
    // value runs into the next key.
    const PlistDictionary expected{{"K", std::string(512, 'v')}, {std::string(87, 'v') + "\t\tB", "2"}};
    EXPECT_EQ(FavoriteFile(path).options(), expected);
}

TEST(FavoriteFile, LastOptionWithoutTabsAndKeyWithoutValue) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("cut.pqz");
    OstrinTest::writeFile(path, "2\n13\n0\nComment=x\nA=1\t\tB=2");
    EXPECT_EQ(FavoriteFile(path).options(), (PlistDictionary{{"A", "1"}, {"B", "2"}}));
    OstrinTest::writeFile(path, "2\n13\n0\nComment=x\nA=1\t\tB");
    EXPECT_EQ(FavoriteFile(path).options(), (PlistDictionary{{"A", "1"}}));
}

TEST(FavoriteFile, WriterKeepsEveryOptionWhenTextHoldsDelimiters) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("delimiters.pqz");
    favoriteWith("two\nlines", PlistDictionary{{"JobName", "a\tb"}, {"NumCopies", "2"}}).writeToFile(path);
    FavoriteFile favorite(path);
    EXPECT_EQ(favorite.comment(), "two lines");
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"JobName", "a b"}, {"NumCopies", "2"}}));
}

TEST(FavoriteFile, WriterAnswersTrueEvenWhenItCannotWrite) {
    OstrinTest::useProductStrings("en");
    EXPECT_TRUE(favoriteWith("x", proofOptions()).writeToFile(""));
    EXPECT_TRUE(favoriteWith("x", proofOptions()).writeToFile("/nonexistent-folder/x.pqz"));
    EXPECT_FALSE(std::filesystem::exists("/nonexistent-folder/x.pqz"));
}

TEST(FavoriteFile, FavoriteWithoutOptionsNeverReplacesAFile) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Proofs.pqz");
    favoriteWith("first", PlistDictionary{{"A", "1"}}).writeToFile(path);
    const std::string before = OstrinTest::readFile(path);
    // As the favorites window does with a file it could not read: set a comment, save.
    FavoriteFile unreadable(folder.file("missing.pqz"));
    unreadable.setComment("new comment");
    EXPECT_TRUE(unreadable.writeToFile(path));
    EXPECT_TRUE(favoriteWith("x", PlistDictionary{}).writeToFile(path));
    EXPECT_EQ(OstrinTest::readFile(path), before);
}

TEST(FavoriteFile, WriteFailingHalfWayLeavesThePreviousFile) {
    OstrinTest::useProductStrings("en");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("Proofs.pqz");
    favoriteWith("first", PlistDictionary{{"A", "1"}}).writeToFile(path);
    const std::string before = OstrinTest::readFile(path);
    struct rlimit saved {};
    ::getrlimit(RLIMIT_FSIZE, &saved);
    auto savedHandler = ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit tight = saved;
    tight.rlim_cur = 10;
    ::setrlimit(RLIMIT_FSIZE, &tight);
    const bool answered = favoriteWith("second, much longer", proofOptions()).writeToFile(path);
    ::setrlimit(RLIMIT_FSIZE, &saved);
    ::signal(SIGXFSZ, savedHandler);
    EXPECT_TRUE(answered);
    EXPECT_EQ(OstrinTest::readFile(path), before);
    EXPECT_EQ(FavoriteFile(path).comment(), "first");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST(FavoriteFile, NamesAndPaths) {
    EXPECT_EQ(FavoriteFile::pathWithName("Proofs", "/f"), "/f/Proofs.pqz");
    EXPECT_FALSE(FavoriteFile::pathWithName(std::nullopt, "/f"));
    EXPECT_FALSE(FavoriteFile::pathWithName("Proofs", std::nullopt));
    EXPECT_EQ(FavoriteFile::nameWithPath("/f/Ver. 2.pqz"), "Ver. 2");
    EXPECT_EQ(FavoriteFile::nameWithPath("Proofs.pqz"), "Proofs");
    EXPECT_EQ(FavoriteFile::nameWithPath("/f/.pqz"), ".pqz");
    EXPECT_EQ(FavoriteFile::stringByAppendingExtension("Proofs"), "Proofs.pqz");
    EXPECT_TRUE(FavoriteFile::hasExtension("/f/Proofs.pqz"));
    EXPECT_FALSE(FavoriteFile::hasExtension("/f/Proofs.PQZ"));
    EXPECT_FALSE(FavoriteFile::hasExtension("/f/pqz"));
    EXPECT_EQ(FavoriteNameAppendingClassic("Proofs"), "Proofs (Classic)");
    EXPECT_EQ(FavoriteNameWithPath("/f/Proofs.pqz"), "Proofs");
    EXPECT_FALSE(FavoriteNameWithPath(std::nullopt));
}

TEST(FavoriteFile, PlainFunctionsReadCommentAndOptions) {
    EXPECT_EQ(FavoriteCommentWithContentsOfFile(dataPath("favorites/saved-layout.pqz")),
              "Proofs for the client");
    auto options = FavoriteDictionaryWithContentsOfFile(dataPath("favorites/saved-layout.pqz"));
    ASSERT_TRUE(options);
    EXPECT_EQ(options->stringFor("NumCopies"), "3");
    EXPECT_FALSE(FavoriteDictionaryWithContentsOfFile(dataPath("favorites/other-device.pqz")));
    EXPECT_FALSE(FavoriteDictionaryWithContentsOfFile(std::nullopt));
}

TEST(FavoriteFile, WriterShortensAnOverlongCommentByWholeCharacters) {
    OstrinTest::useProductStrings("ja");
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("long.pqz");
    std::string comment;
    for (int i = 0; i < 200; ++i) comment += "あ";
    favoriteWith(comment, PlistDictionary{{"A", "1"}}).writeToFile(path);
    FavoriteFile favorite(path);
    std::string expected;
    for (int i = 0; i < 127; ++i) expected += "あ";
    EXPECT_EQ(favorite.comment(), expected);
    EXPECT_EQ(favorite.options(), (PlistDictionary{{"A", "1"}}));
}
