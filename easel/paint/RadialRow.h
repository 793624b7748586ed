// One row of a two-circle gradient as formulas in the pixel's index.
#pragma once

#include "easel/paint/ParameterMap.h"

namespace easel::paint {

// Pixels begin (inclusive) to end (exclusive), before they are cut to whole pixels of a surface.
struct PixelInterval {
    double begin;
    double end;
};

// With u = x - lowest for the pixel at index x: parameter = scale (sqrt(u u + height) + lean u) + base.
class RadialRow {
  public:
    // The start circle must lie inside the end circle.
    RadialRow(const RadialMap& map, int y);

    double lowest;
    double height;
    double rootOfHeight;
    double lean;
    double scale;
    double base;

    // sqrt(u u + height) + lean u at a pixel.
    double distance(double x) const;
    // The pixels whose parameter is less than the given one; begin is not below end if there is none.
    PixelInterval below(double parameter) const;

  private:
    const RadialMap& map_;
    drawing::Point origin_; // pixel 0's centre from the start circle's, in gradient coordinates
    drawing::Point step_;   // from a pixel to its right neighbor
    double inverseSquare_;  // of the step's length
};

} // namespace easel::paint
