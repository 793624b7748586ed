// Finds what a point snaps to.
#include "easel/runtime/Snap.h"

#include "easel/runtime/DrawingWindow.h"

#include <cmath>
#include <optional>

namespace easel::runtime {

namespace {

constexpr double kGridSpacing = 10; // drawing units
constexpr double kReach = 6;        // screen pixels

std::optional<drawing::Point> nearestCorner(const DrawingWindow& window, drawing::Point point) {
    double best = kReach / window.view().zoom;
    std::optional<drawing::Point> found;
    const auto consider = [&](drawing::Point corner) {
        const double distance = length(corner - point);
        if (distance <= best) {
            best = distance;
            found = corner;
        }
    };
    const drawing::Box area = drawing::Box{point.x, point.y, point.x, point.y}.grownBy(best);
    for (const drawing::ObjectPtr& object : window.drawing().objectsWithin(area)) {
        const auto& points = object->outline.points();
        std::size_t next = 0;
        for (const drawing::Verb verb : object->outline.verbs()) {
            if (verb == drawing::Verb::Close)
                continue;
            next += verb == drawing::Verb::Cubic ? 3 : 1;
            consider(points[next - 1]);
        }
    }
    return found;
}

double toGrid(double coordinate) {
    return std::round(coordinate / kGridSpacing) * kGridSpacing;
}

} // namespace

drawing::Point snapped(const DrawingWindow& window, drawing::Point point, const SnapSwitches& switches) {
    if (!isFinite(point))
        return point;
    if (switches.object == Switch::On)
        if (const auto corner = nearestCorner(window, point))
            return *corner;
    if (switches.grid == Switch::On)
        return {toGrid(point.x), toGrid(point.y)};
    return point;
}

} // namespace easel::runtime
