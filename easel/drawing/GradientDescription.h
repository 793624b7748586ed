// Describes any gradient on a shape as the tool's record and the remainder that stays beside it.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/Remainder.h"
#include "host/Gradient.h"

namespace easel::drawing {

// What record and remainder cannot say, so that they are only near to the gradient.
enum class Loss : std::uint8_t {
    None,
    Focus,   // the focus lies on the end circle or outside it
    Repeats, // it repeats more often than a record has room for
    Extent,  // it has none that can be computed with
};

struct GradientDescription {
    CGradientData record;
    Remainder remainder;
    Loss loss = Loss::None;
};

// Record and remainder that look the same as the gradient on this outline (in drawing coordinates), but for
// what `loss` names.
GradientDescription describe(const Gradient& gradient, const Path& outline);

} // namespace easel::drawing
