// A font that a drawing brings along: outlines with the characters they stand for.
#pragma once

#include "easel/drawing/Path.h"
#include "easel/type/Face.h"
#include "easel/type/Font.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace easel::type {

// How letters follow each other: side by side, or standing one below the other.
enum class Follow : std::uint8_t { Across, Down };

// Measures are in ems.
struct DrawnGlyph {
    std::u32string characters; // none: the glyph stands for what the font lacks
    drawing::Path outline;     // the pen stands at the origin, down is positive
    double advance = 0;
    // Of a letter that stands in a vertical line: where the pen is then, and how far down the next one is.
    drawing::Point top{};
    double down = 1;
    std::optional<Follow> only{}; // how the letters follow each other that it is for; nothing: either way
};

class DrawnFont {
  public:
    Font font; // the one family it is for, and how its letters look
    bool anyWeight = false;
    std::vector<Characters> characters; // that it is for; none: all
    FontMetrics metrics;

    // Glyphs are numbered in the order they come in; the first that fits is taken.
    std::size_t add(DrawnGlyph glyph);
    const DrawnGlyph& glyph(std::size_t number) const { return glyphs_[number]; }
    std::size_t size() const { return glyphs_.size(); }
    // The glyph that stands for what the letters begin with; null: none does.
    const DrawnGlyph* match(std::u32string_view letters, Follow how) const;
    const DrawnGlyph* missing() const;

    // Moves any of the one glyphs and any of the others that follow them nearer to each other.
    void addKerning(Follow how, const std::vector<std::size_t>& left, std::vector<std::size_t> right,
                    double nearer);
    double kerning(Follow how, const DrawnGlyph& left, const DrawnGlyph& right) const;

    // What stands for its outlines elsewhere: no file.
    const FacePtr& face() const { return face_; }
    void sealFace();

  private:
    struct Kerning {
        std::vector<std::size_t> right; // in order
        double nearer = 0;
    };

    std::size_t numberOf(const DrawnGlyph& glyph) const {
        return static_cast<std::size_t>(&glyph - glyphs_.data());
    }

    std::vector<DrawnGlyph> glyphs_;
    std::unordered_map<char32_t, std::vector<std::size_t>> byFirst_;
    struct Kernings {
        std::vector<Kerning> all;
        std::unordered_map<std::size_t, std::vector<std::size_t>> of; // a glyph on the left
    };
    Kernings across_, down_;
    std::size_t missing_ = SIZE_MAX;
    FacePtr face_;
};

} // namespace easel::type
