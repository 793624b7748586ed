// How near pixels are to the gradient's exact color, by a plain evaluation of our own in double precision.
#pragma once

#include "benchmarks/Report.h"
#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "easel/paint/pixels/Surface.h"

#include <cstdint>
#include <string>

namespace bench {

struct Accuracy {
    double largestError = 0; // levels
    long offByMoreThanOne = 0;
};

// Over all pixels of a surface that was filled on `background`, opaque. Padded gradients only.
Accuracy accuracyOf(const easel::paint::Surface& surface, const easel::drawing::Gradient& gradient,
                    std::uint32_t background);

// Fills a surface of one color with the gradient and reports how exact its pixels are.
void checkExactness(Report& report, const std::string& table, easel::paint::Surface& surface,
                    const std::string& name, const easel::drawing::Gradient& gradient,
                    std::uint32_t background);

// The largest error, in levels, of the coverage of a white polygon on black in the rows from top to bottom.
// The polygon winds once about what it holds.
double coverageError(const easel::drawing::Path& polygon, int top, int bottom);

// How many of the colors' jumps, put all over a row of 3840 pixels, fall on a wrong pixel.
int misplacedJumps();

} // namespace bench
