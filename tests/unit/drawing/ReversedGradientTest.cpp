// That a reversed gradient is the mirror image of what a shape showed of the gradient before.
#include "easel/drawing/GradientCommands.h"
#include "easel/drawing/GradientFit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace {

using namespace easel::drawing;

double number(std::mt19937& chance, double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(chance);
}

WholeGradient randomRadial(std::mt19937& chance) {
    WholeGradient gradient;
    gradient.record.SetType(kRadialGradient);
    const TPoint<double> end{number(chance, -0.3, 1.3), number(chance, -0.3, 1.3)};
    gradient.record.SetEnd(end);
    gradient.record.SetStart({end.h + number(chance, -0.1, 0.1), end.v + number(chance, -0.1, 0.1)});
    std::vector<double> places{number(chance, 0, 1), number(chance, 0, 1), number(chance, 0, 1)};
    std::sort(places.begin(), places.end());
    gradient.record.ColorList().clear();
    for (const double place : places) {
        const auto channel = [&] { return static_cast<unsigned short>(number(chance, 0, 65535)); };
        const unsigned short red = channel();
        const unsigned short green = channel();
        gradient.record.ColorList().emplace_back(RGBColor{red, green, channel()}, place);
    }
    if (number(chance, 0, 1) < 0.5)
        gradient.remainder.opacity = {{number(chance, 0, 0.5), 0.2}, {number(chance, 0.5, 1), 0.9}};
    if (number(chance, 0, 1) < 0.5)
        gradient.remainder.ellipse = Affine::rotation(number(chance, 0, 90)) * Affine::scaling(1.5, 0.6);
    return gradient;
}

// By trying: the circles of the fitted gradient hold the point from some size on.
double parameterAt(const Gradient& fit, Point p) {
    const auto& circles = std::get<RadialGeometry>(fit.geometry);
    const Point at = fit.toDrawing.inverse()(p);
    double low = 0;
    double high = 4;
    for (int i = 0; i < 40; ++i) {
        const double k = (low + high) / 2;
        const Point centre = circles.focus + (circles.centre - circles.focus) * k;
        (length(at - centre) <= k * circles.radius ? high : low) = k;
    }
    return high;
}

struct Frame {
    const char* name;
    GradientFrame frame;
};

std::vector<Frame> frames() {
    Path ring = ellipsePath({50, 40}, 50, 40);
    const Path hole = ellipsePath({50, 40}, 20, 25);
    ring.moveTo(hole.points()[0]);
    for (std::size_t i = 1; i + 2 < hole.points().size(); i += 3)
        ring.cubicTo(hole.points()[i], hole.points()[i + 1], hole.points()[i + 2]);
    ring.close();
    return {{"rectangle", {rectanglePath({0, 0, 100, 50}), FillRule::NonZero}},
            {"ellipse", {ellipsePath({50, 40}, 50, 40), FillRule::NonZero}},
            {"triangle", {polygonPath({{0, 0}, {90, 20}, {30, 70}}), FillRule::NonZero}},
            {"ring", {ring, FillRule::EvenOdd}}};
}

std::vector<Point> pointsInside(const GradientFrame& frame) {
    std::vector<Point> inside;
    for (double y = 0.25; y < 80; ++y)
        for (double x = 0.25; x < 100; ++x)
            if (contains(frame.outline, *frame.inside, {x, y}))
                inside.push_back({x, y});
    return inside;
}

// The largest difference of a channel in levels, or of opacity in their 255ths.
double difference(const RampColor& a, const RampColor& b) {
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue),
                     std::abs(a.opacity - b.opacity) * 255});
}

// How much the ramp changes over a small step anywhere near the place.
double slackAt(const Ramp& ramp, double place, double step) {
    double most = 0;
    for (const double from : {place - step, place, place + step})
        most = std::max(most, difference(ramp.at(place), ramp.at(from)));
    return most;
}

TEST(ReversedGradient, ShowsWhatAShapeShowedWithItsEndsExchanged) {
    std::mt19937 chance(7);
    int compared = 0;
    for (const auto& [name, frame] : frames()) {
        const std::vector<Point> points = pointsInside(frame);
        for (int round = 0; round < 12; ++round) {
            const WholeGradient gradient = randomRadial(chance);
            const Gradient before = fitGradient(gradient.record, &gradient.remainder, frame.outline);
            const WholeGradient turned = reversed(gradient, frame);
            const Gradient after = fitGradient(turned.record, &turned.remainder, frame.outline);
            EXPECT_EQ(before.geometry, after.geometry) << "only colors change";
            double low = 9;
            double high = 0;
            for (const Point p : points) {
                const double at = parameterAt(before, p);
                low = std::min(low, at);
                high = std::max(high, at);
            }
            // The points are a unit apart, so that the range is that much larger at either end.
            const double unsure = 0.04;
            for (std::size_t i = 0; i < points.size(); i += 11) {
                const double at = parameterAt(before, points[i]);
                const double mirror = std::clamp(low + high - at, low, high);
                ++compared;
                ASSERT_LE(difference(after.ramp.at(at), before.ramp.at(mirror)),
                          slackAt(before.ramp, mirror, unsure) + 1)
                    << name << ", round " << round << ", parameter " << at;
            }
        }
    }
    EXPECT_GT(compared, 10000);
}

TEST(ReversedGradient, KeepsAFlatTailInside) {
    // White in the middle, black from a third of the way on: the rim becomes white, the middle black.
    WholeGradient gradient;
    gradient.record.SetType(kRadialGradient);
    gradient.record.SetStart({0.5, 0.5});
    gradient.record.SetEnd({0.5, 0.5});
    gradient.record.ColorList() = {{{65535, 65535, 65535}, 0}, {{0, 0, 0}, 0.25}};
    const GradientFrame circle{ellipsePath({50, 50}, 50, 50), FillRule::NonZero};
    const WholeGradient turned = reversed(gradient, circle);
    const Gradient fit = fitGradient(turned.record, nullptr, circle.outline);
    const double rim = parameterAt(fit, {100, 50});
    EXPECT_NEAR(rim, std::sqrt(0.5), 1e-6);
    EXPECT_GT(fit.ramp.at(rim).red, 254);
    EXPECT_LT(fit.ramp.at(0).red, 1);
    EXPECT_LT(fit.ramp.at(rim - 0.25).red, 1);
    const WholeGradient again = reversed(turned, circle);
    EXPECT_GT(fitGradient(again.record, nullptr, circle.outline).ramp.at(0).red, 254);
}

TEST(ReversedGradient, OfALineChangesPlaces) {
    WholeGradient gradient;
    gradient.record.SetType(kLinearGradient);
    gradient.record.ColorList() = {{{65535, 0, 0}, 0.25}, {{0, 0, 65535}, 0.75}, {{0, 65535, 0}, 1}};
    const GradientFrame frame{ellipsePath({50, 50}, 50, 20), FillRule::NonZero};
    const WholeGradient turned = reversed(gradient, frame);
    EXPECT_EQ(turned.record.ColorList().front().Percent(), 0);
    EXPECT_TRUE(same(reversed(turned, frame), gradient)) << "and back to the bit";
}

} // namespace
