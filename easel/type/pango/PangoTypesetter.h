// Shapes text with Pango, which brings together fontconfig's choice of fonts and HarfBuzz's of glyphs.
#pragma once

#include "easel/type/Typesetter.h"
#include "easel/type/pango/GlyphOutlines.h"

#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace easel::type {

class PangoTypesetter : public Typesetter {
  public:
    PangoTypesetter();

    std::vector<Cluster> shape(const Line& line) override;
    FontMetrics metrics(const Font& font) override;
    bool has(const std::string& family) override;
    std::shared_ptr<LoadedFont> load(std::string&& bytes) override;

  private:
    std::vector<Cluster> shapeNew(const Line& line);
    std::vector<Cluster> clustersOf(const Line& line);
    // `letters`: where in the line letters begin.
    void addClusters(PangoItem& item, const Line& line, const std::vector<int>& letters,
                     std::vector<Cluster>& clusters);
    // Gives the cluster its glyphs and their outline.
    void draw(Cluster& cluster, const PangoGlyphInfo* begin, const PangoGlyphInfo* end, PangoFont* font);

    std::mutex mutex_; // Pango's objects may be used by any thread, but by one at a time
    Held<PangoFontMap> fonts_;
    Held<PangoContext> context_;
    GlyphOutlines outlines_;
    // Short lines in one font, by what is in them: many a drawing sets each letter by itself.
    std::unordered_map<std::string, std::vector<Cluster>> shortLines_;
};

} // namespace easel::type
