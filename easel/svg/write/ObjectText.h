// Objects that no file holds yet, as elements of their own.
#pragma once

#include "easel/svg/write/GradientText.h"

#include <string>

namespace easel::svg {

// One element without children, for a place whose units `placeToDrawing` maps to the drawing.
std::string objectText(const drawing::Object& object, const drawing::Affine& placeToDrawing,
                       const std::string& prefix, GradientBlock& gradients);

} // namespace easel::svg
