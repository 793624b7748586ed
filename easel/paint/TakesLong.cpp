#include "easel/paint/TakesLong.h"

#include <algorithm>
#include <variant>

namespace easel::paint {

namespace {

constexpr std::size_t kMany = 64;

bool isPlain(const drawing::Paint& paint) {
    return !std::holds_alternative<drawing::PatternPtr>(paint) &&
           !std::holds_alternative<drawing::PicturePtr>(paint);
}

bool hasEffects(const drawing::Group* group) {
    while (group && !group->filter && !group->mask)
        group = group->parent.get();
    return group;
}

} // namespace

bool isPlain(const drawing::Object& object) {
    return !object.markers && isPlain(object.fill) && isPlain(drawing::styleOf(object).stroke.paint);
}

bool takesLong(const drawing::Pattern& pattern) {
    return takeLong(*pattern.objects);
}

bool takeLong(std::span<const drawing::ObjectPtr> objects) {
    return objects.size() > kMany || std::any_of(objects.begin(), objects.end(), [](const auto& object) {
               return !isPlain(*object) || hasEffects(object->group.get());
           });
}

} // namespace easel::paint
