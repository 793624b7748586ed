// Header files in the AppleDouble format.
#include "easel/classic/AppleDouble.h"
#include "tests/support/ErrorOf.h"

#include <gtest/gtest.h>
#include <random>

using namespace easel::classic;
using namespace easel::files;

namespace {

constexpr FinderInfo kInfo{fourCharacters("GTMP"), fourCharacters("*Kst")};

struct HandMadeEntry {
    std::uint32_t id;
    std::string data;
};

// Data in the opposite order of the descriptors, with a gap before each.
Bytes handMade(std::uint32_t version, const std::vector<HandMadeEntry>& entries, const char (&filler)[17]) {
    Bytes file;
    putNumber(file, std::uint32_t{0x00051607});
    putNumber(file, version);
    putBytes(file, viewOf({filler, 16}));
    putNumber(file, static_cast<std::uint16_t>(entries.size()));
    std::size_t end = 26 + 12 * entries.size();
    for (const auto& entry : entries)
        end += 5 + entry.data.size();
    Bytes whole = file;
    whole.resize(end);
    std::size_t at = 26;
    for (const auto& entry : entries) {
        end -= entry.data.size();
        setNumber(whole, at, entry.id);
        setNumber(whole, at + 4, static_cast<std::uint32_t>(end));
        setNumber(whole, at + 8, static_cast<std::uint32_t>(entry.data.size()));
        std::copy(entry.data.begin(), entry.data.end(), whole.begin() + static_cast<std::ptrdiff_t>(end));
        end -= 5;
        at += 12;
    }
    return whole;
}

const std::string kFinderEntry = "GTMP*Kst" + std::string(24, '\1');

TEST(AppleDouble, ANewFileIsVersion2WithFinderInfoAndResourceFork) {
    AppleDouble file;
    file.setFinderInfo(kInfo);
    file.setResourceFork({1, 2, 3});
    const auto bytes = file.write();
    ASSERT_EQ(bytes.size(), 26U + 24U + 32U + 3U);
    EXPECT_EQ(numberAt<std::uint32_t>(bytes, 0), 0x00051607U);
    EXPECT_EQ(numberAt<std::uint32_t>(bytes, 4), 0x00020000U);
    EXPECT_EQ(numberAt<std::uint16_t>(bytes, 24), 2U);
    EXPECT_EQ(std::string(bytes.begin() + 50, bytes.begin() + 58), "GTMP*Kst");
    const auto back = AppleDouble::read(bytes).value();
    EXPECT_EQ(back, file);
    EXPECT_EQ(back.finderInfo(), kInfo);
    EXPECT_EQ(Bytes(back.resourceFork().begin(), back.resourceFork().end()), (Bytes{1, 2, 3}));
}

TEST(AppleDouble, EntriesAreReadInAnyOrderInBothVersions) {
    for (const auto version : {AppleDouble::kVersion1, AppleDouble::kVersion2}) {
        const auto read = AppleDouble::read(
            handMade(version, {{2, "fork"}, {3, "Real Name"}, {9, kFinderEntry}}, "Macintosh       "));
        ASSERT_TRUE(read);
        const auto& file = read.value();
        EXPECT_EQ(file.version(), version);
        EXPECT_EQ(file.finderInfo(), kInfo);
        EXPECT_EQ(std::string(file.resourceFork().begin(), file.resourceFork().end()), "fork");
    }
}

TEST(AppleDouble, UnknownEntriesAndTheRestOfTheFinderInfoAreKept) {
    const auto original = handMade(
        AppleDouble::kVersion1, {{0x8053567E, "private"}, {9, kFinderEntry + "attributes"}, {4, "a comment"}},
        "Macintosh       ");
    auto file = AppleDouble::read(original).value();
    file.setFinderInfo({fourCharacters("TEXT"), fourCharacters("ttxt")});
    file.setResourceFork({9});
    const auto back = AppleDouble::read(file.write()).value();
    EXPECT_EQ(back, file);
    ASSERT_EQ(back.entries().size(), 4U);
    EXPECT_EQ(back.entries()[0].data, Bytes({'p', 'r', 'i', 'v', 'a', 't', 'e'}));
    EXPECT_EQ(back.entries()[1].data.size(), 42U);
    EXPECT_EQ(back.entries()[1].data[8], 1);
    EXPECT_EQ(back.version(), AppleDouble::kVersion1);
    const auto written = back.write();
    EXPECT_EQ(std::string(written.begin() + 8, written.begin() + 17), "Macintosh");
}

TEST(AppleDouble, AFileWithoutTheseEntriesHasNoTypeAndNoFork) {
    const auto file = AppleDouble::read(handMade(AppleDouble::kVersion2, {}, "0123456789abcdef")).value();
    EXPECT_EQ(file.finderInfo(), FinderInfo{});
    EXPECT_TRUE(file.resourceFork().empty());
}

TEST(AppleDouble, DamageIsNamed) {
    const auto whole = handMade(AppleDouble::kVersion2, {{2, "fork"}, {9, kFinderEntry}}, "0123456789abcdef");
    const auto damageWhen = [&](std::size_t offset, auto value) {
        auto bytes = whole;
        setNumber(bytes, offset, value);
        return tests::errorOf(AppleDouble::read(bytes));
    };
    EXPECT_EQ(tests::errorOf(AppleDouble::read({})), HeaderDamage::TooShort);
    EXPECT_EQ(tests::errorOf(AppleDouble::read(ByteView(whole).first(49))), HeaderDamage::TooShort);
    EXPECT_EQ(damageWhen(0, std::uint32_t{0x00051600}), HeaderDamage::NotAppleDouble);
    EXPECT_EQ(damageWhen(4, std::uint32_t{0x00030000}), HeaderDamage::UnknownVersion);
    EXPECT_EQ(damageWhen(24, std::uint16_t{0xFFFF}), HeaderDamage::TooShort);
    EXPECT_EQ(damageWhen(30, std::uint32_t{0xFFFFFFFF}), HeaderDamage::EntryOutside);
    EXPECT_EQ(damageWhen(34, std::uint32_t{0xFFFFFFFF}), HeaderDamage::EntryOutside);
    auto sharing = whole;
    for (const std::size_t at : {26U, 38U}) {
        setNumber(sharing, at + 4, std::uint32_t{0});
        setNumber(sharing, at + 8, static_cast<std::uint32_t>(whole.size()));
    }
    EXPECT_EQ(tests::errorOf(AppleDouble::read(sharing)), HeaderDamage::EntriesOverlap);
}

TEST(AppleDouble, TheBeginningOfAFileTellsItsTypeOrHowMuchMoreToRead) {
    using Answer = FinderInfoPlace::Answer;
    const auto whole =
        handMade(AppleDouble::kVersion2, {{2, std::string(3000, 'x')}, {3, "n"}, {9, kFinderEntry}},
                 "0123456789abcdef");
    for (std::size_t size = 0; size <= whole.size();) {
        const auto place = findFinderInfo(ByteView(whole).first(size));
        if (place.answer == Answer::Here) {
            EXPECT_EQ(place.info, kInfo);
            EXPECT_LT(size, 200U) << "the whole file was read for 8 bytes near its beginning";
            return;
        }
        size = place.answer == Answer::ReadMore ? static_cast<std::size_t>(place.needed) : 26;
    }
    FAIL() << "never found";
}

TEST(AppleDouble, TypeAndCreatorTakeEightBytesOfTheFinderInfo) {
    const auto infoIn = [](const std::string& entry) {
        return AppleDouble::read(handMade(AppleDouble::kVersion2, {{9, entry}}, "0123456789abcdef"))
            .value()
            .finderInfo();
    };
    EXPECT_EQ(infoIn("GTMP*Kst"), kInfo);
    EXPECT_EQ(infoIn("GTMP*Ks"), FinderInfo{});
}

TEST(AppleDouble, EntriesMayShareBytesAsLongAsAllOfThemFitIntoTheFile) {
    auto bytes = handMade(AppleDouble::kVersion2, {{2, "fork"}, {4, ""}}, "0123456789abcdef");
    setNumber(bytes, 26 + 4, std::uint32_t{0});
    setNumber(bytes, 26 + 8, static_cast<std::uint32_t>(bytes.size()));
    EXPECT_TRUE(AppleDouble::read(bytes));
    setNumber(bytes, 38 + 8, std::uint32_t{1});
    EXPECT_EQ(tests::errorOf(AppleDouble::read(bytes)), HeaderDamage::EntriesOverlap);
}

TEST(AppleDouble, ABeginningThatEndsInItsTableAsksForTheWholeTable) {
    using Answer = FinderInfoPlace::Answer;
    const auto whole =
        handMade(AppleDouble::kVersion2, {{2, "fork"}, {3, "n"}, {9, kFinderEntry}}, "0123456789abcdef");
    const std::size_t tableEnd = 26 + 3 * 12;
    // The data of the last entry come first, behind five bytes that belong to nothing.
    const std::size_t infoEnd = tableEnd + 5 + 32;
    for (std::size_t size = 26; size < infoEnd; ++size) {
        const auto place = findFinderInfo(ByteView(whole).first(size));
        EXPECT_EQ(place.answer, Answer::ReadMore) << size;
        EXPECT_EQ(place.needed, size < tableEnd ? tableEnd : infoEnd) << size;
    }
    EXPECT_EQ(findFinderInfo(ByteView(whole).first(infoEnd)).info, kInfo);
}

TEST(AppleDouble, WhatLooksLikeAnEntryBehindTheTableIsNone) {
    using Answer = FinderInfoPlace::Answer;
    const auto whole = handMade(AppleDouble::kVersion2, {{9, kFinderEntry}, {2, "fork"}}, "0123456789abcdef");
    auto bytes = whole;
    // The entries trade places in the table, which then ends before the second one.
    std::swap_ranges(bytes.begin() + 26, bytes.begin() + 38, bytes.begin() + 38);
    EXPECT_EQ(findFinderInfo(bytes).answer, Answer::Here);
    setNumber(bytes, 24, std::uint16_t{1});
    EXPECT_EQ(findFinderInfo(bytes).answer, Answer::None);
    EXPECT_EQ(findFinderInfo(ByteView(bytes).first(38)).answer, Answer::None) << "it ends with its table";
}

TEST(AppleDouble, RandomDamageNeverReadsOutOfBounds) {
    std::mt19937 random(3);
    const auto whole = handMade(AppleDouble::kVersion2, {{2, "fork"}, {9, kFinderEntry}}, "0123456789abcdef");
    for (int i = 0; i < 20'000; ++i) {
        auto bytes = whole;
        bytes[random() % 50] = static_cast<std::uint8_t>(random());
        bytes.resize(random() % (bytes.size() + 1));
        const auto place = findFinderInfo(bytes);
        const auto read = AppleDouble::read(bytes);
        if (read) {
            EXPECT_NE(place.answer, FinderInfoPlace::Answer::NotAppleDouble);
        }
    }
}

} // namespace
