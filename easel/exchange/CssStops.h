// The color stops of a CSS gradient.
#pragma once

#include "easel/files/Result.h"
#include "host/Gradient.h"

#include <list>
#include <set>
#include <span>
#include <string>
#include <string_view>

namespace easel::exchange {

// What is said once however often it occurs.
using Notes = std::set<std::string>;

constexpr const char* kColorSpaceNote = "its color space is left out: colors are mixed as they are in sRGB";

// Whether the part of a gradient's list is a color with or without positions.
bool isColorStop(std::string_view part);

// The stops of those parts of the list, or the reason why there are none; the error names no file.
files::Result<std::list<CGradientColor>> stopsFrom(std::span<const std::string_view> parts, Notes& notes);

} // namespace easel::exchange
