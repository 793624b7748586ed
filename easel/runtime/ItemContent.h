// What a program has drawn in an item of a dialog, as far as that tells what the item shows.
#pragma once

#include "easel/drawing/Color.h"
#include "easel/paint/pixels/PixelGeometry.h"
#include "host/Gradient.h"

#include <optional>
#include <vector>

namespace easel::runtime {

// A gradient as it fills an area; start, end and radii of the record are absolute.
struct ShownGradient {
    paint::PixelRect area;
    CGradientData record;
};

// A program that draws an item itself gives the host no other word of what the item means. People who see it
// go by what is drawn, so the host does the same for those who work with keys or do not see the screen: it
// keeps what was drawn beside its pixels. The record that fills a ramp tells colors and exact places, but it
// has stops added at its ends; the marks below it tell which stops there are and which one is active.
struct ItemContent {
    std::optional<drawing::Rgb16> color; // all of the item is painted with it
    std::optional<ShownGradient> gradient;
    std::vector<paint::PixelPoint> marks; // where polygons begin that were framed, as they were drawn
    std::optional<paint::PixelPoint> filledMark;

    void framedMark(paint::PixelPoint mark);
    void paintedMark(paint::PixelPoint mark) { filledMark = mark; }
    // Takes away the marks that lie in the area.
    void erased(const paint::PixelRect& area);
};

} // namespace easel::runtime
