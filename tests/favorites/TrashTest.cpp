#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <regex>

#include "TestSupport.h"
#include "favorites/Trash.h"

using namespace ComQuorvantVelmar_Plugin;
namespace fs = std::filesystem;

namespace {

std::string recordOf(const std::string& trash, const std::string& name) {
    return OstrinTest::readFile(trash + "/info/" + name + ".trashinfo");
}

const std::regex recordPattern(
    "\\[Trash Info\\]\nPath=(.*)\nDeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n");

}  // namespace

TEST(Trash, MovesTheFileAndWritesItsRecordButNoRecordForAMissingFile) {
    OstrinTest::TemporaryDirectory home;
    OstrinTest::EnvironmentOverride dataHome("XDG_DATA_HOME", home.file("data"));
    fs::create_directory(home.file("favorite"));
    const std::string path = home.file("favorite/Proofs 100% ü.pqz");
    OstrinTest::writeFile(path, "favorite bytes");
    const auto moved = Trash::moveToTrash(path);
    const std::string trash = home.file("data/Trash");
    ASSERT_TRUE(moved);
    EXPECT_EQ(*moved, trash + "/files/Proofs 100% ü.pqz");
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(OstrinTest::readFile(*moved), "favorite bytes");
    std::smatch match;
    const std::string record = recordOf(trash, "Proofs 100% ü.pqz");
    ASSERT_TRUE(std::regex_match(record, match, recordPattern)) << record;
    EXPECT_EQ(match[1].str(), home.path() + "/favorite/Proofs%20100%25%20%C3%BC.pqz");
    EXPECT_FALSE(Trash::moveToTrash(home.file("missing.pqz")));
    EXPECT_FALSE(Trash::moveToTrash(""));
    EXPECT_FALSE(fs::exists(trash + "/info/missing.pqz.trashinfo"));
}

TEST(Trash, CopiesAcrossFileSystemsAndRemovesTheOriginal) {
    // /dev/shm is a memory file system apart from the temporary folder: no rename there.
    OstrinTest::TemporaryDirectory home;
    const std::string dataFolder = "/dev/shm/ostrin-trash-test-" + std::to_string(::getpid());
    struct RemoveAtEnd {
        std::string path;
        ~RemoveAtEnd() { fs::remove_all(path); }
    } cleanUp{dataFolder};
    OstrinTest::EnvironmentOverride dataHome("XDG_DATA_HOME", dataFolder);
    const std::string path = home.file("Proofs.pqz");
    OstrinTest::writeFile(path, "favorite bytes");
    ::chmod(path.c_str(), 0640);
    const auto moved = Trash::moveToTrash(path);
    ASSERT_TRUE(moved);
    EXPECT_FALSE(fs::exists(path));
    EXPECT_EQ(OstrinTest::readFile(*moved), "favorite bytes");
    EXPECT_EQ(fs::status(*moved).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_TRUE(fs::exists(dataFolder + "/Trash/info/Proofs.pqz.trashinfo"));
}

// A name the trash holds, recorded or not (a folder nobody recorded), is never replaced:
// the item takes the next free name and its own record.
TEST(Trash, ANameTakenInTheTrashGivesTheItemTheNextName) {
    OstrinTest::TemporaryDirectory home;
    OstrinTest::EnvironmentOverride dataHome("XDG_DATA_HOME", home.file("data"));
    const std::string trash = home.file("data/Trash");
    fs::create_directories(trash + "/files/Booklet.pqz");
    for (const char* folder : {"a", "b"}) {
        fs::create_directories(home.file(folder));
        OstrinTest::writeFile(home.file(std::string(folder) + "/Proofs.pqz"), folder);
        OstrinTest::writeFile(home.file(std::string(folder) + "/Booklet.pqz"), folder);
    }
    const auto first = Trash::moveToTrash(home.file("a/Proofs.pqz"));
    const auto second = Trash::moveToTrash(home.file("b/Proofs.pqz"));
    const auto booklet = Trash::moveToTrash(home.file("a/Booklet.pqz"));
    ASSERT_TRUE(first && second && booklet);
    EXPECT_EQ(*second, trash + "/files/Proofs.2.pqz");
    EXPECT_EQ(*booklet, trash + "/files/Booklet.2.pqz");
    EXPECT_EQ(OstrinTest::readFile(*first), "a");
    EXPECT_EQ(OstrinTest::readFile(*second), "b");
    EXPECT_TRUE(fs::is_directory(trash + "/files/Booklet.pqz"));
    EXPECT_FALSE(fs::exists(trash + "/info/Booklet.pqz.trashinfo"));
    std::smatch match;
    const std::string record = recordOf(trash, "Proofs.2.pqz");
    ASSERT_TRUE(std::regex_match(record, match, recordPattern));
    EXPECT_EQ(match[1].str(), home.path() + "/b/Proofs.pqz");
}
