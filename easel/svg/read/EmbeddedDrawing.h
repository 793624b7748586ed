// Drawings inside drawings.
#pragma once

#include "easel/svg/read/DrawingSize.h"
#include "easel/svg/read/PictureReader.h"

#include <functional>
#include <optional>
#include <vector>

namespace easel::svg {

// What a drawing that is shown as a picture is put into: the map to the outer drawing and a group there, when
// the size it says of itself is known (a side of 0 if it says none).
struct Placement {
    drawing::Affine toDrawing;
    drawing::GroupPtr group;
};
using PlaceEmbedded = std::function<std::optional<Placement>(DrawingSize)>;

// Its objects, which belong to no file. Nothing, which is noted, if it is damaged, leads back to itself, or
// is nested too deep, or if there is no place for it.
std::optional<std::vector<drawing::ObjectPtr>> readEmbedded(const ShapePicture& picture, const Scene& outer,
                                                            const PlaceEmbedded& place);

} // namespace easel::svg
