#include "easel/svg/text/RecordText.h"

#include "easel/svg/text/Number.h"
#include "easel/svg/text/Scanner.h"

#include <array>
#include <charconv>

namespace easel::svg {

namespace {

// The library reads its own "inf" and "nan" too, which records may hold.
template <class Number> bool take(std::string_view& text, Number& value) {
    text = trimmed(text);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc())
        return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

bool takeHead(std::string_view text, CGradientData& record) {
    std::int32_t type = 0;
    float angle = 0;
    std::array<double, 4> points{};
    float startRadius = 0;
    float endRadius = 0;
    bool good = take(text, type) && take(text, angle);
    for (double& coordinate : points)
        good = good && take(text, coordinate);
    good = good && take(text, startRadius) && take(text, endRadius) && trimmed(text).empty();
    record.SetType(static_cast<KGradientType>(type));
    record.SetAngle(angle);
    record.SetStart({points[0], points[1]});
    record.SetEnd({points[2], points[3]});
    record.SetStartRadius(startRadius);
    record.SetEndRadius(endRadius);
    return good;
}

bool takeStop(std::string_view text, CGradientData& record) {
    double position = 0;
    RGBColor color;
    if (!take(text, position) || !take(text, color.red) || !take(text, color.green) ||
        !take(text, color.blue))
        return false;
    record.ColorList().emplace_back(color, position);
    return trimmed(text).empty();
}

// Positions ascend, and both numbers are from 0 to 1.
bool takeOpacity(std::string_view text, std::vector<drawing::OpacityStop>& stops) {
    drawing::OpacityStop stop;
    const double least = stops.empty() ? 0 : stops.back().position;
    if (!take(text, stop.position) || !take(text, stop.opacity) || !trimmed(text).empty())
        return false;
    stops.push_back(stop);
    return stop.position >= least && stop.position <= 1 && stop.opacity >= 0 && stop.opacity <= 1;
}

// The ordinary zero for a negative one.
float plain(float angle) {
    return angle + 0.0F;
}

} // namespace

std::string recordText(const CGradientData& record) {
    std::string text =
        std::to_string(static_cast<std::int32_t>(record.Type())) + ' ' + numberText(plain(record.Angle()));
    for (const TPoint<double>& point : {record.Start(), record.End()})
        text += ' ' + numberText(point.h) + ' ' + numberText(point.v);
    text += ' ' + numberText(static_cast<float>(record.StartRadius()));
    text += ' ' + numberText(static_cast<float>(record.EndRadius()));
    for (const CGradientColor& stop : record.ColorList()) {
        const RGBColor color = stop.ColorRGB();
        text += ';' + numberText(stop.Percent()) + ' ' + std::to_string(color.red) + ' ' +
                std::to_string(color.green) + ' ' + std::to_string(color.blue);
    }
    return text;
}

std::optional<CGradientData> parseRecord(std::string_view text) {
    if (text.empty())
        return std::nullopt;
    CGradientData record;
    record.ColorList().clear();
    Scanner parts(text);
    if (!takeHead(parts.until(';'), record))
        return std::nullopt;
    while (!parts.done())
        if (!takeStop(parts.until(';'), record))
            return std::nullopt;
    if (record.ColorList().empty())
        return std::nullopt;
    return record;
}

std::string opacityText(const drawing::Remainder& remainder) {
    std::string text;
    for (const drawing::OpacityStop& stop : remainder.opacity) {
        if (!text.empty())
            text += ';';
        text += numberText(stop.position) + ' ' + numberText(stop.opacity);
    }
    return text;
}

std::string ellipseText(const drawing::Remainder& remainder) {
    if (!remainder.ellipse)
        return {};
    const drawing::Affine& map = *remainder.ellipse;
    return numberText(map.a) + ' ' + numberText(map.b) + ' ' + numberText(map.c) + ' ' + numberText(map.d);
}

std::optional<drawing::Remainder> parseRemainder(std::string_view opacity, std::string_view ellipse) {
    drawing::Remainder remainder;
    Scanner parts(opacity);
    while (!parts.done())
        if (!takeOpacity(parts.until(';'), remainder.opacity))
            return std::nullopt;
    if (!ellipse.empty()) {
        drawing::Affine map;
        for (double* const number : {&map.a, &map.b, &map.c, &map.d})
            if (!take(ellipse, *number))
                return std::nullopt;
        if (!map.invertible() || !trimmed(ellipse).empty())
            return std::nullopt;
        remainder.ellipse = map;
    }
    return remainder;
}

} // namespace easel::svg
