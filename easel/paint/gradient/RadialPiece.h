// One color span of a ramp prepared for all rows of a two-circle gradient.
#pragma once

#include "easel/paint/gradient/ColorSpans.h"
#include "easel/paint/gradient/RadialRow.h"
#include "easel/paint/pixels/MixKernels.h"

namespace easel::paint {

class RadialPiece {
  public:
    // `opacity` multiplies that of the color span.
    RadialPiece(const RadialRows& rows, const ColorSpan& colorSpan, double opacity);

    // The circle that the color span starts at.
    const RowCircle& circle() const { return circle_; }
    bool opaque() const { return look_ == Look::Opaque; }
    // Whether `paint` is exact for the pixels; only pieces that begin and end within a tiny part of a pixel
    // are too steep for it.
    bool suits(const RadialRow& row, int begin, int end) const {
        return unitsAcross(row, begin, end) <= kMostUnits;
    }
    // The pixels from `begin` on; see fillRadial and mixRadial.
    void paint(const MixRange& range, int begin, const RadialRow& row) const;

  private:
    // Single precision is good to four parts in 2 to the 24 of the distance, which may be half a unit, and
    // double precision to less than a part in 2 to the 48.
    static constexpr double kMostUnitsInSinglePrecision = 1 << 21;
    static constexpr double kMostUnits = 1LL << 44;

    double unitsAcross(const RadialRow& row, int begin, int end) const {
        return step_ * row.farthest(begin, end);
    }

    RowCircle circle_;
    enum class Look { Hidden, Opaque, Mixed };
    void fill(std::uint32_t* pixels, int begin, int end, int room, const RadialRow& row) const;
    void mix(const MixRange& range, int begin, const RadialRow& row) const;
    RadialRun runFrom(int begin, const RadialRow& row) const;
    void setColors(const ColorSpan& colorSpan, double rounding);
    void setMix(const ColorSpan& colorSpan, double opacity);
    void setFlatMix(const Channels& color, double weight);

    Look look_;
    bool flat_;
    double step_ = 0;    // units from pixel to pixel far from the circles' centre
    double toUnits_ = 0; // units per unit of the parameter
    double middle_ = 0;  // the parameter where the distance is 0
    MixColors mix_{};    // of an opaque color span the colors alone
    FlatMix flatMix_{};  // of a mixed color span of one color
};

} // namespace easel::paint
