// Files with both forks in one, as MacBinary packs them.
#include "easel/classic/MacBinary.h"

#include <gtest/gtest.h>

using namespace easel::classic;
using namespace easel::files;

namespace {

MacBinaryFile sample() {
    return {"Sunset.GRD",
            {fourCharacters("GTMP"), fourCharacters("*Kst")},
            {1, 2, 3},
            Bytes(200, 7),
            3'000'000'000U};
}

TEST(MacBinary, WhatIsWrittenIsReadBack) {
    EXPECT_EQ(readMacBinary(writeMacBinary(sample())), sample());
    const MacBinaryFile bare{"x", {}, {}, {}, 0};
    EXPECT_EQ(readMacBinary(writeMacBinary(bare)), bare);
}

TEST(MacBinary, ForksBeginAtMultiplesOf128Bytes) {
    const auto bytes = writeMacBinary(sample());
    ASSERT_EQ(bytes.size(), 128U + 128 + 256);
    EXPECT_EQ(bytes[1], 10);
    EXPECT_EQ(std::string(bytes.begin() + 2, bytes.begin() + 12), "Sunset.GRD");
    EXPECT_EQ(std::string(bytes.begin() + 65, bytes.begin() + 73), "GTMP*Kst");
    EXPECT_EQ(bytes[128], 1);
    EXPECT_EQ(bytes[256], 7);
}

// The remainder of the bits, with 16 zeros behind them, divided by x^16 + x^12 + x^5 + 1, as long division
// goes.
std::uint16_t remainderOf(ByteView bytes) {
    std::uint32_t remainder = 0;
    for (std::size_t i = 0; i < bytes.size() * 8 + 16; ++i) {
        const bool one = i < bytes.size() * 8 && (bytes[i / 8] >> (7 - i % 8) & 1) != 0;
        remainder = remainder * 2 + (one ? 1 : 0);
        if (remainder >= 0x10000)
            remainder ^= 0x11021;
    }
    return static_cast<std::uint16_t>(remainder);
}

TEST(MacBinary, HeadersAreAsTheSecondVersionOfTheFormatHasThem) {
    const std::string digits = "123456789";
    ASSERT_EQ(remainderOf(Bytes(digits.begin(), digits.end())), 0x31C3) << "the check value of XMODEM's CRC";
    const auto bytes = writeMacBinary(sample());
    const Bytes sizesAndDates(bytes.begin() + 83, bytes.begin() + 99);
    EXPECT_EQ(sizesAndDates,
              (Bytes{0, 0, 0, 3, 0, 0, 0, 200, 0xB2, 0xD0, 0x5E, 0x00, 0xB2, 0xD0, 0x5E, 0x00}));
    EXPECT_EQ(bytes[122], 129);
    EXPECT_EQ(bytes[123], 129);
    EXPECT_EQ(bytes[124] * 256 + bytes[125], remainderOf(ByteView(bytes).first(124)));
}

TEST(MacBinary, ForksOfAnySizeAreReadBack) {
    for (const std::size_t size : {1U, 127U, 128U, 129U, 256U, 257U}) {
        MacBinaryFile file = sample();
        file.data = Bytes(size, 5);
        file.resourceFork = Bytes(size, 7);
        const auto bytes = writeMacBinary(file);
        EXPECT_EQ(bytes.size() % 128, 0U) << size;
        EXPECT_EQ(readMacBinary(bytes), file) << size;
    }
}

TEST(MacBinary, ANameHasOneTo63Bytes) {
    auto file = sample();
    file.name = std::string(64, 'x');
    EXPECT_EQ(readMacBinary(writeMacBinary(file))->name, std::string(63, 'x'));
    auto bytes = writeMacBinary(sample());
    for (const auto size : {std::uint8_t{0}, std::uint8_t{64}}) {
        bytes[1] = size;
        setNumber(bytes, 124, remainderOf(ByteView(bytes).first(124)));
        EXPECT_FALSE(readMacBinary(bytes)) << int{size};
    }
    bytes[1] = 63;
    setNumber(bytes, 124, remainderOf(ByteView(bytes).first(124)));
    EXPECT_TRUE(readMacBinary(bytes));
}

TEST(MacBinary, EveryChangeOfTheHeaderIsNoticed) {
    auto bytes = writeMacBinary({"x", {}, {}, {}, 0});
    EXPECT_TRUE(readMacBinary(bytes));
    for (std::size_t i = 0; i < 124; ++i) {
        auto changed = bytes;
        changed[i] ^= 0x40;
        EXPECT_FALSE(readMacBinary(changed)) << i;
    }
}

TEST(MacBinary, FilesThatAreCutShortAreRefused) {
    const auto whole = writeMacBinary(sample());
    for (std::size_t size = 0; size < 256 + 200; ++size)
        EXPECT_FALSE(readMacBinary(ByteView(whole).first(size))) << size;
}

} // namespace
