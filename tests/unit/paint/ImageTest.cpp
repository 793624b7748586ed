// Images as paint, against what their pixels and the geometry say.
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using namespace easel::paint;
using easel::drawing::Affine;
using easel::drawing::Box;

struct Pixels {
    int width;
    int height;
    std::vector<std::uint32_t> all;

    std::uint32_t at(int x, int y) const { return all[static_cast<std::size_t>(y * width + x)]; }
};

Pixels anyPixels(int width, int height) {
    std::mt19937 random(7);
    Pixels pixels{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        pixels.all.push_back(0xFF000000 | static_cast<std::uint32_t>(random() & 0xFFFFFF));
    return pixels;
}

Image imageOf(const Pixels& pixels, const Affine& toDrawing) {
    return {pixels.all.data(), pixels.width, pixels.height, pixels.width, toDrawing, false, true};
}

// The image on a surface of this size, all of which it fills.
Surface painted(int width, int height, const Image& image, double opacity = 1) {
    Surface surface(width, height);
    Painter().fillAll(surface.view(), Affine(), &image, opacity);
    return surface;
}

int level(std::uint32_t pixel, int shift) {
    return static_cast<int>(pixel >> shift & 0xFF);
}

// The mean of a block of pixels, in each channel.
double meanOf(const Pixels& pixels, int left, int top, int side, int shift) {
    double sum = 0;
    for (int y = top; y < top + side; ++y)
        for (int x = left; x < left + side; ++x)
            sum += level(pixels.at(x, y), shift);
    return sum / (side * side);
}

TEST(Image, EnlargedWithoutSmoothnessIsARectangleForEachPixel) {
    const Pixels pixels = anyPixels(3, 2);
    Image image = imageOf(pixels, Affine::scaling(10, 10));
    image.smooth = false;
    Surface surface = painted(30, 20, image);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 30; ++x)
            EXPECT_EQ(surface.row(y)[x], pixels.at(x / 10, y / 10));
}

TEST(Image, AtItsOwnSizeIsItself) {
    const Pixels pixels = anyPixels(5, 4);
    Surface surface = painted(8, 6, imageOf(pixels, Affine::translation(2, 1)));
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 8; ++x) // beyond its sides the outermost pixels go on
            EXPECT_EQ(surface.row(y)[x], pixels.at(std::clamp(x - 2, 0, 4), std::clamp(y - 1, 0, 3)));
}

TEST(Image, ShrunkIsTheMeanOfWhatAPixelCovers) {
    const Pixels pixels = anyPixels(16, 16);
    Surface surface = painted(4, 4, imageOf(pixels, Affine::scaling(0.25, 0.25)));
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            for (const int shift : {0, 8, 16})
                EXPECT_NEAR(level(surface.row(y)[x], shift), meanOf(pixels, 4 * x, 4 * y, 4, shift), 0.51);
}

// Five pixels become two: each is two whole ones and half of the middle one.
TEST(Image, ShrunkByAFractionWeighsPixelsByTheirShare) {
    const Pixels pixels = anyPixels(5, 1);
    Surface surface = painted(2, 1, imageOf(pixels, Affine::scaling(0.4, 1)));
    for (const int shift : {0, 8, 16}) {
        const auto value = [&](int x) { return static_cast<double>(level(pixels.at(x, 0), shift)); };
        EXPECT_NEAR(level(surface.row(0)[0], shift), (value(0) + value(1) + value(2) / 2) / 2.5, 0.51);
        EXPECT_NEAR(level(surface.row(0)[1], shift), (value(2) / 2 + value(3) + value(4)) / 2.5, 0.51);
    }
}

// A pixel's center shows the pixel, and between two centers both count by their distance.
TEST(Image, EnlargedSmoothlyIsMixedBetweenCenters) {
    const Pixels pixels = anyPixels(3, 1);
    Surface surface = painted(27, 1, imageOf(pixels, Affine::scaling(9, 1)));
    for (int x = 4; x <= 22; ++x) {
        const int before = (x - 4) / 9;
        const double share = (x - 4) % 9 / 9.0;
        for (const int shift : {0, 8, 16}) {
            const double right = share > 0 ? level(pixels.at(before + 1, 0), shift) : 0;
            EXPECT_NEAR(level(surface.row(0)[x], shift),
                        level(pixels.at(before, 0), shift) * (1 - share) + right * share, 0.51);
        }
    }
}

