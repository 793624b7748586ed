#include "easel/drawing/Object.h"

#include <algorithm>
#include <array>
#include <utility>

namespace easel::drawing {

namespace {
constexpr std::array<std::string_view, 6> kKindNames = {"rect", "ellipse",  "polygon",
                                                        "path", "polyline", "line"};
} // namespace

std::string_view kindName(Kind kind) {
    return kKindNames[static_cast<std::size_t>(kind) - 1];
}

std::optional<Kind> kindFromName(std::string_view name) {
    for (const Kind kind : kAllKinds)
        if (kindName(kind) == name)
            return kind;
    return std::nullopt;
}

bool carriesGradient(Kind kind) {
    return kind != Kind::Polyline && kind != Kind::Line;
}

KindSet KindSet::all() {
    KindSet set;
    for (const Kind kind : kAllKinds)
        set.add(kind);
    return set;
}

void Object::setFillPattern(FillPattern pattern) {
    fillPattern = pattern;
    fillOrigin = FillOrigin::Edited;
}

void Object::setGradient(const ObjectGradient& newGradient) {
    gradient = newGradient;
    fillOrigin = FillOrigin::Edited;
}

bool Object::showsGradient() const {
    return fillPattern != FillPattern::None && gradientIn(gradient) != nullptr;
}

bool Object::hitBy(Point p, double reach) const {
    if (!bounds.grownBy(reach).contains(p))
        return false;
    return contains(outline, fillRule, p) || outlineWithin(outline, p, reach);
}

Box Object::paintBounds() const {
    if (!style)
        return bounds;
    return bounds.grownBy(strokeReach(styleOf(*this)) * unitsOf(*this).largestScale());
}

ObjectPtr sealed(Object object) {
    object.bounds = object.outline.bounds();
    return std::make_shared<const Object>(std::move(object));
}

const Style& plainStyle() {
    static const Style kPlain;
    return kPlain;
}

} // namespace easel::drawing
