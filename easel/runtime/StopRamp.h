// The color stops that an item of a dialog shows, and what the mouse would do to them.
#pragma once

#include "easel/runtime/DialogItem.h"
#include "easel/runtime/MouseGesture.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace easel::runtime {

struct ShownStop {
    double at = 0;       // horizontally, in the dialog's pixels
    double position = 0; // on the ramp, 0 to 1
    drawing::Rgb16 color;
};

// Gestures are in the dialog's pixels. A press takes hold of the nearest stop within its reach, of several
// equally near ones the first, so of stops in one place only the first can be taken; each gesture leaves the
// stop where it can be taken again. What cannot be done is no gesture.
class StopRamp {
  public:
    // Nothing if the item shows no gradient with marks.
    static std::optional<StopRamp> in(const DialogItem& item);

    // From left to right.
    const std::vector<ShownStop>& stops() const { return stops_; }
    std::size_t active() const { return active_; }
    // The top of the mark of a stop.
    paint::PixelPoint markOf(std::size_t stop) const;
    // The pixel nearest to a stop, from which its moves are counted.
    int placeOf(std::size_t stop) const;

    // Makes a stop the active one.
    std::optional<MouseGesture> choose(std::size_t stop) const;
    // The nearest stop after (1) or before (-1) the active one that can be taken.
    std::optional<MouseGesture> chooseBeside(int direction) const;
    // Moves a stop to a pixel, or to the first one from there in that direction (1 or -1) where it can stay.
    std::optional<MouseGesture> move(std::size_t stop, int to, int direction) const;
    // Makes a stop in the middle of the space after the active one, or of the widest there is.
    std::optional<MouseGesture> add() const;
    std::optional<MouseGesture> remove(std::size_t stop) const;

    // The pixels of both ends of the ramp, and the one of a position on it.
    int left() const;
    int right() const;
    int pixelAt(double position) const;

  private:
    std::optional<paint::PixelPoint> hold(const std::vector<ShownStop>& stops, std::size_t stop) const;
    bool canStay(std::size_t stop, int at) const;

    std::vector<ShownStop> stops_;
    std::size_t active_ = 0;
    double start_ = 0; // of the colors, horizontally
    double end_ = 0;
    int markTop_ = 0;
};

} // namespace easel::runtime
