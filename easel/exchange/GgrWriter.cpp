// Writing GIMP's gradient files.
#include "easel/drawing/GradientFit.h"
#include "easel/exchange/Ggr.h"

#include <array>
#include <charconv>
#include <cmath>

namespace easel::exchange {
namespace {

// Ten decimals hold a channel's 16 bits, and a position as well as other programs' numbers can.
void putNumber(std::string& line, double value) {
    constexpr int kDecimals = 10;
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, kDecimals).ptr;
    if (!line.empty())
        line += ' ';
    line.append(text.data(), end);
}

void putColor(std::string& line, const drawing::Rgb16& color) {
    for (const auto channel : {color.red, color.green, color.blue})
        putNumber(line, channel / 65535.0);
    putNumber(line, 1);
}

std::string segmentLine(const drawing::RampStop& left, const drawing::RampStop& right) {
    std::string line;
    for (const double position : {left.position, (left.position + right.position) / 2, right.position})
        putNumber(line, position);
    putColor(line, left.color);
    putColor(line, right.color);
    return line + " 0 0 0 0\n";
}

// A line break would end the name.
std::string nameText(std::string name) {
    for (char& c : name)
        if (static_cast<unsigned char>(c) < ' ')
            c = ' ';
    return name;
}

// The ramp as it is seen: from exactly 0 to exactly 1. What had to go is noted.
drawing::Ramp seenRamp(CGradientData gradient, std::vector<std::string>& notes) {
    std::list<CGradientColor>& stops = gradient.ColorList();
    const RGBColor only = stops.empty() ? RGBColor{} : stops.front().ColorRGB();
    if (std::erase_if(stops, [](const CGradientColor& stop) { return !std::isfinite(stop.Percent()); }) > 0)
        notes.emplace_back("stops whose position is no number are left out");
    if (stops.empty())
        stops.emplace_back(only, 0);
    stops.sort();
    if (stops.front().Percent() < 0 || stops.back().Percent() > 1)
        notes.emplace_back("stops beyond the ramp's ends are cut off");
    return drawing::Ramp(drawing::completeStops(gradient)).within(0, 1);
}

} // namespace

ExportedGradient writeGgr(const CGradientData& gradient, const std::string& name) {
    ExportedGradient result;
    const drawing::Ramp ramp = seenRamp(gradient, result.notes);
    result.notes.emplace_back(
        "the file holds the colors only, not the kind, the angle or the center of the gradient");
    std::string segments;
    std::size_t count = 0;
    for (std::size_t right = 1; right < ramp.stops().size(); ++right) {
        const drawing::RampStop& left = ramp.stops()[right - 1];
        // Where two stops share a position the color jumps, which needs no segment.
        if (left.position == ramp.stops()[right].position)
            continue;
        segments += segmentLine(left, ramp.stops()[right]);
        ++count;
    }
    result.text = "GIMP Gradient\nName: " + nameText(name) + "\n" + std::to_string(count) + "\n" + segments;
    return result;
}

} // namespace easel::exchange
