// What the fill and the stroke of an object are painted with.
#pragma once

#include "easel/drawing/Gradient.h"
#include "easel/drawing/GradientFit.h"
#include "easel/drawing/Object.h"
#include "easel/drawing/Pattern.h"
#include "easel/drawing/Picture.h"
#include "easel/paint/Painter.h"

#include <optional>

namespace easel::paint {

// A paint source together with the gradient it may refer to. Stays where it was made, and no
// longer than the object.
class HeldPaintSource {
  public:
    HeldPaintSource(const HeldPaintSource&) = delete;
    HeldPaintSource& operator=(const HeldPaintSource&) = delete;

    // What the object's inside shows: its own gradient fitted to its outline, else the fill of its file.
    static HeldPaintSource ofFill(const drawing::Object& object);
    static HeldPaintSource ofStroke(const drawing::Object& object);
    static HeldPaintSource of(const drawing::Paint& paint) { return HeldPaintSource(paint); }

    // False where nothing is painted.
    bool visible() const { return visible_; }
    // What has to be made into an image before it is painted; null if it is neither.
    const drawing::PicturePtr& picture() const { return picture_; }
    const drawing::PatternPtr& pattern() const { return pattern_; }
    // Everything else.
    PaintSource source() const { return gradient_ ? PaintSource(&*gradient_) : PaintSource(color_); }

  private:
    HeldPaintSource() = default;
    explicit HeldPaintSource(const drawing::Paint& paint);
    explicit HeldPaintSource(drawing::Gradient gradient) : gradient_(std::move(gradient)), visible_(true) {}

    drawing::ColorPaint color_;
    std::optional<drawing::Gradient> gradient_;
    drawing::PicturePtr picture_;
    drawing::PatternPtr pattern_;
    bool visible_ = false;
};

} // namespace easel::paint
