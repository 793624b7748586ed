// Reading GIMP's gradient files.
#include "easel/exchange/Ggr.h"

#include "easel/exchange/GgrSegment.h"
#include "easel/text/Ascii.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace easel::exchange {
namespace {

using text::trimmed;

constexpr std::size_t kMostSegments = 10'000;
constexpr std::size_t kMostStops = 1'000'000;
// Programs write positions with six decimals, so neighbours may not quite meet.
constexpr double kGap = 1e-5;

std::string_view takeLine(std::string_view& text) {
    const auto end = text.find('\n');
    auto line = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

// A finite number at the front of the line, which is then cut off.
std::optional<double> takeNumber(std::string_view& line) {
    line = trimmed(line);
    double number = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), number);
    if (error != std::errc() || !std::isfinite(number))
        return std::nullopt;
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    return number;
}

std::optional<int> takeCode(std::string_view& line, int largest) {
    const auto number = takeNumber(line);
    if (!number || *number < 0 || *number > largest || *number != std::floor(*number))
        return std::nullopt;
    return static_cast<int>(*number);
}

bool isWithin(double value, double low, double high) {
    return value >= low && value <= high;
}

// Positions, eight channels, two codes, and in later versions two more that say where the colors come from.
std::optional<GgrSegment> segmentFrom(std::string_view line) {
    std::array<double, 11> numbers{};
    for (auto& number : numbers) {
        const auto taken = takeNumber(line);
        if (!taken)
            return std::nullopt;
        number = *taken;
    }
    for (std::size_t i = 3; i < numbers.size(); ++i)
        if (!isWithin(numbers[i], 0, 1))
            return std::nullopt;
    GgrSegment segment{numbers[0],
                       numbers[1],
                       numbers[2],
                       {numbers[3], numbers[4], numbers[5]},
                       {numbers[7], numbers[8], numbers[9]},
                       numbers[6],
                       numbers[10]};
    if (!isWithin(segment.middle, segment.left, segment.right))
        return std::nullopt;
    const auto blending = takeCode(line, static_cast<int>(GgrBlending::Step));
    const auto coloring = takeCode(line, static_cast<int>(GgrColoring::HsvClockwise));
    if (!blending || !coloring)
        return std::nullopt;
    segment.blending = static_cast<GgrBlending>(*blending);
    segment.coloring = static_cast<GgrColoring>(*coloring);
    for (int end = 0; end < 2 && !trimmed(line).empty(); ++end) {
        constexpr int kLastColorSource = 4;
        const auto source = takeCode(line, kLastColorSource);
        if (!source)
            return std::nullopt;
        segment.hasPaletteColors |= *source != 0;
    }
    return trimmed(line).empty() ? std::optional(segment) : std::nullopt;
}

// Half way between the colors at the middle. A segment whose middle lies on its left end starts half way, and
// one whose middle lies on its right end ends there.
void addStraight(std::list<CGradientColor>& stops, const GgrSegment& segment) {
    const double length = segment.right - segment.left;
    const bool even = std::abs(segment.middle - (segment.left + segment.right) / 2) <= kGap / 10;
    addStop(stops, segment.left, rounded(segment.leftColor));
    if (!even && length > 0)
        addStop(stops, segment.middle, rounded(between(segment.leftColor, segment.rightColor, 0.5)));
    if (even || segment.middle < segment.right)
        addStop(stops, segment.right, rounded(segment.rightColor));
}

void addSegment(std::list<CGradientColor>& stops, const GgrSegment& segment) {
    if (segment.blending == GgrBlending::Step) {
        for (const auto& [position, color] : {std::pair(segment.left, segment.leftColor),
                                              {segment.middle, segment.leftColor},
                                              {segment.middle, segment.rightColor},
                                              {segment.right, segment.rightColor}})
            addStop(stops, position, rounded(color));
    } else if (segment.isStraight()) {
        addStraight(stops, segment);
    } else {
        addCurve(stops, segment.left, segment.right, [&](double part) { return segment.colorAt(part); });
    }
}

std::vector<std::string> notesOn(const std::vector<GgrSegment>& segments) {
    bool faint = false;
    bool curved = false;
    bool palette = false;
    for (const auto& segment : segments) {
        faint |= segment.leftOpacity < 1 || segment.rightOpacity < 1;
        curved |= !segment.isStraight();
        palette |= segment.hasPaletteColors;
    }
    std::vector<std::string> notes;
    if (faint)
        notes.emplace_back("its opacity is left out: every color is opaque");
    if (curved)
        notes.emplace_back(
            "its blending curves and hue sweeps are replaced by stops that stay within one level of them");
    if (palette)
        notes.emplace_back("foreground and background colors are those that were in force when it was saved");
    return notes;
}

std::string inLine(std::size_t number, const std::string& reason) {
    return "line " + std::to_string(number) + " " + reason;
}

} // namespace

files::Result<ImportedGradient> readGgr(std::string_view text, const std::filesystem::path& file) {
    const auto flaw = [&](const std::string& reason) {
        return tl::unexpected(files::Error{file, reason, {}});
    };
    ImportedGradient result;
    std::size_t lineNumber = 1;
    if (trimmed(takeLine(text)) != "GIMP Gradient")
        return flaw("it is no GIMP gradient");
    auto line = takeLine(text);
    ++lineNumber;
    constexpr std::string_view kName = "Name:";
    if (line.starts_with(kName)) {
        result.name = trimmed(line.substr(kName.size()));
        line = takeLine(text);
        ++lineNumber;
    }
    const auto count = takeCode(line, static_cast<int>(kMostSegments));
    if (!count || *count == 0 || !trimmed(line).empty())
        return flaw(inLine(lineNumber, "is no number of segments from 1 to 10000"));
    std::vector<GgrSegment> segments;
    auto& stops = result.gradient.ColorList();
    stops.clear();
    for (int i = 0; i < *count; ++i) {
        ++lineNumber;
        const auto segment = segmentFrom(takeLine(text));
        if (!segment)
            return flaw(inLine(lineNumber, "is no segment of a gradient"));
        if (!isWithin(segment->left, -kGap, 1 + kGap) || !isWithin(segment->right, -kGap, 1 + kGap) ||
            (!segments.empty() && std::abs(segment->left - segments.back().right) > kGap))
            return flaw(inLine(lineNumber, "has a segment that does not follow the one before it"));
        segments.push_back(*segment);
        // Neighbours meet exactly, so that the stops stay in order.
        if (segments.size() > 1)
            segments.back().left = segments[segments.size() - 2].right;
        if (segments.back().left > segments.back().middle)
            segments.back().middle = segments.back().left;
        if (segments.back().middle > segments.back().right)
            segments.back().right = segments.back().middle;
        addSegment(stops, segments.back());
        if (stops.size() > kMostStops)
            return flaw("it needs more than a million stops");
    }
    result.notes = notesOn(segments);
    return result;
}

} // namespace easel::exchange
