// The inner loop of edges, compiled for each SIMD instruction set and chosen when the program runs. All of
// them leave the same changes of coverage.
#pragma once

#include "easel/paint/coverage/CoverageBand.h"

#include <cstdint>
#include <span>

namespace easel::paint {

// An edge, or what is left of it below the rows that are done with. Heights are whole parts of a pixel as
// kFullCoverage counts them, which lets the coverage of closed polygons cancel out exactly.
struct Edge {
    std::int64_t top;
    std::int64_t bottom;
    double x;     // at `top`
    double slope; // per part of a pixel
    float
        rise; // parts of a pixel that the edge sinks per column, negative for edges that lead upwards; finite
    int winding; // 1 for edges that lead downwards, otherwise -1
};

// Takes from the edges what lies above the bottom of a band and leaves it in the band's columns, from that of
// the edge to the one right of it. `top` is the band's first row; no edge begins above it. Edges stay within
// `left` and `right`.
void addEdges(std::span<Edge> edges, std::int64_t top, double left, double right, CoverageBand& band);

} // namespace easel::paint
