// Rows of linear gradients.
#include "easel/paint/LinearShader.h"

#include "easel/paint/SegmentWalk.h"

#include <limits>

namespace easel::paint {

namespace {

constexpr int kEndless = std::numeric_limits<int>::max();
} // namespace

// The segments in the order in which a row meets them, which is backwards where the parameter falls to the
// right.
class LinearShader::Track {
  public:
    Track(const LinearShader& shader, int y)
        : shader_(shader), segments_(shader.segments_.all()), perPixel_(shader.perPixel_),
          pixelsPerUnit_(1 / perPixel_), y_(y + 0.5), first_(shader.map_.at({0.5, y_})) {}

    double parameter(int x) const { return first_ + perPixel_ * x; }
    std::size_t index() const { return index_; }
    int end() const { return end_; }

    void enter(int x) {
        index_ = shader_.segments_.find(perPixel_ == 0 ? first_ : parameter(x));
        findEnd();
    }
    void next() {
        index_ += perPixel_ > 0 ? 1 : static_cast<std::size_t>(-1);
        findEnd();
    }

  private:
    void findEnd() {
        const bool last = perPixel_ > 0 ? index_ + 1 == segments_.size() : index_ == 0;
        end_ =
            last || perPixel_ == 0 ? kEndless : pixelBeyond(segments_[perPixel_ > 0 ? index_ + 1 : index_]);
    }
    // The first pixel on the far side of a segment's start.
    int pixelBeyond(const RampSegment& segment) const {
        const PixelBox& clip = shader_.surface_.clip();
        const double crossing =
            std::clamp<double>((segment.start - first_) * pixelsPerUnit_, clip.left - 1, clip.right);
        // Upwards; on which side a crossing exactly at a pixel falls matters only where it is sharp.
        const int whole = static_cast<int>(crossing);
        const int near = whole + (crossing > whole ? 1 : 0);
        if (!segment.sharp)
            return near;
        if (beyond(segment, near - 1))
            return near - 1;
        return beyond(segment, near) ? near : near + 1;
    }
    bool beyond(const RampSegment& segment, int x) const {
        return (shader_.map_.at({x + 0.5, y_}) >= segment.start) == (perPixel_ > 0);
    }

    const LinearShader& shader_;
    std::span<const RampSegment> segments_;
    double perPixel_;
    double pixelsPerUnit_;
    double y_;
    double first_; // parameter at the centre of the row's pixel 0
    std::size_t index_ = 0;
    int end_ = 0;
};

LinearShader::LinearShader(const SurfaceView& surface, const LinearMap& map, const RampSegments& segments,
                           double opacity, std::vector<LinearPiece>& pieces)
    : surface_(surface), map_(map), segments_(segments), opacity_(opacity),
      perPixel_(dot(map.toGradient.direction({1, 0}), map.axis) / map.lengthSquared), pieces_(pieces) {
    pieces_.clear();
    for (const RampSegment& segment : segments_.all())
        pieces_.emplace_back(segment, perPixel_);
}

void LinearShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    BlendQueue queue(pixels);
    Track track(*this, y);
    const auto present = [&]() -> const RampSegment& { return segments_.all()[track.index()]; };
    const auto paint = [&](int begin, int end, const CoverageRun& run) {
        if (hidingOf(present(), run, opacity_) == Hiding::Full)
            return pieces_[track.index()].paint(pixels + begin, end - begin, run.end - begin,
                                                track.parameter(begin));
        for (int x = begin; x < end; ++x)
            queue.add(present(), x, track.parameter(x), shareOf(run, opacity_));
    };
    walkSegments(runs, track, paint, [&] { queue.flush(present()); });
}

} // namespace easel::paint
