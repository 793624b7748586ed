// feTurbulence (SVG 1.1, 15.24), which states the generator of random numbers, the order in which they are
// used and the sums, so that all programs show the same clouds.
#include "easel/paint/filter/Turbulence.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

#include <cmath>
#include <cstdint>
#include <utility>

namespace easel::paint {

namespace {

// Added to places, so that those a little below 0 are rounded like the others.
constexpr double kShift = 4096;
// Octaves beyond this one change no level.
constexpr int kMostOctaves = 12;
constexpr double kFarthestPlace = 1e8;

// The minimal standard generator of Park and Miller.
class RandomNumbers {
  public:
    explicit RandomNumbers(double seed) {
        constexpr double kMostSeed = 1e9;
        const auto whole = static_cast<std::int64_t>(std::clamp(seed, -kMostSeed, kMostSeed));
        last_ = whole <= 0 ? -(whole % (kModulus - 1)) + 1 : std::min(whole, kModulus - 1);
    }
    int below(int limit) {
        last_ = last_ * kFactor % kModulus;
        return static_cast<int>(last_ % limit);
    }

  private:
    static constexpr std::int64_t kModulus = 2147483647;
    static constexpr std::int64_t kFactor = 16807;
    std::int64_t last_;
};

double smooth(double t) {
    return t * t * (3 - 2 * t);
}

double between(double share, double a, double b) {
    return a + share * (b - a);
}

// The frequency nearest to the one asked for that fits the tile a whole number of times.
double fitting(double frequency, double size) {
    if (!(frequency > 0 && size > 0))
        return frequency;
    const double lower = std::floor(size * frequency) / size;
    const double higher = std::ceil(size * frequency) / size;
    return lower > 0 && frequency / lower < higher / frequency ? lower : higher;
}

int wholeNumber(double value) {
    return static_cast<int>(std::clamp(value, -kFarthestPlace, kFarthestPlace));
}

} // namespace

Turbulence::Turbulence(const drawing::TurbulenceEffect& effect, const drawing::Box& tile)
    : sumsNoise_(effect.kind == drawing::TurbulenceEffect::Kind::Noise), stitches_(effect.stitches),
      octaves_(std::clamp(effect.octaves, 0, kMostOctaves)), frequency_(effect.frequency) {
    makeLattice(effect.seed);
    if (stitches_)
        fitTo(tile);
}

void Turbulence::makeLattice(double seed) {
    RandomNumbers random(seed);
    for (auto& channel : gradients_)
        for (std::size_t i = 0; i < kLattice; ++i) {
            const double x = static_cast<double>(random.below(2 * kLattice) - kLattice) / kLattice;
            const double y = static_cast<double>(random.below(2 * kLattice) - kLattice) / kLattice;
            const double length = std::hypot(x, y);
            channel[i] = length > 0 ? Gradient{x / length, y / length} : Gradient{};
        }
    for (std::size_t i = 0; i < kLattice; ++i)
        order_[i] = static_cast<int>(i);
    for (std::size_t i = kLattice - 1; i > 0; --i)
        std::swap(order_[i], order_[static_cast<std::size_t>(random.below(kLattice))]);
    for (std::size_t i = 0; i < kLattice + 2; ++i) {
        order_[kLattice + i] = order_[i];
        for (auto& channel : gradients_)
            channel[kLattice + i] = channel[i];
    }
}

void Turbulence::fitTo(const drawing::Box& tile) {
    frequency_ = {fitting(frequency_.x, tile.width()), fitting(frequency_.y, tile.height())};
    stitch_.width = wholeNumber(tile.width() * frequency_.x + 0.5);
    stitch_.height = wholeNumber(tile.height() * frequency_.y + 0.5);
    stitch_.wrapX = wholeNumber(tile.left * frequency_.x + kShift + stitch_.width);
    stitch_.wrapY = wholeNumber(tile.top * frequency_.y + kShift + stitch_.height);
}

std::array<double, 4> Turbulence::noise(drawing::Point point, const Stitch* stitch) const {
    const double x = std::clamp(point.x, -kFarthestPlace, kFarthestPlace) + kShift;
    const double y = std::clamp(point.y, -kFarthestPlace, kFarthestPlace) + kShift;
    const int wholeX = static_cast<int>(x);
    const int wholeY = static_cast<int>(y);
    const double left = x - wholeX;
    const double top = y - wholeY;
    const auto cell = [](int place, int wrap, int size) {
        return static_cast<std::size_t>(place >= wrap ? place - size : place) & (kLattice - 1);
    };
    const int wrapX = stitch ? stitch->wrapX : INT32_MAX;
    const int wrapY = stitch ? stitch->wrapY : INT32_MAX;
    const std::size_t x0 = cell(wholeX, wrapX, stitch ? stitch->width : 0);
    const std::size_t x1 = cell(wholeX + 1, wrapX, stitch ? stitch->width : 0);
    const std::size_t y0 = cell(wholeY, wrapY, stitch ? stitch->height : 0);
    const std::size_t y1 = cell(wholeY + 1, wrapY, stitch ? stitch->height : 0);
    const auto corner = [&](std::size_t cx, std::size_t cy) {
        return static_cast<std::size_t>(order_[static_cast<std::size_t>(order_[cx]) + cy]);
    };
    const std::size_t c00 = corner(x0, y0), c10 = corner(x1, y0), c01 = corner(x0, y1), c11 = corner(x1, y1);
    const double smoothX = smooth(left);
    const double smoothY = smooth(top);
    std::array<double, 4> result;
    for (std::size_t i = 0; i < 4; ++i) {
        const auto& gradient = gradients_[i];
        const auto along = [&](std::size_t c, double dx, double dy) {
            return dx * gradient[c].x + dy * gradient[c].y;
        };
        const double upper = between(smoothX, along(c00, left, top), along(c10, left - 1, top));
        const double lower = between(smoothX, along(c01, left, top - 1), along(c11, left - 1, top - 1));
        result[i] = between(smoothY, upper, lower);
    }
    return result;
}

std::array<double, 4> Turbulence::at(drawing::Point point) const {
    std::array<double, 4> sum{};
    drawing::Point place{point.x * frequency_.x, point.y * frequency_.y};
    Stitch stitch = stitch_;
    double share = 1;
    for (int octave = 0; octave < octaves_; ++octave) {
        const auto values = noise(place, stitches_ ? &stitch : nullptr);
        for (std::size_t i = 0; i < 4; ++i)
            sum[i] += (sumsNoise_ ? values[i] : std::abs(values[i])) * share;
        place = place * 2;
        share /= 2;
        const auto twice = [](int wrap) { return wholeNumber(2.0 * wrap - kShift); };
        stitch = {wholeNumber(2.0 * stitch.width), wholeNumber(2.0 * stitch.height), twice(stitch.wrapX),
                  twice(stitch.wrapY)};
    }
    if (sumsNoise_)
        for (double& value : sum)
            value = (value + 1) / 2;
    return sum;
}

Surface turbulence(const drawing::TurbulenceEffect& effect, const drawing::Box& tile,
                   const FilterSpace& space) {
    const Turbulence clouds(effect, tile);
    const drawing::Affine toUnits = space.toPixels.inverse();
    Surface result(space.width, space.height);
    forEachRow(result, [&](int y) {
        for (int x = 0; x < space.width; ++x) {
            const auto [red, green, blue, alpha] =
                clouds.at(toUnits({static_cast<double>(x), static_cast<double>(y)}));
            result.row(y)[x] = pixelOf({static_cast<float>(red), static_cast<float>(green),
                                        static_cast<float>(blue), static_cast<float>(alpha)});
        }
    });
    return result;
}

} // namespace easel::paint
