// A stored gradient on a rectangle: its color at every point.
#pragma once

#include "host/Gradient.h"

class GradientFill {
  public:
    /// Fits the record, which must have a stop, to a rectangle. The record has to outlive this.
    GradientFill(CGradientData const& record, TRect<double> const& box);

    /// The color at a point in the coordinates of the rectangle.
    [[nodiscard]] RGBColor ColorAt(TPoint<double> const& point) const;

  private:
    [[nodiscard]] double LinearParameter(TPoint<double> const& point) const;
    [[nodiscard]] double RadialParameter(TPoint<double> const& point) const;

    CGradientData const& record_;
    /// Linear: where a point lies along the direction, and between which two values the rectangle does.
    CosSin direction_;
    double first_ = 0;
    double last_ = 0;
    /// Radial: from a point to a circle.
    TPoint<double> start_;
    TPoint<double> end_;
    double radius_ = 0;
};
