// The file of a font, and glyphs by their numbers there: what other programs need to show the same letters.
#pragma once

#include "easel/drawing/Path.h"

#include <cstdint>
#include <memory>
#include <string>

namespace easel::type {

// A face of a font as letters are set with it.
struct Face {
    std::string family; // as the face names itself
    std::string file;   // empty: in none, as that of a drawing's own letters
    int index = 0;      // of the face in its file
    // From the file's outlines to those of the letters, in ems with down as positive: slants what the font
    // has no slanted letters for, and makes small capitals of large ones.
    drawing::Affine shape;
    // Whether the file's outlines, in that shape, are those of the letters: they are not made bold, no
    // instance of a variable font, and no colored pictures.
    bool asInFile = false;

    friend bool operator==(const Face&, const Face&) = default;
};

using FacePtr = std::shared_ptr<const Face>;

struct Glyph {
    std::uint32_t number = 0; // in the face
    float x = 0;              // from the pen's place in front of its cluster, in ems; down is positive
    float y = 0;
};

} // namespace easel::type
