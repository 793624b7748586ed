// Polygons for the tests.
#pragma once

#include "Gradient/model/OwnedPolygon.h"
#include "easel/runtime/HostPolygon.h"

#include <cmath>
#include <memory>
#include <random>
#include <vector>

inline StOwnedPolygon PolygonOf(std::vector<TPoint<double>> vertices) {
    auto storage = std::make_unique<FPolygon>();
    storage->vertices = std::move(vertices);
    return StOwnedPolygon(CFPolygonRef(storage.release()));
}

// A polygon of 3 to 12 vertices anywhere in a drawing, from a pixel to some thousands across.
inline StOwnedPolygon RandomPolygon(std::mt19937& random) {
    std::uniform_real_distribution<double> place(-2000.0, 2000.0);
    std::uniform_real_distribution<double> logSize(0.0, 3.5);
    const double size = std::pow(10.0, logSize(random));
    const TPoint<double> middle(place(random), place(random));
    std::uniform_real_distribution<double> offset(-size, size);
    std::vector<TPoint<double>> vertices(std::uniform_int_distribution<std::size_t>(3, 12)(random));
    for (TPoint<double>& vertex : vertices) {
        vertex = middle + TPoint<double>(offset(random), offset(random));
    }
    return PolygonOf(vertices);
}
