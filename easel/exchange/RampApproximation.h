// Curves of colors as stops, between which a ramp is straight.
#pragma once

#include "host/Gradient.h"

#include <functional>
#include <list>

namespace easel::exchange {

// Channels from 0 to 1.
struct CurveColor {
    double red = 0;
    double green = 0;
    double blue = 0;
};

CurveColor between(const CurveColor& a, const CurveColor& b, double part);

RGBColor rounded(const CurveColor& color);

// The color at a part (0 to 1) of the way.
using ColorCurve = std::function<CurveColor(double)>;

// Adds a stop unless it repeats the last one.
void addStop(std::list<CGradientColor>& stops, double position, const RGBColor& color);

// Adds stops from one position to another, both included, so many that the straight ramp between them stays
// within half an 8-bit level of the curve.
void addCurve(std::list<CGradientColor>& stops, double from, double to, const ColorCurve& curve);

// How far a transition between two colors has got, at a part of the way, when half of it is reached at
// `middle`.
double easedBy(double part, double middle);

} // namespace easel::exchange
