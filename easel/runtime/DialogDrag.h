// Takes back what a drag in a dialog did to a gradient, when the user breaks the drag off.
#pragma once

#include "easel/paint/pixels/PixelGeometry.h"
#include "easel/runtime/DialogItem.h"
#include "host/Geometry.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace easel::runtime {

class Dialog;

// Whoever follows the mouse computes values from its place, in whole pixels: too coarse for the way back. So
// the first value that is set after each look at the mouse is taken for the one that the mouse drags, and on
// the way back it is what it was before the press.
class DialogDrag {
  public:
    // An item is pressed.
    void begin();
    // Whoever follows the mouse is told that the button is still down.
    void followed(const Dialog& dialog);
    // The dialog waits for something else again.
    void finish(Dialog& dialog);

    // What the mouse has to do before the button goes up, as steps away from the place of the press.
    std::vector<paint::PixelPoint> takeBack();

    // Each gives what is to be set in the place of what the plug-in sets.
    double positionFor(double before, double wanted);
    float angleFor(float before, float wanted) const { return phase_ == Phase::Back ? before : wanted; }
    TPoint<double> startFor(TPoint<double> before, TPoint<double> wanted);
    TPoint<double> endFor(TPoint<double> before, TPoint<double> wanted);
    void stopMade();

  private:
    enum class Phase { None, Pressed, Followed, Back };

    // A value that follows the mouse.
    template <class Value> struct Dragged {
        std::optional<Value> before;
        bool isNext = false; // nothing has been set since the last look at the mouse
    };
    template <class Value> Value followed(Dragged<Value>& dragged, Value before, Value wanted) const;

    Phase phase_ = Phase::None;
    std::size_t stepsLeft_ = 0;
    bool madeStop_ = false;
    Dragged<double> position_;
    Dragged<TPoint<double>> start_;
    Dragged<TPoint<double>> end_;
    std::vector<DialogItem> fields_; // the edit fields, as they were when the mouse was first followed
};

// That of the process, or null without one.
DialogDrag* dialogDrag();

} // namespace easel::runtime
