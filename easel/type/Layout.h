// Places the letters of a text.
#pragma once

#include "easel/type/Text.h"
#include "easel/type/Typesetter.h"

#include <cstddef>
#include <functional>

namespace easel::type {

// Lays the text out, from the origin on unless its characters say where. `spend` is told how many points an
// outline will have before it is made, and may throw.
PlacedText layOut(const Text& text, Typesetter& typesetter, const std::function<void(std::size_t)>& spend);

} // namespace easel::type
