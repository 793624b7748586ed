// Sets text in the fonts that a drawing brings along, and all other text in those of the system.
#pragma once

#include "easel/type/FontChoice.h"
#include "easel/type/Typesetter.h"

#include <vector>

namespace easel::type {

class DrawnTypesetter : public Typesetter {
  public:
    // `others` sets what the fonts do not, and must outlive this. Of fonts that are as near to what is asked
    // for as each other, the first is taken, and a loaded one before a drawn one.
    DrawnTypesetter(std::vector<DrawnFont> fonts, Typesetter& others, std::vector<LoadedFace> loaded = {});

    // Letters of the fonts stand in the order of the text, or the other way round in a line from right to
    // left.
    std::vector<Cluster> shape(const Line& line) override;
    FontMetrics metrics(const Font& font) override;
    bool has(const std::string& family) override;

  private:
    // Part of a line in one of the fonts, or in those of the system.
    struct Part {
        std::size_t begin = 0; // bytes
        std::size_t end = 0;
        std::vector<FontRun> runs; // of the system; their ends count from the part's beginning
        LoadedFont* loaded = nullptr;
        Look look;
        std::vector<Cluster> clusters; // of a drawn font

        bool isDrawn() const { return runs.empty() && !loaded; }
    };
    // Letters of one font, or one glyph of a drawn font, that come next.
    struct Next {
        std::size_t begin = 0; // bytes
        std::size_t end = 0;
        FontChoice::Found found;
        // Of the run: what was before, if that was of the same font.
        bool goesOn = false;
        const DrawnGlyph* before = nullptr;
        Follow how = Follow::Across;
    };

    void addRun(std::vector<Part>& parts, const Line& line, std::size_t begin, const FontRun& run);
    static void add(std::vector<Part>& parts, const Line& line, const FontRun& run, const Next& next);
    static void addOthers(std::vector<Part>& parts, std::size_t begin, const FontRun& run, bool goesOn);
    static void addDrawn(std::vector<Part>& parts, const Line& line, const Next& next);
    std::vector<Cluster> clustersOf(Part& part, const Line& line);

    OwnFonts own_;
    Typesetter& others_;
};

} // namespace easel::type
