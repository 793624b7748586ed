// Clouds and marble.
#pragma once

#include "easel/drawing/Filter.h"
#include "easel/paint/filter/FilterSpace.h"
#include "easel/paint/pixels/Surface.h"

#include <array>

namespace easel::paint {

// The noise of Perlin with the lattice that a seed gives.
class Turbulence {
  public:
    // `tile`: where the noise has to fit to itself at opposite edges, if the effect asks for that.
    Turbulence(const drawing::TurbulenceEffect& effect, const drawing::Box& tile);

    // Red, green, blue and alpha at a point in the filter's units, not clamped.
    std::array<double, 4> at(drawing::Point point) const;

  private:
    static constexpr int kLattice = 256;
    // Where the lattice repeats, so that noise fits to itself.
    struct Stitch {
        int width, height;
        int wrapX, wrapY;
    };
    struct Gradient {
        double x, y;
    };

    void makeLattice(double seed);
    void fitTo(const drawing::Box& tile);
    std::array<double, 4> noise(drawing::Point point, const Stitch* stitch) const;

    bool sumsNoise_;
    bool stitches_;
    int octaves_;
    drawing::Point frequency_;
    Stitch stitch_{};
    std::array<int, kLattice + kLattice + 2> order_{};
    std::array<std::array<Gradient, kLattice + kLattice + 2>, 4> gradients_{};
};

Surface turbulence(const drawing::TurbulenceEffect& effect, const drawing::Box& tile,
                   const FilterSpace& space);

} // namespace easel::paint
