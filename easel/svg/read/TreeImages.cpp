// Reads `image` elements: a picture, fitted into a rectangle.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/read/Viewport.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

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

} // namespace

void TreeReader::readImage(pugi::xml_node element, const Place& place) {
    auto start = styled(element, place);
    if (!start || isOutOfSight(*start))
        return;
    auto& [stated, inside] = *start;
    noteEffects(stated);
    const PictureContent content = pictures_.content(hrefOf(element));
    if (const auto* const pixels = std::get_if<std::shared_ptr<const drawing::Picture>>(&content))
        addPicture(element, stated, std::move(inside), *pixels);
    else if (const auto* const shapes = std::get_if<std::shared_ptr<const ShapePicture>>(&content))
        addShapes(element, stated, std::move(inside), **shapes);
}

std::optional<TreeReader::PictureFrame> TreeReader::framePicture(pugi::xml_node element,
                                                                 const StatedStyle& stated, Place& inside,
                                                                 double width, double height) {
    PictureFrame frame;
    frame.viewport = viewportOf(stated, inside.lengths, width, height);
    if (!(frame.viewport.width() > 0 && frame.viewport.height() > 0))
        return std::nullopt;
    inside.toDrawing = inside.toDrawing * transformOf(stated, inside.lengths, frame.viewport);
    if (!inside.style.visible) {
        addHidden(drawing::rectanglePath(frame.viewport), inside);
        return std::nullopt;
    }
    frame.fit =
        fitViewBox({0, 0, width, height}, element.attribute("preserveAspectRatio").value(), frame.viewport);
    const Box whole = boxUnder({0, 0, width, height}, frame.fit);
    frame.shown = showsOverflow(stated) ? whole : whole.intersection(frame.viewport);
    return frame;
}

void TreeReader::addPicture(pugi::xml_node element, const StatedStyle& stated, Place inside,
                            std::shared_ptr<const drawing::Picture> picture) {
    const auto frame = framePicture(element, stated, inside, picture->width(), picture->height());
    if (!frame)
        return;
    auto object = pictureObject(element, frame->shown, frame->fit, parseOpacity(stated[Property::Opacity], 1),
                                inside, std::move(picture));
    if (object)
        addObject(std::move(*object), element, stated, frame->viewport, std::move(inside));
}

std::optional<drawing::Object> TreeReader::pictureObject(pugi::xml_node element, const Box& shown,
                                                         const drawing::Affine& fit, double opacity,
                                                         const Place& inside,
                                                         std::shared_ptr<const drawing::Picture> picture) {
    auto object = reader_.readPicture(element, drawing::rectanglePath(shown), opacity, inside);
    if (!object)
        return std::nullopt;
    object->fillPattern = drawing::FillPattern::Other;
    object->fill = std::make_shared<const drawing::PlacedPicture>(
        drawing::PlacedPicture{std::move(picture), inside.toDrawing * fit, inside.style.smoothPictures});
    return object;
}

// The shapes are what the picture shows beside its outline, cut off there.
void TreeReader::addShapes(pugi::xml_node element, const StatedStyle& stated, Place inside,
                           const ShapePicture& picture) {
    std::optional<PictureFrame> frame;
    const auto placed = [&](DrawingSize size) -> std::optional<Placement> {
        const Box usual = viewportOf(stated, inside.lengths, kUsualSize.width, kUsualSize.height);
        const double width = size.width > 0 ? size.width : usual.width();
        const double height = size.height > 0 ? size.height : usual.height();
        if (!(width > 0 && height > 0))
            return std::nullopt;
        frame = framePicture(element, stated, inside, width, height);
        if (!frame)
            return std::nullopt;
        Place within;
        narrow(within, rectangleClip(frame->shown, inside.toDrawing));
        return Placement{inside.toDrawing * frame->fit, within.group};
    };
    auto shapes = readEmbedded(picture, scene_, placed);
    if (!shapes)
        return;
    auto object = reader_.readPicture(element, drawing::rectanglePath(frame->shown),
                                      parseOpacity(stated[Property::Opacity], 1), inside);
    if (!object)
        return;
    if (!shapes->empty())
        object->markers = drawing::makeShared<const std::vector<drawing::ObjectPtr>>(std::move(*shapes));
    addObject(std::move(*object), element, stated, frame->viewport, std::move(inside));
}

} // namespace easel::svg
