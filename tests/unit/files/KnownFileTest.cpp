#include "easel/files/KnownFile.h"
#include "easel/files/AtomicFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace easel::files;
using tests::writeContent;
namespace fs = std::filesystem;

namespace {

class KnownFileTest : public testing::Test {
  protected:
    KnownFileTest() : known_(made(folder_ / "file")) { known_.setContent("content"); }

    static fs::path made(const fs::path& file) {
        writeContent(file, "content");
        return file;
    }

    tests::TemporaryFolder folder_;
    const fs::path file_ = folder_ / "file";
    KnownFile known_;
};

using Fate = KnownFile::Fate;

TEST_F(KnownFileTest, AnUntouchedFileIsTheSame) {
    EXPECT_EQ(known_.look(), Fate::Same);
    EXPECT_EQ(known_.lookInto(), Fate::Same);
}

TEST_F(KnownFileTest, OneThatWasWrittenAgainWithTheSameContentIsTheSame) {
    EXPECT_TRUE(replaceFile(file_, "content"));
    EXPECT_EQ(known_.look(), Fate::Same);
}

TEST_F(KnownFileTest, OtherContentOfTheSameSizeIsAChange) {
    writeContent(file_, "CONTENT");
    fs::last_write_time(file_, fs::file_time_type::clock::now() + std::chrono::seconds(1));
    EXPECT_EQ(known_.look(), Fate::Changed);
    EXPECT_EQ(known_.look(), Fate::Changed) << "until it is known";
}

TEST_F(KnownFileTest, AChangeThatHidesItsTimeIsFoundByLookingInto) {
    const auto before = fs::last_write_time(file_);
    writeContent(file_, "CONTENT");
    fs::last_write_time(file_, before);
    EXPECT_EQ(known_.lookInto(), Fate::Changed);
}

TEST_F(KnownFileTest, AnotherFileUnderTheNameIsAChange) {
    EXPECT_TRUE(replaceFile(file_, "something else"));
    EXPECT_EQ(known_.look(), Fate::Changed);
}

TEST_F(KnownFileTest, AFileThatWasRemovedOrRenamedIsGoneUntilItIsBack) {
    fs::rename(file_, folder_ / "other");
    EXPECT_EQ(known_.look(), Fate::Gone);
    fs::rename(folder_ / "other", file_);
    EXPECT_EQ(known_.look(), Fate::Same);
}

TEST_F(KnownFileTest, AChangeBetweenLookingAndReadingIsNotMissed) {
    const fs::path file = folder_ / "raced";
    writeContent(file, "old");
    KnownFile known(file);
    known.setContent("old");
    EXPECT_TRUE(replaceFile(file, "new"));
    EXPECT_EQ(known.look(), Fate::Changed);
}

TEST(WriteProtection, IsTakenAwayFromEverybodyOrNotThere) {
    const tests::TemporaryFolder folder;
    writeContent(folder / "file", "");
    EXPECT_FALSE(isWriteProtected(folder / "file"));
    ::chmod((folder / "file").c_str(), 0444);
    EXPECT_TRUE(isWriteProtected(folder / "file")) << "whoever asks, the superuser too";
    EXPECT_FALSE(isWriteProtected(folder / "none"));
}

} // namespace
