// Masks: objects whose picture says how much of a layer shows.
#pragma once

#include "easel/drawing/SharedPtr.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace easel::drawing {

struct Object;

enum class MaskMeasure : std::uint8_t {
    Luminance,       // of the colors as they are stored, times opacity
    LinearLuminance, // of the light that the colors stand for, times opacity
    Alpha
};

// Where its objects leave nothing, nothing shows.
struct Mask {
    // Back to front, in drawing coordinates. Their groups are theirs alone.
    std::vector<SharedPtr<const Object>> objects;
    MaskMeasure measure = MaskMeasure::Luminance;
};

using MaskPtr = std::shared_ptr<const Mask>;

} // namespace easel::drawing
