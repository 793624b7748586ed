// Groups of elements that are filtered. Each filter of a list has a group of its own in that of the next.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/read/Viewport.h"

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
    object.style = drawing::makeShared<const drawing::Style>(std::move(style));
}

TreeReader::FilteredGroups
TreeReader::addFiltered(Place& place, const drawing::SharedPtr<drawing::Group>& group, std::size_t count) {
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

TreeReader::FilterImage TreeReader::readFilterImage(pugi::xml_node effect, const drawing::Box& region,
                                                    const Place& place) {
    const std::string_view id = localId(hrefOf(effect));
    if (id.empty())
        return readFilterPicture(effect, region, place);
    const pugi::xml_node target = scene_.tree.byId(id);
    return target ? readFilterTarget(target, place) : nullptr;
}

TreeReader::FilterImage TreeReader::readFilterTarget(pugi::xml_node target, const Place& place) {
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

TreeReader::FilterImage TreeReader::readFilterPicture(pugi::xml_node effect, const drawing::Box& region,
                                                      const Place& place) {
    if (!(region.width() > 0 && region.height() > 0))
        return nullptr;
    Place inside = placeAround(effect);
    inside.style = inside.style.inherited(scene_.cascade.of(effect), inside.lengths);
    inside.toDrawing = place.toDrawing;
    const auto fitOf = [&](double width, double height) {
        return fitViewBox({0, 0, width, height}, effect.attribute("preserveAspectRatio").value(), region);
    };
    const PictureContent content = pictures_.content(hrefOf(effect));
    std::vector<drawing::ObjectPtr> objects;
    if (const auto* const pixels = std::get_if<std::shared_ptr<const drawing::Picture>>(&content)) {
        const drawing::Box whole{0, 0, static_cast<double>((*pixels)->width()),
                                 static_cast<double>((*pixels)->height())};
        const drawing::Affine fit = fitOf(whole.right, whole.bottom);
        if (auto object = pictureObject(effect, boxUnder(whole, fit), fit, 1, inside, *pixels))
            objects.push_back(sealed(std::move(*object)));
    } else if (const auto* const shapes = std::get_if<std::shared_ptr<const ShapePicture>>(&content)) {
        const auto placed = [&](DrawingSize size) -> std::optional<Placement> {
            return Placement{inside.toDrawing * fitOf(size.width > 0 ? size.width : region.width(),
                                                      size.height > 0 ? size.height : region.height()),
                             nullptr};
        };
        objects = readEmbedded(**shapes, scene_, placed).value_or(std::vector<drawing::ObjectPtr>());
    }
    if (objects.empty())
        return nullptr;
    return std::make_shared<const std::vector<drawing::ObjectPtr>>(std::move(objects));
}

} // namespace easel::svg
