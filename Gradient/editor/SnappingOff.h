// Switching the host's snapping off while the mouse is tracked.
#pragma once

#include "host/Mouse.h"

/// The two snapping switches as they stand at a moment.
struct CSnapSwitches {
    bool grid;
    bool object;

    [[nodiscard]] static CSnapSwitches Current() {
        bool const grid = GetGridSnap();
        return {grid, GetObjectSnap()};
    }
};

/// Switches snapping off for a scope and sets the switches to `before` at its end.
class StSnappingOff {
  public:
    explicit StSnappingOff(CSnapSwitches const& before) : mBefore(before) {
        SetGridSnap(false);
        SetObjectSnap(false);
    }
    StSnappingOff(StSnappingOff const&) = delete;
    StSnappingOff& operator=(StSnappingOff const&) = delete;
    ~StSnappingOff() {
        SetGridSnap(mBefore.grid);
        SetObjectSnap(mBefore.object);
    }

  private:
    CSnapSwitches mBefore;
};
