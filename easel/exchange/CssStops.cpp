// Reading color stops: positions left out are filled in, hints become curves.
#include "easel/exchange/CssStops.h"

#include "easel/exchange/CssText.h"
#include "easel/exchange/RampApproximation.h"
#include "easel/svg/style/Color.h"
#include "easel/text/Ascii.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace easel::exchange {
namespace {

using text::lowerCase;

constexpr double kUnplaced = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t kMostParts = 10'000;

// A stop, or a hint: where half of the way between its neighbours' colors is reached.
struct Entry {
    enum class Kind { Stop, Hint };
    Kind kind = Kind::Stop;
    RGBColor color;
    double position = kUnplaced;
};

// Lengths mean something only once the size is known.
std::optional<double> positionIn(std::string_view word, Notes& notes) {
    const auto number = numberIn(word);
    if (!number)
        return std::nullopt;
    if (number->unit == "%")
        return number->value / 100;
    if (number->unit.empty() && number->value == 0)
        return 0;
    if (number->unit.empty())
        return std::nullopt;
    notes.insert("positions given as lengths are left out, for they depend on the size of the shape");
    return kUnplaced;
}

// Colors that are written in one of the newer forms are mixed in another space unless the gradient says
// which.
bool isMixedInOklab(std::string_view color) {
    const auto name = lowerCase(color.substr(0, color.find('(')));
    return name == "lab" || name == "lch" || name == "oklab" || name == "oklch" || name == "color";
}

std::optional<RGBColor> colorIn(std::string_view word, Notes& notes) {
    const auto color = svg::parseColor(word);
    if (!color)
        return std::nullopt;
    if (isMixedInOklab(word))
        notes.insert(kColorSpaceNote);
    if (color->opacity < 1)
        notes.insert("its opacity is left out: every color is opaque");
    return RGBColor{color->color.red, color->color.green, color->color.blue};
}

// CSS allows the color before or behind the positions.
bool addStopOrHint(std::string_view part, std::vector<Entry>& entries, Notes& notes) {
    std::optional<RGBColor> color;
    std::vector<double> positions;
    for (const auto word : words(part)) {
        if (const auto position = positionIn(word, notes))
            positions.push_back(*position);
        else if (const auto found = color ? std::nullopt : colorIn(word, notes))
            color = *found;
        else
            return false;
    }
    if (positions.size() > 2 || (!color && positions.size() != 1))
        return false;
    if (!color) {
        entries.push_back({Entry::Kind::Hint, {}, positions.front()});
        return true;
    }
    if (positions.empty())
        positions.push_back(kUnplaced);
    for (const double position : positions)
        entries.push_back({Entry::Kind::Stop, *color, position});
    return true;
}

// The first and the last stop are at the ends, none lies before an earlier one, and those without a position
// are spread evenly between their neighbours.
void placeAll(std::vector<Entry>& entries) {
    if (std::isnan(entries.front().position))
        entries.front().position = 0;
    if (std::isnan(entries.back().position))
        entries.back().position = 1;
    double farthest = entries.front().position;
    for (auto& entry : entries)
        if (!std::isnan(entry.position))
            farthest = entry.position = std::max(entry.position, farthest);
    for (std::size_t i = 1; i < entries.size(); ++i) {
        if (!std::isnan(entries[i].position))
            continue;
        std::size_t placed = i;
        while (std::isnan(entries[placed].position))
            ++placed;
        const double start = entries[i - 1].position;
        const auto gaps = static_cast<double>(placed - i + 1);
        for (std::size_t j = i; j < placed; ++j)
            entries[j].position =
                std::lerp(start, entries[placed].position, static_cast<double>(j - i + 1) / gaps);
    }
}

CurveColor curveColor(const RGBColor& color) {
    return {color.red / 65535.0, color.green / 65535.0, color.blue / 65535.0};
}

void addHinted(std::list<CGradientColor>& stops, const Entry& from, const Entry& hint, const Entry& to) {
    const double length = to.position - from.position;
    const double middle = length > 0 ? (hint.position - from.position) / length : 0.5;
    if (middle <= 0 || middle >= 1) {
        addStop(stops, hint.position, middle <= 0 ? to.color : from.color);
        addStop(stops, to.position, to.color);
        return;
    }
    const CurveColor a = curveColor(from.color);
    const CurveColor b = curveColor(to.color);
    addCurve(stops, from.position, to.position, [&](double part) {
        const double factor = easedBy(part, middle);
        return CurveColor{std::lerp(a.red, b.red, factor), std::lerp(a.green, b.green, factor),
                          std::lerp(a.blue, b.blue, factor)};
    });
}

} // namespace

bool isColorStop(std::string_view part) {
    Notes ignored;
    std::vector<Entry> entries;
    return addStopOrHint(part, entries, ignored) && entries.front().kind == Entry::Kind::Stop;
}

files::Result<std::list<CGradientColor>> stopsFrom(std::span<const std::string_view> parts, Notes& notes) {
    const auto flaw = [](const std::string& reason) { return tl::unexpected(files::Error{{}, reason, {}}); };
    if (parts.size() > kMostParts)
        return flaw("it has more than 10000 stops");
    std::vector<Entry> entries;
    for (const auto part : parts)
        if (!addStopOrHint(part, entries, notes))
            return flaw(quoted(part) + " is no color stop that could be understood");
    const auto isHint = [](const Entry& entry) { return entry.kind == Entry::Kind::Hint; };
    const auto neighbours =
        std::adjacent_find(entries.begin(), entries.end(),
                           [&](const Entry& a, const Entry& b) { return isHint(a) && isHint(b); });
    if (entries.empty() || isHint(entries.front()) || isHint(entries.back()) || neighbours != entries.end())
        return flaw("it has no color stops, or a midpoint that does not lie between two of them");
    placeAll(entries);
    std::list<CGradientColor> stops;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!isHint(entries[i])) {
            addStop(stops, entries[i].position, entries[i].color);
            continue;
        }
        notes.insert("its midpoints are replaced by stops that stay within one level of the curve");
        addHinted(stops, entries[i - 1], entries[i], entries[i + 1]);
    }
    return stops;
}

} // namespace easel::exchange
