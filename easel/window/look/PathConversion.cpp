// Walks a path's verbs.
#include "easel/window/look/PathConversion.h"

namespace easel::window {

QPainterPath toPainterPath(const drawing::Path& path) {
    QPainterPath result;
    auto next = path.points().begin();
    for (const drawing::Verb verb : path.verbs()) {
        switch (verb) {
        case drawing::Verb::Move:
            result.moveTo(toQt(*next++));
            break;
        case drawing::Verb::Line:
            result.lineTo(toQt(*next++));
            break;
        case drawing::Verb::Cubic:
            result.cubicTo(toQt(next[0]), toQt(next[1]), toQt(next[2]));
            next += 3;
            break;
        case drawing::Verb::Close:
            result.closeSubpath();
            break;
        }
    }
    return result;
}

} // namespace easel::window
