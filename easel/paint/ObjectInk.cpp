// What the fill and the stroke of an object are painted with.
#include "easel/paint/ObjectInk.h"

#include "easel/drawing/GradientFit.h"
#include "easel/drawing/ShapeGradient.h"
#include "host/Gradient.h"

namespace easel::paint {

HeldInk::HeldInk(const drawing::Paint& paint) {
    if (const auto* color = std::get_if<drawing::ColorPaint>(&paint)) {
        color_ = *color;
        visible_ = color->opacity > 0;
    } else if (const auto* gradient = drawing::gradientIn(paint)) {
        gradient_ = *gradient;
        visible_ = true;
    }
}

HeldInk HeldInk::ofFill(const drawing::Object& object) {
    if (!object.showsGradient())
        return HeldInk(drawing::plainFillOf(object));
    const CGradientData& record = drawing::gradientIn(object.gradient)->GetGradientData();
    return HeldInk(drawing::fitGradient(record, object.remainder.get(), object.outline));
}

HeldInk HeldInk::ofStroke(const drawing::Object& object) {
    const drawing::Style& style = drawing::styleOf(object);
    return drawing::strokes(style) ? HeldInk(style.stroke.paint) : HeldInk();
}

} // namespace easel::paint
