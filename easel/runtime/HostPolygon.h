// What stands behind the polygons and paths that the host hands out.
#pragma once

#include "easel/drawing/Path.h"
#include "host/Geometry.h"

#include <vector>

struct FPolygon {
    std::vector<TPoint<double>> vertices;
};

struct CGPath {
    easel::drawing::Path outline;
};
