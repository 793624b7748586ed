// What is worth being painted beside the window, and kept.
#pragma once

#include "easel/drawing/Object.h"
#include "easel/drawing/Pattern.h"

#include <span>

namespace easel::paint {

// Pictures have to be decoded, and filters computed; patterns and masks may hold either, or very much.
bool takesLong(const drawing::Pattern& pattern);
bool takeLong(std::span<const drawing::ObjectPtr> objects);

// Whether nothing in the object takes longer than its outline.
bool isPlain(const drawing::Object& object);

} // namespace easel::paint
