// What gradients with opacity and elliptic gradients cost beside opaque ones and circles.
#pragma once

#include "benchmarks/Report.h"
#include "easel/paint/pixels/Surface.h"

namespace bench {

// The surface is of the size of the measured fills.
void measureRatios(Report& report, easel::paint::Surface& surface);
// How exact the same fills are.
void checkRatioWorks(Report& report, easel::paint::Surface& surface);

} // namespace bench
