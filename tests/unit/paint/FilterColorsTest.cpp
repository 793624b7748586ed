// Effects on the color of each pixel, against their formulas in doubles.
#include "tests/unit/paint/FilterPixels.h"

#include "easel/drawing/SrgbCurve.h"
#include "easel/paint/filter/ColorMatrix.h"
#include "easel/paint/filter/ComponentTransfer.h"
#include "easel/paint/filter/Composite.h"
#include "easel/paint/filter/Flood.h"
#include "easel/paint/filter/LinearLight.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using namespace easel;
using namespace easel::paint;
using drawing::linearLightOf;
using drawing::srgbOf;

constexpr std::array kShifts = {16u, 8u, 0u, 24u}; // red, green, blue, alpha

// From 0 to 1: red, green, blue, not multiplied by alpha, and alpha.
std::array<double, 4> colorOf(std::uint32_t pixel) {
    std::array<double, 4> color{};
    color[3] = (pixel >> 24) / 255.0;
    for (std::size_t i = 0; i < 3; ++i)
        color[i] = color[3] > 0 ? (pixel >> kShifts[i] & 0xFF) / 255.0 / color[3] : 0;
    return color;
}

double clamped(double value) {
    return std::clamp(value, 0.0, 1.0);
}

TEST(ColorMatrices, AreAppliedToColorsThatAreNotMultiplied) {
    const drawing::ColorMatrixEffect effect{
        {0.3, 0.2, -0.1, 0.4, 0.05, 0, 1.5, 0, 0, -0.1, 0.2, 0.2, 0.2, 0.2, 0.2, 0.1, 0, 0, 0.7, 0.2}};
    const Surface picture = anyPicture(40, 40);
    const Surface result = changedBy(effect, picture);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            const auto from = colorOf(picture.row(y)[x]);
            std::array<double, 4> to{};
            for (std::size_t row = 0; row < 4; ++row) {
                to[row] = effect.matrix[row * 5 + 4];
                for (std::size_t column = 0; column < 4; ++column)
                    to[row] += effect.matrix[row * 5 + column] * from[column];
            }
            for (std::size_t i = 0; i < 4; ++i)
                ASSERT_NEAR(levelAt(result, x, y, kShifts[i]),
                            255 * clamped(to[i]) * (i < 3 ? clamped(to[3]) : 1), 0.51);
        }
}

double transferredBy(drawing::TransferFunction function, double value) {
    const Surface picture =
        plainPicture(1, 1, 0xFF000000 | static_cast<std::uint32_t>(std::lround(value * 255)) << 16);
    drawing::TransferEffect effect;
    effect.functions[0] = std::move(function);
    return levelAt(changedBy(effect, picture), 0, 0, 16) / 255.0;
}

TEST(ComponentTransfers, FollowTheirFunctions) {
    using Kind = drawing::TransferFunction::Kind;
    constexpr double kLevel = 1 / 255.0;
    drawing::TransferFunction table{Kind::Table, {0, 1, 0.5}};
    EXPECT_NEAR(transferredBy(table, 0.25), 0.5, kLevel);
    EXPECT_NEAR(transferredBy(table, 0.75), 0.75, kLevel);
    EXPECT_NEAR(transferredBy(table, 1), 0.5, kLevel);
    drawing::TransferFunction steps{Kind::Discrete, {0.2, 0.8, 0.4}};
    EXPECT_NEAR(transferredBy(steps, 0.3), 0.2, kLevel);
    EXPECT_NEAR(transferredBy(steps, 0.4), 0.8, kLevel);
    EXPECT_NEAR(transferredBy(steps, 1), 0.4, kLevel);
    drawing::TransferFunction linear{Kind::Linear, {}, 2, 1, 1, -0.5};
    EXPECT_NEAR(transferredBy(linear, 0.6), 0.7, kLevel);
    EXPECT_EQ(transferredBy(linear, 0.2), 0);
    drawing::TransferFunction gamma{Kind::Gamma, {}, 1, 0.5, 2, 0.1};
    EXPECT_NEAR(transferredBy(gamma, 0.8), 0.1 + 0.5 * 0.64, kLevel);
    EXPECT_NEAR(transferredBy({}, 0.3), 0.3, kLevel);
    EXPECT_NEAR(transferredBy({Kind::Table, {}}, 0.3), 0.3, kLevel);
}

