// Sets text in the fonts that a drawing brings along, and all other text in those of the system.
#pragma once

#include "easel/type/DrawnFont.h"
#include "easel/type/LoadedFont.h"
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
    struct Choice {
        const DrawnFont* drawn = nullptr;
        const LoadedFace* loaded = nullptr;
        bool isLast = true; // of the families that are named
    };

    Choice choose(const Font& font);
    // The nearest of the fonts of one family; neither if none is of it.
    Choice nearest(const std::string& family, const Font& asked) const;
    void addRun(std::vector<Part>& parts, const Line& line, std::size_t begin, const FontRun& run);
    static void addOthers(std::vector<Part>& parts, std::size_t begin, const FontRun& run);
    static void addDrawn(std::vector<Part>& parts, const Line& line, std::size_t begin, const FontRun& run,
                         const Choice& choice);
    static void addLoaded(std::vector<Part>& parts, const Line& line, std::size_t begin, const FontRun& run,
                          const LoadedFace& face);
    std::vector<Cluster> clustersOf(Part& part, const Line& line);

    std::vector<DrawnFont> fonts_;
    std::vector<LoadedFace> loaded_;
    Typesetter& others_;
};

} // namespace easel::type
