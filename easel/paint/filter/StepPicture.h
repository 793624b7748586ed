// What one step of a filter makes of its inputs.
#pragma once

#include "easel/paint/filter/FilterSpace.h"

#include <memory>
#include <vector>

namespace easel::paint {

// Pictures of the size of the space, in the step's kind of colors.
struct StepInputs {
    std::vector<std::shared_ptr<const Surface>> pictures;
    PixelRect firstRegion; // what the first of them covers, which may be more than the space shows
};

// The step's picture, not yet narrowed to its region. That of an image is in sRGB, any other in the step's
// kind of colors.
Surface stepPicture(const drawing::FilterStep& step, const StepInputs& inputs, const FilterSpace& space,
                    const ImagePainting& paintImage);

void clearOutside(Surface& picture, const PixelRect& region);

} // namespace easel::paint
