// feComposite (SVG 1.1, 15.12; Compositing and Blending, 9.1), on colors that are multiplied by alpha.
#include "easel/paint/filter/Composite.h"

#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"

namespace easel::paint {

namespace {

using drawing::CompositeEffect;

// Of each channel, `partAbove` 255ths of the pixel above and `partBelow` of the one below.
std::uint32_t porterDuff(std::uint32_t above, std::uint32_t below, std::uint32_t partAbove,
                         std::uint32_t partBelow) {
    const std::uint32_t one = shareOf(above, partAbove);
    const std::uint32_t other = shareOf(below, partBelow);
    std::uint32_t result = 0;
    for (unsigned shift = 0; shift < 32; shift += 8)
        result |= std::min((one >> shift & 0xFF) + (other >> shift & 0xFF), 255u) << shift;
    return result;
}

std::uint32_t over(std::uint32_t above, std::uint32_t below) {
    const std::uint32_t alpha = alphaLevel(above);
    return alpha == 255 ? above : above == 0 ? below : porterDuff(above, below, 255, 255 - alpha);
}

Surface arithmetic(const std::array<double, 4>& k, const Surface& above, const Surface& below) {
    const auto k1 = static_cast<float>(k[0] / 255);
    const auto k2 = static_cast<float>(k[1]);
    const auto k3 = static_cast<float>(k[2]);
    const auto k4 = static_cast<float>(k[3] * 255);
    return combined(above, below, [=](std::uint32_t a, std::uint32_t b) {
        std::array<float, 4> one = partsOf(a);
        const std::array<float, 4> other = partsOf(b);
        for (std::size_t i = 0; i < 4; ++i)
            one[i] = k1 * one[i] * other[i] + k2 * one[i] + k3 * other[i] + k4;
        return pixelOfParts(one);
    });
}

} // namespace

Surface composite(const CompositeEffect& effect, const Surface& above, const Surface& below) {
    using Operator = CompositeEffect::Operator;
    const auto parts = [&](auto ofAbove, auto ofBelow) {
        return combined(above, below, [=](std::uint32_t a, std::uint32_t b) {
            return porterDuff(a, b, ofAbove(alphaLevel(b)), ofBelow(alphaLevel(a)));
        });
    };
    const auto all = [](std::uint32_t) { return 255u; };
    const auto none = [](std::uint32_t) { return 0u; };
    const auto inside = [](std::uint32_t alpha) { return alpha; };
    const auto outside = [](std::uint32_t alpha) { return 255 - alpha; };
    switch (effect.how) {
    case Operator::In:
        return parts(inside, none);
    case Operator::Out:
        return parts(outside, none);
    case Operator::Atop:
        return parts(inside, outside);
    case Operator::Xor:
        return parts(outside, outside);
    case Operator::Lighter:
        return parts(all, all);
    case Operator::Arithmetic:
        return arithmetic(effect.k, above, below);
    case Operator::Over:
        break;
    }
    return combined(above, below, over);
}

void layOver(Surface& below, const Surface& above) {
    forEachRow(below, [&](int y) {
        std::uint32_t* const to = below.row(y);
        const std::uint32_t* const from = above.row(y);
        for (int x = 0; x < below.width(); ++x)
            to[x] = over(from[x], to[x]);
    });
}

} // namespace easel::paint
