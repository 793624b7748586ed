#include "easel/svg/style/PlacedTransform.h"

#include "easel/svg/text/Scanner.h"
#include "easel/svg/text/Transform.h"

#include <array>

namespace easel::svg {

using drawing::Affine;
using drawing::Box;
using drawing::Point;

namespace {

std::string_view takePart(std::string_view& text) {
    const std::size_t count = std::min(text.find_first_of(" \t\r\n,"), text.size());
    const std::string_view part = text.substr(0, count);
    text = trimmed(text.substr(std::min(count + 1, text.size())));
    return part;
}

// The share of the side that a keyword stands for.
std::optional<double> keyword(std::string_view part, std::string_view low, std::string_view high) {
    if (equalIgnoringCase(part, low))
        return 0;
    if (equalIgnoringCase(part, high))
        return 1;
    return equalIgnoringCase(part, "center") ? std::optional(0.5) : std::nullopt;
}

struct Side {
    double begin = 0;
    double size = 0;
    std::string_view low, high; // keywords
    Axis axis = Axis::Other;
};

std::optional<double> placeOn(const Side& side, std::string_view part, const LengthContext& lengths) {
    if (const auto share = keyword(part, side.low, side.high))
        return side.begin + *share * side.size;
    if (part.ends_with('%')) {
        const auto share = parseFraction(part);
        return share ? std::optional(side.begin + *share * side.size) : std::nullopt;
    }
    const auto length = parseLength(part, lengths, side.axis);
    return length ? std::optional(side.begin + *length) : std::nullopt;
}

// Nothing if the text is no origin. The keywords may stand in either order.
std::optional<Point> parseOrigin(std::string_view text, const Box& box, const LengthContext& lengths) {
    const Side across{box.left, box.width(), "left", "right", Axis::Horizontal};
    const Side down{box.top, box.height(), "top", "bottom", Axis::Vertical};
    std::string_view first = takePart(text);
    std::string_view second = text.empty() ? "center" : takePart(text);
    if (equalIgnoringCase(first, "top") || equalIgnoringCase(first, "bottom") ||
        equalIgnoringCase(second, "left") || equalIgnoringCase(second, "right"))
        std::swap(first, second);
    const auto x = placeOn(across, first, lengths);
    const auto y = placeOn(down, second, lengths);
    return x && y ? std::optional(Point{*x, *y}) : std::nullopt;
}

} // namespace

Affine transformOf(const StatedStyle& stated, const LengthContext& lengths, const Box& box) {
    if (stated[Property::Transform].empty())
        return {};
    const Affine map = parseTransform(stated[Property::Transform]).value_or(Affine());
    const std::string_view asked = stated[Property::TransformBox];
    const bool byElement = equalIgnoringCase(asked, "fill-box") || equalIgnoringCase(asked, "content-box") ||
                           equalIgnoringCase(asked, "stroke-box") || equalIgnoringCase(asked, "border-box");
    const std::string_view text = stated[Property::TransformOrigin];
    if (text.empty() && (!byElement || box.empty()))
        return map;
    const Box viewport{0, 0, lengths.viewportWidth, lengths.viewportHeight};
    const auto origin =
        parseOrigin(text.empty() ? "0 0" : text, byElement && !box.empty() ? box : viewport, lengths);
    if (!origin)
        return map;
    return Affine::translation(origin->x, origin->y) * map * Affine::translation(-origin->x, -origin->y);
}

} // namespace easel::svg
