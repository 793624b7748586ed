// Turns polygons into runs of pixels with the exact share of each pixel's area that they cover.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/Path.h"
#include "easel/paint/coverage/Coverage.h"
#include "easel/paint/coverage/CoverageLists.h"
#include "easel/paint/coverage/EdgeKernels.h"
#include "easel/paint/pixels/Surface.h"

#include <cstdint>
#include <span>
#include <vector>

namespace easel::paint {

// Keeps its memory from one shape to the next, so that small shapes cost no allocation.
class Rasteriser {
  public:
    // Forgets all edges; what follows is seen only within `clip`.
    void begin(const PixelRect& clip);
    // Room for so many edges in all.
    void reserve(std::size_t edges) { edges_.reserve(edges); }
    // One side of a polygon, in surface coordinates. The sides of a polygon may come in any order but all of
    // them must come, in one sense of rotation. A side with a coordinate that is not finite is left out.
    void addEdge(drawing::Point from, drawing::Point to);
    // Sides above and below are left out.
    double top() const { return clip_.top; }
    double bottom() const { return clip_.bottom; }
    // How many edges are held, each some dozens of bytes.
    std::size_t edgeCount() const { return edges_.size(); }
    // Encloses all pixels that the edges touch, within the clip.
    PixelRect bounds() const;
    // Hands every row that the shape touches to the sink, and forgets the edges.
    void sweep(drawing::FillRule rule, CoverageSink& sink);

  private:
    void addInside(drawing::Point from, drawing::Point to);
    void addSloped(drawing::Point upper, drawing::Point lower, int winding);
    void sweepBand(std::span<Edge> edges, std::int64_t top, drawing::FillRule rule, CoverageSink& sink);
    RowCoverage collect(std::size_t row, drawing::FillRule rule);

    PixelRect clip_;
    double left_ = 0;
    double right_ = 0;
    // Extent of the edges.
    double leftmost_ = 0;
    double rightmost_ = 0;
    std::int64_t highest_ = 0;
    std::int64_t lowest_ = 0;
    std::vector<Edge> edges_;
    CoverageBand band_;
    CoverageLists lists_; // of the current row
};

} // namespace easel::paint
