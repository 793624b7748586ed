// Groups of elements that are filtered. Each filter of a list has a group of its own in that of the next.
#include "easel/svg/read/TreeReader.h"

#include <algorithm>
#include <utility>

namespace easel::svg {

namespace {

// Elements that filters show may be filtered, which are read by recursion.
constexpr std::size_t kDeepestImage = 4;

} // namespace

// Filters see the object as opaque as it is without its opacity, which is the group's.
void TreeReader::moveOpacity(drawing::Object& object, drawing::Group& group) {
    group.isolated = true;
    group.opacity = drawing::styleOf(object).opacity;
    if (group.opacity == 1)
        return;
    drawing::Style style = *object.style;
    style.opacity = 1;
    object.style = std::make_shared<const drawing::Style>(std::move(style));
}

TreeReader::FilteredGroups TreeReader::addFiltered(Place& place, const std::shared_ptr<drawing::Group>& group,
                                                   std::size_t count) {
    FilteredGroups groups;
    if (!group || count == 0)
        return groups;
    groups.push_back(group);
    while (groups.size() < count) {
        drawing::Group inner;
        inner.isolated = true;
        auto added = addGroup(place, std::move(inner));
        if (!added)
            return {};
        groups.push_back(std::move(added));
    }
    std::reverse(groups.begin(), groups.end());
    return groups;
}

void TreeReader::setFilters(const FilteredGroups& groups, const StatedStyle& stated, const drawing::Box& box,
                            const Place& place, std::size_t firstObject) {
    if (groups.empty() || firstObject == objects_.size())
        return;
    drawing::Box painted;
    for (std::size_t i = firstObject; i < objects_.size(); ++i)
        painted.add(objects_[i]->boundsWithin(groups.front().get()));
    const auto filters =
        filters_.filtersFor(stated, {place, box, boxUnder(painted, place.toDrawing.inverse())});
    for (std::size_t i = 0; i < std::min(groups.size(), filters.size()); ++i)
        groups[i]->filter = filters[i];
}

std::shared_ptr<const std::vector<drawing::ObjectPtr>> TreeReader::readFilterImage(pugi::xml_node target,
                                                                                   const Place& place) {
    if (std::find(openImages_.begin(), openImages_.end(), target) != openImages_.end()) {
        scene_.notes.add(Unsupported::Circle);
        return nullptr;
    }
    if (openImages_.size() == kDeepestImage) {
        scene_.notes.add(Unsupported::DeepLayer);
        return nullptr;
    }
    scene_.budget.spend(1);
    Place inside = placeAround(target);
    inside.lengths = place.lengths;
    inside.toDrawing = place.toDrawing;
    std::vector<drawing::ObjectPtr> objects;
    openImages_.push_back(target);
    readApart({{std::move(inside), {}}, target, false}, objects);
    openImages_.pop_back();
    return std::make_shared<const std::vector<drawing::ObjectPtr>>(std::move(objects));
}

} // namespace easel::svg
