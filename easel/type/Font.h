// Which font a run of text asks for, and the measures of one.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace easel::type {

enum class Slant : std::uint8_t { Upright, Italic, Oblique };

// In the order from narrow to wide.
enum class Stretch : std::uint8_t {
    UltraCondensed,
    ExtraCondensed,
    Condensed,
    SemiCondensed,
    Normal,
    SemiExpanded,
    Expanded,
    ExtraExpanded,
    UltraExpanded
};

// How letters stand in vertical lines: as their script wants it, all upright, or all lying on their side.
enum class Upright : std::uint8_t { ByScript, All, None };

// Names that stand for whatever family is there.
inline bool isGenericFamily(std::string_view name) {
    constexpr std::string_view kNames[] = {"serif",   "sans-serif", "monospace",
                                           "cursive", "fantasy",    "system-ui"};
    return std::find(std::begin(kNames), std::end(kNames), name) != std::end(kNames);
}

struct Font {
    std::string families; // separated by commas, the best first; what is missing is replaced by the next
    int weight = 400;     // 100 to 1000
    Slant slant = Slant::Upright;
    Stretch stretch = Stretch::Normal;
    bool smallCaps = false;
    bool ligatures = true;  // those that are not needed to write the script
    std::string language{}; // as in xml:lang; empty: English
    // Places on the axes of variable fonts, as "wght=650,wdth=80", instead of what the rest says of them.
    std::string variations{};

    friend bool operator==(const Font&, const Font&) = default;
};

// From one to another, both among them.
struct Characters {
    char32_t first = 0;
    char32_t last = 0;

    friend bool operator==(const Characters&, const Characters&) = default;
};

// Heights over the baseline, in ems; below it they are negative.
struct FontMetrics {
    double ascent = 0.8;
    double descent = -0.2;
    double xHeight = 0.5;
    double hanging = 0.8;
    double mathematical = 0.4;
    double ideographic = -0.2;
    // Middle of the line and its thickness.
    double underline = -0.1;
    double underlineThickness = 0.05;
    double strikethrough = 0.3;
    double strikethroughThickness = 0.05;
};

} // namespace easel::type
