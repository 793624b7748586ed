#include "easel/svg/style/ComputedStyle.h"

#include "easel/svg/style/Color.h"
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cmath>

namespace easel::svg {

using drawing::FillRule;
using drawing::LineCap;
using drawing::LineJoin;
using drawing::PaintStep;

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

std::optional<FillRule> parseRule(std::string_view text) {
    if (equalIgnoringCase(text, "evenodd"))
        return FillRule::EvenOdd;
    if (equalIgnoringCase(text, "nonzero"))
        return FillRule::NonZero;
    return std::nullopt;
}

std::optional<LineJoin> parseJoin(std::string_view text) {
    if (equalIgnoringCase(text, "round"))
        return LineJoin::Round;
    if (equalIgnoringCase(text, "bevel"))
        return LineJoin::Bevel;
    // The two joins that nobody draws are drawn as the one they are like.
    if (equalIgnoringCase(text, "miter") || equalIgnoringCase(text, "miter-clip") ||
        equalIgnoringCase(text, "arcs"))
        return LineJoin::Miter;
    return std::nullopt;
}

std::optional<LineCap> parseCap(std::string_view text) {
    if (equalIgnoringCase(text, "round"))
        return LineCap::Round;
    if (equalIgnoringCase(text, "square"))
        return LineCap::Square;
    if (equalIgnoringCase(text, "butt"))
        return LineCap::Butt;
    return std::nullopt;
}

std::optional<PaintStep> parsePaintOrder(std::string_view text) {
    Scanner scanner(text);
    while (scanner.takeWord("markers"))
        scanner.skipSpaces();
    if (scanner.takeWord("stroke"))
        return PaintStep::Stroke;
    if (scanner.takeWord("fill") || scanner.takeWord("normal") || scanner.done())
        return PaintStep::Fill;
    return std::nullopt;
}

using Dashes = std::shared_ptr<const std::vector<double>>;

std::optional<Dashes> parseDashes(std::string_view text, const LengthContext& lengths) {
    if (equalIgnoringCase(text, "none"))
        return Dashes();
    std::vector<double> dashes;
    double sum = 0;
    Scanner scanner(text);
    while (!scanner.done()) {
        const std::string_view rest = scanner.rest();
        const std::size_t count = std::min(rest.find_first_of(" ,\t\r\n"), rest.size());
        const auto length = parseLength(rest.substr(0, count), lengths, Axis::Other);
        if (!length || *length < 0)
            return std::nullopt;
        dashes.push_back(*length);
        sum += *length;
        scanner = Scanner(rest.substr(count));
        scanner.skipSeparator();
    }
    if (!(sum > 0) || !std::isfinite(sum))
        return Dashes();
    if (dashes.size() % 2 != 0)
        dashes.insert(dashes.end(), dashes.begin(), dashes.end());
    return std::make_shared<const std::vector<double>>(std::move(dashes));
}

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

std::optional<double> parseFontSize(std::string_view text, const LengthContext& lengths) {
    static constexpr std::array<std::pair<std::string_view, double>, 7> kSizes = {{{"xx-small", 9},
                                                                                   {"x-small", 10},
                                                                                   {"small", 13},
                                                                                   {"medium", 16},
                                                                                   {"large", 18},
                                                                                   {"x-large", 24},
                                                                                   {"xx-large", 32}}};
    for (const auto& [name, size] : kSizes)
        if (equalIgnoringCase(text, name))
            return size;
    if (equalIgnoringCase(text, "larger"))
        return lengths.fontSize * 1.2;
    if (equalIgnoringCase(text, "smaller"))
        return lengths.fontSize / 1.2;
    // A percentage is one of the parent's size.
    if (!text.empty() && text.back() == '%') {
        const auto part = parseFraction(text);
        return part ? std::optional(*part * lengths.fontSize) : std::nullopt;
    }
    return parseLength(text, lengths, Axis::Other);
}

} // namespace

const TextStyle& textStyleOf(const ComputedStyle& style) {
    static const TextStyle kPlain;
    return style.textStyle ? *style.textStyle : kPlain;
}

double parseOpacity(std::string_view text, double otherwise) {
    const auto value = parseFraction(text);
    return value ? std::clamp(*value, 0.0, 1.0) : otherwise;
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
    const auto opacity = [](std::string_view text) { return std::optional(parseOpacity(text, 1)); };

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
    reader.read(Property::StrokeWidth, &ComputedStyle::strokeWidth, length);
    reader.read(Property::StrokeMiterlimit, &ComputedStyle::miterLimit, [](std::string_view text) {
        const auto limit = parseFraction(text);
        return limit && *limit >= 1 ? limit : std::nullopt;
    });
    reader.read(Property::StrokeLinejoin, &ComputedStyle::join, parseJoin);
    reader.read(Property::StrokeLinecap, &ComputedStyle::cap, parseCap);
    reader.read(Property::StrokeDasharray, &ComputedStyle::dashes,
                [&](std::string_view text) { return parseDashes(text, lengths); });
    reader.read(Property::StrokeDashoffset, &ComputedStyle::dashOffset, length);
    reader.read(Property::PaintOrder, &ComputedStyle::first, parsePaintOrder);
    reader.read(Property::Visibility, &ComputedStyle::visible, [](std::string_view text) {
        return std::optional(!equalIgnoringCase(text, "hidden") && !equalIgnoringCase(text, "collapse"));
    });
    reader.read(Property::ImageRendering, &ComputedStyle::smoothPictures, [](std::string_view text) {
        return std::optional(!equalIgnoringCase(text, "optimizeSpeed") &&
                             !equalIgnoringCase(text, "pixelated") &&
                             !equalIgnoringCase(text, "crisp-edges"));
    });
    return result;
}

} // namespace easel::svg
