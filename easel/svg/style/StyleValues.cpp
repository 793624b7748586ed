#include "easel/svg/style/StyleValues.h"

#include "easel/svg/style/Words.h"
#include "easel/svg/text/Scanner.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace easel::svg {

using drawing::FillRule;
using drawing::LineCap;
using drawing::LineJoin;
using drawing::PaintStep;

std::optional<FillRule> parseRule(std::string_view text) {
    static constexpr Word<FillRule> kWords[] = {{"evenodd", FillRule::EvenOdd},
                                                {"nonzero", FillRule::NonZero}};
    return valueOf(text, kWords);
}

std::optional<LineJoin> parseJoin(std::string_view text) {
    // The two joins that nobody draws are drawn as the one they are like.
    static constexpr Word<LineJoin> kWords[] = {{"round", LineJoin::Round},
                                                {"bevel", LineJoin::Bevel},
                                                {"miter", LineJoin::Miter},
                                                {"miter-clip", LineJoin::Miter},
                                                {"arcs", LineJoin::Miter}};
    return valueOf(text, kWords);
}

std::optional<LineCap> parseCap(std::string_view text) {
    static constexpr Word<LineCap> kWords[] = {
        {"round", LineCap::Round}, {"square", LineCap::Square}, {"butt", LineCap::Butt}};
    return valueOf(text, kWords);
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
    static constexpr Word<double> kSizes[] = {{"xx-small", 9}, {"x-small", 10}, {"small", 13},
                                              {"medium", 16},  {"large", 18},   {"x-large", 24},
                                              {"xx-large", 32}};
    if (const auto size = valueOf(text, kSizes))
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
    static constexpr Word<bool> kWords[] = {{"visible", true}, {"hidden", false}, {"collapse", false}};
    return valueOf(text, kWords);
}

std::optional<bool> parseSmoothness(std::string_view text) {
    static constexpr Word<bool> kWords[] = {
        {"auto", true},           {"smooth", true},     {"high-quality", true}, {"optimizeQuality", true},
        {"optimizeSpeed", false}, {"pixelated", false}, {"crisp-edges", false}};
    return valueOf(text, kWords);
}

} // namespace easel::svg
