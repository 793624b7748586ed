// Lights and clouds against the formulas of the standard.
#include "tests/unit/paint/FilterPixels.h"

#include "easel/paint/filter/Lighting.h"
#include "easel/paint/filter/Turbulence.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>

namespace {

using namespace easel;
using namespace easel::paint;

constexpr drawing::Rgb16 kWhite{65535, 65535, 65535};

FilterSpace spaceOf(const Surface& picture, double scale = 1) {
    return {picture.width(), picture.height(), drawing::Affine::scaling(scale, scale)};
}

double sine(double degrees) {
    return std::sin(degrees * std::numbers::pi / 180);
}

TEST(Lights, ShineOnAFlatSurfaceByTheirElevation) {
    const Surface flat = plainPicture(9, 9, 0x80000000);
    drawing::LightingEffect effect;
    effect.constant = 0.8;
    effect.color = {65535, 32768, 0};
    for (const double elevation : {10.0, 45.0, 90.0}) {
        effect.kind = drawing::LightingEffect::Kind::Diffuse;
        effect.light = drawing::DistantLight{77, elevation};
        const Surface diffuse = lit(effect, false, flat, spaceOf(flat));
        // N . L is the sine of the elevation, everywhere, the edges included.
        for (const int at : {0, 4, 8}) {
            EXPECT_NEAR(levelAt(diffuse, at, at, 16), 255 * 0.8 * sine(elevation), 0.6);
            EXPECT_NEAR(levelAt(diffuse, at, at, 8), 127.5 * 0.8 * sine(elevation), 0.6);
            EXPECT_EQ(levelAt(diffuse, at, at, 24), 255U);
        }
        effect.kind = drawing::LightingEffect::Kind::Specular;
        effect.exponent = 5;
        const Surface specular = lit(effect, false, flat, spaceOf(flat));
        // H lies half way between the light and the eye, which is above.
        const double between = std::sqrt((1 + sine(elevation)) / 2);
        EXPECT_NEAR(levelAt(specular, 4, 4, 16), 255 * 0.8 * std::pow(between, 5), 0.6);
        EXPECT_EQ(levelAt(specular, 4, 4, 24), levelAt(specular, 4, 4, 16)) << "alpha is the largest channel";
    }
}

TEST(Lights, SeeSlopesByTheirSteepness) {
    // Ten levels higher with each pixel to the right.
    Surface slope(9, 9);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 9; ++x)
            slope.row(y)[x] = static_cast<std::uint32_t>(10 * x + 20) << 24;
    drawing::LightingEffect effect;
    effect.surfaceScale = 4;
    effect.light = drawing::DistantLight{180, 30};
    const Surface result = lit(effect, false, slope, spaceOf(slope));
    // The standard's factors count a rise twice; the light comes from the left and below 30 degrees.
    const double rise = 2 * 4 * 10 / 255.0;
    const double expected = (rise * std::cos(std::numbers::pi / 6) + 0.5) / std::hypot(rise, 1);
    for (const int x : {0, 4, 8})
        for (const int y : {0, 4, 8})
            EXPECT_NEAR(levelAt(result, x, y, 8), 255 * expected, 0.6) << x << ", " << y;
}

TEST(Lights, OfAPlaceAreStrongestBelowItAndSpotsEndAtTheirCone) {
    const Surface flat = plainPicture(81, 81, 0);
    drawing::LightingEffect effect;
    effect.color = kWhite;
    // In units of two pixels: 40 pixels from the edges, 20 pixels above.
    effect.light = drawing::PointLight{{20, 20, 10}};
    const Surface point = lit(effect, false, flat, spaceOf(flat, 2));
    EXPECT_EQ(levelAt(point, 40, 40, 8), 255U);
    EXPECT_NEAR(levelAt(point, 60, 40, 8), 255 / std::sqrt(2), 0.6);
    drawing::SpotLight spot{{20, 20, 10}, {20, 20, 0}, 3, 30};
    effect.light = spot;
    const Surface cone = lit(effect, false, flat, spaceOf(flat, 2));
    // Within 20 tan 30 pixels; N . L is the cosine off the axis, which the focus raises to its third power.
    EXPECT_NEAR(levelAt(cone, 50, 40, 8), 255 * std::pow(std::cos(std::atan(0.5)), 4), 0.8);
    EXPECT_EQ(levelAt(cone, 53, 40, 8), 0U);
}