double porterDuff(drawing::CompositeEffect::Operator how, double a, double b, double alphaA, double alphaB) {
    using Operator = drawing::CompositeEffect::Operator;
    switch (how) {
    case Operator::Over:
        return a + b * (1 - alphaA);
    case Operator::In:
        return a * alphaB;
    case Operator::Out:
        return a * (1 - alphaB);
    case Operator::Atop:
        return a * alphaB + b * (1 - alphaA);
    case Operator::Xor:
        return a * (1 - alphaB) + b * (1 - alphaA);
    case Operator::Lighter:
        return std::min(a + b, 1.0);
    case Operator::Arithmetic:
        break;
    }
    return 0;
}

TEST(Composites, FollowTheirOperators) {
    using Operator = drawing::CompositeEffect::Operator;
    const Surface above = anyPicture(30, 30, 1);
    const Surface below = anyPicture(30, 30, 2);
    for (const auto how :
         {Operator::Over, Operator::In, Operator::Out, Operator::Atop, Operator::Xor, Operator::Lighter}) {
        const Surface result = composite({how, {}}, above, below);
        for (int y = 0; y < 30; ++y)
            for (int x = 0; x < 30; ++x)
                for (const unsigned shift : kShifts) {
                    const double a = levelAt(above, x, y, shift) / 255.0;
                    const double b = levelAt(below, x, y, shift) / 255.0;
                    const double exact = porterDuff(how, a, b, levelAt(above, x, y, 24) / 255.0,
                                                    levelAt(below, x, y, 24) / 255.0);
                    ASSERT_NEAR(levelAt(result, x, y, shift), 255 * exact, 1.01) << static_cast<int>(how);
                }
    }
}

TEST(Composites, ComputeArithmeticAndKeepColorsBelowAlpha) {
    const Surface above = plainPicture(1, 1, 0xFF804020);
    const Surface below = plainPicture(1, 1, 0x80402010);
    const Surface result =
        composite({drawing::CompositeEffect::Operator::Arithmetic, {0.5, 0.25, 0.75, 0.1}}, above, below);
    const auto exact = [](double a, double b) { return 0.5 * a * b / 255 + 0.25 * a + 0.75 * b + 25.5; };
    EXPECT_NEAR(levelAt(result, 0, 0, 16), exact(0x80, 0x40), 0.51);
    EXPECT_NEAR(levelAt(result, 0, 0, 24), std::min(255.0, exact(255, 128)), 0.51);
    // Where alpha comes to nothing, so do the colors.
    const Surface none = composite({drawing::CompositeEffect::Operator::Arithmetic, {0, 1, -1, 0}},
                                   plainPicture(1, 1, 0x40404000), plainPicture(1, 1, 0x80000000));
    EXPECT_EQ(none.row(0)[0], 0U);
}

TEST(LinearLight, FollowsTheCurveOfSrgbAndBack) {
    EXPECT_NEAR(linearLightOf(0.5), 0.21404114, 1e-7);
    EXPECT_NEAR(linearLightOf(0.02), 0.02 / 12.92, 1e-12);
    for (double value = 0; value <= 1; value += 0.01)
        EXPECT_NEAR(srgbOf(linearLightOf(value)), value, 1e-6);
    const Surface half = inLinearLight(plainPicture(1, 1, 0x80400000));
    EXPECT_EQ(half.row(0)[0], 0x801B0000U) << "128 levels times the light of one half is 27.4";
    EXPECT_EQ(inSrgb(half).row(0)[0] >> 24, 0x80U);
    EXPECT_NEAR(levelAt(inSrgb(half), 0, 0, 16), 0x40, 1);
    const Surface any = anyPicture(30, 30);
    const Surface linear = inLinearLight(any);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 30; ++x)
            ASSERT_NEAR(levelAt(linear, x, y, 8),
                        linearLightOf(colorOf(any.row(y)[x])[1]) * levelAt(any, x, y, 24), 0.51);
}

TEST(Floods, AreOfTheColorInTheColorsOfTheirStep) {
    const drawing::FloodEffect gray{{32768, 32768, 32768}, 0.5};
    EXPECT_EQ(floodPixel(gray, false), 0x80404040U);
    EXPECT_EQ(floodPixel(gray, true) >> 24, 0x80U);
    EXPECT_NEAR(floodPixel(gray, true) & 0xFF, linearLightOf(0.5) * 127.5, 0.51);
}

} // namespace
