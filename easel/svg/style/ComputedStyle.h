// Style as elements hand it down to what they hold.
#pragma once

#include "easel/drawing/Paint.h"
#include "easel/drawing/Path.h"
#include "easel/drawing/Style.h"
#include "easel/svg/style/Property.h"
#include "easel/svg/text/Length.h"

#include <array>
#include <memory>
#include <string_view>
#include <vector>

namespace easel::svg {

// A paint as it is stated: servers are looked up when the shape is known.
struct PaintSpec {
    enum class Kind : std::uint8_t { None, Color, CurrentColor, Server, ContextFill, ContextStroke };
    Kind kind = Kind::None;
    Kind fallback = Kind::None; // of a server that is missing: None, Color or CurrentColor
    drawing::ColorPaint color;  // for Color, also as the fallback
    std::string_view serverId;
};

struct TextStyle;

// What `context-fill` and `context-stroke` stand for: the paints of the shape that shows a marker, or else of
// the `use` element around.
struct ContextPaints {
    enum class Giver : std::uint8_t { Shape, Use };
    drawing::Paint fill;
    drawing::Paint stroke;
    Giver giver = Giver::Shape;
};

struct ComputedStyle {
    PaintSpec fill{PaintSpec::Kind::Color, PaintSpec::Kind::None, {}, {}};
    PaintSpec stroke;
    drawing::ColorPaint color;
    double fillOpacity = 1;
    double strokeOpacity = 1;
    double strokeWidth = 1;
    double miterLimit = 4;
    double dashOffset = 0;
    double fontSize = 16;
    std::shared_ptr<const std::vector<double>> dashes; // null: solid
    drawing::FillRule fillRule = drawing::FillRule::NonZero;
    drawing::FillRule clipRule = drawing::FillRule::NonZero;
    drawing::LineJoin join = drawing::LineJoin::Miter;
    drawing::LineCap cap = drawing::LineCap::Butt;
    drawing::PaintStep first = drawing::PaintStep::Fill;
    bool visible = true;
    bool fixedStroke = false; // the element's own: whether its stroke is as wide as if nothing were scaled
    bool smoothPictures = true;
    std::array<std::string_view, 3>
        markers; // ids of those at the start, in between and at the end; empty: none
    std::shared_ptr<const ContextPaints> context; // null: none
    const CustomProperties* custom = nullptr;     // null: none
    std::shared_ptr<const TextStyle> textStyle;   // null: nothing is stated of it

    // The style of an element in one with this style. Font sizes in `lengths` are brought up to date.
    ComputedStyle inherited(const StatedStyle& stated, LengthContext& lengths) const;
};

// The style that none stands for, where nothing is stated.
const TextStyle& textStyleOf(const ComputedStyle& style);

// Nothing for a paint that is not understood.
std::optional<PaintSpec> parsePaint(std::string_view text);

// 0 to 1, from a number or percentage; nothing or `otherwise` if the text is neither.
std::optional<double> parseOpacity(std::string_view text);
double parseOpacity(std::string_view text, double otherwise);

} // namespace easel::svg
