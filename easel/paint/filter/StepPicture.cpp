// What one step of a filter makes of its inputs: its numbers taken to pixels, and the effect called by name.
#include "easel/paint/filter/StepPicture.h"

#include "easel/paint/filter/Blend.h"
#include "easel/paint/filter/ColorMatrix.h"
#include "easel/paint/filter/ComponentTransfer.h"
#include "easel/paint/filter/Composite.h"
#include "easel/paint/filter/Convolve.h"
#include "easel/paint/filter/Displacement.h"
#include "easel/paint/filter/Flood.h"
#include "easel/paint/filter/GaussianBlur.h"
#include "easel/paint/filter/Lighting.h"
#include "easel/paint/filter/Morphology.h"
#include "easel/paint/filter/Offset.h"
#include "easel/paint/filter/PixelLoops.h"
#include "easel/paint/filter/Shade.h"
#include "easel/paint/filter/Tile.h"
#include "easel/paint/filter/Turbulence.h"

#include <cmath>

namespace easel::paint {

namespace {

using drawing::Point;

// A radius as whole pixels; no picture is larger.
int wholeRadius(double pixels) {
    return static_cast<int>(std::lround(std::clamp(pixels, 0.0, 1e8)));
}

class EffectPicture {
  public:
    EffectPicture(const drawing::FilterStep& step, const StepInputs& inputs, const FilterSpace& space,
                  const ImagePainting& paintImage)
        : step_(step), inputs_(inputs), space_(space), paintImage_(paintImage) {}

    Surface operator()(const drawing::BlurEffect& effect) const {
        const Point deviation = inPixels(effect.deviation);
        return blurred(input(0), deviation.x, deviation.y, inputs_.firstRegion, effect.edge);
    }
    Surface operator()(const drawing::OffsetEffect& effect) const {
        return movedBy(input(0), inPixels(effect.by));
    }
    Surface operator()(const drawing::FloodEffect& effect) const {
        Surface result = nothing();
        result.clear(floodPixel(effect, step_.linearLight));
        return result;
    }
    // feDropShadow (Filter Effects 1, 9.13): blurred, moved, colored, and the picture laid over it.
    Surface operator()(const drawing::DropShadowEffect& effect) const {
        const Point deviation = inPixels(effect.deviation);
        const std::uint32_t color = floodPixel(effect.color, step_.linearLight);
        const Surface moved = movedBy(blurred(input(0), deviation.x, deviation.y), inPixels(effect.by));
        Surface shadow = mapped(moved, [color](std::uint32_t pixel) { return shareOf(color, pixel >> 24); });
        layOver(shadow, input(0));
        return shadow;
    }
    Surface operator()(const drawing::MergeEffect&) const {
        Surface result = nothing();
        for (const auto& picture : inputs_.pictures)
            layOver(result, *picture);
        return result;
    }
    Surface operator()(const drawing::BlendEffect& effect) const {
        return blended(effect.mode, input(0), input(1));
    }
    Surface operator()(const drawing::CompositeEffect& effect) const {
        return composite(effect, input(0), input(1));
    }
    Surface operator()(const drawing::ColorMatrixEffect& effect) const { return changedBy(effect, input(0)); }
    Surface operator()(const drawing::TransferEffect& effect) const { return changedBy(effect, input(0)); }
    Surface operator()(const drawing::ConvolveEffect& effect) const {
        return convolved(effect, space_.wholeSteps(effect.unit), input(0));
    }
    Surface operator()(const drawing::LightingEffect& effect) const {
        return lit(effect, step_.linearLight, input(0), space_);
    }
    Surface operator()(const drawing::DisplacementEffect& effect) const {
        return displaced(effect, inPixels({effect.scale, effect.scale}), input(0), input(1));
    }
    Surface operator()(const drawing::MorphologyEffect& effect) const {
        const Point radius = inPixels(effect.radius);
        return morphed(effect.how, wholeRadius(radius.x), wholeRadius(radius.y), input(0));
    }
    Surface operator()(const drawing::TileEffect&) const { return tiled(input(0), inputs_.firstRegion); }
    Surface operator()(const drawing::TurbulenceEffect& effect) const {
        return turbulence(effect, step_.region, space_);
    }
    Surface operator()(const drawing::ImageEffect& effect) const { return paintImage_(effect); }

  private:
    const Surface& input(std::size_t i) const { return *inputs_.pictures[i]; }
    Surface nothing() const { return {space_.width, space_.height}; }
    Point inPixels(Point lengths) const { return space_.toPixels.direction(lengths); }

    const drawing::FilterStep& step_;
    const StepInputs& inputs_;
    const FilterSpace& space_;
    const ImagePainting& paintImage_;
};

} // namespace

Surface stepPicture(const drawing::FilterStep& step, const StepInputs& inputs, const FilterSpace& space,
                    const ImagePainting& paintImage) {
    return std::visit(EffectPicture(step, inputs, space, paintImage), step.effect);
}

void clearOutside(Surface& picture, const PixelRect& region) {
    const PixelRect kept = region.intersection({.right = picture.width(), .bottom = picture.height()});
    for (int y = 0; y < picture.height(); ++y) {
        std::uint32_t* const row = picture.row(y);
        const bool inside = !kept.empty() && y >= kept.top && y < kept.bottom;
        std::fill(row, row + (inside ? kept.left : picture.width()), 0);
        if (inside)
            std::fill(row + kept.right, row + picture.width(), 0);
    }
}

} // namespace easel::paint
