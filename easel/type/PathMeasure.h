// Places on a path by their distance from its beginning.
#pragma once

#include "easel/drawing/Path.h"

#include <optional>
#include <vector>

namespace easel::type {

class PathMeasure {
  public:
    // Subpaths follow each other without the gaps between them.
    explicit PathMeasure(const drawing::Path& path);

    double length() const { return length_; }
    // From the path's place at that distance, with the horizontal axis along it, to the path's coordinates.
    // Nothing before its beginning and past its end.
    std::optional<drawing::Affine> at(double distance) const;
    // Where the path ends, the origin if it is empty.
    drawing::Point end() const;

  private:
    struct Piece {
        drawing::Point from;
        drawing::Point direction; // of length 1
        double begin = 0;         // distance
        double length = 0;
    };
    void add(drawing::Point from, drawing::Point to);

    std::vector<Piece> pieces_;
    double length_ = 0;
};

} // namespace easel::type
