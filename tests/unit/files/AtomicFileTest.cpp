#include "easel/files/AtomicFile.h"
#include "easel/files/WholeFile.h"
#include "tests/support/TemporaryFolder.h"

#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

using namespace easel::files;
using tests::contentOf;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

TEST(AtomicFile, MakesAFileThatIsMissing) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(replaceFile(folder / "new", "content"));
    EXPECT_EQ(contentOf(folder / "new"), "content");
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U);
}

TEST(AtomicFile, KeepsThePermissionsOfTheFileItReplaces) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "old");
    ::chmod((folder / "file").c_str(), 0640);
    EXPECT_FALSE(replaceFile(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(fs::status(folder / "file").permissions(), static_cast<fs::perms>(0640));
}

TEST(AtomicFile, WritesBehindALinkAndKeepsTheLink) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "real/file", "old");
    fs::create_symlink("real/file", folder / "second");
    fs::create_symlink("second", folder / "first");
    EXPECT_FALSE(replaceFile(folder / "first", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(contentOf(folder / "real/file"), "new");
    EXPECT_EQ(tests::entriesIn(folder / "real"), 1U);
}

TEST(AtomicFile, AFailureNamesTheFileAndLeavesTheOldContent) {
    const tests::TemporaryFolder folder;
    const auto missing = replaceFile(folder / "none/file", "x");
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->message(), (folder / "none/file").string() + ": No such file or directory");
    fs::create_directory(folder / "folder");
    const auto onto = replaceFile(folder / "folder", "x");
    ASSERT_TRUE(onto);
    EXPECT_EQ(onto->reason, "Is a directory");
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U) << "a temporary file was left";
}

TEST(AtomicFile, AStreamIsWrittenToAndNotReplaced) {
    EXPECT_FALSE(replaceFile("/dev/null", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    const auto full = replaceFile("/dev/full", "x");
    ASSERT_TRUE(full);
    EXPECT_EQ(full->reason, "No space left on device");
}

TEST(AtomicFile, LeftoversAreRemovedAndFilesOfRunningSavesAreNot) {
    const tests::TemporaryFolder folder;
    writeContent(folder / ".easel-save-0123456789abcdef~", "half");
    writeContent(folder / ".easel-save-mine~", "not ours");
    writeContent(folder / "other", "not ours");
    auto running = TemporaryFile::write(folder.path(), Bytes{1, 2, 3});
    ASSERT_TRUE(std::holds_alternative<TemporaryFile>(running));
    removeLeftovers(folder.path());
    EXPECT_FALSE(fs::exists(folder / ".easel-save-0123456789abcdef~"));
    EXPECT_TRUE(fs::exists(folder / ".easel-save-mine~"));
    EXPECT_TRUE(fs::exists(folder / "other"));
    EXPECT_TRUE(fs::exists(std::get<TemporaryFile>(running).path()));
}

TEST(AtomicFile, AnAbandonedTemporaryVanishes) {
    const tests::TemporaryFolder folder;
    { auto abandoned = TemporaryFile::write(folder.path(), Bytes{1}); }
    EXPECT_EQ(tests::entriesIn(folder.path()), 0U);
}

TEST(AtomicFile, AReaderAmongManySavesSeesOnlyWholeContents) {
    const tests::TemporaryFolder folder;
    const std::string a(50'000, 'a');
    const std::string b(70'000, 'b');
    ASSERT_FALSE(replaceFile(folder / "file", a));
    std::atomic<bool> done{false};
    std::thread saving([&] {
        for (int i = 0; i < 100; ++i)
            EXPECT_FALSE(replaceFile(folder / "file", i % 2 ? a : b));
        done = true;
    });
    while (!done) {
        const auto seen = contentOf(folder / "file");
        EXPECT_TRUE(seen == a || seen == b) << seen.size();
    }
    saving.join();
}

TEST(WholeFile, SaysWhyAFileCannotBeRead) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "four", "1234");
    EXPECT_EQ(std::get<FileError>(readWholeFile(folder / "none")).reason, "No such file or directory");
    EXPECT_EQ(std::get<FileError>(readWholeFile(folder.path())).reason, "it is a folder");
    EXPECT_EQ(std::get<FileError>(readWholeFile("/dev/null")).reason, "it is not a regular file");
    EXPECT_EQ(std::get<FileError>(readWholeFile(folder / "four", 3)).reason, "the file is too large");
    EXPECT_EQ(std::get<Bytes>(readWholeFile(folder / "four", 4)), (Bytes{'1', '2', '3', '4'}));
}

TEST(WholeFile, ReadsFilesWhoseSizeTheSystemDoesNotTell) {
    const auto bytes = readWholeFile("/proc/self/status");
    ASSERT_TRUE(std::holds_alternative<Bytes>(bytes));
    EXPECT_GT(std::get<Bytes>(bytes).size(), 100U);
}

} // namespace
