// Writing GIMP's gradient files.
#include "easel/exchange/ClippedRamp.h"
#include "easel/exchange/Ggr.h"

#include <array>
#include <charconv>
#include <iterator>

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

void putColor(std::string& line, const RGBColor& color) {
    for (const auto channel : {color.red, color.green, color.blue})
        putNumber(line, channel / 65535.0);
    putNumber(line, 1);
}

std::string segmentLine(const CGradientColor& left, const CGradientColor& right) {
    std::string line;
    for (const double position : {left.Percent(), (left.Percent() + right.Percent()) / 2, right.Percent()})
        putNumber(line, position);
    putColor(line, left.ColorRGB());
    putColor(line, right.ColorRGB());
    return line + " 0 0 0 0\n";
}

// A line break would end the name.
std::string nameText(std::string name) {
    for (char& c : name)
        if (static_cast<unsigned char>(c) < ' ')
            c = ' ';
    return name;
}

} // namespace

ExportedGradient writeGgr(const CGradientData& gradient, const std::string& name) {
    const auto ramp = clippedRamp(gradient);
    ExportedGradient result;
    result.notes = ramp.notes;
    result.notes.emplace_back(
        "the file holds the colors only, not the kind, the angle or the center of the gradient");
    std::string segments;
    std::size_t count = 0;
    for (auto right = std::next(ramp.stops.begin()); right != ramp.stops.end(); ++right) {
        const auto left = std::prev(right);
        // Where two stops share a position the color jumps, which needs no segment.
        if (left->Percent() == right->Percent())
            continue;
        segments += segmentLine(*left, *right);
        ++count;
    }
    result.text = "GIMP Gradient\nName: " + nameText(name) + "\n" + std::to_string(count) + "\n" + segments;
    return result;
}

} // namespace easel::exchange
