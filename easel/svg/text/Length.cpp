#include "easel/svg/text/Length.h"

#include "easel/svg/text/Scanner.h"

#include <cmath>

namespace easel::svg {

namespace {

constexpr double kPixelsPerInch = 96;

std::optional<double> unitSize(std::string_view unit, const LengthContext& context) {
    const auto is = [unit](std::string_view other) { return equalIgnoringCase(unit, other); };
    if (unit.empty() || is("px"))
        return 1;
    if (is("em"))
        return context.fontSize;
    if (is("ex") || is("ch"))
        return context.fontSize / 2;
    if (is("rem"))
        return context.rootFontSize;
    if (is("in"))
        return kPixelsPerInch;
    if (is("cm"))
        return kPixelsPerInch / 2.54;
    if (is("mm"))
        return kPixelsPerInch / 25.4;
    if (is("q"))
        return kPixelsPerInch / 101.6;
    if (is("pt"))
        return kPixelsPerInch / 72;
    if (is("pc"))
        return kPixelsPerInch / 6;
    if (is("vw"))
        return context.viewportWidth / 100;
    if (is("vh"))
        return context.viewportHeight / 100;
    if (is("vmin"))
        return std::min(context.viewportWidth, context.viewportHeight) / 100;
    if (is("vmax"))
        return std::max(context.viewportWidth, context.viewportHeight) / 100;
    return std::nullopt;
}

} // namespace

double LengthContext::whole(Axis axis) const {
    switch (axis) {
    case Axis::Horizontal:
        return viewportWidth;
    case Axis::Vertical:
        return viewportHeight;
    case Axis::Other:
        break;
    }
    return std::hypot(viewportWidth, viewportHeight) / std::sqrt(2.0);
}

std::optional<double> parseLength(std::string_view text, const LengthContext& context, Axis axis) {
    Scanner scanner(trimmed(text));
    const auto number = scanner.number();
    if (!number)
        return std::nullopt;
    if (scanner.take('%'))
        return scanner.done() ? std::optional(*number / 100 * context.whole(axis)) : std::nullopt;
    const auto size = unitSize(scanner.rest(), context);
    if (!size)
        return std::nullopt;
    return *number * *size;
}

std::optional<double> parseFraction(std::string_view text) {
    Scanner scanner(trimmed(text));
    const auto number = scanner.number();
    const bool percent = number && scanner.take('%');
    if (!number || !scanner.done())
        return std::nullopt;
    return percent ? *number / 100 : *number;
}

} // namespace easel::svg
