// What the fill and the stroke of an object are painted with.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/GradientFit.h"
#include "easel/drawing/Object.h"
#include "easel/paint/Painter.h"

#include <optional>

namespace easel::paint {

// An ink together with the gradient it may refer to. Stays where it was made.
class HeldInk {
  public:
    HeldInk(const HeldInk&) = delete;
    HeldInk& operator=(const HeldInk&) = delete;

    // What the object's inside shows: its own gradient fitted to its outline, else the fill of its file.
    static HeldInk ofFill(const drawing::Object& object);
    static HeldInk ofStroke(const drawing::Object& object);

    // False where nothing is painted.
    bool visible() const { return visible_; }
    Ink ink() const { return gradient_ ? Ink(&*gradient_) : Ink(color_); }

  private:
    HeldInk() = default;
    explicit HeldInk(const drawing::Paint& paint);
    explicit HeldInk(drawing::Gradient gradient) : gradient_(std::move(gradient)), visible_(true) {}

    drawing::ColorPaint color_;
    std::optional<drawing::Gradient> gradient_;
    bool visible_ = false;
};

} // namespace easel::paint
