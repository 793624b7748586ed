// One segment of a ramp prepared for all rows of a two-circle gradient.
#pragma once

#include "easel/paint/gradient/RadialRow.h"
#include "easel/paint/gradient/RampSegments.h"
#include "easel/paint/pixels/PixelKernels.h"

namespace easel::paint {

class RadialPiece {
  public:
    RadialPiece(const RadialRows& rows, const RampSegment& segment);

    // The circle that the segment starts at.
    const RowCircle& circle() const { return circle_; }
    // Whether `paint` is exact for the pixels; only pieces that begin and end within a tiny part of a pixel
    // are too steep for it.
    bool suits(const RadialRow& row, int begin, int end) const {
        return unitsAcross(row, begin, end) <= kMostUnits;
    }
    // Pixels `begin` to `end` of the row, which `pixels` points to the first of, opaque; see fillRadial.
    void paint(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const;

  private:
    // Single precision is good to four parts in 2 to the 24 of the distance, which may be half a unit, and
    // double precision to less than a part in 2 to the 48.
    static constexpr double kMostUnitsInSinglePrecision = 1 << 21;
    static constexpr double kMostUnits = 1LL << 44;

    double unitsAcross(const RadialRow& row, int begin, int end) const {
        return step_ * row.farthest(begin, end);
    }

    RowCircle circle_;
    bool flat_;
    double step_ = 0;    // units from pixel to pixel far from the circles' centre
    double toUnits_ = 0; // units per unit of the parameter
    double middle_ = 0;  // the parameter where the way is 0
    RadialColors colors_{};
};

} // namespace easel::paint
