// The hash of shared resources against values that its authors published.
#include "easel/runtime/FieldHash.h"

#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

std::uint32_t hashOfBytes(std::uint64_t value, int bytes) {
    FieldHash hash;
    hash.add(value, bytes);
    return hash.value();
}

TEST(FieldHash, IsThatOfTheBytesFromTheLowestOn) {
    EXPECT_EQ(hashOfBytes(0, 0), 0x811c9dc5U);
    EXPECT_EQ(hashOfBytes('a', 1), 0xe40c292cU);
    EXPECT_EQ(hashOfBytes(0x7261626f6f66, 6), 0xbf9cf968U) << "foobar";
}

template <class Value> std::uint32_t hashOfValue(Value value) {
    FieldHash hash;
    hash.add(value);
    return hash.value();
}

TEST(FieldHash, TakesNumbersAsTheStandardForFloatingPointEncodesThem) {
    EXPECT_EQ(hashOfValue(1.0), hashOfBytes(0x3ff0000000000000, 8));
    EXPECT_EQ(hashOfValue(-2.5), hashOfBytes(0xc004000000000000, 8));
    EXPECT_EQ(hashOfValue(1.0F), hashOfBytes(0x3f800000, 4));
    EXPECT_EQ(hashOfValue(-0.0), hashOfBytes(0, 8));
    EXPECT_EQ(hashOfValue(-0.0F), hashOfBytes(0, 4));
}

TEST(FieldHash, TakesBothBytesOfEachPartOfAColor) {
    EXPECT_EQ(hashOfValue(RGBColor{0x0102, 0x0304, 0x0506}), hashOfBytes(0x050603040102, 6));
}

} // namespace
} // namespace easel::runtime
