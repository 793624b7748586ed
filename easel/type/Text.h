// A whole text as it is to be laid out: characters, each in a style and perhaps with a place of its own.
// Lengths are in the units that the text stands in.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/type/Font.h"
#include "easel/type/SetText.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace easel::type {

enum class Anchor : std::uint8_t { Start, Middle, End };
enum class LineKind : std::uint8_t { Underline, Overline, Strikethrough };

// A line along the text. It keeps its place and thickness where letters inside are smaller or raised.
struct Decoration {
    LineKind kind = LineKind::Underline;
    std::size_t paint = 0; // what `PlacedText` tells it apart by
    std::shared_ptr<const Font> font;
    double size = 0;
    double rise = 0; // of the baseline it belongs to
};

struct RunStyle {
    std::shared_ptr<const Font> font;
    double size = 16;
    double rise = 0; // of the baseline, over that of the text
    double letterSpacing = 0;
    double wordSpacing = 0;
    std::size_t paint = 0;
    std::vector<Decoration> decorations; // outermost first
};

struct Character {
    char32_t character = 0;
    std::size_t style = 0; // index
    // A place of its own begins a chunk, which is anchored as a whole.
    std::optional<double> x, y;
    double dx = 0;
    double dy = 0;
    std::optional<double> rotate; // degrees, clockwise
    Anchor anchor = Anchor::Start;
};

// Characters that are to take up a length.
struct Stretched {
    std::size_t begin = 0;
    std::size_t end = 0;
    double length = 0;
    bool lettersToo = false; // stretches the letters, not only the gaps between them
};

// Characters that run along a path; they are chunks of their own.
struct AlongPath {
    std::size_t begin = 0;
    std::size_t end = 0;
    drawing::Path path;
    double start = 0; // distance on the path
};

enum class Direction : std::uint8_t { Horizontal, Vertical };

struct Text {
    std::vector<Character> characters;
    std::vector<RunStyle> styles;
    // Ordered by their ends, inner ones before those around them.
    std::vector<Stretched> stretched;
    std::vector<AlongPath> alongPaths;
    Direction direction = Direction::Horizontal;
    bool rightToLeft = false;
    Upright upright = Upright::ByScript;
};

// What one paint paints.
struct PaintedOutline {
    std::size_t paint = 0;
    drawing::Path outline;
    bool letters = true; // else a line along them
    SetText text;        // the letters
};

struct PlacedText {
    std::vector<PaintedOutline> outlines; // in the order they are painted
    drawing::Box cells;                   // around what letters take up with ascent, descent and advance
};

} // namespace easel::type
