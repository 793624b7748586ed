// How a marker element fits its content to a vertex.
#pragma once

#include "easel/svg/read/MarkerVertices.h"
#include "easel/svg/text/Length.h"

#include <optional>
#include <pugixml.hpp>

namespace easel::svg {

struct MarkerFrame {
    drawing::Affine toShape;      // from the units of the marker's viewport to those of the shape
    drawing::Affine toViewport;   // from the units of its content
    drawing::Box viewport;        // outside of which nothing shows, unless overflow is visible
    double width = 0, height = 0; // of what percentages in the content are of
};

// Nothing for a marker without extent. `strokeWidth` is that of the shape.
std::optional<MarkerFrame> markerFrame(pugi::xml_node marker, const MarkerVertex& vertex, double strokeWidth,
                                       const LengthContext& lengths);

} // namespace easel::svg
