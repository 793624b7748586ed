// How an object is painted apart from its fill: stroke, opacity and order, and by which letters. One style
// serves many objects.
#pragma once

#include "easel/drawing/Paint.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace easel::type {
struct SetText;
}

namespace easel::drawing {

enum class LineJoin : std::uint8_t { Miter, Round, Bevel };
enum class LineCap : std::uint8_t { Butt, Round, Square };
enum class PaintStep : std::uint8_t { Fill, Stroke };

// Lengths are in the units that `penUnitsOf` takes to the drawing.
struct Stroke {
    Paint paint; // without paint nothing is stroked
    double opacity = 1;
    double width = 1;
    LineJoin join = LineJoin::Miter;
    LineCap cap = LineCap::Butt;
    double miterLimit = 4;
    std::vector<double> dashes; // an even number of lengths, none negative, not all 0; empty for a solid line
    double dashOffset = 0;
    bool inDrawingUnits = false; // lengths are in drawing units, not in the object's own

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

struct Style {
    Stroke stroke;
    double fillOpacity = 1; // multiplies every kind of fill
    double opacity = 1;     // of fill and stroke painted together
    PaintStep first = PaintStep::Fill;
    // The letters that the outline is made of, in the units that `unitsOf` takes to the drawing; null: not of
    // any.
    std::shared_ptr<const type::SetText> text;

    friend bool operator==(const Style&, const Style&) = default;
};

// Whether the stroke leaves any mark.
bool strokes(const Style& style);

// How far the stroke may reach from the outline, in the units of its lengths.
double strokeReach(const Style& style);

} // namespace easel::drawing
