#include "easel/type/Append.h"

namespace easel::type {

using drawing::Affine;
using drawing::Path;
using drawing::Verb;

void append(Path& path, const Path& other, const Affine& map) {
    const auto points = other.points();
    std::size_t at = 0;
    for (const Verb verb : other.verbs()) {
        switch (verb) {
        case Verb::Move:
            path.moveTo(map(points[at++]));
            break;
        case Verb::Line:
            path.lineTo(map(points[at++]));
            break;
        case Verb::Cubic:
            path.cubicTo(map(points[at]), map(points[at + 1]), map(points[at + 2]));
            at += 3;
            break;
        case Verb::Close:
            path.close();
            break;
        }
    }
}

} // namespace easel::type
