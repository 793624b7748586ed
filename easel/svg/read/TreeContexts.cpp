// What the content that `use` elements repeat is painted with where it asks for the paints of the `use`
// element.
#include "easel/svg/read/TreeReader.h"
#include "easel/svg/text/Scanner.h"

#include <utility>

namespace easel::svg {

bool TreeReader::fileAsksForContext() {
    if (!fileAsksForContext_)
        fileAsksForContext_ = findIgnoringCase(source_.text(), "context-") != std::string_view::npos;
    return *fileAsksForContext_;
}

std::shared_ptr<const ContextPaints> TreeReader::contextOfUse(pugi::xml_node use, pugi::xml_node target,
                                                              const Place& place) {
    const auto& around = place.style.context;
    const bool isInMarker = around && around->giver == ContextPaints::Giver::Shape;
    if (isInMarker || measures_ || !fileAsksForContext())
        return around;
    const auto asksForBox = [](const PaintSpec& paint) { return paint.kind == PaintSpec::Kind::Server; };
    const bool takesBox = asksForBox(place.style.fill) || asksForBox(place.style.stroke);
    const drawing::Box box = takesBox ? boxOfTarget(use, target, place) : drawing::Box();
    return reader_.contextOf(ContextPaints::Giver::Use, box, place);
}

// The content is read for its box before it is read with the paints that lie in that box, by another reader:
// nothing of it may come into the drawing.
drawing::Box TreeReader::boxOfTarget(pugi::xml_node use, pugi::xml_node target, Place place) const {
    place.group = nullptr;
    place.style.context = nullptr;
    TreeReader reader(scene_, source_, {});
    reader.measures_ = true;
    reader.apart_ = 1;
    reader.waiting_ = 1; // so that what is hidden counts
    reader.open_ = open_;
    reader.readTarget(use, target, {place, nullptr});
    reader.readAll();
    return reader.boxOf({use, nullptr, std::move(place), 0, 0, {}});
}

} // namespace easel::svg
