#include "easel/svg/style/StyleValues.h"

#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace easel::svg {

using drawing::FillRule;
using drawing::LineCap;
using drawing::LineJoin;
using drawing::PaintStep;

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [&](std::string_view word) { return equalIgnoringCase(text, word); });
}

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

std::optional<double> parseSize(std::string_view text, const LengthContext& lengths, Axis axis) {
    const auto length = parseLength(text, lengths, axis);
    return length && *length >= 0 ? length : std::nullopt;
}

std::optional<double> parseMiterLimit(std::string_view text) {
    const auto limit = parseFraction(text);
    return limit && *limit >= 1 ? limit : std::nullopt;
}

std::optional<bool> parseVisibility(std::string_view text) {
    if (equalIgnoringCase(text, "visible"))
        return true;
    return isOneOf(text, {"hidden", "collapse"}) ? std::optional(false) : std::nullopt;
}

std::optional<bool> parseSmoothness(std::string_view text) {
    if (isOneOf(text, {"auto", "smooth", "high-quality", "optimizeQuality"}))
        return true;
    return isOneOf(text, {"optimizeSpeed", "pixelated", "crisp-edges"}) ? std::optional(false) : std::nullopt;
}

} // namespace easel::svg
