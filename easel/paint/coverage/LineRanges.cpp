#include "easel/paint/coverage/LineRanges.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

namespace {

// The first number from `first` to `end` for which the condition, which once false stays false, is false.
template <class Condition> int firstNot(int first, int end, Condition condition) {
    while (first < end) {
        const int middle = first + (end - first) / 2;
        if (condition(middle))
            first = middle + 1;
        else
            end = middle;
    }
    return first;
}

// The parameters inside the curve where its height turns, ascending; 1 in the place of those that it lacks.
std::array<double, 2> turns(const drawing::CubicSegment& curve) {
    const double a = curve.end.y - 3 * curve.control2.y + 3 * curve.control1.y - curve.start.y;
    const double b = curve.control2.y - 2 * curve.control1.y + curve.start.y;
    const double c = curve.control1.y - curve.start.y;
    const double root = b * b - a * c;
    if (!(root >= 0))
        return {1, 1};
    const double q = -(b + std::copysign(std::sqrt(root), b));
    const auto inside = [](double t) { return t > 0 && t < 1 ? t : 1; };
    const double one = inside(q / a);
    const double other = inside(c / q);
    return {std::min(one, other), std::max(one, other)};
}

} // namespace

LineRanges::LineRanges(const drawing::CubicSegment& curve, int lines, double top, double bottom) {
    const auto height = [&](int point) {
        return point == lines ? curve.end.y : curve.at(static_cast<double>(point) / lines).y;
    };
    const auto [firstTurn, secondTurn] = turns(curve);
    int from = 0;
    for (const double turn : {firstTurn, secondTurn, 1.0}) {
        const int to = static_cast<int>(turn * lines);
        if (from < to) {
            const bool falls = height(from) < height(to);
            const int first = falls ? firstNot(from, to, [&](int i) { return height(i + 1) <= top; })
                                    : firstNot(from, to, [&](int i) { return height(i + 1) >= bottom; });
            add(first, falls ? firstNot(first, to, [&](int i) { return height(i) < bottom; })
                             : firstNot(first, to, [&](int i) { return height(i) > top; }));
        }
        if (to >= lines)
            return;
        // This line may go there and back.
        add(to, to + 1);
        from = to + 1;
    }
}

void LineRanges::add(int first, int end) {
    if (count_ > 0)
        first = std::max(first, ranges_[count_ - 1].end);
    if (first < end)
        ranges_[count_++] = {first, end};
}

} // namespace easel::paint
