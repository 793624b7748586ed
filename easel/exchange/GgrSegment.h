// One segment of a GIMP gradient and the colors in it.
#pragma once

#include "easel/exchange/RampApproximation.h"

namespace easel::exchange {

enum class GgrBlending { Linear, Curved, Sine, SphereIncreasing, SphereDecreasing, Step };
enum class GgrColoring { Rgb, HsvCounterClockwise, HsvClockwise };

struct GgrSegment {
    double left = 0;
    double middle = 0.5;
    double right = 1;
    CurveColor leftColor;
    CurveColor rightColor;
    double leftOpacity = 1;
    double rightOpacity = 1;
    GgrBlending blending = GgrBlending::Linear;
    GgrColoring coloring = GgrColoring::Rgb;
    bool hasPaletteColors = false; // an end takes the program's foreground or background color

    // The color at a part, 0 to 1, of the segment.
    CurveColor colorAt(double part) const;
    bool isStraight() const;
};

} // namespace easel::exchange
