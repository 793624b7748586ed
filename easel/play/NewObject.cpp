// Makes objects and gradients from the words of a scenario.
#include "easel/play/NewObject.h"

#include "easel/play/PlayError.h"
#include "easel/svg/text/PathData.h"

#include <limits>
#include <memory>
#include <string_view>

namespace easel::play {

namespace {

using drawing::Kind;
using drawing::Path;

constexpr long kLargestChannel = 65535;

// An extent may be 0: such an object has no inside but a place.
double extent(Arguments& arguments, const char* what) {
    const double value = arguments.number(what);
    if (value < 0)
        throw PlayError(std::string(what) + " must not be below 0");
    return value;
}

Path rectangle(Arguments& arguments) {
    const drawing::Point corner = arguments.point();
    const double width = extent(arguments, "width");
    const double height = extent(arguments, "height");
    return drawing::rectanglePath({corner.x, corner.y, corner.x + width, corner.y + height});
}

Path ellipse(Arguments& arguments) {
    const drawing::Point centre = arguments.point();
    const double radiusH = extent(arguments, "rh");
    const double radiusV = extent(arguments, "rv");
    return drawing::ellipsePath(centre, radiusH, radiusV);
}

Path pathOf(Arguments& arguments) {
    svg::PathData data = svg::parsePathData(arguments.text("path data"));
    if (!data.complete || data.path.empty())
        throw PlayError("the path data has a mistake");
    return std::move(data.path);
}

Path line(Arguments& arguments) {
    const drawing::Point from = arguments.point();
    return drawing::polylinePath({from, arguments.point()});
}

Path outlineOf(Kind kind, Arguments& arguments) {
    switch (kind) {
    case Kind::Rect:
        return rectangle(arguments);
    case Kind::Ellipse:
        return ellipse(arguments);
    case Kind::Polygon:
        return drawing::polygonPath(arguments.points(3));
    case Kind::Path:
        return pathOf(arguments);
    case Kind::Polyline:
        return drawing::polylinePath(arguments.points(2));
    case Kind::Line:
        return line(arguments);
    case Kind::Picture:
    case Kind::Text:
        break;
    }
    throw PlayError("a " + std::string(kindName(kind)) + " cannot be added");
}

drawing::SharedPtr<const drawing::Style> thinLine() {
    static const auto style = [] {
        drawing::Style thin;
        thin.stroke.paint = drawing::ColorPaint{};
        return drawing::makeShared<const drawing::Style>(std::move(thin));
    }();
    return style;
}

std::uint16_t channel(const std::string& word) {
    return static_cast<std::uint16_t>(parseInteger(word, "a color channel", 0, kLargestChannel));
}

CGradientColor stopOf(const std::string& word) {
    const std::size_t colon = word.find(':');
    const std::size_t first = colon == std::string::npos ? colon : word.find(',', colon);
    const std::size_t second = first == std::string::npos ? first : word.find(',', first + 1);
    if (second == std::string::npos)
        throw PlayError("\"" + word + "\" is no stop: it has to be percent:red,green,blue");
    const RGBColor color{channel(word.substr(colon + 1, first - colon - 1)),
                         channel(word.substr(first + 1, second - first - 1)),
                         channel(word.substr(second + 1))};
    return {color, parseNumber(word.substr(0, colon), "percent")};
}

TPoint<double> fractions(Arguments& arguments, const char* h, const char* v) {
    const double horizontal = arguments.anyNumber(h);
    return {horizontal, arguments.anyNumber(v)};
}

} // namespace

bool canBeAdded(Kind kind) {
    return kind != Kind::Picture && kind != Kind::Text;
}

drawing::Object newObject(Arguments& arguments) {
    const std::string& name = arguments.text("KIND");
    const auto kind = drawing::kindFromName(name);
    if (!kind)
        throw PlayError("there is no kind \"" + name + "\"");
    drawing::Object object;
    object.kind = *kind;
    object.id = arguments.text("ID");
    if (object.id.empty())
        throw PlayError("the ID is empty");
    auto outline = outlineOf(*kind, arguments);
    arguments.done();
    if (*kind == Kind::Path && !outline.closed())
        object.kind = Kind::Polyline;
    if (!carriesGradient(object.kind))
        object.style = thinLine();
    object.outline = std::move(outline);
    return object;
}

CGradientData gradientRecord(Arguments& arguments) {
    using Limits = std::numeric_limits<std::int32_t>;
    CGradientData record;
    record.SetType(static_cast<KGradientType>(arguments.integer("TYPE", Limits::min(), Limits::max())));
    record.SetAngle(static_cast<float>(arguments.anyNumber("ANGLE")));
    record.SetStart(fractions(arguments, "START-H", "START-V"));
    record.SetEnd(fractions(arguments, "END-H", "END-V"));
    record.ColorList().clear();
    do
        record.ColorList().push_back(stopOf(arguments.text("STOP")));
    while (!arguments.empty());
    return record;
}

} // namespace easel::play
