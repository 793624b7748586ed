// What the fill and the stroke of an object are painted with.
#include "easel/paint/ObjectPaintSource.h"

#include "easel/drawing/GradientFit.h"
#include "easel/drawing/ShapeGradient.h"
#include "host/Gradient.h"

namespace easel::paint {

HeldPaintSource::HeldPaintSource(const drawing::Paint& paint) {
    if (const auto* color = std::get_if<drawing::ColorPaint>(&paint)) {
        color_ = *color;
        visible_ = color->opacity > 0;
    } else if (const auto* gradient = drawing::gradientIn(paint)) {
        gradient_ = *gradient;
        visible_ = true;
    } else if (const auto* picture = std::get_if<drawing::PicturePtr>(&paint)) {
        picture_ = *picture;
        visible_ = true;
    } else if (const auto* pattern = std::get_if<drawing::PatternPtr>(&paint)) {
        pattern_ = *pattern;
        visible_ = true;
    }
}

HeldPaintSource HeldPaintSource::ofFill(const drawing::Object& object) {
    if (!object.showsGradient())
        return HeldPaintSource(drawing::plainFillOf(object));
    const CGradientData& record = drawing::gradientIn(object.gradient)->GetGradientData();
    return HeldPaintSource(drawing::fitGradient(record, object.remainder.get(), object.outline));
}

HeldPaintSource HeldPaintSource::ofStroke(const drawing::Object& object) {
    const drawing::Style& style = drawing::styleOf(object);
    return drawing::strokes(style) ? HeldPaintSource(style.stroke.paint) : HeldPaintSource();
}

} // namespace easel::paint
