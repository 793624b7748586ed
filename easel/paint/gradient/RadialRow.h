// Rows of a two-circle gradient as formulas in the pixel's index.
#pragma once

#include "easel/paint/gradient/ParameterMap.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

// A stretch of a row, in pixels; empty unless begin is less than end.
struct PixelInterval {
    double begin;
    double end;
};

// What the circle of one parameter has to do with all rows alike.
struct RowCircle {
    double radiusSquared; // in pixels; negative if there is no such circle
    double shift;         // of its centre along the rows
    double rise;          // of its centre across the rows
};

// What all rows of a gradient have in common.
class RadialRows {
  public:
    // The start circle must lie inside the end circle.
    explicit RadialRows(const RadialMap& map);

    RowCircle circle(double parameter) const;
    // Of the parameter, per pixel, far from the centre.
    double scale() const { return scale_; }

  private:
    friend class RadialRow;

    RadialMap map_;
    drawing::Point step_; // from a pixel to its right neighbor
    double stepSquared_;
    double depth_;
    double b1_;
    double curvature_;
    double scale_;
    double lean_;
};

// With u = x - lowest for the pixel at index x: parameter = scale (sqrt(u u + height) + lean u) + base.
class RadialRow {
  public:
    RadialRow(const RadialRows& rows, int y);

    double lowest;
    double height;
    double lean;
    double scale;
    double base;

    // The pixels inside a circle.
    PixelInterval inside(const RowCircle& circle) const;
    // At least as large as sqrt(u u + height) + |lean u| for the pixels from begin to end.
    double farthest(int begin, int end) const {
        const double away = std::max(std::abs(begin - lowest), std::abs(end - lowest));
        return (away + rootOfHeight_) * (1 + std::abs(lean));
    }

  private:
    double along_;  // where the start circle's centre is nearest to the row
    double across_; // how far away it is
    double rootOfHeight_;
};

} // namespace easel::paint
