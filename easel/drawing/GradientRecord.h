// Gradient records and the standard gradients that look the same.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/Path.h"
#include "host/Gradient.h"

#include <optional>

namespace easel::drawing {

// The record that looks the same as the gradient on this outline (in drawing coordinates). Any opaque linear
// gradient has one that the outline meets between its ends or with flat ends, and so has any opaque circular
// one whose focus is inside its circle. Nothing for the others.
std::optional<CGradientData> recordFor(const Gradient& gradient, const Path& outline);

// The standard gradient, in drawing coordinates, that looks like the record on this outline. Nothing if the
// fitted geometry is not finite or the record has no stops.
std::optional<Gradient> standardGradient(const CGradientData& record, const Path& outline);

// Whether two gradients look the same but for rounding: equal stops, and geometries that differ by little
// beside their size.
bool alike(const Gradient& a, const Gradient& b);

} // namespace easel::drawing
