// A polygon that is freed at the end of its scope.
#pragma once

#include "host/Geometry.h"

class OwnedPolygon {
  public:
    /// Takes over a polygon that was just made.
    explicit OwnedPolygon(CFPolygonRef polygon) : polygon_(polygon) {}
    OwnedPolygon(OwnedPolygon const&) = delete;
    OwnedPolygon& operator=(OwnedPolygon const&) = delete;
    ~OwnedPolygon() { KillFPoly(polygon_); }

    [[nodiscard]] CFPolygonRef Get() const { return polygon_; }

  private:
    CFPolygonRef polygon_;
};
