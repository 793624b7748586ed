// All SIMD instruction sets of this machine paint the same pixels.
#include "easel/paint/Painter.h"

#include <gtest/gtest.h>
#include <hwy/targets.h>

#include <random>

namespace {

using namespace easel;

// Opaque and translucent, linear and radial, pieces of every length, edges and full runs.
void paintPicture(const paint::SurfaceView& view) {
    std::mt19937 engine(7);
    const auto real = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine);
    };
    const auto channel = [&] { return static_cast<std::uint16_t>(engine() & 0xFFFF); };
    paint::Painter painter;
    for (int i = 0; i < 120; ++i) {
        std::vector<drawing::RampStop> stops;
        for (int stop = 0; stop <= i % 17; ++stop)
            stops.push_back({real(0, 1), {channel(), channel(), channel()}, i % 3 == 0 ? real(0, 1) : 1});
        const drawing::Point a{real(0, 300), real(0, 200)};
        const drawing::Point b{real(0, 300), real(0, 200)};
        drawing::Gradient gradient{drawing::LinearGeometry{a, b},
                                   {},
                                   static_cast<drawing::Spread>(i % 3),
                                   drawing::Ramp(std::move(stops))};
        if (i % 2 == 1)
            gradient.geometry = drawing::RadialGeometry{a, real(0, 5), b, real(10, 300)};
        // So flat that single precision does not do.
        if (i % 12 == 9)
            gradient.toDrawing = {1, 0, real(-1, 1), real(1e-4, 1e-3), 0, b.y};
        painter.fill(view, drawing::ellipsePath(b, real(2, 150), real(2, 150)), drawing::FillRule::NonZero,
                     {}, &gradient);
    }
}

// Chooses one instruction set until the scope is left.
class OnlyTarget {
  public:
    explicit OnlyTarget(std::int64_t target) { choose(target); }
    ~OnlyTarget() { choose(0); }
    OnlyTarget(const OnlyTarget&) = delete;
    OnlyTarget& operator=(const OnlyTarget&) = delete;

  private:
    static void choose(std::int64_t target) {
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().DeInit();
    }
};

paint::Surface paintedOn(std::int64_t target) {
    const OnlyTarget scope(target);
    paint::Surface surface(300, 200);
    surface.clear(0xFFC0FFEE);
    paintPicture(surface.view());
    return surface;
}

TEST(SimdTargets, PaintTheSamePixels) {
    const paint::Surface wanted = paintedOn(HWY_STATIC_TARGET);
    for (std::int64_t rest = hwy::SupportedTargets() & HWY_ATTAINABLE_TARGETS; rest != 0; rest &= rest - 1) {
        const std::int64_t target = rest & -rest;
        const paint::Surface got = paintedOn(target);
        for (int y = 0; y < wanted.height(); ++y)
            for (int x = 0; x < wanted.width(); ++x)
                ASSERT_EQ(got.row(y)[x], wanted.row(y)[x])
                    << hwy::TargetName(target) << " at " << x << "," << y;
        RecordProperty(hwy::TargetName(target), "same");
    }
}

} // namespace
