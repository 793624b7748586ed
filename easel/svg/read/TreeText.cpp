// Makes an object of a text element.
#include "easel/svg/read/TextReader.h"
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/style/PlacedTransform.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

using drawing::Kind;
using drawing::Object;
using drawing::ObjectPtr;

namespace {

// A place with nothing to paint there.
Place unpainted(Place place) {
    place.style.fill = place.style.stroke = PaintSpec();
    return place;
}

drawing::SharedPtr<const drawing::Style> withText(const Object& object, const type::SetText& text) {
    drawing::Style style = styleOf(object);
    style.text = std::make_shared<const type::SetText>(text);
    return drawing::makeShared<const drawing::Style>(std::move(style));
}

} // namespace

void TreeReader::readTextElement(pugi::xml_node element, const Place& place) {
    auto start = styled(element, place);
    if (!start)
        return;
    auto& [stated, inside] = *start;
    auto text = readText(element, stated, scene_, inside);
    if (!text)
        return;
    noteEffects(stated);
    inside.toDrawing = place.toDrawing * transformOf(stated, inside.lengths, text->cells);
    auto object = textObject(element, *text, parseOpacity(stated[Property::Opacity], 1), inside);
    if (!object)
        return;
    addObject(std::move(*object), element, stated, text->cells, std::move(inside));
}

// A text in one paint is an object like others. Where paints differ, the object has the outline of the whole
// and its parts lie over it.
std::optional<Object> TreeReader::textObject(pugi::xml_node element, const TextShape& text, double opacity,
                                             const Place& place) {
    const auto part = [&](const type::PaintedOutline& outline, double partOpacity) {
        const TextPaint& paint = text.paints[outline.paint];
        Place own = place;
        own.style = paint.style;
        own.lengths = paint.lengths;
        own.style.fillRule = drawing::FillRule::NonZero; // fonts mean their letters so
        auto object = reader_.read(element, {Kind::Text, outline.outline, {}, text.cells},
                                   partOpacity * paint.opacity, own);
        if (object && outline.letters)
            object->style = withText(*object, outline.text);
        return object;
    };
    if (text.outlines.size() == 1)
        return part(text.outlines.front(), opacity);
    auto whole =
        reader_.read(element, {Kind::Text, text.wholeOutline(), {}, text.cells}, opacity, unpainted(place));
    if (!whole)
        return std::nullopt;
    std::vector<ObjectPtr> parts;
    for (const type::PaintedOutline& outline : text.outlines) {
        auto own = part(outline, 1);
        if (!own)
            return std::nullopt;
        own->id = drawing::Name();
        parts.push_back(sealed(std::move(*own)));
    }
    whole->markers = drawing::makeShared<const std::vector<ObjectPtr>>(std::move(parts));
    return whole;
}

} // namespace easel::svg
