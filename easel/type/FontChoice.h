// Which of a drawing's own fonts, or that of the system, sets each letter of a run.
#pragma once

#include "easel/type/DrawnFont.h"
#include "easel/type/LoadedFont.h"
#include "easel/type/Typesetter.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace easel::type {

// What is chosen: a drawn font, a loaded one, or else one of the system.
struct ChosenFont {
    const DrawnFont* drawn = nullptr;
    const LoadedFace* loaded = nullptr;
    std::shared_ptr<const Font> system{};

    bool operator==(const ChosenFont&) const = default;
};

// The fonts that a drawing brings along.
struct OwnFonts {
    std::vector<DrawnFont> drawn;
    std::vector<LoadedFace> loaded;

    bool has(const std::string& family) const;
};

class FontChoice {
  public:
    // Goes through the families that are asked for. Of each it takes the fonts that look most like what is
    // asked for: those that are as near as each other are for what those before them are not, loaded ones
    // first.
    FontChoice(const OwnFonts& own, Typesetter& system, std::shared_ptr<const Font> asked);

    struct Found {
        ChosenFont font;
        const DrawnGlyph* glyph = nullptr; // of a drawn font
    };
    // The font for what the letters begin with.
    Found of(std::u32string_view letters, Follow how) const;
    // The font whose measures are those of the run: the one for a blank.
    const ChosenFont& main() const;
    bool isSystemAlone() const { return chosen_.empty(); }

  private:
    bool addNearest(const OwnFonts& own, const std::string& family);
    // That a font of the system is set instead of.
    ChosenFont standIn(const LoadedFace& face) const;

    std::shared_ptr<const Font> asked_;
    std::vector<ChosenFont> chosen_;
    std::vector<const std::vector<Characters>*> characters_; // that each is for
    ChosenFont system_;                                      // for all others
    const DrawnFont* sign_ = nullptr; // whose sign stands for what all lack; null: the system's
};

} // namespace easel::type
