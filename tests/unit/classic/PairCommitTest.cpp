// Writing a file and its header file, whole or not at all.
#include "easel/classic/PairCommit.h"
#include "easel/files/AtomicFile.h"
#include "tests/unit/classic/PairFixture.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace easel::classic;
using namespace easel::files;
using tests::contentOf;
using tests::dropFile;
using tests::headerWith;
using tests::keptIn;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

class PairCommit : public testing::Test {
  protected:
    PairCommit() { fs::create_directory(folder()); }

    fs::path folder() const { return base_ / "folder"; }
    fs::path trashFiles() const { return base_ / "Trash/files"; }
    FilePair pair(const std::string& name) const { return {folder(), name}; }

    tests::TemporaryFolder base_;
    Trash trash_{base_ / "Trash"};
};

TEST_F(PairCommit, ANewFileHasAnEmptyDataForkAndItsHeaderAndNothingElse) {
    EXPECT_TRUE(writePair(pair("a.GRD"), headerWith("new"), trash_));
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "new");
    EXPECT_EQ(contentOf(folder() / "a.GRD"), "");
    EXPECT_EQ(tests::entriesIn(folder()), 2U);
    EXPECT_FALSE(fs::exists(base_ / "Trash"));
}

TEST_F(PairCommit, AReplacedFileLiesInTheTrashAsAWhole) {
    dropFile(folder(), "a.GRD", "old", tests::kTemplateType, "data");
    EXPECT_TRUE(writePair(pair("a.GRD"), headerWith("new"), trash_));
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "new");
    EXPECT_EQ(contentOf(folder() / "a.GRD"), "");
    EXPECT_EQ(tests::entriesIn(folder()), 2U);
    EXPECT_EQ(keptIn(trashFiles(), "a.GRD"), "old");
    EXPECT_EQ(contentOf(trashFiles() / "a.GRD"), "data");
    EXPECT_EQ(tests::entriesIn(base_ / "Trash/info"), 2U);
}

TEST_F(PairCommit, ADeletedFileLiesInTheTrashAsAWhole) {
    dropFile(folder(), "a.GRD", "old", tests::kTemplateType, "data");
    dropFile(folder(), "b.GRD", "other");
    EXPECT_TRUE(trashPair(pair("a.GRD"), trash_));
    EXPECT_EQ(tests::entriesIn(folder()), 2U);
    EXPECT_EQ(keptIn(trashFiles(), "a.GRD"), "old");
    EXPECT_EQ(contentOf(trashFiles() / "a.GRD"), "data");
    EXPECT_FALSE(trashPair(pair("none"), trash_));
}

TEST_F(PairCommit, WithoutATrashNothingIsReplacedOrDeleted) {
    writeContent(base_ / "Trash", "in the way");
    dropFile(folder(), "a.GRD", "old");
    EXPECT_FALSE(writePair(pair("a.GRD"), headerWith("new"), trash_));
    EXPECT_FALSE(trashPair(pair("a.GRD"), trash_));
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "old");
    EXPECT_EQ(tests::entriesIn(folder()), 2U) << "a temporary file was left";
}

TEST_F(PairCommit, AHeaderFileThatLostItsDataForkIsKeptInTheTrash) {
    dropFile(folder(), "a.GRD", "lost");
    fs::remove(folder() / "a.GRD");
    EXPECT_TRUE(writePair(pair("a.GRD"), headerWith("new"), trash_));
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "new");
    EXPECT_TRUE(fs::exists(trashFiles() / "._a.GRD"));
}

TEST_F(PairCommit, WhatACutOffCreationLeftIsClearedAwayAndAHandCopiedHeaderIsNot) {
    dropFile(folder(), "mine.GRD", "half");
    fs::remove(folder() / "mine.GRD");
    fs::create_hard_link(folder() / "._mine.GRD", folder() / ".easel-save-0123456789abcdef~");
    dropFile(folder(), "theirs.GRD", "being copied");
    fs::remove(folder() / "theirs.GRD");
    writeContent(folder() / ".easel-save-fedcba9876543210~", "");
    recoverFolder(folder());
    EXPECT_EQ(tests::entriesIn(folder()), 1U);
    EXPECT_TRUE(fs::exists(folder() / "._theirs.GRD"));
}

TEST_F(PairCommit, ACutOffChangeOfAFileThatIsStillThereLosesOnlyItsMarker) {
    dropFile(folder(), "a.GRD", "old");
    fs::create_hard_link(folder() / "._a.GRD", folder() / ".easel-save-0123456789abcdef~");
    recoverFolder(folder());
    EXPECT_EQ(keptIn(folder(), "a.GRD"), "old");
    EXPECT_EQ(tests::entriesIn(folder()), 2U);
}

TEST_F(PairCommit, TwoProgramsThatWriteAndDeleteTheSameFilesLeaveWholeOnes) {
    const auto work = [&](const std::string& content) {
        for (int i = 0; i < 60; ++i) {
            static_cast<void>(writePair(pair(i % 2 ? "a.GRD" : "b.GRD"), headerWith(content), trash_));
            if (i % 5 == 0)
                static_cast<void>(trashPair(pair("a.GRD"), trash_));
            recoverFolder(folder());
        }
    };
    const pid_t child = ::fork();
    if (child == 0) {
        work("child");
        ::_exit(0);
    }
    work("parent");
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    for (const char* name : {"a.GRD", "b.GRD"}) {
        const auto kept = keptIn(folder(), name);
        EXPECT_TRUE(kept == "child" || kept == "parent" || (kept == "none" && name[0] == 'a'))
            << name << " " << kept;
    }
    // Both files, or one where the last deletion came last; two entries each.
    EXPECT_LE(tests::entriesIn(folder()), 4U);
    EXPECT_EQ(tests::entriesIn(folder()) % 2, 0U);
}

} // namespace
