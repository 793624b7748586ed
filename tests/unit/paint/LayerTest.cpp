// Layers against the arithmetic of composition in doubles.
#include "easel/paint/Layer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using namespace easel::paint;

constexpr int kSide = 64;

// A premultiplied pixel of any color and alpha, now and then transparent or opaque.
std::uint32_t anyPixel(std::mt19937& random) {
    const auto pick = static_cast<std::uint32_t>(random() % 4);
    const std::uint32_t alpha = pick == 0 ? 0 : pick == 1 ? 255 : static_cast<std::uint32_t>(random() % 256);
    const auto channel = [&] { return static_cast<std::uint32_t>(random() % (alpha + 1)); };
    return alpha << 24 | channel() << 16 | channel() << 8 | channel();
}

void fillWith(const SurfaceView& view, std::mt19937& random) {
    for (int y = 0; y < view.height(); ++y)
        for (int x = 0; x < view.width(); ++x)
            view.row(y)[x] = anyPixel(random);
}

double channel(std::uint32_t pixel, unsigned shift) {
    return pixel >> shift & 255;
}

TEST(Layer, IsLaidOnWithItsOpacityToWithinRounding) {
    std::mt19937 random(4);
    for (const double opacity : {0.0, 0.001, 0.3, 0.5, 0.77, 1.0}) {
        Surface below(kSide, kSide);
        fillWith(below.view(), random);
        Surface result(kSide, kSide);
        for (int y = 0; y < kSide; ++y)
            std::copy_n(below.row(y), kSide, result.row(y));
        Layer layer({.right = kSide, .bottom = kSide});
        fillWith(layer.view(), random);
        layer.layOn(result.view(), opacity);
        for (int y = 0; y < kSide; ++y)
            for (int x = 0; x < kSide; ++x) {
                const std::uint32_t above = layer.view().row(y)[x];
                const double kept = 1 - channel(above, 24) / 255 * opacity;
                for (const unsigned shift : {0u, 8u, 16u, 24u}) {
                    const double exact =
                        channel(above, shift) * opacity + channel(below.row(y)[x], shift) * kept;
                    ASSERT_NEAR(channel(result.row(y)[x], shift), exact, 0.51) << opacity;
                }
            }
    }
}

TEST(Layer, AMaskMultipliesEveryChannelAndRoundsToTheNearest) {
    std::mt19937 random(9);
    Layer layer({.right = kSide, .bottom = kSide});
    fillWith(layer.view(), random);
    Layer mask({.right = kSide, .bottom = kSide});
    fillWith(mask.view(), random);
    Surface before(kSide, kSide);
    for (int y = 0; y < kSide; ++y)
        std::copy_n(layer.view().row(y), kSide, before.row(y));
    layer.maskWith(mask);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            for (const unsigned shift : {0u, 8u, 16u, 24u}) {
                const double exact =
                    channel(before.row(y)[x], shift) * channel(mask.view().row(y)[x], 24) / 255;
                ASSERT_EQ(channel(layer.view().row(y)[x], shift), std::round(exact));
            }
}

TEST(Layer, CoversOnlyItsPlaceAndTheSurfacesClip) {
    Surface surface(kSide, kSide);
    Layer layer({.left = 10, .top = 20, .right = 30, .bottom = 40});
    for (int y = 0; y < 20; ++y)
        std::fill_n(layer.view().row(y), 20, 0xFFFF0000u);
    layer.layOn(surface.view().clippedTo({.left = 15, .top = 0, .right = kSide, .bottom = 30}), 1);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            ASSERT_EQ(surface.row(y)[x] != 0, x >= 15 && x < 30 && y >= 20 && y < 30) << x << "," << y;
}

TEST(Layer, PixelsUnderABoxAreThoseItTouches) {
    using easel::drawing::Affine;
    using easel::drawing::Box;
    const PixelRect limit{.right = 100, .bottom = 100};
    EXPECT_EQ(pixelsUnder(Box{10.5, 20, 30.2, 40}, {}, limit),
              (PixelRect{.left = 10, .top = 20, .right = 31, .bottom = 40}));
    EXPECT_EQ(pixelsUnder(Box{-50, -50, 500, 500}, {}, limit), limit);
    EXPECT_TRUE(pixelsUnder(Box{200, 0, 300, 10}, {}, limit).empty());
    EXPECT_TRUE(pixelsUnder(Box{}, {}, limit).empty());
    EXPECT_EQ(pixelsUnder(Box{0, 0, 1, 1}, Affine::scaling(HUGE_VAL, 1), limit), limit);
    EXPECT_EQ(pixelsUnder(Box{-1e300, 10, 1e300, 20}, {}, limit),
              (PixelRect{.left = 0, .top = 10, .right = 100, .bottom = 20}));
}

} // namespace
