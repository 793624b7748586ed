// Rows of radial gradients.
#include "easel/paint/RadialShader.h"

#include "easel/paint/RadialRow.h"
#include "easel/paint/SegmentWalk.h"

#include <limits>

namespace easel::paint {

namespace {

constexpr int kEndless = std::numeric_limits<int>::max();

RadialRun runOf(const RadialRow& row, const RampSegment& segment, int begin) {
    RadialRun run;
    run.offset = static_cast<float>(begin - row.lowest);
    run.height = static_cast<float>(row.height);
    run.lean = static_cast<float>(row.lean);
    run.reference = static_cast<float>(row.distance(begin));
    const Channels color = segment.at(row.scale * static_cast<double>(run.reference) + row.base);
    for (std::size_t i = 0; i < run.color.size(); ++i) {
        run.color[i] = static_cast<float>(color[i]);
        run.slope[i] = static_cast<float>(segment.slope[i] * row.scale);
    }
    return run;
}

// Whether single precision, which is good to four parts in 2 to the 24 of the distance, is good enough for a
// piece.
bool singlePrecisionDoes(const RadialRow& row, const RampSegment& segment, int begin, int end) {
    constexpr double kRelativeError = 4.0 / (1 << 24);
    constexpr double kAllowedLevels = 0.006;
    const double farthest = std::max(std::abs(begin - row.lowest), std::abs(end - row.lowest));
    const double distance = (farthest + row.rootOfHeight) * (1 + std::abs(row.lean));
    return segment.steepest * row.scale * distance * kRelativeError <= kAllowedLevels;
}

} // namespace

// Down through the segments until the row comes no nearer to the start circle, then up again.
class RadialShader::Track {
  public:
    Track(const RadialShader& shader, const RadialRow& row, int y)
        : shader_(shader), row_(row), segments_(shader.segments_.all()), y_(y + 0.5) {}

    double parameter(int x) const { return shader_.map_.at({x + 0.5, y_}); }
    std::size_t index() const { return index_; }
    int end() const { return end_; }

    void enter(int x) {
        index_ = shader_.segments_.find(parameter(x));
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
            const PixelInterval inner = row_.below(segments_[index_].start);
            const int begin = settled(inner.begin, segments_[index_], -1);
            if (inner.begin < inner.end && settled(inner.end, segments_[index_], 1) > std::max(begin, end_)) {
                end_ = std::max(begin, end_);
                return;
            }
        }
        falling_ = false;
        if (index_ + 1 == segments_.size())
            end_ = kEndless;
        else
            end_ = std::max(end_,
                            settled(row_.below(segments_[index_ + 1].start).end, segments_[index_ + 1], 1));
    }
    // The first pixel inside a segment's start (side -1) or outside of it again (side 1).
    int settled(double pixel, const RampSegment& segment, int side) const {
        const PixelBox& clip = shader_.surface_.clip();
        const int near = static_cast<int>(std::clamp<double>(pixel, clip.left, clip.right));
        if (!segment.sharp)
            return near;
        const auto beyond = [&](int x) { return (parameter(x) >= segment.start) == (side > 0); };
        if (beyond(near - 1))
            return near - 1;
        return beyond(near) ? near : near + 1;
    }

    const RadialShader& shader_;
    const RadialRow& row_;
    std::span<const RampSegment> segments_;
    double y_;
    std::size_t index_ = 0;
    int end_ = 0;
    bool falling_ = true;
};

bool RadialShader::handles(const RadialMap& map) {
    return map.radiusStep > 0 && length(map.centreStep) < map.radiusStep * (1 - 1e-9);
}

void RadialShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    const RadialRow row(map_, y);
    BlendQueue queue(pixels);
    Track track(*this, row, y);
    const auto present = [&]() -> const RampSegment& { return segments_.all()[track.index()]; };
    const auto paint = [&](int begin, int end, const CoverageRun& run) {
        const RampSegment& segment = present();
        if (hidingOf(segment, run, opacity_) == Hiding::Full) {
            if (segment.flat()) {
                std::fill(pixels + begin, pixels + end, opaquePixel(segment.color));
                return;
            }
            if (singlePrecisionDoes(row, segment, begin, end))
                return fillRadial(pixels + begin, end - begin, run.end - begin, runOf(row, segment, begin));
        }
        for (int x = begin; x < end; ++x)
            queue.add(segment, x, track.parameter(x), shareOf(run, opacity_));
    };
    walkSegments(runs, track, paint, [&] { queue.flush(present()); });
}

} // namespace easel::paint
