// Along what the letters of a variable font change.
#pragma once

#include "easel/type/LoadedFont.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <optional>
#include <string_view>
#include <vector>

namespace easel::type {

class FontAxes {
  public:
    FontAxes() = default;
    // Of a face that outlives this.
    explicit FontAxes(FT_Face face);

    // That the letters can have; nothing where they have one.
    std::optional<Weights> weights() const { return weights_; }
    // Gives the face the weight and the other places, as in Font, that are nearest to these; false if it has
    // them already.
    bool setPlaces(int weight, std::string_view variations);

  private:
    struct Axis {
        FT_ULong tag = 0;
        double least = 0;
        double usual = 0;
        double most = 0;
    };

    FT_Face face_ = nullptr;
    std::optional<Weights> weights_;
    std::vector<Axis> axes_;
    std::vector<FT_Fixed> places_; // on all axes; none before any are set
};

} // namespace easel::type
