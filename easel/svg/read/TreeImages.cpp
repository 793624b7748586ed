// Reads `image` elements: a picture, fitted into a rectangle.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/read/Viewport.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;

namespace {

// A side that is not stated follows from the other one and the shape of the picture, or is the picture's own.
Box viewportOf(const StatedStyle& stated, const LengthContext& lengths, double width, double height) {
    const auto length = [&](Property property, Axis axis) {
        return parseLength(stated[property], lengths, axis);
    };
    const double x = length(Property::X, Axis::Horizontal).value_or(0);
    const double y = length(Property::Y, Axis::Vertical).value_or(0);
    const auto givenWidth = length(Property::Width, Axis::Horizontal);
    const auto givenHeight = length(Property::Height, Axis::Vertical);
    const double right = givenWidth ? *givenWidth : givenHeight ? *givenHeight * width / height : width;
    const double down = givenHeight ? *givenHeight : givenWidth ? *givenWidth * height / width : height;
    return {x, y, x + right, y + down};
}

Box mapped(const Affine& map, const Box& box) {
    Box result;
    result.add(map({box.left, box.top}));
    result.add(map({box.right, box.bottom}));
    return result;
}

} // namespace

void TreeReader::readImage(pugi::xml_node element, const Place& place) {
    const StatedStyle stated = scene_.cascade.of(element, place.style.custom);
    if (equalIgnoringCase(stated[Property::Display], "none"))
        return;
    Place inside = place;
    inside.style = place.style.inherited(stated, inside.lengths);
    if (!inside.style.visible && waiting_ == 0)
        return;
    auto picture = pictures_.picture(hrefOf(element));
    if (!picture)
        return;
    const double width = picture->width();
    const double height = picture->height();
    const Box viewport = viewportOf(stated, inside.lengths, width, height);
    if (!(viewport.width() > 0 && viewport.height() > 0))
        return;
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, viewport);
    if (!inside.style.visible)
        return addHidden({drawing::Kind::Picture, drawing::rectanglePath(viewport), {}}, inside);
    noteEffects(stated);
    const Affine fit =
        fitViewBox({0, 0, width, height}, element.attribute("preserveAspectRatio").value(), viewport);
    const Box whole = mapped(fit, {0, 0, width, height});
    const Box shown = showsOverflow(stated) ? whole : whole.intersection(viewport);
    auto object = reader_.readPicture(element, drawing::rectanglePath(shown),
                                      {std::move(picture), fit, inside.style.smoothPictures},
                                      parseOpacity(stated[Property::Opacity], 1), inside);
    if (object)
        addObject(std::move(*object), element, stated, viewport, std::move(inside));
}

} // namespace easel::svg
