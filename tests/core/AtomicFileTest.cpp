#include <gtest/gtest.h>
#include <sys/resource.h>
#include <csignal>
#include <unistd.h>

#include <filesystem>

#include "TestSupport.h"
#include "core/AtomicFile.h"

using namespace ComQuorvantVelmar_Plugin;

TEST(AtomicFile, ReplacesContentAndLeavesNoTemporaryFile) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("favorite");
    OstrinTest::writeFile(path, "old");
    ASSERT_TRUE(AtomicFile::write(path, "new content"));
    EXPECT_EQ(OstrinTest::readFile(path), "new content");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST(AtomicFile, FailedWriteKeepsTheOldFile) {
    OstrinTest::TemporaryDirectory folder;
    const std::string path = folder.file("favorite");
    OstrinTest::writeFile(path, "old");
    // A file size limit makes the write fail half-way, even for root.
    struct rlimit saved {};
    ::getrlimit(RLIMIT_FSIZE, &saved);
    auto savedHandler = ::signal(SIGXFSZ, SIG_IGN);
    struct rlimit tight = saved;
    tight.rlim_cur = 4;
    ::setrlimit(RLIMIT_FSIZE, &tight);
    const bool written = AtomicFile::write(path, "new content longer than the limit");
    ::setrlimit(RLIMIT_FSIZE, &saved);
    ::signal(SIGXFSZ, savedHandler);
    EXPECT_FALSE(written);
    EXPECT_EQ(OstrinTest::readFile(path), "old");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                            std::filesystem::directory_iterator()),
              1);
}

TEST(AtomicFile, MissingFolderFails) {
    EXPECT_FALSE(AtomicFile::write("/nonexistent-folder/file", "x"));
}
