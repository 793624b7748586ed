// How objects in their order fall into groups.
#include "easel/paint/GroupRuns.h"

namespace easel::paint {

const drawing::Group* childOf(const drawing::Group* parent, const drawing::Object& object) {
    const std::uint32_t depth = parent ? parent->depth : 0;
    const drawing::Group* group = object.group.get();
    while (group && group->depth > depth + 1)
        group = group->parent.get();
    return group && group->depth == depth + 1 ? group : nullptr;
}

ObjectSpan frontRun(const drawing::Group* parent, ObjectSpan objects) {
    const drawing::Group* const group = childOf(parent, *objects.front());
    std::size_t count = 1;
    while (count < objects.size() && childOf(parent, *objects[count]) == group)
        ++count;
    return objects.first(count);
}

} // namespace easel::paint
