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

} // namespace

std::string recordText(const CGradientData& record) {
    std::string text =
        std::to_string(static_cast<std::int32_t>(record.Type())) + ' ' + numberText(record.Angle());
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

} // namespace easel::svg
