// The fills that are measured: gradients and shapes on a surface of 3840 by 2160 pixels.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"

#include <optional>
#include <string>
#include <vector>

namespace bench {

constexpr int kWidth = 3840;
constexpr int kHeight = 2160;

struct PixelWork {
    std::string name;
    double goal; // times Cairo's speed
    easel::drawing::Gradient gradient;
    std::optional<easel::drawing::Path> shape; // none: the whole surface
};

std::vector<PixelWork> pixelWorks();

// One of many small fills.
struct SmallFill {
    easel::drawing::Path shape;
    easel::drawing::Gradient gradient;
};

// Stars of 40 pixels with three stops each, all over the surface.
std::vector<SmallFill> smallStars(int count);

// A ramp of evenly spaced stops in strong colors.
easel::drawing::Ramp rampOf(int stops);

} // namespace bench
