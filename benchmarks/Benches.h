// The benchmarks that the program knows.
#pragma once

#include "benchmarks/Report.h"

namespace bench {

void runPixels(Report& report);

// Drawings of 1,000, 10,000 and 100,000 objects: opening, painting, changing one object, undoing.
void runLargeDrawings(Report& report);

// Files of as many objects with gradients: opening, memory, and sharing of equal gradients.
void runOpening(Report& report);

// Paints one of the fixed workloads ("linear", "radial", "stars") on the SSE4 instruction set, for counting
// instructions. False if there is no such workload.
bool runCounted(const std::string& workload);

} // namespace bench
