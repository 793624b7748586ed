// Sets text in the fonts that a drawing brings along, and all other text in those of the system.
#pragma once

#include "easel/type/DrawnFont.h"
#include "easel/type/Typesetter.h"

#include <vector>

namespace easel::type {

class DrawnTypesetter : public Typesetter {
  public:
    // `others` sets what the fonts do not, and must outlive this.
    DrawnTypesetter(std::vector<DrawnFont> fonts, Typesetter& others);

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
        std::vector<Cluster> clusters;
    };
    struct Choice {
        const DrawnFont* font = nullptr;
        bool isLast = true; // of the families that are named
    };

    Choice choose(const Font& font);
    void addRun(std::vector<Part>& parts, const Line& line, std::size_t begin, const FontRun& run);
    static Part& partFor(std::vector<Part>& parts, std::size_t begin, bool drawn);
    std::vector<Cluster> clustersOf(Part& part, const Line& line);

    std::vector<DrawnFont> fonts_;
    Typesetter& others_;
};

} // namespace easel::type