// The noise as the standard writes it down, for one channel and without stitching.
class StandardNoise {
  public:
    explicit StandardNoise(long seed) : seed_(seed) {
        for (auto& channel : gradient_)
            for (int i = 0; i < 256; ++i) {
                for (double& part : channel[i])
                    part = static_cast<double>(next() % 512 - 256) / 256;
                const double length =
                    std::sqrt(channel[i][0] * channel[i][0] + channel[i][1] * channel[i][1]);
                channel[i][0] /= length;
                channel[i][1] /= length;
            }
        for (int i = 0; i < 256; ++i)
            lattice_[i] = i;
        for (int i = 255; i > 0; --i)
            std::swap(lattice_[i], lattice_[next() % 256]);
    }

    double at(int channel, double x, double y) const {
        const int left = static_cast<int>(std::floor(x));
        const int top = static_cast<int>(std::floor(y));
        const auto corner = [&](int dx, int dy) {
            const int place = lattice_[(lattice_[(left + dx) & 255] + ((top + dy) & 255)) & 255];
            const auto& gradient = gradient_[channel][place];
            return (x - left - dx) * gradient[0] + (y - top - dy) * gradient[1];
        };
        const auto eased = [](double t) { return t * t * (3 - 2 * t); };
        const double sx = eased(x - left);
        const double upper = corner(0, 0) + sx * (corner(1, 0) - corner(0, 0));
        const double lower = corner(0, 1) + sx * (corner(1, 1) - corner(0, 1));
        return upper + eased(y - top) * (lower - upper);
    }

  private:
    // 16807 times the last number modulo 2^31 - 1, by Schrage's division.
    long next() {
        seed_ = 16807 * (seed_ % 127773) - 2836 * (seed_ / 127773);
        if (seed_ <= 0)
            seed_ += 2147483647;
        return seed_;
    }

    long seed_;
    double gradient_[4][256][2];
    int lattice_[256];
};

TEST(Clouds, AreThoseThatTheStandardWritesDown) {
    const drawing::TurbulenceEffect noise{drawing::TurbulenceEffect::Kind::Noise, {0.05, 0.08}, 3, 7, false};
    const drawing::TurbulenceEffect rough{
        drawing::TurbulenceEffect::Kind::Turbulence, {0.05, 0.08}, 2, 7, false};
    const Turbulence smooth(noise, {});
    const Turbulence sharp(rough, {});
    const StandardNoise standard(7);
    for (double y = -31; y < 300; y += 23.7)
        for (double x = -17; x < 300; x += 19.3)
            for (int c = 0; c < 4; ++c) {
                double sum = 0, sharpSum = 0;
                for (int octave = 0; octave < 3; ++octave) {
                    const double times = std::pow(2, octave);
                    const double value = standard.at(c, x * 0.05 * times, y * 0.08 * times) / times;
                    sum += value;
                    if (octave < 2)
                        sharpSum += std::abs(value);
                }
                ASSERT_NEAR(smooth.at({x, y})[static_cast<std::size_t>(c)], (sum + 1) / 2, 1e-9);
                ASSERT_NEAR(sharp.at({x, y})[static_cast<std::size_t>(c)], sharpSum, 1e-9);
            }
}

TEST(Clouds, FitToThemselvesWhereTheyAreStitched) {
    const drawing::Box tile{10, 20, 110, 95};
    const drawing::TurbulenceEffect effect{
        drawing::TurbulenceEffect::Kind::Noise, {0.033, 0.047}, 4, 3, true};
    const Turbulence clouds(effect, tile);
    drawing::TurbulenceEffect loose = effect;
    loose.stitches = false;
    const Turbulence unfit(loose, tile);
    double most = 0;
    for (double along = 0; along < 75; along += 3) {
        EXPECT_NEAR(clouds.at({10, 20 + along})[0], clouds.at({110 - 1e-9, 20 + along})[0], 1e-6);
        EXPECT_NEAR(clouds.at({10 + along, 20})[1], clouds.at({10 + along, 95 - 1e-9})[1], 1e-6);
        most = std::max(most, std::abs(unfit.at({10, 20 + along})[0] - unfit.at({110, 20 + along})[0]));
    }
    EXPECT_GT(most, 0.05) << "the test would not see a seam";
}

TEST(Clouds, TakeAnySeedAndNumber) {
    const FilterSpace space{8, 8, drawing::Affine::scaling(1e6, 1e6)};
    for (const double seed : {0.0, -5.5, 1e30, 2147483646.0})
        for (const double frequency : {0.0, 1e12, 0.1}) {
            const Surface result =
                turbulence({drawing::TurbulenceEffect::Kind::Noise, {frequency, frequency}, 1000, seed, true},
                           {0, 0, 1, 1}, space);
            EXPECT_EQ(result.width(), 8);
        }
}

} // namespace
