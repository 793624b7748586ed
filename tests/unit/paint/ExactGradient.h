// An independent account of what a gradient's pixels should be, in extended precision and without any
// shortcut.
#pragma once

#include "easel/drawing/Gradient.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <vector>

namespace exact {

using Real = long double;

struct Color {
    Real red, green, blue, opacity;
};

inline Color exactly(const easel::drawing::RampStop& stop) {
    return {stop.color.red / Real{257}, stop.color.green / Real{257}, stop.color.blue / Real{257},
            stop.opacity};
}

// Stops in ascending order are assumed.
inline Color colorAt(const std::vector<easel::drawing::RampStop>& stops, Real t) {
    if (t < stops.front().position)
        return exactly(stops.front());
    std::size_t lower = 0;
    while (lower + 1 < stops.size() && stops[lower + 1].position <= t)
        ++lower;
    if (lower + 1 == stops.size())
        return exactly(stops.back());
    const Color a = exactly(stops[lower]);
    const Color b = exactly(stops[lower + 1]);
    const Real f = (t - stops[lower].position) / (Real{stops[lower + 1].position} - stops[lower].position);
    const auto mix = [&](Real from, Real to) { return from * (1 - f) + to * f; };
    return {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), mix(a.opacity, b.opacity)};
}

inline Real wrapped(Real t, easel::drawing::Spread spread) {
    if (spread == easel::drawing::Spread::Pad)
        return t;
    const Real whole = std::floor(t);
    const Real part = t - whole;
    const bool odd = std::fmod(whole, Real{2}) != 0;
    return spread == easel::drawing::Spread::Reflect && odd ? 1 - part : part;
}

struct Place {
    Real x, y;
};

// Solves for the point that the map takes to (x, y), by Cramer's rule.
inline Place undone(const easel::drawing::Affine& map, Real x, Real y) {
    const Real dx = x - map.e;
    const Real dy = y - map.f;
    const Real det = Real{map.a} * map.d - Real{map.b} * map.c;
    return {(dx * map.d - dy * map.c) / det, (dy * map.a - dx * map.b) / det};
}

inline std::optional<Real> parameter(const easel::drawing::LinearGeometry& line, Place p) {
    const Real dx = Real{line.end.x} - line.start.x;
    const Real dy = Real{line.end.y} - line.start.y;
    return ((p.x - line.start.x) * dx + (p.y - line.start.y) * dy) / (dx * dx + dy * dy);
}

// The largest t whose circle passes through the point. The distance from the circle is one function of t
// whose zeros are found from the quadratic in the textbook way, the leading coefficient zero being its own
// case.
inline std::optional<Real> parameter(const easel::drawing::RadialGeometry& circles, Place p) {
    const Real cx = Real{circles.centre.x} - circles.focus.x;
    const Real cy = Real{circles.centre.y} - circles.focus.y;
    const Real dr = Real{circles.radius} - circles.focusRadius;
    const Real px = p.x - circles.focus.x;
    const Real py = p.y - circles.focus.y;
    const Real a = cx * cx + cy * cy - dr * dr;
    const Real b = px * cx + py * cy + circles.focusRadius * dr;
    const Real c = px * px + py * py - Real{circles.focusRadius} * circles.focusRadius;
    std::vector<Real> roots;
    if (a == 0) {
        if (b != 0)
            roots.push_back(c / (2 * b));
    } else if (const Real discriminant = b * b - a * c; discriminant >= 0) {
        roots = {(b + std::sqrt(discriminant)) / a, (b - std::sqrt(discriminant)) / a};
    }
    std::optional<Real> best;
    for (const Real t : roots)
        if (circles.focusRadius + t * dr >= 0 && (!best || t > *best))
            best = t;
    return best;
}

// What is at a place of the drawing; nothing where no circle passes.
inline std::optional<Real> parameterAt(const easel::drawing::Gradient& gradient, Real x, Real y) {
    const Place p = undone(gradient.toDrawing, x, y);
    return std::visit([&](const auto& geometry) { return parameter(geometry, p); }, gradient.geometry);
}

// Blue, green, red, alpha of a pixel after `color` is laid over it.
struct Levels {
    Real channel[4];
};

inline Levels over(std::uint32_t pixel, const Color& color, Real share) {
    const Real weight = color.opacity * share;
    const Real source[4] = {color.blue, color.green, color.red, 255};
    Levels result{};
    for (int i = 0; i < 4; ++i) {
        const Real below = (pixel >> (8 * i)) & 0xFF;
        result.channel[i] = source[i] * weight + below * (1 - weight);
    }
    return result;
}

inline Real difference(const Levels& wanted, std::uint32_t pixel) {
    Real largest = 0;
    for (int i = 0; i < 4; ++i)
        largest = std::max(largest, std::abs(wanted.channel[i] - Real((pixel >> (8 * i)) & 0xFF)));
    return largest;
}

} // namespace exact
