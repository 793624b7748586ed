// How near pixels are to the gradient's exact color, by a plain evaluation of our own in double precision.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/paint/pixels/Surface.h"

#include <optional>

namespace bench {

struct Accuracy {
    double largestError = 0; // levels
    long offByMoreThanOne = 0;
};

// Over all pixels of a surface that was filled on `background`, opaque. Padded gradients without a map of
// their own.
Accuracy accuracyOf(const easel::paint::Surface& surface, const easel::drawing::Gradient& gradient,
                    std::uint32_t background);

// The largest error, in levels, of the coverage of a white polygon on black in the rows from top to bottom.
// The polygon winds once about what it holds.
double coverageError(const easel::drawing::Path& polygon, int top, int bottom);

// How many of the colors' jumps, put all over a row of 3840 pixels, fall on a wrong pixel.
int misplacedJumps();

} // namespace bench
