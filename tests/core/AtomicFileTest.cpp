#include <gtest/gtest.h>

#include <filesystem>

#include "TestSupport.h"
#include "core/AtomicFile.h"

using namespace ComQuorvantVelmar_Plugin;

namespace {

long entriesIn(const std::string& folder) {
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

}  // namespace

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
