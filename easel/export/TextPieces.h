// What of a text other programs set as it is set here, when they are told where it begins.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/type/SetText.h"
#include "easel/type/Typesetter.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace easel::exports {

// Letters side by side on a line, as their font sets them.
struct TextPiece {
    std::string text;
    type::Font font;       // the families begin with that of the letters
    drawing::Affine frame; // to the units of the text, of a line in units in which the font is `size` high
    double size = 0;
    drawing::Point begin; // the left end on the line, in those units
};

// The pieces in the order of the text. Nothing if not every letter would look as it does: those whose glyph
// has to do with what is around it, or whose face other programs do not make.
std::optional<std::vector<TextPiece>> piecesOf(const type::SetText& text, type::Typesetter& typesetter);

} // namespace easel::exports
