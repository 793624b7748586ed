// Along what the letters of a variable font change.
#pragma once

#include "easel/type/LoadedFont.h"

#include <ft2build.h>
#include FT_FREETYPE_H

#include <optional>
#include <vector>

namespace easel::type {

class FontAxes {
  public:
    FontAxes() = default;
    // Of a face that outlives this.
    explicit FontAxes(FT_Face face);

    // That the letters can have; nothing where they have one.
    std::optional<Weights> weights() const { return weights_; }
    // Gives the face the weight that is nearest to this one; false if it has that already.
    bool setWeight(int weight);
    // That it was given; 0: none.
    int weight() const { return weight_; }

  private:
    FT_Face face_ = nullptr;
    std::optional<Weights> weights_;
    std::vector<FT_Fixed> places_; // on all axes
    std::size_t weightAxis_ = 0;
    int weight_ = 0;
};

} // namespace easel::type
