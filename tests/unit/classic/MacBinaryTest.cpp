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
