#include "easel/svg/style/ComputedStyle.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/style/StyleValues.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>

namespace easel::svg {

namespace {

// The value that a stated text stands for, with what "inherit" and "initial" mean already dealt with.
class Reader {
  public:
    Reader(const StatedStyle& stated, const ComputedStyle& parent, ComputedStyle& result)
        : stated_(stated), parent_(parent), result_(result) {}

    // parse(text) gives an optional value.
    template <class Value, class Parser>
    void read(Property property, Value ComputedStyle::*member, Parser parse) {
        const std::string_view text = stated_[property];
        if (text.empty())
            return;
        if (equalIgnoringCase(text, "inherit") || equalIgnoringCase(text, "unset"))
            result_.*member = parent_.*member;
        else if (equalIgnoringCase(text, "initial"))
            result_.*member = ComputedStyle().*member;
        else if (const auto value = parse(text))
            result_.*member = *value;
    }

  private:
    const StatedStyle& stated_;
    const ComputedStyle& parent_;
    ComputedStyle& result_;
};

// The shorthand is the weaker one, wherever it stands.
void inheritMarkers(const StatedStyle& stated, const std::array<std::string_view, 3>& outside,
                    std::array<std::string_view, 3>& markers) {
    const auto state = [&](std::size_t slot, std::string_view text) {
        if (equalIgnoringCase(text, "inherit"))
            markers[slot] = outside[slot];
        else if (!text.empty())
            markers[slot] = localId(text);
    };
    constexpr std::array kOwn = {Property::MarkerStart, Property::MarkerMid, Property::MarkerEnd};
    for (std::size_t slot = 0; slot < kOwn.size(); ++slot) {
        state(slot, stated[Property::Marker]);
        state(slot, stated[kOwn[slot]]);
    }
}

} // namespace

const TextStyle& textStyleOf(const ComputedStyle& style) {
    static const TextStyle kPlain;
    return style.textStyle ? *style.textStyle : kPlain;
}

std::optional<double> parseOpacity(std::string_view text) {
    const auto value = parseFraction(text);
    return value ? std::optional(std::clamp(*value, 0.0, 1.0)) : std::nullopt;
}

double parseOpacity(std::string_view text, double otherwise) {
    return parseOpacity(text).value_or(otherwise);
}

std::optional<PaintSpec> parsePaint(std::string_view text) {
    PaintSpec spec;
    if (equalIgnoringCase(text.substr(0, 4), "url(")) {
        spec.kind = PaintSpec::Kind::Server;
        spec.serverId = localId(text);
        const std::size_t end = text.find(')');
        const std::string_view fallback = end == std::string_view::npos ? "" : trimmed(text.substr(end + 1));
        // A fallback is a color; one that names another server is none.
        const bool isColor = !fallback.empty() && !equalIgnoringCase(fallback.substr(0, 4), "url(");
        if (const auto other = isColor ? parsePaint(fallback) : std::nullopt) {
            spec.fallback = other->kind;
            spec.color = other->color;
        }
        return spec;
    }
    if (equalIgnoringCase(text, "none"))
        return spec;
    if (equalIgnoringCase(text, "context-fill") || equalIgnoringCase(text, "context-stroke")) {
        spec.kind = text.size() == 12 ? PaintSpec::Kind::ContextFill : PaintSpec::Kind::ContextStroke;
        return spec;
    }
    if (equalIgnoringCase(text, "currentcolor")) {
        spec.kind = PaintSpec::Kind::CurrentColor;
        return spec;
    }
    const auto color = parseColor(text);
    if (!color)
        return std::nullopt;
    spec.kind = PaintSpec::Kind::Color;
    spec.color = *color;
    return spec;
}

ComputedStyle ComputedStyle::inherited(const StatedStyle& stated, LengthContext& lengths) const {
    ComputedStyle result = *this;
    result.custom = stated.custom;
    result.fixedStroke = equalIgnoringCase(stated[Property::VectorEffect], "non-scaling-stroke");
    inheritMarkers(stated, markers, result.markers);
    Reader reader(stated, *this, result);
    const auto length = [&lengths](std::string_view text) { return parseLength(text, lengths, Axis::Other); };
    const auto opacity = [](std::string_view text) { return parseOpacity(text); };

    reader.read(Property::FontSize, &ComputedStyle::fontSize,
                [&](std::string_view text) { return parseFontSize(text, lengths); });
    lengths.fontSize = result.fontSize;
    if (stated.statesText())
        result.textStyle = std::make_shared<const TextStyle>(textStyleOf(*this).inherited(stated, lengths));
    reader.read(Property::Color, &ComputedStyle::color,
                [&](std::string_view text) { return parseColor(text, this->color); });
    reader.read(Property::Fill, &ComputedStyle::fill, parsePaint);
    reader.read(Property::FillOpacity, &ComputedStyle::fillOpacity, opacity);
    reader.read(Property::FillRule, &ComputedStyle::fillRule, parseRule);
    reader.read(Property::ClipRule, &ComputedStyle::clipRule, parseRule);
    reader.read(Property::Stroke, &ComputedStyle::stroke, parsePaint);
    reader.read(Property::StrokeOpacity, &ComputedStyle::strokeOpacity, opacity);
    reader.read(Property::StrokeWidth, &ComputedStyle::strokeWidth,
                [&](std::string_view text) { return parseSize(text, lengths, Axis::Other); });
    reader.read(Property::StrokeMiterlimit, &ComputedStyle::miterLimit, parseMiterLimit);
    reader.read(Property::StrokeLinejoin, &ComputedStyle::join, parseJoin);
    reader.read(Property::StrokeLinecap, &ComputedStyle::cap, parseCap);
    reader.read(Property::StrokeDasharray, &ComputedStyle::dashes,
                [&](std::string_view text) { return parseDashes(text, lengths); });
    reader.read(Property::StrokeDashoffset, &ComputedStyle::dashOffset, length);
    reader.read(Property::PaintOrder, &ComputedStyle::first, parsePaintOrder);
    reader.read(Property::Visibility, &ComputedStyle::visible, parseVisibility);
    reader.read(Property::ImageRendering, &ComputedStyle::smoothPictures, parseSmoothness);
    return result;
}

} // namespace easel::svg
