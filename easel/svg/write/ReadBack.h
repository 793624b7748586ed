// Reads what is about to be written, before it takes the place of anything.
#pragma once

#include "easel/drawing/Snapshot.h"

#include <optional>
#include <string>

namespace easel::svg {

// Whether the bytes, not compressed, give every object whose fill was changed or added just that fill again:
// its record and remainder to the bit, or its color; and every changed stroke its paint, but for rounding. If
// not, what would be lost, for a message that begins with the file's name.
std::optional<std::string> lostIn(const std::string& bytes, const drawing::Snapshot& drawing);

} // namespace easel::svg
