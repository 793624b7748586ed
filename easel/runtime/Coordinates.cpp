// A pixel is one by zoom drawing units wide.
#include "easel/runtime/Coordinates.h"

#include <algorithm>
#include <cmath>

namespace easel::runtime {
namespace {

constexpr int kMostDecimals = 3;

} // namespace

int decimalsAt(double zoom) {
    return std::clamp(static_cast<int>(std::ceil(std::log10(zoom))), 0, kMostDecimals);
}

} // namespace easel::runtime
