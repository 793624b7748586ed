#include "easel/svg/read/TextReader.h"

#include "easel/memory/LibraryCall.h"
#include "easel/svg/read/TextFonts.h"
#include "easel/type/Append.h"
#include "easel/type/Layout.h"

#include <utility>

namespace easel::svg {

drawing::Path TextShape::wholeOutline() const {
    drawing::Path whole;
    for (const type::PaintedOutline& each : outlines)
        type::append(whole, each.outline, drawing::Affine());
    return whole;
}

namespace {

std::optional<TextShape> laidOutText(pugi::xml_node element, const StatedStyle& stated, const Scene& scene,
                                     const Place& place) {
    type::Typesetter* const typesetter = scene.fonts.typesetter();
    if (!typesetter) {
        scene.notes.add(Unsupported::Text);
        return std::nullopt;
    }
    TextContent content = TextContentReader(scene, *typesetter).read(element, stated, place);
    type::PlacedText placed =
        type::layOut(content.text, *typesetter, [&](std::size_t points) { scene.budget.spend(points); });
    std::erase_if(placed.outlines, [&](const type::PaintedOutline& each) {
        const ComputedStyle& style = content.paints[each.paint].style;
        return each.outline.empty() || !style.visible || !(style.fontSize > 0);
    });
    if (placed.outlines.empty())
        return std::nullopt;
    for (type::PaintedOutline& each : placed.outlines)
        each.outline.shrinkToFit();
    return TextShape{std::move(placed.outlines), std::move(content.paints), placed.cells};
}

} // namespace

std::optional<TextShape> readText(pugi::xml_node element, const StatedStyle& stated, const Scene& scene,
                                  const Place& place) {
    return memory::complete([&] { return laidOutText(element, stated, scene, place); });
}

} // namespace easel::svg
