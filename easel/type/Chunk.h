// The clusters of a chunk side by side on a line of their own.
#pragma once

#include "easel/type/Text.h"
#include "easel/type/Typesetter.h"

#include <cstddef>
#include <string>
#include <vector>

namespace easel::type {

// A cluster on its line: `along` is where it begins, from the line's beginning, and `across` how far below
// the line's baseline it stands.
struct SetCluster {
    drawing::Path outline; // in ems
    FacePtr face;
    std::vector<Glyph> glyphs;
    std::string text;      // its characters, UTF-8
    std::size_t first = 0; // character
    double along = 0;
    double advance = 0; // with the spacing behind it
    double width = 0;   // without
    double across = 0;
    double stretch = 1; // of the letters along the line
    bool upright = false;
    bool rightToLeft = false;
};

struct Chunk {
    std::vector<SetCluster> clusters; // in the order along the line
    double length = 0;
};

// Lays out the characters from `begin` to `end`. `metrics`: of the font of each of the text's styles.
Chunk setChunk(const Text& text, std::size_t begin, std::size_t end, const std::vector<FontMetrics>& metrics,
               Typesetter& typesetter);

} // namespace easel::type
