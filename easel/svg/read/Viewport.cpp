#include "easel/svg/read/Viewport.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;

namespace {

// Which part of the room left over stands before the box: none, half or all of it.
double alignment(std::string_view text) {
    if (equalIgnoringCase(text, "Min"))
        return 0;
    return equalIgnoringCase(text, "Max") ? 1 : 0.5;
}

} // namespace

std::optional<ViewBox> parseViewBox(std::string_view text) {
    Scanner scanner(trimmed(text));
    ViewBox box;
    for (double* const value : {&box.x, &box.y, &box.width, &box.height}) {
        const auto number = scanner.number();
        if (!number)
            return std::nullopt;
        *value = *number;
        scanner.skipSeparator();
    }
    if (!(box.width > 0 && box.height > 0))
        return std::nullopt;
    return box;
}

Affine fitViewBox(const ViewBox& viewBox, std::string_view preserveAspectRatio, const Box& viewport) {
    Scanner scanner(trimmed(preserveAspectRatio));
    if (scanner.takeWord("defer"))
        scanner.skipSpaces();
    double scaleX = viewport.width() / viewBox.width;
    double scaleY = viewport.height() / viewBox.height;
    const std::string_view align = scanner.word();
    if (equalIgnoringCase(align, "none"))
        return Affine::translation(viewport.left, viewport.top) * Affine::scaling(scaleX, scaleY) *
               Affine::translation(-viewBox.x, -viewBox.y);
    scanner.skipSpaces();
    const bool slice = equalIgnoringCase(scanner.word(), "slice");
    const double scale = slice ? std::max(scaleX, scaleY) : std::min(scaleX, scaleY);
    // "xMidYMid" and its like: three letters for each axis after its name.
    const bool known = align.size() == 8;
    const double x = known ? alignment(align.substr(1, 3)) : 0.5;
    const double y = known ? alignment(align.substr(5, 3)) : 0.5;
    const double left = viewport.left + x * (viewport.width() - scale * viewBox.width);
    const double top = viewport.top + y * (viewport.height() - scale * viewBox.height);
    return Affine::translation(left, top) * Affine::scaling(scale, scale) *
           Affine::translation(-viewBox.x, -viewBox.y);
}

} // namespace easel::svg
