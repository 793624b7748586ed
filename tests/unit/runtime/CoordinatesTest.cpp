// How exactly places are told.
#include "easel/runtime/Coordinates.h"

#include <gtest/gtest.h>

namespace {

using easel::runtime::decimalsAt;

// The last digit is never worth more than a pixel, and never less than a tenth of one.
TEST(Coordinates, HaveTheDigitsThatAPixelMakesADifferenceIn) {
    EXPECT_EQ(decimalsAt(0.02), 0);
    EXPECT_EQ(decimalsAt(1), 0);
    EXPECT_EQ(decimalsAt(1.25), 1);
    EXPECT_EQ(decimalsAt(10), 1);
    EXPECT_EQ(decimalsAt(12), 2);
    EXPECT_EQ(decimalsAt(64), 2);
    EXPECT_EQ(decimalsAt(1e6), 3) << "and no more than can be read";
}

} // namespace
