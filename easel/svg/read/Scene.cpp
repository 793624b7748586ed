#include "easel/svg/read/Scene.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace easel::svg {

namespace {
// Far beyond any drawing, and small enough that no later computation overflows.
constexpr double kFarthest = 1e9;
} // namespace

bool inRange(double value) {
    return std::abs(value) <= kFarthest;
}

Place placeAround(const Scene& scene, pugi::xml_node element) {
    std::vector<pugi::xml_node> around;
    for (pugi::xml_node above = element.parent(); above.type() == pugi::node_element; above = above.parent())
        around.push_back(above);
    scene.budget.spend(around.size());
    Place place;
    for (auto it = around.rbegin(); it != around.rend(); ++it) {
        const StatedStyle stated = scene.cascade.of(*it, place.style.custom);
        place.style = place.style.inherited(stated, place.lengths);
        if (it == around.rbegin())
            place.lengths.rootFontSize = place.lengths.fontSize;
    }
    return place;
}

std::optional<drawing::Path> placedPath(drawing::Path path, const drawing::Affine& toDrawing) {
    path.transform(toDrawing);
    const auto near = [](drawing::Point p) { return inRange(p.x) && inRange(p.y); };
    const auto points = path.points();
    if (!std::all_of(points.begin(), points.end(), near))
        return std::nullopt;
    return path;
}

} // namespace easel::svg
