// View boxes and how they are fitted into viewports.
#pragma once

#include "easel/drawing/Geometry.h"

#include <optional>
#include <string_view>

namespace easel::svg {

struct ViewBox {
    double x = 0, y = 0, width = 0, height = 0;
};

// Nothing unless the text is four numbers, the last two above 0.
std::optional<ViewBox> parseViewBox(std::string_view text);

// The map from the view box to the viewport, as `preserveAspectRatio` says.
drawing::Affine fitViewBox(const ViewBox& viewBox, std::string_view preserveAspectRatio,
                           const drawing::Box& viewport);

} // namespace easel::svg
