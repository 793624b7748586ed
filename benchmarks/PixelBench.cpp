// `easelbench pixels`: gradient fills against Cairo's, and how exact they are.
#include "benchmarks/Benches.h"

#include "benchmarks/CairoPeer.h"
#include "benchmarks/PixelAccuracy.h"
#include "benchmarks/PixelRatios.h"
#include "benchmarks/PixelWork.h"
#include "benchmarks/Timing.h"
#include "easel/paint/Painter.h"

namespace bench {

namespace {

using namespace easel;

const std::string kSpeed = "Gradient pixels, 3840 x 2160, one core";
const std::string kExactness = "Exactness of the same fills";

void fill(paint::Painter& painter, const paint::SurfaceView& view, const PixelWork& work) {
    if (work.shape)
        painter.fill(view, *work.shape, drawing::FillRule::NonZero, {}, &work.gradient);
    else
        painter.fillAll(view, {}, &work.gradient);
}

void measure(Report& report, paint::Surface& surface, const PixelWork& work) {
    paint::Painter painter;
    CairoPeer cairo(surface);
    const CairoPattern pattern = patternOf(work.gradient);
    const Pair time = mediansOf(
        [&] { fill(painter, surface.view(), work); },
        [&] { work.shape ? cairo.fill(*work.shape, pattern.get()) : cairo.fillAll(pattern.get()); });
    const double pixels = double{kWidth} * kHeight;
    if (!work.shape)
        report.add(kSpeed, {work.name, "speed", pixels / time.ours / 1e6, "Mpx/s"});
    report.add(kSpeed, {work.name, "time", time.ours * 1e3, "ms"});
    report.add(kSpeed, {work.name, "times Cairo", time.peer / time.ours, "", work.goal});
}

void measureSmallFills(Report& report, paint::Surface& surface) {
    constexpr int kCount = 10000;
    const std::vector<SmallFill> fills = smallStars(kCount);
    std::vector<CairoPattern> patterns;
    patterns.reserve(fills.size());
    for (const SmallFill& fill : fills)
        patterns.push_back(patternOf(fill.gradient));
    paint::Painter painter;
    CairoPeer cairo(surface);
    const auto ours = [&] {
        for (const SmallFill& fill : fills)
            painter.fill(surface.view(), fill.shape, drawing::FillRule::NonZero, {}, &fill.gradient);
    };
    const auto peer = [&] {
        for (std::size_t i = 0; i < fills.size(); ++i)
            cairo.fill(fills[i].shape, patterns[i].get());
    };
    const Pair time = mediansOf(ours, peer);
    report.add(kSpeed, {"10,000 stars of 40 pixels", "fills", kCount / time.ours, "/s"});
    report.add(kSpeed, {"10,000 stars of 40 pixels", "times Cairo", time.peer / time.ours, "", 5.5});
}

void check(Report& report, paint::Surface& surface, const PixelWork& work, std::uint32_t background) {
    checkExactness(report, kExactness, surface, work.name, work.gradient, background);
    if (work.shape)
        report.add(kExactness, {work.name, "edge coverage error", coverageError(*work.shape, 400, 480),
                                "levels", 2, Better::Lower});
}

PixelWork translucent(PixelWork work) {
    std::vector<drawing::RampStop> stops = work.gradient.ramp.stops();
    for (std::size_t i = 0; i < stops.size(); ++i)
        stops[i].opacity = i % 2 == 0 ? 0.2 : 0.9;
    work.gradient.ramp = drawing::Ramp(std::move(stops));
    work.name = "translucent " + work.name;
    return work;
}

} // namespace

void runPixels(Report& report) {
    paint::Surface surface(kWidth, kHeight);
    const std::vector<PixelWork> works = pixelWorks();
    for (const PixelWork& work : works)
        measure(report, surface, work);
    measureSmallFills(report, surface);
    measureRatios(report, surface);
    for (const PixelWork& work : works)
        check(report, surface, work, 0xFF000000);
    check(report, surface, translucent(works[1]), 0xFF336699);
    check(report, surface, translucent(works[4]), 0xFF336699);
    checkRatioWorks(report, surface);
    report.add(kExactness, {"jumps over 3840 pixels", "on a wrong pixel",
                            static_cast<double>(misplacedJumps()), "", 0.5, Better::Lower});
}

} // namespace bench
