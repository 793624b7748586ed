// `easelbench counted WORKLOAD`: little fixed works for counting instructions under callgrind.
#include "benchmarks/Benches.h"
#include "benchmarks/PixelWork.h"
#include "easel/paint/Painter.h"

#include <hwy/targets.h>

namespace bench {

namespace {

using namespace easel;

void paintFull(std::size_t index) {
    paint::Surface surface(kWidth, kHeight);
    const PixelWork work = pixelWorks()[index];
    paint::Painter().fillAll(surface.view(), {}, &work.gradient);
}

void paintStars() {
    paint::Surface surface(kWidth, kHeight);
    paint::Painter painter;
    for (const SmallFill& fill : smallStars(2000))
        painter.fill(surface.view(), fill.shape, drawing::FillRule::NonZero, {}, &fill.gradient);
}

} // namespace

bool runCounted(const std::string& workload) {
    hwy::SetSupportedTargetsForTest(HWY_SSE4);
    hwy::GetChosenTarget().DeInit();
    if (workload == "linear")
        paintFull(1);
    else if (workload == "radial")
        paintFull(4);
    else if (workload == "stars")
        paintStars();
    else
        return false;
    return true;
}

} // namespace bench
