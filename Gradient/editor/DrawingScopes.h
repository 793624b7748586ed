// Scopes that give the current port its color and pen back.
#pragma once

#include "host/Drawing.h"

[[nodiscard]] inline RGBColor CurrentForeColor() {
    RGBColor color;
    QD::GetForeColor(&color);
    return color;
}

/// Sets the foreground color at the end of a scope to what it is, or was before.
class StForeColor {
  public:
    explicit StForeColor(RGBColor const& color = CurrentForeColor()) : mColor(color) {}
    StForeColor(StForeColor const&) = delete;
    StForeColor& operator=(StForeColor const&) = delete;
    ~StForeColor() { QD::RGBForeColor(&mColor); }

  private:
    RGBColor mColor;
};

/// Saves the pen and restores it at the end of a scope.
class StPenState {
  public:
    StPenState() { QD::GetPenState(&mState); }
    StPenState(StPenState const&) = delete;
    StPenState& operator=(StPenState const&) = delete;
    ~StPenState() { QD::SetPenState(&mState); }

  private:
    PenState mState;
};
