// Which color stop a place on the ramp means.
#include "Gradient/editor/StopSearch.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kReachInPixels = 10.0;
/// Distances that differ by less count as equal. A stop that was set lies where single precision puts it, up
/// to half of this beside the pixel that was meant, which must not decide what a click at a whole pixel
/// means. Even on the widest ramp this is a five-hundredth of a pixel.
constexpr double kSameDistance = std::numeric_limits<float>::epsilon() / 2;

} // namespace

ActiveStop FindStopNear(std::list<CGradientColor>& colors, double position, short rampWidth) {
    ActiveStop nearest = colors.begin();
    double least = std::numeric_limits<double>::max();
    for (auto stop = colors.begin(); stop != colors.end(); ++stop) {
        double const distance = std::abs(stop->Percent() - position);
        if (distance + kSameDistance < least) {
            nearest = stop;
            least = distance;
        }
    }
    return kReachInPixels / rampWidth + kSameDistance >= least ? nearest : colors.end();
}
