// Turns polygons into runs of pixels with the exact share of each pixel's area that they cover.
#pragma once

#include "easel/drawing/Geometry.h"
#include "easel/drawing/Path.h"
#include "easel/paint/ColumnChanges.h"
#include "easel/paint/Coverage.h"
#include "easel/paint/Surface.h"

#include <cstdint>
#include <vector>

namespace easel::paint {

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
    void sweep(drawing::FillRule rule, CoverageSink& sink);

  private:
    // An edge, or what is left of it below the current row. Heights are whole parts of a pixel, which lets
    // the coverage of closed polygons cancel out exactly.
    struct Edge {
        std::int64_t top;
        std::int64_t bottom;
        double x;     // at `top`
        double slope; // per part of a pixel
        double rise;  // parts of a pixel that the edge sinks per column, negative for edges that lead upwards
        int winding;
    };

    void addInside(drawing::Point from, drawing::Point to);
    void addSloped(drawing::Point upper, drawing::Point lower, int winding);
    void sweepRow(std::int64_t rowBottom);
    RowCoverage collect(drawing::FillRule rule);
    void addPartial(int begin, int end);
    void addEven(int begin, int end, std::uint32_t covered);

    PixelBox clip_;
    double left_ = 0;
    double right_ = 0;
    // Extent of the edges.
    double leftmost_ = 0;
    double rightmost_ = 0;
    std::int64_t highest_ = 0;
    std::int64_t lowest_ = 0;
    std::vector<Edge> edges_;
    std::vector<Edge> active_;
    // Of the current row.
    ColumnChanges changes_;
    std::vector<std::uint32_t> coverage_;
    std::vector<PixelSpan> full_;
    std::vector<PixelSpan> partial_;
    std::size_t fullCount_ = 0;
    std::size_t partialCount_ = 0;
};

} // namespace easel::paint
