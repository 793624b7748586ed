// How much of a header file is read to learn the type of a file, and what is taken for damage.
#include "easel/classic/FilePair.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/FailingCalls.h"
#include "tests/unit/classic/PairFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>

using namespace easel::classic;
using easel::files::Bytes;
using testing::HasSubstr;
using tests::FailingCalls;
using tests::writeContent;

namespace {

constexpr FinderInfo kOther{fourCharacters("TEXT"), fourCharacters("ttxt")};

class FilePairTest : public testing::Test {
  protected:
    // A header file of which the Finder information, the last of so many entries, ends where the file does.
    void writeHeader(std::size_t size, std::uint16_t entries = 1) const {
        Bytes header;
        putNumber(header, std::uint32_t{0x00051607});
        putNumber(header, AppleDouble::kVersion2);
        header.resize(24);
        putNumber(header, entries);
        for (std::uint16_t i = 1; i < entries; ++i)
            for (const std::uint32_t number : {4U, 0U, 0U})
                putNumber(header, number);
        for (const std::uint32_t number : {9U, static_cast<std::uint32_t>(size - 32), 32U})
            putNumber(header, number);
        header.resize(size);
        setNumber(header, size - 32, kOther.type);
        setNumber(header, size - 28, kOther.creator);
        writeContent(pair_.header(), {header.begin(), header.end()});
    }

    tests::TemporaryFolder folder_;
    // Where the header file is damaged, the ending says that it is a template.
    FilePair pair_{folder_.path(), "a.GRD"};
};

TEST_F(FilePairTest, FinderInformationIsLookedForInTheFirstMegabyte) {
    constexpr std::size_t kMegabyte = 1U << 20;
    for (const std::size_t size : {std::size_t{70}, std::size_t{256}, std::size_t{257}, kMegabyte}) {
        writeHeader(size);
        EXPECT_EQ(readFinderInfo(pair_), kOther) << size;
    }
    writeHeader(kMegabyte + 1);
    EXPECT_EQ(readFinderInfo(pair_).type, tests::kTemplateType);
}

TEST_F(FilePairTest, ATableOfManyEntriesIsReadBeforeWhatItPointsTo) {
    writeHeader(5000, 100);
    EXPECT_EQ(readFinderInfo(pair_), kOther);
}

TEST_F(FilePairTest, AHeaderFileIsTooLargeBeyond64Megabytes) {
    constexpr std::uintmax_t kLargest = 64U << 20;
    writeContent(pair_.header(), "");
    std::filesystem::resize_file(pair_.header(), kLargest);
    EXPECT_THAT(tests::errorOf(readHeader(pair_)).reason, HasSubstr("no AppleDouble")) << "it is read";
    std::filesystem::resize_file(pair_.header(), kLargest + 1);
    EXPECT_EQ(tests::errorOf(readHeader(pair_)).code, std::errc::file_too_large);
}

TEST_F(FilePairTest, ReadingGoesOnWhereItWasInterrupted) {
    writeHeader(100);
    const FailingCalls interrupted(2, EINTR); // the first call opens the file
    EXPECT_EQ(readFinderInfo(pair_), kOther);
    EXPECT_TRUE(FailingCalls::cameToNumber());
}

TEST_F(FilePairTest, AHeaderThatIsCutShortIsNotReadAgain) {
    writeHeader(100);
    std::filesystem::resize_file(pair_.header(), 90);
    // It is opened, read, and read to its end.
    const FailingCalls failing(4, EIO);
    EXPECT_EQ(readFinderInfo(pair_).type, tests::kTemplateType);
    EXPECT_FALSE(FailingCalls::cameToNumber());
}

TEST_F(FilePairTest, ReadingEndsWithTheFileWhateverFailedBefore) {
    writeHeader(100);
    errno = EINTR;
    EXPECT_EQ(readFinderInfo(pair_), kOther);
}

TEST_F(FilePairTest, AHeaderThatIsWrongFromItsFirstByteOnIsDamaged) {
    writeHeader(300);
    auto content = tests::contentOf(pair_.header());
    content[0] = 1;
    writeContent(pair_.header(), content);
    EXPECT_EQ(readFinderInfo(pair_).type, tests::kTemplateType);
}

TEST_F(FilePairTest, AHeaderThatCannotBeReadIsTakenForDamaged) {
    std::filesystem::create_directory(pair_.header());
    EXPECT_EQ(readFinderInfo(pair_).type, tests::kTemplateType);
}

} // namespace
