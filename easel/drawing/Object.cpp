#include "easel/drawing/Object.h"

#include "easel/drawing/Filter.h"
#include "easel/drawing/ShapeGradient.h"

#include <algorithm>
#include <array>
#include <utility>

namespace easel::drawing {

namespace {
constexpr std::array<std::string_view, 8> kKindNames = {"rect",     "ellipse", "polygon", "path",
                                                        "polyline", "line",    "picture", "text"};

// Modules have tables of their own, so that equal gradients of two modules are two objects.
bool same(const ObjectGradient& a, const ObjectGradient& b) {
    const CGradient* const one = gradientIn(a);
    const CGradient* const other = gradientIn(b);
    return one == other || (one && other && one->HashID() == other->HashID());
}

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
    return kind != Kind::Polyline && kind != Kind::Line && kind != Kind::Picture && kind != Kind::Text;
}

KindSet KindSet::all() {
    KindSet set;
    for (const Kind kind : kAllKinds)
        set.add(kind);
    return set;
}

void Object::setFillPattern(FillPattern pattern) {
    if (pattern == fillPattern)
        return;
    fillPattern = pattern;
    fillOrigin = PaintOrigin::Edited;
}

void Object::setGradient(const ObjectGradient& newGradient) {
    const ShapeGradient now = shapeGradientOf(*this);
    if (!same(now.record, newGradient))
        setWholeGradient(newGradient, gradientIn(newGradient) ? now.remainder : nullptr);
    else if (gradientIn(gradient))
        gradient = newGradient;
}

void Object::setWholeGradient(const ObjectGradient& newGradient, RemainderPtr newRemainder) {
    gradient = newGradient;
    remainder = std::move(newRemainder);
    fillOrigin = PaintOrigin::Edited;
}

void Object::setStrokePaint(Paint paint) {
    if (paint == styleOf(*this).stroke.paint)
        return;
    Style changed = styleOf(*this);
    changed.stroke.paint = std::move(paint);
    style = makeShared<const Style>(std::move(changed));
    strokeOrigin = PaintOrigin::Edited;
}

bool Object::showsGradient() const {
    return fillPattern != FillPattern::None && gradientIn(gradient);
}

bool Object::hitBy(Point p, double reach) const {
    if (!bounds.grownBy(reach).contains(p))
        return false;
    return contains(outline, fillRule, p) || outlineWithin(outline, p, reach);
}

Box Object::paintBounds() const {
    Box box = style ? bounds.grownBy(strokeReach(styleOf(*this)) * penUnitsOf(*this).largestScale()) : bounds;
    if (markers)
        for (const ObjectPtr& marker : *markers)
            box.add(marker->paintBounds());
    return box;
}

Box Object::boundsWithin(const Group* within) const {
    const Filter* outermost = nullptr;
    for (const Group* around = group.get(); around && around != within; around = around->parent.get())
        if (around->filter)
            outermost = around->filter.get();
    return outermost ? outermost->bounds() : paintBounds();
}

ObjectPtr sealed(Object object) {
    object.bounds = object.outline.bounds();
    return makeShared<const Object>(std::move(object));
}

bool saysTheSame(const Object& a, const Object& b) {
    const bool sameRemainder =
        a.remainder == b.remainder || (a.remainder && b.remainder && *a.remainder == *b.remainder);
    return a.kind == b.kind && a.fillRule == b.fillRule && a.fillPattern == b.fillPattern &&
           a.fillOrigin == b.fillOrigin && a.strokeOrigin == b.strokeOrigin && a.source == b.source &&
           a.id.text() == b.id.text() && a.units == b.units && a.style == b.style && a.fill == b.fill &&
           same(a.gradient, b.gradient) && sameRemainder && a.group == b.group && a.outline == b.outline;
}

const Style& plainStyle() {
    static const Style kPlain;
    return kPlain;
}

} // namespace easel::drawing
