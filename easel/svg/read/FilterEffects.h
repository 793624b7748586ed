// What the steps of a filter do.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/svg/read/FilterAttributes.h"

#include <optional>
#include <string_view>

namespace easel::svg {

// The effect of an element, by its name; nothing for one that is none, and for feImage, which takes more than
// its attributes. An effect that its numbers disable is one that changes nothing.
std::optional<drawing::FilterEffect> filterEffect(std::string_view name, const FilterAttributes& attributes);

// As feColorMatrix has them: 0 takes all saturation away, 1 leaves it.
drawing::ColorMatrixEffect saturation(double amount);
drawing::ColorMatrixEffect hueRotation(double degrees);
// Changes nothing.
drawing::ColorMatrixEffect identityMatrix();

std::optional<drawing::FilterEffect> lightingEffect(std::string_view name,
                                                    const FilterAttributes& attributes);

} // namespace easel::svg
