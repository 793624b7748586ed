// Rows of radial gradients.
#include "easel/paint/gradient/RadialShader.h"

#include "easel/paint/gradient/RunWalk.h"

#include <limits>

namespace easel::paint {

// Down through the color spans until the row comes no nearer to the start circle, then up again.
class RadialShader::Track {
  public:
    Track(const RadialShader& shader, const RadialRow& row, int y)
        : shader_(shader), row_(row), colorSpans_(shader.colorSpans_.all()), y_(y + 0.5) {}

    double parameter(int x) const { return shader_.map_.at({x + 0.5, y_}); }
    std::size_t index() const { return index_; }
    int end() const { return end_; }

    void enter(int x) {
        index_ = shader_.colorSpans_.find(parameter(x));
        falling_ = true;
        end_ = x;
        findEnd();
    }
    void next() {
        index_ += falling_ ? static_cast<std::size_t>(-1) : 1;
        findEnd();
    }

  private:
    void findEnd() {
        if (falling_ && index_ > 0) {
            const PixelInterval inner = row_.inside(shader_.pieces_[index_].circle());
            if (inner.begin < inner.end) {
                const int begin = std::max(end_, settled(inner.begin, colorSpans_[index_], -1));
                if (settled(inner.end, colorSpans_[index_], 1) > begin) {
                    end_ = begin;
                    return;
                }
            }
        }
        falling_ = false;
        const std::size_t outer = index_ + 1;
        if (outer == colorSpans_.size())
            end_ = kEndless;
        else
            end_ = std::max(end_,
                            settled(row_.inside(shader_.pieces_[outer].circle()).end, colorSpans_[outer], 1));
    }
    // The first pixel inside a color span's start (side -1) or outside of it again (side 1).
    int settled(double crossing, const ColorSpan& colorSpan, int side) const {
        const PixelRect& clip = shader_.surface_.clip();
        crossing = std::clamp<double>(crossing, clip.left - 1, clip.right);
        return firstPixelBeyond(crossing, colorSpan.sharp,
                                [&](int x) { return (parameter(x) >= colorSpan.start) == (side > 0); });
    }

    const RadialShader& shader_;
    const RadialRow& row_;
    std::span<const ColorSpan> colorSpans_;
    double y_;
    std::size_t index_ = 0;
    int end_ = 0;
    bool falling_ = true;
};

bool RadialShader::handles(const RadialMap& map) {
    return map.radiusStep > 0 && length(map.centreStep) < map.radiusStep * (1 - 1e-9);
}

RadialShader::RadialShader(const SurfaceView& surface, const RadialMap& map, const ColorSpans& colorSpans,
                           double opacity, std::vector<RadialPiece>& pieces)
    : surface_(surface), map_(map), rows_(map), colorSpans_(colorSpans), opacity_(opacity), pieces_(pieces) {
    pieces_.clear();
    for (const ColorSpan& colorSpan : colorSpans_.all()) {
        pieces_.emplace_back(rows_, colorSpan, opacity_);
        hides_ = hides_ && opacity_ == 1 && colorSpan.opaque();
    }
}

void RadialShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    const std::ptrdiff_t toNext = toNextRow(surface_, y);
    const RadialRow row(rows_, y);
    BlendQueue queue(pixels);
    Track track(*this, row, y);
    const auto present = [&]() -> const ColorSpan& { return colorSpans_.all()[track.index()]; };
    const auto paint = [&](int begin, int end, const CoverageRun& run) {
        const ColorSpan& colorSpan = present();
        const RadialPiece& piece = pieces_[track.index()];
        if (run.coverage == kFullCoverage && piece.suits(row, begin, end)) {
            const int room = hides_ || !piece.opaque() ? run.end : end;
            return piece.paint({pixels + begin, end - begin, room - begin, toNext}, begin, row);
        }
        for (int x = begin; x < end; ++x)
            queue.add(colorSpan, x, track.parameter(x), shareOf(run, opacity_));
    };
    walkRuns(runs, track, paint, [&] { queue.flush(present()); });
}

} // namespace easel::paint
