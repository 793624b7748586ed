// Rows of linear gradients.
#include "easel/paint/LinearShader.h"

#include "easel/paint/SegmentWalk.h"

#include <limits>

namespace easel::paint {

namespace {

constexpr int kEndless = std::numeric_limits<int>::max();
// Levels that one unit of a LinearStart's color stands for.
constexpr double kStartScale = 1 << 24;

} // namespace

// The segments in the order in which a row meets them, which is backwards where the parameter falls to the
// right.
class LinearShader::Track {
  public:
    Track(const LinearShader& shader, int y)
        : shader_(shader), segments_(shader.segments_.all()), perPixel_(shader.perPixel_), y_(y + 0.5),
          first_(shader.map_.at({0.5, y_})) {}

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
        const double crossing = (segment.start - first_) / perPixel_;
        const double pixel = perPixel_ > 0 ? std::ceil(crossing) : std::floor(crossing) + 1;
        const PixelBox& clip = shader_.surface_.clip();
        const int near = static_cast<int>(std::clamp<double>(pixel, clip.left, clip.right));
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
    double y_;
    double first_; // parameter at the centre of the row's pixel 0
    std::size_t index_ = 0;
    int end_ = 0;
};

LinearShader::LinearShader(const SurfaceView& surface, const LinearMap& map, const RampSegments& segments,
                           double opacity, std::vector<LinearSteps>& steps)
    : surface_(surface), map_(map), segments_(segments), opacity_(opacity),
      perPixel_(dot(map.toGradient.direction({1, 0}), map.axis) / map.lengthSquared), steps_(steps) {
    steps_.clear();
    for (const RampSegment& segment : segments_.all())
        steps_.push_back(stepsOf(segment));
}

void LinearShader::row(int y, std::span<const CoverageRun> runs) {
    std::uint32_t* pixels = surface_.row(y);
    Track track(*this, y);
    walkSegments(runs, track, [&](int begin, int end, const CoverageRun& run) {
        const RampSegment& segment = segments_.all()[track.index()];
        const double parameter = track.parameter(begin);
        if (hidingOf(segment, run, opacity_) == Hiding::Full)
            return paintOpaque(pixels + begin, end - begin, run.end - begin, track.index(), parameter);
        Channels step;
        for (std::size_t i = 0; i < step.size(); ++i)
            step[i] = segment.slope[i] * perPixel_;
        blendPixels(pixels + begin, end - begin, segment.at(parameter), step,
                    opacity_ * run.coverage / kFullCoverage);
    });
}

void LinearShader::paintOpaque(std::uint32_t* pixels, int count, int room, std::size_t index,
                               double parameter) const {
    const RampSegment& segment = segments_.all()[index];
    const Channels color = segment.at(parameter);
    if (segment.flat() || perPixel_ == 0) {
        std::fill_n(pixels, count, opaquePixel(color));
        return;
    }
    LinearStart start;
    for (std::size_t i = 0; i < start.color.size(); ++i) {
        // Half a level rounds the pixel, the other half unit what the block's shift by 16 cuts off.
        const double level = color[i] + 0.5 + 0.5 / 256;
        start.color[i] = static_cast<std::uint32_t>(nearest(level * kStartScale));
        start.blockStep[i] = static_cast<std::uint32_t>(nearest(slopeOf(segment, i) * kBlock * kStartScale));
    }
    fillLinear(pixels, count, room, start, steps_[index]);
}

// Per pixel. Where a segment is so steep that it ends within a pixel, only its first color is ever used.
double LinearShader::slopeOf(const RampSegment& segment, std::size_t channel) const {
    return std::clamp(segment.slope[channel] * perPixel_, -256.0, 256.0);
}

LinearSteps LinearShader::stepsOf(const RampSegment& segment) const {
    LinearSteps steps;
    const auto unit = [&](std::size_t channel) {
        return static_cast<std::uint32_t>(nearest(slopeOf(segment, channel) * kStartScale));
    };
    const std::uint32_t blue = unit(0);
    const std::uint32_t green = unit(1);
    const std::uint32_t red = unit(2);
    constexpr std::uint32_t kHalf = 1U << 15;
    for (std::uint32_t i = 0; i < kBlock; ++i) {
        steps.blueRed[i] = (i * blue + kHalf) >> 16 | ((i * red + kHalf) & 0xFFFF0000);
        steps.green[i] = (i * green + kHalf) >> 16;
    }
    return steps;
}

} // namespace easel::paint
