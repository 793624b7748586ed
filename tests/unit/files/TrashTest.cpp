// Moving files to the trash of the desktop.
#include "easel/files/Trash.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace easel::files;
using tests::contentOf;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

TEST(Trash, AFileMovesThereWithANoteOfWhereItWas) {
    const tests::TemporaryFolder folder;
    const auto file = folder / "my d\u00E9cor%.txt";
    writeContent(file, "kept");
    EXPECT_TRUE(Trash(folder / "Trash").move(file));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(contentOf(folder / "Trash/files/my d\u00E9cor%.txt"), "kept");
    const auto note = contentOf(folder / "Trash/info/my d\u00E9cor%.txt.trashinfo");
    EXPECT_TRUE(note.starts_with("[Trash Info]\nPath=" + folder.path().string() +
                                 "/my%20d%C3%A9cor%25.txt\nDeletionDate="))
        << note;
}

TEST(Trash, TheTrashIsForItsOwnerOnly) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "a", "1");
    EXPECT_TRUE(Trash(folder / "data/Trash").move(folder / "a"));
    for (const char* name : {"data/Trash", "data/Trash/files", "data/Trash/info"})
        EXPECT_EQ(fs::status(folder / name).permissions(), fs::perms::owner_all) << name;
}

TEST(Trash, FilesOfOneNameGetNumbersAndNoneIsLost) {
    const tests::TemporaryFolder folder;
    const Trash trash(folder / "Trash");
    for (const char* content : {"1", "2", "3"}) {
        writeContent(folder / "Sunset.GRD", content);
        EXPECT_TRUE(trash.move(folder / "Sunset.GRD"));
    }
    EXPECT_EQ(contentOf(folder / "Trash/files/Sunset.GRD"), "1");
    EXPECT_EQ(contentOf(folder / "Trash/files/Sunset.2.GRD"), "2");
    EXPECT_EQ(contentOf(folder / "Trash/files/Sunset.3.GRD"), "3");
    EXPECT_EQ(tests::entriesIn(folder / "Trash/info"), 3U);
}

TEST(Trash, FilesThatBelongTogetherGetTheSameNumber) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "Trash/files/._Sunset.GRD", "someone else's");
    const std::vector<fs::path> pair{folder / "Sunset.GRD", folder / "._Sunset.GRD"};
    auto place = Trash(folder / "Trash").reserve(pair);
    ASSERT_TRUE(place);
    EXPECT_EQ(place.value().files(), (std::vector<fs::path>{folder / "Trash/files/Sunset.2.GRD",
                                                            folder / "Trash/files/._Sunset.2.GRD"}));
}

TEST(Trash, APlaceThatIsNotKeptLeavesNothing) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "a", "1");
    {
        auto place = Trash(folder / "Trash").reserve(std::vector<fs::path>{folder / "a"});
        ASSERT_TRUE(place);
        EXPECT_TRUE(linkOrCopy(folder / "a", place.value().files().front()));
        EXPECT_EQ(tests::entriesIn(folder / "Trash/files"), 1U);
    }
    EXPECT_EQ(tests::entriesIn(folder / "Trash/files"), 0U);
    EXPECT_EQ(tests::entriesIn(folder / "Trash/info"), 0U);
    EXPECT_EQ(contentOf(folder / "a"), "1");
}

TEST(Trash, AFileThatCannotBeMovedStays) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "a", "1");
    writeContent(folder / "Trash", "a file where the trash should be");
    EXPECT_FALSE(Trash(folder / "Trash").move(folder / "a"));
    EXPECT_EQ(contentOf(folder / "a"), "1");
    EXPECT_FALSE(Trash(folder / "T").move(folder / "none"));
    EXPECT_EQ(tests::entriesIn(folder / "T/info"), 0U);
}

TEST(Trash, AFileOnAnotherDeviceGoesToATrashThatTakesIt) {
    struct stat here {};
    struct stat above {};
    struct stat there {};
    const tests::TemporaryFolder folder;
    ASSERT_EQ(::stat(folder.path().c_str(), &here), 0);
    // The trash of a device is at its top, which /dev/shm is only where something is mounted on it.
    if (::stat("/dev", &above) != 0 || ::stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev ||
        above.st_dev == there.st_dev)
        GTEST_SKIP() << "this machine has no second device to write on";
    const std::string name = "easel-test-" + std::to_string(::getpid());
    writeContent("/dev/shm/" + name, "far");
    EXPECT_TRUE(Trash(folder / "Trash").move("/dev/shm/" + name));
    EXPECT_FALSE(fs::exists("/dev/shm/" + name));
    const auto trash = fs::path("/dev/shm/.Trash-" + std::to_string(::getuid()));
    EXPECT_EQ(contentOf(trash / "files" / name), "far");
    const auto note = trash / "info" / (name + ".trashinfo");
    EXPECT_NE(contentOf(note).find("\nPath=" + name + "\n"), std::string::npos);
    // Only what came from this test goes away; a trash that was there before has more in it and stays.
    std::error_code notEmpty;
    for (const auto& path : {trash / "files" / name, note, trash / "files", trash / "info", trash})
        fs::remove(path, notEmpty);
}

} // namespace
