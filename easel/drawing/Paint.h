// What shapes are painted with: plain colors and gradients that came from a file and stay as they are.
#pragma once

#include "easel/drawing/Geometry.h"

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

namespace easel::drawing {

// 0 to 65535 a channel.
struct Rgb16 {
    std::uint16_t red = 0;
    std::uint16_t green = 0;
    std::uint16_t blue = 0;

    friend bool operator==(const Rgb16&, const Rgb16&) = default;
};

struct ColorPaint {
    Rgb16 color;
    double opacity = 1; // 0 to 1

    friend bool operator==(const ColorPaint&, const ColorPaint&) = default;
};

struct ForeignStop {
    double offset = 0; // 0 to 1, never below the offset of the stop before it
    Rgb16 color;
    double opacity = 1;

    friend bool operator==(const ForeignStop&, const ForeignStop&) = default;
};

enum class Spread : std::uint8_t { Pad, Reflect, Repeat };

// From point to point; colors are constant across the line, in the gradient's own space.
struct LinearGeometry {
    Point start;
    Point end;

    friend bool operator==(const LinearGeometry&, const LinearGeometry&) = default;
};

// From the circle (focus, focusRadius) to the circle (centre, radius).
struct RadialGeometry {
    Point focus;
    double focusRadius = 0;
    Point centre;
    double radius = 0;

    friend bool operator==(const RadialGeometry&, const RadialGeometry&) = default;
};

// A gradient that the record cannot hold. Opacity is interpolated unpremultiplied, as SVG asks.
struct ForeignGradient {
    std::variant<LinearGeometry, RadialGeometry> geometry;
    Affine toDrawing; // from the gradient's own space to drawing coordinates
    Spread spread = Spread::Pad;
    std::vector<ForeignStop> stops; // at least one

    friend bool operator==(const ForeignGradient&, const ForeignGradient&) = default;
};

struct NoPaint {
    friend bool operator==(const NoPaint&, const NoPaint&) = default;
};

// A foreign gradient in a paint is never null.
using Paint = std::variant<NoPaint, ColorPaint, std::shared_ptr<const ForeignGradient>>;

} // namespace easel::drawing
