// Writing files whole or not at all.
#include "easel/files/AtomicFile.h"
#include "easel/files/WholeFile.h"
#include "tests/support/ErrorOf.h"
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
    EXPECT_TRUE(replaceFile(folder / "new", "content"));
    EXPECT_EQ(contentOf(folder / "new"), "content");
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U);
}

TEST(AtomicFile, KeepsThePermissionsOfTheFileItReplaces) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "old");
    ::chmod((folder / "file").c_str(), 0640);
    EXPECT_TRUE(replaceFile(folder / "file", "new"));
    EXPECT_EQ(contentOf(folder / "file"), "new");
    EXPECT_EQ(fs::status(folder / "file").permissions(), static_cast<fs::perms>(0640));
}

TEST(AtomicFile, WritesBehindALinkAndKeepsTheLink) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "real/file", "old");
    fs::create_symlink("real/file", folder / "second");
    fs::create_symlink("second", folder / "first");
    EXPECT_TRUE(replaceFile(folder / "first", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(contentOf(folder / "real/file"), "new");
    EXPECT_EQ(tests::entriesIn(folder / "real"), 1U);
}

TEST(AtomicFile, AFailureNamesTheFileAndLeavesTheOldContent) {
    const tests::TemporaryFolder folder;
    const auto missing = tests::errorOf(replaceFile(folder / "none/file", "x"));
    EXPECT_EQ(missing.message(), (folder / "none/file").string() + ": No such file or directory");
    fs::create_directory(folder / "folder");
    const auto onto = tests::errorOf(replaceFile(folder / "folder", "x"));
    EXPECT_EQ(onto.reason, "Is a directory");
    EXPECT_EQ(tests::entriesIn(folder.path()), 1U) << "a temporary file was left";
}

TEST(AtomicFile, AStreamIsWrittenToAndNotReplaced) {
    EXPECT_TRUE(replaceFile("/dev/null", "x"));
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    const auto full = tests::errorOf(replaceFile("/dev/full", "x"));
    EXPECT_EQ(full.reason, "No space left on device");
}

TEST(AtomicFile, LeftoversAreRemovedAndFilesOfRunningSavesAreNot) {
    const tests::TemporaryFolder folder;
    writeContent(folder / ".easel-save-0123456789abcdef~", "half");
    writeContent(folder / ".easel-save-mine~", "not ours");
    writeContent(folder / "other", "not ours");
    auto running = TemporaryFile::write(folder.path(), Bytes{1, 2, 3});
    ASSERT_TRUE(running);
    removeLeftovers(folder.path());
    EXPECT_FALSE(fs::exists(folder / ".easel-save-0123456789abcdef~"));
    EXPECT_TRUE(fs::exists(folder / ".easel-save-mine~"));
    EXPECT_TRUE(fs::exists(folder / "other"));
    EXPECT_TRUE(fs::exists(running.value().path()));
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
    ASSERT_TRUE(replaceFile(folder / "file", a));
    std::atomic<bool> done{false};
    std::thread saving([&] {
        for (int i = 0; i < 100; ++i)
            EXPECT_TRUE(replaceFile(folder / "file", i % 2 ? a : b));
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
    EXPECT_EQ(tests::errorOf(readWholeFile(folder / "none")).reason, "No such file or directory");
    EXPECT_EQ(tests::errorOf(readWholeFile(folder.path())).reason, "it is a folder");
    EXPECT_EQ(tests::errorOf(readWholeFile("/dev/null")).reason, "it is not a regular file");
    EXPECT_EQ(tests::errorOf(readWholeFile(folder / "four", 3)).reason, "the file is too large");
    EXPECT_EQ(readWholeFile(folder / "four", 4).value(), (Bytes{'1', '2', '3', '4'}));
}

TEST(WholeFile, ReadsFilesWhoseSizeTheSystemDoesNotTell) {
    const auto bytes = readWholeFile("/proc/self/status");
    ASSERT_TRUE(bytes);
    EXPECT_GT(bytes.value().size(), 100U);
}

} // namespace