TEST(Image, MirroredAndTurnedKeepsItsPixels) {
    const Pixels pixels = anyPixels(4, 4);
    Surface mirrored = painted(4, 4, imageOf(pixels, {-1, 0, 0, 1, 4, 0}));
    Surface turned = painted(4, 4, imageOf(pixels, {0, 1, -1, 0, 4, 0})); // a quarter, clockwise
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(mirrored.row(y)[x], pixels.at(3 - x, y));
            EXPECT_EQ(turned.row(y)[x], pixels.at(y, 3 - x));
        }
}

// Turned by an eighth and shrunk to a quarter, a picture of one color with one bright pixel keeps nearly all
// of that pixel's light: no pixel is passed over.
TEST(Image, TurnedAndShrunkLosesNoPixel) {
    for (int spot = 0; spot < 8; ++spot) {
        Pixels pixels{64, 64, std::vector<std::uint32_t>(64 * 64, 0xFF000000)};
        pixels.all[static_cast<std::size_t>((28 + spot) * 64 + 30 + spot % 3)] = 0xFFFF0000;
        const Affine place = Affine::translation(16, 0) * Affine::rotation(45) * Affine::scaling(0.25, 0.25);
        Surface surface = painted(32, 32, imageOf(pixels, place));
        double light = 0;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                light += level(surface.row(y)[x], 16);
        EXPECT_NEAR(light, 255.0 / 16, 6) << spot;
    }
}

TEST(Image, RepeatsWithoutEnd) {
    const Pixels pixels = anyPixels(3, 2);
    Image image = imageOf(pixels, Affine::translation(-100, 1));
    image.repeats = true;
    Surface surface = painted(20, 20, image);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            EXPECT_EQ(surface.row(y)[x], pixels.at((x + 100) % 3, (y + 1) % 2));
}

TEST(Image, ThatRepeatsWithinAPixelShowsItsMean) {
    const Pixels pixels = anyPixels(4, 4);
    Image image = imageOf(pixels, Affine::scaling(1e-5, 1e-5));
    image.repeats = true;
    Surface surface = painted(3, 3, image);
    for (const int shift : {0, 8, 16})
        EXPECT_NEAR(level(surface.row(1)[1], shift), meanOf(pixels, 0, 0, 4, shift), 0.51);
}

TEST(Image, IsLaidOverWhatIsThereByItsAlphaAndOpacity) {
    const Pixels half{1, 1, {0x80402010}};
    Surface surface(1, 1);
    surface.clear(0xFFFFFFFF);
    const Image image = imageOf(half, Affine());
    Painter().fillAll(surface.view(), Affine(), &image, 0.5);
    const double kept = 1 - 128 / 255.0 / 2;
    EXPECT_NEAR(level(surface.row(0)[0], 16), 0x40 / 2.0 + 255 * kept, 0.51);
    EXPECT_NEAR(level(surface.row(0)[0], 8), 0x20 / 2.0 + 255 * kept, 0.51);
    EXPECT_EQ(level(surface.row(0)[0], 24), 255);
}

TEST(Image, WithoutExtentOrOutOfReachPaintsNothingAndDoesNoHarm) {
    const Pixels pixels = anyPixels(3, 3);
    for (const Affine& place :
         {Affine{0, 0, 0, 0, 1, 1}, Affine{1, 1, 1, 1, 0, 0}, Affine{1e-200, 0, 0, 1, 0, 0},
          Affine{1, 0, 0, 1, 1e300, 0}, Affine{1e-300, 1e-301, 0, 1e-300, 0, 0}})
        EXPECT_EQ(painted(2, 2, imageOf(pixels, place)).row(0)[0], 0U);
}

} // namespace
