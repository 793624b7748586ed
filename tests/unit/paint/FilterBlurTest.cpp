// Blurs against the standard's own definitions in doubles, and against what any blur has to keep.
#include "tests/unit/paint/FilterPixels.h"

#include "easel/paint/filter/GaussianBlur.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace {

using namespace easel::paint;

// Weights of pixels, of which `middle` is the one that lies on the pixel itself.
struct Kernel {
    std::vector<double> weights;
    int middle = 0;
};

Kernel box(int size, int middle) {
    return {std::vector<double>(static_cast<std::size_t>(size), 1.0 / size), middle};
}

Kernel both(const Kernel& one, const Kernel& other) {
    Kernel result{std::vector<double>(one.weights.size() + other.weights.size() - 1),
                  one.middle + other.middle};
    for (std::size_t i = 0; i < one.weights.size(); ++i)
        for (std::size_t j = 0; j < other.weights.size(); ++j)
            result.weights[i + j] += one.weights[i] * other.weights[j];
    return result;
}

// Three boxes as the standard has them from a deviation of 2 on, the bell curve below.
Kernel kernelOf(double deviation) {
    if (deviation < 2) {
        const int reach = 12;
        Kernel kernel{{}, reach};
        double sum = 0;
        for (int x = -reach; x <= reach; ++x) {
            kernel.weights.push_back(std::exp(-x * x / (2 * deviation * deviation)));
            sum += kernel.weights.back();
        }
        for (double& weight : kernel.weights)
            weight /= sum;
        return kernel;
    }
    const int d = static_cast<int>(std::floor(deviation * 3 * std::sqrt(2 * std::numbers::pi) / 4 + 0.5));
    if (d % 2 == 1)
        return both(both(box(d, d / 2), box(d, d / 2)), box(d, d / 2));
    return both(both(box(d, d / 2), box(d, d / 2 - 1)), box(d + 1, d / 2));
}

double summed(const Surface& picture, const Kernel& across, const Kernel& down, int x, int y,
              unsigned shift) {
    double sum = 0;
    for (std::size_t i = 0; i < down.weights.size(); ++i)
        for (std::size_t j = 0; j < across.weights.size(); ++j)
            sum += levelAt(picture, x + static_cast<int>(j) - across.middle,
                           y + static_cast<int>(i) - down.middle, shift) *
                   across.weights[j] * down.weights[i];
    return sum;
}

// The two ways are rounded one after the other, and the weights are 65536ths.
constexpr double kRounding = 1.1;

TEST(Blurs, AreTheSumsThatTheStandardDefines) {
    const Surface picture = anyPicture(37, 29);
    for (const auto& [x, y] :
         {std::pair{0.4, 0.9}, {1.5, 1.99}, {2.0, 2.5}, {3.0, 4.3}, {9.0, 0.0}, {0.0, 6.1}}) {
        const Surface result = blurred(picture, x, y);
        const Kernel across = x > 0 ? kernelOf(x) : box(1, 0);
        const Kernel down = y > 0 ? kernelOf(y) : box(1, 0);
        for (const auto& [px, py] : {std::pair{0, 0}, {1, 7}, {18, 14}, {36, 28}, {30, 2}, {5, 20}})
            for (const unsigned shift : {0u, 8u, 16u, 24u})
                EXPECT_NEAR(levelAt(result, px, py, shift), summed(picture, across, down, px, py, shift),
                            kRounding)
                    << x << ", " << y << " at " << px << ", " << py;
    }
}

// The place within a region that stands for one beyond its edges.
int placeWithin(int place, int begin, int end, easel::drawing::EdgeMode mode) {
    while (mode == easel::drawing::EdgeMode::Wrap && place < begin)
        place += end - begin;
    while (mode == easel::drawing::EdgeMode::Wrap && place >= end)
        place -= end - begin;
    return std::clamp(place, begin, end - 1);
}

