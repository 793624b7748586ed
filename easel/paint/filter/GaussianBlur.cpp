// feGaussianBlur (SVG 1.1, 15.17): the bell curve itself below a deviation of 2 pixels, and three box blurs
// in a row from there on. Columns are blurred; rows become columns for it.
#include "easel/paint/filter/GaussianBlur.h"

#include "easel/paint/filter/Edges.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Transpose.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace easel::paint {

namespace {

constexpr double kLeastForBoxes = 2;
// Of the bell curve less than a hundredth of a level lies beyond so many deviations.
constexpr double kBellReach = 3.9;
// Larger blurs are flat.
constexpr double kLargestDeviation = 20'000;
// Bytes of a row that are blurred together: what they need stays in the nearest cache.
constexpr int kStrip = 256;

// Weights in 65536ths, from the middle outwards.
std::vector<std::uint32_t> bellWeights(double deviation) {
    const auto reach = static_cast<std::size_t>(std::ceil(deviation * kBellReach));
    std::vector<double> exact(reach + 1);
    double sum = 0;
    for (std::size_t i = 0; i <= reach; ++i) {
        const double x = static_cast<double>(i) / deviation;
        exact[i] = std::exp(-x * x / 2);
        sum += i == 0 ? exact[i] : 2 * exact[i];
    }
    std::vector<std::uint32_t> weights(reach + 1);
    std::uint32_t rest = 65536;
    for (std::size_t i = reach; i > 0; --i) {
        weights[i] = static_cast<std::uint32_t>(std::lround(exact[i] / sum * 65536));
        rest -= 2 * weights[i];
    }
    weights[0] = rest;
    return weights;
}

const std::uint8_t* bytesOf(const Surface& picture, int y, int at) {
    return reinterpret_cast<const std::uint8_t*>(picture.row(y)) + at;
}

// The bytes from `begin` to `begin + count` of each row, each of them the sum of those above and below it.
void bellStrip(const Surface& picture, const Edges& edges, Surface& result,
               const std::vector<std::uint32_t>& weights, int begin, int count) {
    std::array<std::uint32_t, kStrip> sums;
    const int reach = static_cast<int>(weights.size()) - 1;
    for (int y = 0; y < picture.height(); ++y) {
        sums.fill(65536 / 2);
        for (int from = y - reach; from <= y + reach; ++from) {
            const int place = edges.placeFor(from);
            if (place < 0)
                continue;
            const std::uint32_t weight = weights[static_cast<std::size_t>(std::abs(from - y))];
            const std::uint8_t* const bytes = bytesOf(picture, place, begin);
            for (int i = 0; i < count; ++i)
                sums[static_cast<std::size_t>(i)] += weight * bytes[i];
        }
        std::uint8_t* const out = reinterpret_cast<std::uint8_t*>(result.row(y)) + begin;
        for (int i = 0; i < count; ++i)
            out[i] = static_cast<std::uint8_t>(sums[static_cast<std::size_t>(i)] >> 16);
    }
}

// Three boxes in a row are sums of sums of sums of differences: of the value that enters the boxes and, at
// multiples of their size, those that leave them.
struct BoxBlur {
    struct Term {
        int delay;
        int factor;
    };

    explicit BoxBlur(double deviation) {
        size = static_cast<int>(std::floor(deviation * 3 * std::sqrt(2 * std::numbers::pi) / 4 + 0.5));
        // Boxes of even size lie half a pixel to either side, and a third one, larger by a pixel, between
        // them.
        if (size % 2 == 1) {
            reach = 3 * (size - 1) / 2;
            terms = {{0, 1}, {size, -3}, {2 * size, 3}, {3 * size, -1}};
            total = std::pow(size, 3);
        } else {
            reach = 3 * size / 2 - 1;
            terms = {{0, 1},        {size, -2},        {size + 1, -1},
                     {2 * size, 1}, {2 * size + 1, 2}, {3 * size + 1, -1}};
            total = std::pow(size, 2) * (size + 1);
        }
    }

