#include <gtest/gtest.h>

#include <filesystem>

#include "TestSupport.h"
#include "core/AtomicFile.h"
#include "core/FileAttributes.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

// The classic form of a folder below the root: "/:" then its components.
std::string classicOf(const std::string& folder) {
    std::string classic = "/";
    for (const auto& component : std::filesystem::path(folder).relative_path())
        if (!component.empty()) classic += ":" + component.string();
    return classic;
}

long entriesIn(const std::string& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace

TEST(ClassicPath, FilesAndFoldersOnDiskWithColonsShownAsSlashes) {
    OstrinTest::TemporaryDirectory folder;
    std::filesystem::create_directories(folder.file("Favorites/Sub"));
    OstrinTest::writeFile(folder.file("Favorites/My.pqz"), "x");
    OstrinTest::writeFile(folder.file("10:30 run.pqz"), "x");
    const std::string base = classicOf(folder.path());
    EXPECT_EQ(toClassicPath(folder.file("Favorites/My.pqz")), base + ":Favorites:My.pqz");
    EXPECT_EQ(toClassicPath(folder.file("Favorites/Sub")), base + ":Favorites:Sub:");
    EXPECT_EQ(toClassicPath(folder.file("Favorites/Sub/")), base + ":Favorites:Sub:");
    EXPECT_EQ(toClassicPath(folder.file("Favorites/Sub/../My.pqz")), base + ":Favorites:My.pqz");
    EXPECT_EQ(toClassicPath(folder.file("10:30 run.pqz")), base + ":10/30 run.pqz");
    EXPECT_EQ(toClassicPath("/"), "/:");
    EXPECT_EQ(toClassicPath(folder.file("missing.pqz")), "");
    EXPECT_EQ(toClassicPath(""), "");
}

TEST(ClassicPath, RelativePathStartsAtWorkingFolder) {
    OstrinTest::TemporaryDirectory folder;
    OstrinTest::writeFile(folder.file("job.pqz"), "x");
    const auto previous = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    const std::string here = std::filesystem::current_path().string();
    const std::string classic = toClassicPath("job.pqz");
    std::filesystem::current_path(previous);
    EXPECT_EQ(classic, classicOf(here) + ":job.pqz");
}

TEST(InvisibleFile, NameBeginningWithDotOfExistingFile) {
    OstrinTest::TemporaryDirectory folder;
    OstrinTest::writeFile(folder.file(".hidden.pqz"), "x");
    OstrinTest::writeFile(folder.file("shown.pqz"), "x");
    std::filesystem::create_directories(folder.file(".cache"));
    EXPECT_TRUE(isFileInVisible(folder.file(".hidden.pqz")));
    EXPECT_TRUE(isFileInVisible(folder.file(".cache/")));
    EXPECT_FALSE(isFileInVisible(folder.file("shown.pqz")));
    EXPECT_FALSE(isFileInVisible(folder.file(".missing.pqz")));
    EXPECT_FALSE(isFileInVisible(folder.file(".cache/..")));
    EXPECT_FALSE(isFileInVisible(folder.file(".")));
    EXPECT_FALSE(isFileInVisible(""));
}

TEST(AtomicFile, ReplacesContentAndLeavesNoTemporaryFile) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("favorite");
    OstrinTest::writeFile(path, "old");
    ASSERT_TRUE(AtomicFile::write(path, "new content"));
    EXPECT_EQ(OstrinTest::readFile(path), "new content");
    EXPECT_EQ(entriesIn(folder.path()), 1);
    EXPECT_FALSE(AtomicFile::write("/nonexistent-folder/file", "x"));
}

TEST(AtomicFile, FailedWriteKeepsTheOldFile) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("favorite");
    OstrinTest::writeFile(path, "old");
    bool written = true;
    {
        OstrinTest::FileSizeLimit full(4);  // the write fails half-way, even for root
        written = AtomicFile::write(path, "new content longer than the limit");
    }
    EXPECT_FALSE(written);
    EXPECT_EQ(OstrinTest::readFile(path), "old");
    EXPECT_EQ(entriesIn(folder.path()), 1);
}
