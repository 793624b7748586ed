// Rows of linear gradients.
#include "easel/paint/gradient/LinearShader.h"

#include "easel/paint/gradient/RunWalk.h"

#include <cmath>

namespace easel::paint {

// Walks along a row. Its places are the color spans in the order in which the row meets them, which is
// backwards where the parameter falls to the right.
class LinearShader::Track {
  public:
    Track(const LinearShader& shader, int y)
        : shader_(shader), colorSpans_(shader.colorSpans_.all().data()),
          last_(shader.colorSpans_.all().size() - 1), perPixel_(shader.perPixel_),
          pixelsPerUnit_(shader.pixelsPerUnit_), first_(shader.origin_ + shader.perRow_ * y),
          left_(shader.surface_.clip().left - 1), right_(shader.surface_.clip().right), y_(y + 0.5) {}

    double parameter(int x) const { return first_ + perPixel_ * x; }
    std::size_t place() const { return place_; }
    std::size_t index() const { return rises() ? place_ : last_ - place_; }
    // The first pixel beyond the present place.
    int end() const { return end_; }

    // Goes to the place of a pixel, which is likely to be near that where the row before began.
    void enter(int x) {
        if (level()) {
            const std::size_t colorSpan = shader_.colorSpans_.find(first_);
            place_ = rises() ? colorSpan : last_ - colorSpan;
            end_ = kEndless;
            return;
        }
        place_ = shader_.firstPlace_;
        // No further than the pixel before, since rounding decides which place has this one.
        while (place_ > 0 && !reaches(parameter(x - 1), border(place_ - 1)))
            --place_;
        end_ = endOf(place_);
        while (end_ <= x)
            next();
    }
    // The next place may have no pixels.
    void next() { end_ = endOf(++place_); }

  private:
    // The whole row has one color.
    bool level() const { return !std::isfinite(pixelsPerUnit_); }
    bool rises() const { return perPixel_ >= 0; }
    // Where the next place begins.
    const ColorSpan& border(std::size_t place) const {
        return colorSpans_[rises() ? place + 1 : last_ - place];
    }
    bool reaches(double parameter, const ColorSpan& border) const {
        return (parameter >= border.start) == rises();
    }
    int endOf(std::size_t place) const { return place == last_ ? kEndless : pixelBeyond(border(place)); }
    // The first pixel on the far side of a color span's start.
    int pixelBeyond(const ColorSpan& colorSpan) const {
        const double crossing =
            std::min(std::max((colorSpan.start - first_) * pixelsPerUnit_, left_), right_);
        return firstPixelBeyond(crossing, colorSpan.sharp, [&](int x) {
            return reaches(shader_.map_.at({x + 0.5, y_}), colorSpan);
        });
    }

    const LinearShader& shader_;
    const ColorSpan* colorSpans_;
    std::size_t last_; // color span
    double perPixel_;
    double pixelsPerUnit_;
    double first_; // parameter at the centre of the row's pixel 0
    double left_;
    double right_;
    double y_;
    std::size_t place_ = 0;
    int end_ = 0;
};

LinearShader::LinearShader(const SurfaceView& surface, const LinearMap& map, const ColorSpans& colorSpans,
                           double opacity, LinearScratch& scratch)
    : surface_(surface), map_(map), colorSpans_(colorSpans), opacity_(opacity),
      perPixel_(dot(map.toGradient.direction({1, 0}), map.axis) / map.lengthSquared),
      perRow_(dot(map.toGradient.direction({0, 1}), map.axis) / map.lengthSquared),
      origin_(map.at({0.5, 0.5})), pixelsPerUnit_(1 / perPixel_), pieces_(scratch.pieces),
      mixPieces_(scratch.mixPieces), stretches_(scratch.stretches), mixed_(scratch.mixed) {
    stretches_.resize(colorSpans_.all().size());
    pieces_.clear();
    for (const ColorSpan& colorSpan : colorSpans_.all()) {
        pieces_.emplace_back(colorSpan, perPixel_);
        (hides(colorSpan) ? anyHides_ : anyMixes_) = true;
    }
    if (!anyMixes_)
        return;
    mixed_.resize(colorSpans_.all().size());
    mixPieces_.clear();
    for (std::size_t i = 0; i < pieces_.size(); ++i)
        mixPieces_.emplace_back(colorSpans_.all()[i], pieces_[i], perPixel_, opacity_);
}

void LinearShader::row(int y, const RowCoverage& coverage) {
    std::uint32_t* pixels = surface_.row(y);
    Track track(*this, y);
    layOut(track, coverage.extent());
    if (!coverage.full.empty()) {
        if (anyMixes_)
            mixLinear(pixels, coverage.full, mixed_.data(), toNextRow(surface_, y));
        else
            fillLinear(pixels, coverage.full, stretches_.data());
    }
    if (coverage.partial.empty())
        return;
    if (anyHides_)
        blendLinear(pixels, coverage.partial, stretches_.data(), coverage.coverage);
    if (anyMixes_)
        blendMixed(pixels, coverage, track);
}

bool LinearShader::hides(const ColorSpan& colorSpan) const {
    return opacity_ == 1 && colorSpan.opaque();
}

void LinearShader::layOut(Track& track, const PixelSpan& extent) {
    track.enter(extent.begin);
    firstPlace_ = track.place();
    LinearStretch* stretch = stretches_.data();
    for (int x = extent.begin;; track.next()) {
        const int end = std::min(track.end(), extent.end);
        if (end <= x)
            continue;
        if (anyMixes_)
            layOutMixed(track, x, end, *stretch);
        else
            pieces_[track.index()].layOut(x, end, track.parameter(x), *stretch);
        if (end == extent.end)
            return;
        ++stretch;
        x = end;
    }
}

void LinearShader::layOutMixed(Track& track, int x, int end, LinearStretch& stretch) {
    const std::size_t index = track.index();
    const double parameter = track.parameter(x);
    LinearMixStretch& mixed = mixed_[static_cast<std::size_t>(&stretch - stretches_.data())];
    mixPieces_[index].layOut(x, end, parameter, mixed);
    if (hides(colorSpans_.all()[index])) {
        pieces_[index].layOut(x, end, parameter, stretch);
    } else {
        stretch.end = end;
        stretch.steps = nullptr;
    }
}

// Edges, pixel by pixel.
void LinearShader::blendMixed(std::uint32_t* pixels, const RowCoverage& coverage, Track& track) const {
    BlendQueue queue(pixels);
    const auto present = [&]() -> const ColorSpan& { return colorSpans_.all()[track.index()]; };
    const auto paint = [&](int begin, int end, const PixelSpan&) {
        if (!hides(present()))
            for (int x = begin; x < end; ++x)
                queue.add(present(), x, track.parameter(x), shareOf(coverage.coverage[x], opacity_));
    };
    walkRuns(coverage.partial, track, paint, [&] { queue.flush(present()); });
}

} // namespace easel::paint
