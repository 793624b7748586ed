#include "easel/svg/read/PatternFrame.h"

#include "easel/svg/read/Scene.h"
#include "easel/svg/read/Viewport.h"
#include "easel/svg/text/Transform.h"

#include <cmath>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;

namespace {

std::optional<Box> cellOf(const ReferenceChain& pattern, const PaintPlace& place, bool shares) {
    const auto length = [&](const char* name, Axis axis) {
        const std::string_view text = pattern.attribute(name);
        const double side = axis == Axis::Horizontal ? place.box.width() : place.box.height();
        return shares ? parseFraction(text).value_or(0) * side
                      : parseLength(text, place.lengths, axis).value_or(0);
    };
    const double left = length("x", Axis::Horizontal) + (shares ? place.box.left : 0);
    const double top = length("y", Axis::Vertical) + (shares ? place.box.top : 0);
    const double width = length("width", Axis::Horizontal);
    const double height = length("height", Axis::Vertical);
    if (!(width > 0 && height > 0 && inRange(left) && inRange(top) && inRange(width) && inRange(height)))
        return std::nullopt;
    return Box{left, top, left + width, top + height};
}

bool usesBox(std::string_view units) {
    return units == "objectBoundingBox";
}

} // namespace

bool isPattern(std::string_view svgName) {
    return svgName == "pattern";
}

std::optional<PatternFrame> patternFrame(const ReferenceChain& pattern, const PaintPlace& place) {
    const bool cellInShares = pattern.attribute("patternUnits") != "userSpaceOnUse";
    const auto viewBox = parseViewBox(pattern.attribute("viewBox"));
    const bool contentInShares = !viewBox && usesBox(pattern.attribute("patternContentUnits"));
    const bool hasBox = place.box.width() > 0 && place.box.height() > 0;
    if ((cellInShares || contentInShares) && !hasBox)
        return std::nullopt;
    const auto cell = cellOf(pattern, place, cellInShares);
    if (!cell)
        return std::nullopt;
    PatternFrame frame;
    frame.cell = *cell;
    frame.toShape = parseTransform(pattern.attribute("patternTransform")).value_or(Affine());
    if (!frame.toShape.invertible())
        return std::nullopt;
    frame.contentToOwn = Affine::translation(cell->left, cell->top);
    frame.width = viewBox ? viewBox->width : place.lengths.viewportWidth;
    frame.height = viewBox ? viewBox->height : place.lengths.viewportHeight;
    if (viewBox)
        frame.contentToOwn =
            frame.contentToOwn * fitViewBox(*viewBox, pattern.attribute("preserveAspectRatio"),
                                            {0, 0, cell->width(), cell->height()});
    else if (contentInShares)
        frame.contentToOwn = frame.contentToOwn * Affine::scaling(place.box.width(), place.box.height());
    return frame;
}

} // namespace easel::svg
