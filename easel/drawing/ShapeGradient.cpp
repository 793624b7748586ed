// The gradient of a shape as the tool sees it, with what stays beside it.
#include "easel/drawing/ShapeGradient.h"

namespace easel::drawing {

ShapeGradient described(const Gradient& gradient, const Path& outline) {
    GradientDescription description = describe(gradient, outline);
    ShapeGradient result{ObjectGradient(std::make_unique<CGradient>(description.record).release()), nullptr,
                         description.loss};
    if (!description.remainder.empty())
        result.remainder = makeShared<const Remainder>(std::move(description.remainder));
    return result;
}

ShapeGradient shapeGradientOf(const Object& object) {
    if (gradientIn(object.gradient))
        return {object.gradient, object.remainder, Loss::None};
    const Gradient* const fill = gradientIn(object.fill);
    if (!fill || object.fillOrigin == PaintOrigin::Edited || !carriesGradient(object.kind))
        return {};
    return described(*fill, object.outline);
}

Paint plainFillOf(const Object& object) {
    if (object.fillPattern == FillPattern::None)
        return NoPaint{};
    if (object.fillOrigin == PaintOrigin::Edited && object.fillPattern == FillPattern::SolidBlack)
        return ColorPaint{};
    return object.fill;
}

} // namespace easel::drawing
