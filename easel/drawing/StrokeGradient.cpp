// The gradient of a stroke as the commands on gradients see it.
#include "easel/drawing/StrokeGradient.h"

#include <memory>
#include <utility>

namespace easel::drawing {

namespace {

void append(Path& path, const Path& part) {
    const Point* next = part.points().data();
    for (const Verb verb : part.verbs()) {
        switch (verb) {
        case Verb::Move:
            path.moveTo(*next++);
            break;
        case Verb::Line:
            path.lineTo(*next++);
            break;
        case Verb::Cubic:
            path.cubicTo(next[0], next[1], next[2]);
            next += 3;
            break;
        case Verb::Close:
            path.close();
            break;
        }
    }
}

} // namespace

Path strokeFrame(const Object& object) {
    const std::size_t corners = 4;
    const Affine units = penUnitsOf(object);
    const double radius = styleOf(object).stroke.width / 2;
    Path frame;
    frame.reserve(corners * object.outline.verbs().size(), corners * object.outline.points().size());
    // The corners of the square around the pen: with them the tips of right-angled joins are inside.
    for (const Point corner : {Point{-1, -1}, Point{1, -1}, Point{1, 1}, Point{-1, 1}}) {
        const Point away = units.direction(corner * radius);
        append(frame, object.outline.transformed(Affine::translation(away.x, away.y)));
    }
    return frame;
}

ShapeGradient strokeGradientOf(const Object& object) {
    const Style& style = styleOf(object);
    const Gradient* const gradient = gradientIn(style.stroke.paint);
    return gradient && strokes(style) ? described(*gradient, strokeFrame(object)) : ShapeGradient();
}

} // namespace easel::drawing
