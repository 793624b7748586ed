// The SVG reader on damaged files, and the writer on what the reader made of them.
#include "easel/svg/Document.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

namespace {

using namespace easel;

// What has to hold whatever the file is.
void require(bool holds) {
    if (!holds)
        std::abort();
}

void giveGradient(drawing::Drawing& drawing, std::size_t index) {
    drawing::Object changed = *drawing.object(index);
    changed.setFillPattern(drawing::FillPattern::SolidBlack);
    changed.setGradient(drawing::ObjectGradient(new CGradient(CGradientData())));
    drawing.erase(index);
    drawing.insert(index, sealed(std::move(changed)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    auto drawing = svg::readBytes(bytes, "fuzz.svg");
    if (!drawing)
        return 0;
    require(svg::toBytes(*drawing) == bytes);

    drawing->prepareUndo(3);
    if (drawing->size() > 0)
        giveGradient(*drawing, drawing->size() / 2);
    if (drawing->size() > 1)
        drawing->erase(0);
    require(svg::readBytes(svg::toBytes(*drawing), "again.svg").has_value());
    drawing->undo();
    require(svg::toBytes(*drawing) == bytes);
    return 0;
}
