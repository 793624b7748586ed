// Random gradients, and how far their painted pixels are from the extended-precision account.
#pragma once

#include "easel/paint/Painter.h"
#include "tests/unit/paint/ExactGradient.h"

#include <random>

namespace random_gradients {

using namespace easel;
using drawing::Spread;

// In levels.
constexpr double kLargestError = 0.51;

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine_);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
    bool coin() { return whole(0, 1) == 1; }
    drawing::Rgb16 color() {
        const auto channel = [&] { return static_cast<std::uint16_t>(whole(0, 65535)); };
        return {channel(), channel(), channel()};
    }
    drawing::Point point(int width, int height) { return {real(-40, width + 40), real(-40, height + 40)}; }

  private:
    std::mt19937 engine_;
};

enum class Opacity { Opaque, Mixed };

inline std::vector<drawing::RampStop> randomStops(Dice& dice, int count, Opacity opacity) {
    std::vector<drawing::RampStop> stops;
    for (int i = 0; i < count; ++i)
        stops.push_back({dice.real(0, 1), dice.color(), opacity == Opacity::Opaque ? 1 : dice.real(0, 1)});
    // Some jumps.
    for (int i = 1; i < count; i += 3)
        stops[static_cast<std::size_t>(i)].position = stops[static_cast<std::size_t>(i - 1)].position;
    std::stable_sort(stops.begin(), stops.end(), [](auto& a, auto& b) { return a.position < b.position; });
    return stops;
}

// A pixel so near to a jump that the last bit of the parameter decides about it may have either color.
inline exact::Real errorAt(const drawing::Gradient& gradient, int x, int y, std::uint32_t before,
                           std::uint32_t after, double opacity) {
    const auto t = exact::parameterAt(gradient, x + exact::Real{0.5}, y + exact::Real{0.5});
    if (!t)
        return before == after ? 0 : 255;
    exact::Real least = 1000;
    for (const exact::Real nudge : {0.0L, 1e-12L, -1e-12L}) {
        const exact::Real position = exact::wrapped(*t + nudge * (1 + std::abs(*t)), gradient.spread);
        const exact::Color color = exact::colorAt(gradient.ramp.stops(), position);
        least = std::min(least, exact::difference(exact::over(before, color, opacity), after));
    }
    return least;
}

inline exact::Real largestError(const drawing::Gradient& gradient, int width, int height,
                                std::uint32_t background, double opacity = 1) {
    paint::Surface surface(width, height);
    surface.clear(background);
    paint::Painter().fillAll(surface.view(), {}, &gradient, opacity);
    exact::Real largest = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            largest = std::max(largest, errorAt(gradient, x, y, background, surface.row(y)[x], opacity));
    return largest;
}

inline drawing::Affine randomMap(Dice& dice) {
    return drawing::Affine::translation(dice.real(-50, 50), dice.real(-50, 50)) *
           drawing::Affine::rotation(dice.real(0, 7)) *
           drawing::Affine{
               dice.real(0.3, 2), dice.real(-0.5, 0.5), dice.real(-0.5, 0.5), dice.real(0.3, 2), 0, 0};
}

} // namespace random_gradients
