// What shapes are painted with: plain colors, gradients, patterns and pictures.
#pragma once

#include "easel/drawing/Gradient.h"

#include <memory>
#include <variant>

namespace easel::drawing {

struct ColorPaint {
    Rgb16 color;
    double opacity = 1; // 0 to 1

    friend bool operator==(const ColorPaint&, const ColorPaint&) = default;
};

struct NoPaint {
    friend bool operator==(const NoPaint&, const NoPaint&) = default;
};

struct Pattern;
struct PlacedPicture;

// Never null in a paint.
using GradientPtr = std::shared_ptr<const Gradient>;
using PatternPtr = std::shared_ptr<const Pattern>;
using PicturePtr = std::shared_ptr<const PlacedPicture>;

using Paint = std::variant<NoPaint, ColorPaint, GradientPtr, PatternPtr, PicturePtr>;

// The gradient of a paint that is one, else null.
inline const Gradient* gradientIn(const Paint& paint) {
    const auto* const gradient = std::get_if<GradientPtr>(&paint);
    return gradient ? gradient->get() : nullptr;
}

} // namespace easel::drawing
