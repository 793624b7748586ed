// Merges the stops of colors and of opacity.
#include "easel/drawing/FadedRamp.h"

#include <algorithm>

namespace easel::drawing {

namespace {

// What a ramp has just before a position and from it on.
struct Sides {
    RampColor before;
    RampColor after;
};

// Walks along a ramp; positions are asked for in ascending order.
class Walk {
  public:
    explicit Walk(const Ramp& ramp) : ramp_(ramp), next_(ramp.stops().begin()) {}

    bool done() const { return next_ == ramp_.stops().end(); }
    double nextPosition() const { return next_->position; }

    Sides pass(double position) {
        Sides sides{ramp_.at(position), ramp_.at(position)};
        if (!done() && next_->position == position)
            sides.before = colorOf(*next_);
        while (!done() && next_->position == position)
            ++next_;
        return sides;
    }

  private:
    const Ramp& ramp_;
    std::vector<RampStop>::const_iterator next_;
};

Ramp rampOf(std::span<const OpacityStop> opacity) {
    std::vector<RampStop> stops;
    stops.reserve(opacity.size());
    for (const OpacityStop& stop : opacity)
        stops.push_back({stop.position, {}, stop.opacity});
    return Ramp(std::move(stops));
}

RampStop stopAt(double position, RampColor color, double opacity) {
    color.opacity = opacity;
    return stopOf(position, color);
}

} // namespace

Ramp faded(const Ramp& colors, std::span<const OpacityStop> opacity) {
    const Ramp opacities = rampOf(opacity);
    Walk color(colors);
    Walk fade(opacities);
    std::vector<RampStop> stops;
    while (!color.done() || !fade.done()) {
        const double position = color.done()  ? fade.nextPosition()
                                : fade.done() ? color.nextPosition()
                                              : std::min(color.nextPosition(), fade.nextPosition());
        const Sides colorSides = color.pass(position);
        const Sides fadeSides = fade.pass(position);
        const RampStop before = stopAt(position, colorSides.before, fadeSides.before.opacity);
        const RampStop after = stopAt(position, colorSides.after, fadeSides.after.opacity);
        stops.push_back(before);
        if (after != before)
            stops.push_back(after);
    }
    return Ramp(std::move(stops));
}

} // namespace easel::drawing
