// The rule @font-face, which names a font that a file brings along.
#pragma once

#include "easel/svg/style/Css.h"
#include "easel/type/LoadedFont.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace easel::svg {

struct FontSource {
    enum class Kind : std::uint8_t { System, Reference };
    Kind kind = Kind::Reference;
    std::string text; // the name of a font, or where one is
};

struct FontFace {
    type::Font font;                          // the one family it is for, and how its letters look
    std::optional<type::Weights> weights;     // that it is for; nothing: not said
    std::string variations;                   // as in type::Font
    std::vector<type::Characters> characters; // that it is for; none: all
    std::vector<FontSource> sources;          // the best first
};

// `sources`: where the descriptors name none. Nothing without a family or a source.
std::optional<FontFace> parseFontFace(const std::vector<Declaration>& descriptors,
                                      std::vector<FontSource> sources = {});

} // namespace easel::svg
