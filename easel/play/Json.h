// How scenarios print numbers.
#pragma once

#include "easel/drawing/Geometry.h"

#include <nlohmann/json.hpp>

namespace easel::play {

using Json = nlohmann::ordered_json;

// A number so that reading it back gives the same double; "inf", "-inf" or "nan" for what JSON lacks.
Json jsonNumber(double value);
// [h, v]
Json jsonPoint(drawing::Point point);

} // namespace easel::play
