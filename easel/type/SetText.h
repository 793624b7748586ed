// Letters in their places, beside the outline that is made of them: what it takes to write text as text.
#pragma once

#include "easel/type/Face.h"
#include "easel/type/Font.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace easel::type {

// What is set as one, in the units of the text. Its characters and glyphs begin where those of the letter
// before it end.
struct SetLetter {
    drawing::Point at; // where the pen stands
    std::uint32_t textEnd = 0;
    std::uint32_t glyphEnd = 0;
    float advance = 0; // in ems
};

// Letters that follow each other in one face, at one size and angle. They begin where the run before ends.
struct SetRun {
    FacePtr face;
    std::shared_ptr<const Font> font; // that was asked for
    drawing::Affine fromEms;          // to the units of the text, but for the place
    bool rightToLeft = false;
    std::size_t end = 0; // letters
};

struct SetText {
    std::string text; // UTF-8, in the order it is read
    std::vector<Glyph> glyphs;
    std::vector<SetLetter> letters;
    std::vector<SetRun> runs;

    std::uint32_t textBegin(std::size_t letter) const {
        return letter == 0 ? 0 : letters[letter - 1].textEnd;
    }
    std::uint32_t glyphBegin(std::size_t letter) const {
        return letter == 0 ? 0 : letters[letter - 1].glyphEnd;
    }
    // One more letter, in the run before or, if it is not like this, in a new one.
    void add(const SetRun& run, std::string_view characters, std::span<const Glyph> ofLetter,
             drawing::Point at, double advance);
    // The characters of the letters from `begin` to `end`.
    std::string_view textOf(std::size_t begin, std::size_t end) const {
        return std::string_view(text).substr(textBegin(begin), textBegin(end) - textBegin(begin));
    }
};

} // namespace easel::type
