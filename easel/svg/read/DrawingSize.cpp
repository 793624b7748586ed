#include "easel/svg/read/DrawingSize.h"

#include "easel/svg/read/Scene.h"

#include <cmath>

namespace easel::svg {

namespace {

// With the stroke as wide as it is along the outline, not as far as its corners may reach.
drawing::Box shownBounds(const drawing::Object& object) {
    drawing::Box box = object.bounds;
    const drawing::Style& style = styleOf(object);
    if (drawing::strokes(style)) {
        const double reach = style.stroke.width / 2 * std::sqrt(std::abs(penUnitsOf(object).determinant()));
        box = {box.left - reach, box.top - reach, box.right + reach, box.bottom + reach};
    }
    return box;
}

double settledSide(double side, double reach, double usual) {
    if (side > 0)
        return side;
    return reach > 0 && inRange(reach) ? reach : usual;
}

} // namespace

// own.
DrawingSize completed(DrawingSize size, const ViewBox& viewBox) {
    if (!(size.width > 0) && !(size.height > 0))
        size = {viewBox.width, viewBox.height};
    else if (!(size.width > 0))
        size.width = size.height * viewBox.width / viewBox.height;
    else if (!(size.height > 0))
        size.height = size.width * viewBox.height / viewBox.width;
    const bool possible = inRange(size.width) && inRange(size.height) && size.width > 0 && size.height > 0;
    return possible ? size : kUsualSize;
}

DrawingSize settled(DrawingSize size, const std::vector<drawing::ObjectPtr>& objects) {
    if (size.width > 0 && size.height > 0)
        return size;
    drawing::Box box;
    for (const drawing::ObjectPtr& object : objects)
        box.add(shownBounds(*object));
    return {settledSide(size.width, box.right, kUsualSize.width),
            settledSide(size.height, box.bottom, kUsualSize.height)};
}

} // namespace easel::svg
