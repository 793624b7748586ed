// Scopes that give the current port its color and pen back.
#pragma once

#include "host/Drawing.h"

[[nodiscard]] inline RGBColor CurrentForeColor() {
    RGBColor color;
    QD::GetForeColor(&color);
    return color;
}

/// Sets the foreground color at the end of a scope to what it is, or was before.
class ForeColorScope {
  public:
    explicit ForeColorScope(RGBColor const& color = CurrentForeColor()) : color_(color) {}
    ForeColorScope(ForeColorScope const&) = delete;
    ForeColorScope& operator=(ForeColorScope const&) = delete;
    ~ForeColorScope() { QD::RGBForeColor(&color_); }

  private:
    RGBColor color_;
};

/// Saves the pen and restores it at the end of a scope.
class PenScope {
  public:
    PenScope() { QD::GetPenState(&state_); }
    PenScope(PenScope const&) = delete;
    PenScope& operator=(PenScope const&) = delete;
    ~PenScope() { QD::SetPenState(&state_); }

  private:
    PenState state_;
};
