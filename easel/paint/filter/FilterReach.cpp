// How far the effects of a filter reach, step by step.
#include "easel/paint/filter/FilterReach.h"

#include "easel/paint/filter/GaussianBlur.h"

#include <algorithm>
#include <cmath>

namespace easel::paint {

using drawing::FilterInput;
using drawing::Point;

namespace {

struct ReachOfEffect {
    Point scale;

    std::optional<FilterReach> operator()(const drawing::BlurEffect& blur) const {
        // Its edges stand for all that is beyond them.
        if (blur.edge != drawing::EdgeMode::None)
            return std::nullopt;
        return FilterReach{static_cast<double>(blurReach(blur.deviation.x * scale.x)),
                           static_cast<double>(blurReach(blur.deviation.y * scale.y))};
    }
    std::optional<FilterReach> operator()(const drawing::OffsetEffect& offset) const {
        return FilterReach{std::abs(offset.by.x * scale.x) + 1, std::abs(offset.by.y * scale.y) + 1};
    }
    std::optional<FilterReach> operator()(const drawing::DropShadowEffect& shadow) const {
        const auto blur = (*this)(drawing::BlurEffect{shadow.deviation});
        const auto offset = (*this)(drawing::OffsetEffect{shadow.by});
        return FilterReach{blur->x + offset->x, blur->y + offset->y};
    }
    std::optional<FilterReach> operator()(const drawing::MorphologyEffect& morphology) const {
        return FilterReach{morphology.radius.x * scale.x + 1, morphology.radius.y * scale.y + 1};
    }
    std::optional<FilterReach> operator()(const drawing::ConvolveEffect& convolve) const {
        return FilterReach{convolve.columns * std::max(convolve.unit.x * scale.x, 1.0) + 1,
                           convolve.rows * std::max(convolve.unit.y * scale.y, 1.0) + 1};
    }
    std::optional<FilterReach> operator()(const drawing::LightingEffect& lighting) const {
        return FilterReach{std::max(lighting.unit.x * scale.x, 1.0) + 1,
                           std::max(lighting.unit.y * scale.y, 1.0) + 1};
    }
    std::optional<FilterReach> operator()(const drawing::DisplacementEffect& displacement) const {
        const double most = std::abs(displacement.scale) / 2;
        return FilterReach{most * scale.x + 1, most * scale.y + 1};
    }
    std::optional<FilterReach> operator()(const drawing::TileEffect&) const { return std::nullopt; }
    // The others work on each pixel by itself.
    template <class Effect> std::optional<FilterReach> operator()(const Effect&) const {
        return FilterReach{};
    }
};

} // namespace

std::optional<FilterReach> reachOf(const drawing::Filter& filter, Point scale) {
    std::vector<FilterReach> reaches(filter.steps.size());
    for (std::size_t i = 0; i < filter.steps.size(); ++i) {
        FilterReach before;
        for (const FilterInput& input : filter.steps[i].inputs)
            if (input.kind == FilterInput::Kind::Step)
                before = {std::max(before.x, reaches[input.step].x),
                          std::max(before.y, reaches[input.step].y)};
        const auto own = std::visit(ReachOfEffect{scale}, filter.steps[i].effect);
        if (!own)
            return std::nullopt;
        reaches[i] = {before.x + own->x, before.y + own->y};
    }
    return reaches.empty() ? FilterReach{} : reaches.back();
}

} // namespace easel::paint