TEST(Blurs, GoOnBeyondTheEdgesOfTheirRegion) {
    const Surface picture = anyPicture(33, 31);
    const PixelRect region{.left = 4, .top = 3, .right = 27, .bottom = 20};
    for (const auto mode : {easel::drawing::EdgeMode::Duplicate, easel::drawing::EdgeMode::Wrap}) {
        // So large that no box sees an edge.
        const int margin = 60;
        Surface endless(33 + 2 * margin, 31 + 2 * margin);
        for (int y = 0; y < endless.height(); ++y)
            for (int x = 0; x < endless.width(); ++x)
                endless.row(y)[x] =
                    picture.row(placeWithin(y - margin, region.top, region.bottom,
                                            mode))[placeWithin(x - margin, region.left, region.right, mode)];
        for (const auto& [x, y] : {std::pair{0.7, 1.5}, {2.0, 2.6}, {5.0, 12.0}}) {
            const Surface result = blurred(picture, x, y, region, mode);
            for (const auto& [px, py] : {std::pair{4, 3}, {26, 19}, {15, 10}, {0, 0}, {32, 30}})
                for (const unsigned shift : {0u, 24u})
                    EXPECT_NEAR(levelAt(result, px, py, shift),
                                summed(endless, kernelOf(x), kernelOf(y), px + margin, py + margin, shift),
                                kRounding)
                        << x << ", " << y << " at " << px << ", " << py;
        }
    }
    EXPECT_TRUE(samePixels(blurred(picture, 3, 3, {}, easel::drawing::EdgeMode::Wrap), Surface(33, 31)));
    EXPECT_TRUE(
        samePixels(blurred(picture, 3, 3, region, easel::drawing::EdgeMode::None), blurred(picture, 3, 3)));
}

// An edge of full height becomes a slope; how its steps are spread is the blur's own curve.
TEST(Blurs, SpreadByTheirDeviation) {
    for (const double deviation : {0.5, 1.0, 1.9, 2.0, 5.0, 8.0, 31.0, 150.0}) {
        const int half = static_cast<int>(deviation * 5) + 4;
        Surface picture(2 * half, 3);
        for (int y = 0; y < 3; ++y)
            for (int x = half; x < 2 * half; ++x)
                picture.row(y)[x] = 0xFFFFFFFF;
        const Surface result = blurred(picture, deviation, 0);
        double mass = 0, mean = 0, square = 0;
        // The far end of the picture is an edge too.
        const int end = half + half / 2;
        for (int x = 1; x < end; ++x) {
            const double step = static_cast<double>(levelAt(result, x, 1, 8)) - levelAt(result, x - 1, 1, 8);
            mass += step;
            mean += step * x;
            square += step * x * x;
        }
        mean /= mass;
        const double variance = square / mass - mean * mean;
        const Kernel kernel = kernelOf(deviation);
        double expected = 0;
        for (std::size_t i = 0; i < kernel.weights.size(); ++i)
            expected += kernel.weights[i] * std::pow(static_cast<int>(i) - kernel.middle, 2);
        EXPECT_NEAR(mass, 255, 1) << deviation;
        EXPECT_NEAR(mean, half, 0.02 * deviation + 0.02) << deviation;
        EXPECT_NEAR(variance, expected, 0.02 * expected + 0.02) << deviation;
        // Boxes are a little narrower than the curve they stand for, and so is a curve of few pixels.
        EXPECT_NEAR(std::sqrt(variance), deviation, deviation < 2 ? 0.05 : 0.12 * deviation) << deviation;
    }
}

TEST(Blurs, LeaveWhatIsFlatAndKeepColorsBelowTheirAlpha) {
    for (const double deviation : {1.2, 4.0, 5.0, 20.0}) {
        const Surface flat = blurred(plainPicture(200, 200, 0xC0604020), deviation, deviation);
        EXPECT_EQ(flat.row(100)[100], 0xC0604020U) << deviation;
        const Surface any = blurred(anyPicture(80, 80), deviation, deviation);
        for (int y = 0; y < 80; ++y)
            for (int x = 0; x < 80; ++x)
                for (const unsigned shift : {0u, 8u, 16u})
                    ASSERT_LE(levelAt(any, x, y, shift), levelAt(any, x, y, 24));
    }
}

TEST(Blurs, AreTheSameSeenInAMirror) {
    const Surface picture = anyPicture(61, 47);
    const auto mirrored = [](const Surface& from) {
        Surface to(from.width(), from.height());
        for (int y = 0; y < from.height(); ++y)
            for (int x = 0; x < from.width(); ++x)
                to.row(y)[x] = from.row(from.height() - 1 - y)[from.width() - 1 - x];
        return to;
    };
    for (const double deviation : {1.0, 2.3, 2.9, 3.4, 7.0})
        EXPECT_TRUE(samePixels(mirrored(blurred(picture, deviation, deviation)),
                               blurred(mirrored(picture), deviation, deviation)))
            << deviation;
}

TEST(Blurs, ReachAsFarAsTheySay) {
    for (const double deviation : {0.3, 1.0, 1.99, 2.0, 2.2, 5.5, 40.0}) {
        const int reach = blurReach(deviation);
        Surface picture(2 * reach + 41, 1);
        for (int x = 0; x < 20; ++x)
            picture.row(0)[x] = 0xFFFFFFFF;
        const Surface result = blurred(picture, deviation, 0);
        for (int x = 20 + reach; x < picture.width(); ++x)
            EXPECT_EQ(result.row(0)[x], 0U) << deviation << " at " << x;
    }
}

} // namespace
