// The SVG reader on damaged files, and the writer on what the reader made of them.
#include "easel/drawing/ShapeGradient.h"
#include "easel/svg/Document.h"
#include "easel/svg/write/ReadBack.h"
#include "tests/fuzz/Fuzzing.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace {

using fuzzing::require;
using namespace easel;

// Turns the gradient that the shape has, or gives it one, as the tool does.
void changeGradient(drawing::Drawing& drawing, std::size_t index) {
    drawing::Object changed = *drawing.object(index);
    const drawing::ShapeGradient held = shapeGradientOf(changed);
    CGradientData record;
    if (const CGradient* const gradient = drawing::gradientIn(held.record))
        record = gradient->GetGradientData();
    record.SetAngle(record.Angle() + 30);
    record.SetEnd({0.25, 0.75});
    changed.setFillPattern(drawing::FillPattern::SolidBlack);
    changed.setGradient(drawing::ObjectGradient(new CGradient(record)));
    drawing.erase(index);
    drawing.insert(index, sealed(std::move(changed)));
}

// Changes of more than a few gradients tell nothing new.
constexpr std::size_t kMostChanged = 8;

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    auto drawing = svg::readBytes(bytes, "fuzz.svg");
    if (!drawing)
        return 0;
    require(svg::toBytes(*drawing) == bytes);

    drawing->prepareUndo(3);
    const std::size_t step = std::max<std::size_t>(1, drawing->size() / kMostChanged);
    for (std::size_t index = step / 2; index < drawing->size(); index += step)
        changeGradient(*drawing, index);
    if (drawing->size() > 1)
        drawing->erase(0);
    const std::string changed = svg::toBytes(*drawing);
    require(svg::readBytes(changed, "again.svg").has_value());
    // What would be lost is refused when saving; that it is found must be all that happens.
    svg::lostIn(changed, drawing->snapshot());
    drawing->undo();
    require(svg::toBytes(*drawing) == bytes);
    return 0;
}
