// Runs the steps of a filter.
#pragma once

#include "easel/paint/filter/FilterSpace.h"
#include "easel/paint/pixels/WorkQueue.h"

#include <memory>

namespace easel::paint {

// What the filter makes of the source, which has the size that the space says. `paintImage` is called at most
// once for each step. Outside of the source all is transparent. Throws GivenUp where that becomes unwanted.
std::shared_ptr<const Surface> filtered(const drawing::Filter& filter, Surface source,
                                        const FilterSpace& space, const ImagePainting& paintImage,
                                        const Unwanted* unwanted = nullptr);

} // namespace easel::paint
