#include "easel/export/MaskAlpha.h"

#include "easel/drawing/Luminance.h"
#include "easel/drawing/Object.h"
#include "easel/paint/ObjectPaintSource.h"

#include <algorithm>
#include <optional>

namespace easel::exports {

using drawing::Box;
using drawing::MaskMeasure;
using drawing::Object;
using drawing::ObjectPtr;

namespace {

// The luminance of all that a paint shows lies between these; nothing if alpha cannot tell it.
struct LightRange {
    double lowest = 1;
    double highest = 0;
};

constexpr LightRange kBlack{0, 0};

std::optional<LightRange> rangeOf(const drawing::Gradient& gradient) {
    LightRange range;
    const double opacity = gradient.ramp.stops().front().opacity;
    for (const drawing::RampStop& stop : gradient.ramp.stops()) {
        if (stop.opacity != opacity)
            return std::nullopt;
        const double luminance = luminanceOf(stop.color);
        range = {std::min(range.lowest, luminance), std::max(range.highest, luminance)};
    }
    return range;
}

std::optional<LightRange> rangeOf(const paint::HeldPaintSource& held) {
    if (!held.visible())
        return kBlack;
    if (held.picture() || held.pattern())
        return std::nullopt;
    const paint::PaintSource source = held.source();
    if (const auto* const gradient = std::get_if<const drawing::Gradient*>(&source))
        return rangeOf(**gradient);
    if (const auto* const color = std::get_if<drawing::ColorPaint>(&source))
        return LightRange{luminanceOf(color->color), luminanceOf(color->color)};
    return std::nullopt;
}

// Goes through what is painted, back to front.
class Luminance {
  public:
    // Whether alpha tells what it adds.
    bool takes(const Object& object) {
        if (object.markers || blends(object.group))
            return false;
        const bool strokes = drawing::strokes(drawing::styleOf(object));
        const bool fills = object.fillPattern != drawing::FillPattern::None;
        return (!fills || takes(rangeOf(paint::HeldPaintSource::ofFill(object)), object.paintBounds())) &&
               (!strokes || takes(rangeOf(paint::HeldPaintSource::ofStroke(object)), object.paintBounds()));
    }

  private:
    bool takes(const std::optional<LightRange>& range, const Box& box) {
        if (!range)
            return false;
        const bool overSomething =
            std::any_of(light_.begin(), light_.end(), [&](const Box& below) { return below.overlaps(box); });
        if (overSomething && range->lowest < 1)
            return false;
        if (range->highest > 0)
            light_.push_back(box);
        return true;
    }

    std::vector<Box> light_; // where something that is not black was painted
};

// Beyond this many objects nobody looks.
constexpr std::size_t kMostObjects = 1000;

} // namespace

double luminanceOf(const drawing::Rgb16& color) {
    return drawing::luminanceOf(color.red, color.green, color.blue) / 65535;
}

bool alphaTellsLuminance(const drawing::Mask& mask) {
    if (mask.measure != MaskMeasure::Luminance || mask.objects.size() > kMostObjects)
        return false;
    Luminance luminance;
    return std::all_of(mask.objects.begin(), mask.objects.end(),
                       [&](const ObjectPtr& object) { return luminance.takes(*object); });
}

} // namespace easel::exports
