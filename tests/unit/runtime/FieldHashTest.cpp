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

} // namespace
} // namespace easel::runtime
