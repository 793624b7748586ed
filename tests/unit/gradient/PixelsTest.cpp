// Coordinates and colors that are too small a matter to be seen in a picture.
#include "Gradient/model/Pixels.h"
#include "Gradient/model/Colors.h"

#include <gtest/gtest.h>

TEST(Pixels, AreTheIntegerPartOfACoordinate) {
    EXPECT_EQ(TruncateToPixel(82.9), 82);
    EXPECT_EQ(TruncateToPixel(-82.9), -82);
}

TEST(Pixels, BeyondSixteenBitsAreTheNearestThereIs) {
    EXPECT_EQ(TruncateToPixel(32767.9), 32767);
    EXPECT_EQ(TruncateToPixel(std::numeric_limits<double>::infinity()), 32767);
    EXPECT_EQ(TruncateToPixel(-32769.0), -32768);
}

TEST(Pixels, OfACoordinateThatIsNotANumberAreZero) {
    EXPECT_EQ(TruncateToPixel(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Colors, BlackHasNothingOfAnyChannel) {
    EXPECT_EQ(kBlackRGBColor, (RGBColor{0, 0, 0}));
}
