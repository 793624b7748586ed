// Pairs of fills that differ in one respect only.
#include "benchmarks/PixelRatios.h"

#include "benchmarks/CairoPeer.h"
#include "benchmarks/PixelAccuracy.h"
#include "benchmarks/PixelWork.h"
#include "benchmarks/Timing.h"
#include "easel/paint/Painter.h"

namespace bench {

namespace {

using namespace easel;

const std::string kTable = "Opacity and ellipses, 3840 x 2160, one core";
const std::string kExactness = "Exactness of fills with opacity and of ellipses";
constexpr double kMostForOpacity = 1.5;
// The same cost, and what repeated measurements of one fill differ by.
constexpr double kMostForEllipse = 1.05;
constexpr std::uint32_t kBackground = 0xFF336699;

struct RatioWork {
    std::string name;
    drawing::Gradient gradient;
    std::string ratioName;
    drawing::Gradient plain; // the same without what is to be measured
    double mostTimesPlain;
};

RatioWork withOpacity(const std::string& name, const drawing::Gradient& opaque,
                      std::span<const double> opacities) {
    std::vector<drawing::RampStop> stops = opaque.ramp.stops();
    for (std::size_t i = 0; i < stops.size(); ++i)
        stops[i].opacity = opacities[i % opacities.size()];
    drawing::Gradient gradient = opaque;
    gradient.ramp = drawing::Ramp(std::move(stops));
    return {name, gradient, "times opaque", opaque, kMostForOpacity};
}

// Flat colors; of an odd number of them no border passes through the middle, where pixels lie.
drawing::Gradient stepped(drawing::Gradient gradient) {
    constexpr int kSteps = 7;
    const drawing::Ramp colors = rampOf(kSteps);
    std::vector<drawing::RampStop> stops;
    for (int i = 0; i < kSteps; ++i)
        for (const int end : {i, i + 1})
            stops.push_back(
                {static_cast<double>(end) / kSteps, colors.stops()[static_cast<std::size_t>(i)].color, 1});
    gradient.ramp = drawing::Ramp(std::move(stops));
    return gradient;
}

// About the surface's centre turned, mirrored, skewed and flattened.
RatioWork elliptic(const std::string& name, const drawing::Gradient& circle) {
    const drawing::Point centre{kWidth / 2.0, kHeight / 2.0};
    drawing::Gradient ellipse = circle;
    ellipse.toDrawing = drawing::Affine::translation(centre.x, centre.y) * drawing::Affine::rotation(0.4) *
                        drawing::Affine{1.2, 0, 0.3, -0.5, 0, 0} *
                        drawing::Affine::translation(-centre.x, -centre.y);
    return {name, ellipse, "times circle", circle, kMostForEllipse};
}

std::vector<RatioWork> ratioWorks() {
    const std::vector<PixelWork> works = pixelWorks();
    const drawing::Gradient& linear = works[0].gradient;
    const drawing::Gradient& linear16 = works[1].gradient;
    const drawing::Gradient& radial = works[3].gradient;
    const drawing::Gradient& circles = works[4].gradient;
    constexpr double kSmooth[] = {0, 1};
    constexpr double kSteps[] = {0, 0, 0.3, 0.3, 1, 1, 0.6, 0.6};
    return {
        withOpacity("linear, opacity", linear, kSmooth),
        withOpacity("linear 16 stops, opacity", linear16, kSmooth),
        withOpacity("radial, opacity", radial, kSmooth),
        withOpacity("two-circle radial 16 stops, opacity", circles, kSmooth),
        withOpacity("hard opacity steps, linear", stepped(linear), kSteps),
        withOpacity("hard opacity steps, radial", stepped(radial), kSteps),
        elliptic("ellipse gradient", radial),
        elliptic("ellipse gradient, focus inside, 16 stops", circles),
    };
}

} // namespace

void measureRatios(Report& report, paint::Surface& surface) {
    for (const RatioWork& work : ratioWorks()) {
        surface.clear(kBackground);
        paint::Painter painter;
        const auto ours = [&] { painter.fillAll(surface.view(), {}, &work.gradient); };
        const Pair ratio = mediansOf(ours, [&] { painter.fillAll(surface.view(), {}, &work.plain); });
        CairoPeer cairo(surface);
        const CairoPattern pattern = patternOf(work.gradient);
        const Pair time = mediansOf(ours, [&] { cairo.fillAll(pattern.get()); });
        report.add(kTable, {work.name, "time", ratio.ours * 1e3, "ms"});
        report.add(kTable, {work.name, "times Cairo", time.peer / time.ours, ""});
        report.add(kTable, {work.name, work.ratioName, ratio.ours / ratio.peer, "", work.mostTimesPlain,
                            Better::Lower});
    }
}

void checkRatioWorks(Report& report, paint::Surface& surface) {
    for (const RatioWork& work : ratioWorks())
        checkExactness(report, kExactness, surface, work.name, work.gradient, kBackground);
}

} // namespace bench
