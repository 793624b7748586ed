// Style sheets, and style attributes: what stands before the first line "---" is a sheet, what comes behind
// it the style of a shape.
#include "easel/drawing/Group.h"
#include "easel/svg/Document.h"
#include "tests/fuzz/Fuzzing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace {

using fuzzing::escaped;
using fuzzing::require;
using namespace easel;

std::string drawingWith(std::string_view sheet, std::string_view style) {
    return "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='100'><style>" + escaped(sheet) +
           "</style><defs><marker id='m'><path id='p' d='M0 0h3v3z' fill='context-stroke'/></marker>"
           "<linearGradient id='g'><stop class='s'/><stop offset='1' class='s t'/></linearGradient>"
           "<filter id='f'><feFlood class='s'/></filter></defs><g class='a' lang='de'><g class='a b'>"
           "<rect class='r' width='50' height='20' fill='url(#g)'/><path d='M5 5l50 60 3 20' class='b r' "
           "style=\"" +
           escaped(style) +
           "\"/></g><circle r='9' data-x='y z'/><use href='#p' class='r'/><text class='a t' y='50'>A a</text>"
           "</g></svg>";
}

bool isShare(double value) {
    return value >= 0 && value <= 1;
}

void check(const drawing::Object& object) {
    const drawing::Style& style = drawing::styleOf(object);
    require(isShare(style.opacity) && isShare(style.fillOpacity) && isShare(style.stroke.opacity));
    require(std::isfinite(style.stroke.width) && style.stroke.width >= 0);
    require(style.stroke.miterLimit >= 1 && std::isfinite(style.stroke.dashOffset));
    require(std::all_of(style.stroke.dashes.begin(), style.stroke.dashes.end(),
                        [](double dash) { return std::isfinite(dash) && dash >= 0; }));
    if (const auto* const color = std::get_if<drawing::ColorPaint>(&object.fill))
        require(isShare(color->opacity));
    for (const drawing::Point p : object.outline.points())
        require(std::isfinite(p.x) && std::isfinite(p.y));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::string_view kBetween = "\n---\n";
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::size_t end = std::min(input.find(kBetween), input.size());
    const std::string_view style = input.substr(std::min(end + kBetween.size(), input.size()));
    const auto drawing = svg::readBytes(drawingWith(input.substr(0, end), style), {});
    if (drawing)
        drawing->forEach([](const drawing::ObjectPtr& object) { check(*object); });
    return 0;
}
