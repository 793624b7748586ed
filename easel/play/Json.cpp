// Writes numbers as JSON.
#include "easel/play/Json.h"

#include <cmath>

namespace easel::play {

Json jsonNumber(double value) {
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "inf" : "-inf";
    return value;
}

Json jsonPoint(drawing::Point point) {
    return Json::array({jsonNumber(point.x), jsonNumber(point.y)});
}

} // namespace easel::play
