// Pictures as elements that hold their data themselves.
#pragma once

#include "easel/drawing/Picture.h"

#include <string>

namespace easel::svg {

// The attributes of an `image` element whose units are the picture's pixels.
std::string pictureAttributes(const drawing::Picture& picture);

// " image-rendering=..."; nothing for a smooth one.
std::string renderingText(const drawing::PlacedPicture& picture);

} // namespace easel::svg
