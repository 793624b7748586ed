// The path that a text runs along.
#pragma once

#include "easel/svg/read/Scene.h"
#include "easel/type/Text.h"

namespace easel::svg {

// Path and start of a `textPath` element, in the units of the text; an empty path if it refers to none.
type::AlongPath pathOfText(pugi::xml_node textPath, const Scene& scene, const LengthContext& lengths);

} // namespace easel::svg
