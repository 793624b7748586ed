// Turns polygons into runs of pixels with the exact share of each pixel's area that they cover.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/Path.h"
#include "easel/paint/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace easel::paint {

// Coverage of a pixel that lies wholly inside.
constexpr int kFullCoverage = 65536;

// Pixels begin (inclusive) to end (exclusive) of a row, all covered alike; coverage is above 0.
struct CoverageRun {
    int begin;
    int end;
    int coverage;
};

// Receives the rows of a shape from top to bottom; the runs of a row come from left to right and do not
// overlap.
class RowSink {
  public:
    virtual ~RowSink() = default;
    virtual void row(int y, std::span<const CoverageRun> runs) = 0;
};

// Keeps its memory from one shape to the next, so that small shapes cost no allocation.
class Rasteriser {
  public:
    // Forgets all edges; what follows is seen only within `clip`.
    void begin(const PixelBox& clip);
    // One side of a polygon, in surface coordinates. The sides of a polygon may come in any order but all of
    // them must come, in one sense of rotation. A side with a coordinate that is not finite is left out.
    void addEdge(drawing::Point from, drawing::Point to);
    // Encloses all pixels that the edges touch, within the clip.
    PixelBox bounds() const;
    // Hands every row that the shape touches to the sink.
    void sweep(drawing::FillRule rule, RowSink& sink);

  private:
    // An edge, or what is left of it below the current row, in pixels right of and below the clip's corner.
    // Heights are whole 65536ths of a pixel, which lets the coverage of closed polygons cancel out exactly.
    struct Edge {
        std::int64_t top;
        std::int64_t bottom;
        double x; // at `top`
        double slope;
        int winding;
    };

    void addInside(drawing::Point from, drawing::Point to);
    void addSloped(drawing::Point upper, drawing::Point lower, int winding);
    void advance(Edge& edge, std::int64_t rowBottom);
    void accumulate(double left, double right, int cover);
    void accumulateAcross(double left, double right, int first, int last, int cover);
    void collectRuns(drawing::FillRule rule);
    void put(int column, int amount) {
        cells_[static_cast<std::size_t>(column)] += amount;
        touched_[static_cast<std::size_t>(column) / 64] |= std::uint64_t{1}
                                                           << (static_cast<unsigned>(column) % 64);
    }

    PixelBox clip_;
    double width_ = 0;
    double height_ = 0;
    // Extent of the edges, from the clip's corner.
    double leftmost_ = 0;
    double rightmost_ = 0;
    std::int64_t highest_ = 0;
    std::int64_t lowest_ = 0;
    std::vector<Edge> edges_;
    std::vector<Edge> active_;
    // By how much the coverage changes at each column of the current row, and which columns have such a
    // change.
    std::vector<std::int64_t> cells_;
    std::vector<std::uint64_t> touched_;
    std::vector<CoverageRun> runs_;
};

} // namespace easel::paint
