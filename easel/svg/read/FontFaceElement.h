// The elements `font-face` that name a font which is elsewhere, as the rule @font-face does.
#pragma once

#include "easel/svg/style/FontFace.h"
#include "easel/svg/text/XmlTree.h"

#include <vector>

namespace easel::svg {

// In the order of the text. Those that say how the `font` element looks that they are in are none of them.
std::vector<FontFace> readFontFaces(const XmlTree& tree);

} // namespace easel::svg
