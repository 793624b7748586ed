// Owning polygons.
#pragma once

#include "host/Geometry.h"

/// Frees a polygon at the end of its scope.
class StOwnedPolygon {
  public:
    /// Takes over a polygon that was just made.
    explicit StOwnedPolygon(CFPolygonRef polygon) : mPolygon(polygon) {}
    StOwnedPolygon(StOwnedPolygon const&) = delete;
    StOwnedPolygon& operator=(StOwnedPolygon const&) = delete;
    ~StOwnedPolygon() { KillFPoly(mPolygon); }

    [[nodiscard]] CFPolygonRef Get() const { return mPolygon; }

  private:
    CFPolygonRef mPolygon;
};
