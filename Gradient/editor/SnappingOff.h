// Switching the host's snapping off while the mouse is tracked.
#pragma once

#include "host/Mouse.h"

/// The two snapping switches as they stand at a moment.
struct SnapSwitches {
    bool grid;
    bool object;

    [[nodiscard]] static SnapSwitches Current() {
        bool const grid = GetGridSnap();
        return {grid, GetObjectSnap()};
    }
};

/// Switches snapping off for a scope and sets the switches to `before` at its end.
class SnappingOff {
  public:
    explicit SnappingOff(SnapSwitches const& before) : before_(before) {
        SetGridSnap(false);
        SetObjectSnap(false);
    }
    SnappingOff(SnappingOff const&) = delete;
    SnappingOff& operator=(SnappingOff const&) = delete;
    ~SnappingOff() {
        SetGridSnap(before_.grid);
        SetObjectSnap(before_.object);
    }

  private:
    SnapSwitches before_;
};