    int size;
    int reach;
    double total; // of the weights
    std::vector<Term> terms;
};

// Sums wrap around on their way, but not at their end, where `Whole` holds 255 times the total weight.
template <class Whole, class Real>
void boxStrip(const Surface& picture, const Edges& edges, Surface& result, const BoxBlur& boxes, int begin,
              int count) {
    std::array<Whole, kStrip> once{};
    std::array<Whole, kStrip> twice{};
    std::array<Whole, kStrip> thrice{};
    std::array<Whole, kStrip> change;
    const auto part = static_cast<Real>(1 / boxes.total);
    // What goes on beyond the edge begins as far before the first pixel as its boxes reach.
    const int first = edges.goOn() ? -boxes.reach : 0;
    for (int y = first - boxes.reach; y < picture.height(); ++y) {
        change.fill(0);
        for (const BoxBlur::Term term : boxes.terms) {
            const int from = y + boxes.reach - term.delay;
            const int place = from < first ? -1 : edges.placeFor(from);
            if (place < 0)
                continue;
            const std::uint8_t* const bytes = bytesOf(picture, place, begin);
            const auto factor = static_cast<Whole>(term.factor);
            for (int i = 0; i < count; ++i)
                change[static_cast<std::size_t>(i)] += factor * bytes[i];
        }
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
            thrice[i] += twice[i] += once[i] += change[i];
        if (y < 0)
            continue;
        std::uint8_t* const out = reinterpret_cast<std::uint8_t*>(result.row(y)) + begin;
        for (int i = 0; i < count; ++i) {
            const auto sum = static_cast<std::make_signed_t<Whole>>(thrice[static_cast<std::size_t>(i)]);
            out[i] = static_cast<std::uint8_t>(static_cast<Real>(sum) * part + Real{0.5});
        }
    }
}

template <class Strip> Surface inStrips(const Surface& picture, Strip strip) {
    Surface result(picture.width(), picture.height());
    const int bytes = picture.width() * static_cast<int>(kBytesPerPixel);
    const int strips = (bytes + kStrip - 1) / kStrip;
    inParts(strips, picture.height() * kStrip / 4, [&](int from, int to) {
        for (int i = from; i < to; ++i)
            strip(result, i * kStrip, std::min(kStrip, bytes - i * kStrip));
    });
    return result;
}

Surface columnsBlurred(const Surface& picture, double deviation, const Edges& edges) {
    if (deviation < kLeastForBoxes)
        return inStrips(picture,
                        [&, weights = bellWeights(deviation)](Surface& result, int begin, int count) {
                            bellStrip(picture, edges, result, weights, begin, count);
                        });
    const BoxBlur boxes(std::min(deviation, kLargestDeviation));
    const bool small = boxes.total * 255 < 0x1p31;
    return inStrips(picture, [&](Surface& result, int begin, int count) {
        const auto strip = small ? boxStrip<std::uint32_t, float> : boxStrip<std::uint64_t, double>;
        strip(picture, edges, result, boxes, begin, count);
    });
}

// What is flatter than this changes no level.
constexpr double kLeastDeviation = 0.05;

} // namespace

Surface blurred(const Surface& picture, double deviationX, double deviationY) {
    return blurred(picture, deviationX, deviationY, {.right = picture.width(), .bottom = picture.height()},
                   drawing::EdgeMode::None);
}

Surface blurred(const Surface& picture, double deviationX, double deviationY, const PixelRect& region,
                drawing::EdgeMode edge) {
    const PixelRect whole{.right = picture.width(), .bottom = picture.height()};
    const PixelRect inside = edge == drawing::EdgeMode::None ? whole : region.intersection(whole);
    const Edges columns{inside.left, inside.right, edge};
    const Edges rows{inside.top, inside.bottom, edge};
    const bool sideways = deviationX >= kLeastDeviation;
    const bool down = deviationY >= kLeastDeviation;
    if (!sideways && !down)
        return mapped(picture, [](std::uint32_t pixel) { return pixel; });
    if (!sideways)
        return columnsBlurred(picture, deviationY, rows);
    Surface result = transposed(columnsBlurred(transposed(picture), deviationX, columns));
    return down ? columnsBlurred(result, deviationY, rows) : std::move(result);
}

int blurReach(double deviation) {
    if (!(deviation >= kLeastDeviation))
        return 0;
    if (deviation < kLeastForBoxes)
        return static_cast<int>(std::ceil(deviation * kBellReach));
    return BoxBlur(std::min(deviation, kLargestDeviation)).reach;
}

} // namespace easel::paint
