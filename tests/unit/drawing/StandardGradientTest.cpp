// When two gradients look the same, and which of the tool's gradients have a standard form.
#include "easel/drawing/StandardGradient.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace easel::drawing;

const Ramp kRamp({{0, {65535, 0, 0}, 1}, {0.5, {0, 65535, 0}, 0.5}, {1, {0, 0, 65535}, 1}});

Gradient linear(Point start, Point end) {
    return {LinearGeometry{start, end}, {}, Spread::Pad, kRamp};
}

Gradient radial(Point focus, double focusRadius, Point centre, double radius) {
    return {RadialGeometry{focus, focusRadius, centre, radius}, {}, Spread::Pad, kRamp};
}

TEST(AlikeGradients, DifferByRoundingAtMost) {
    const Gradient line = linear({100, 200}, {300, 250});
    EXPECT_TRUE(alike(line, line));
    EXPECT_TRUE(alike(line, linear({100, 200.001}, {300, 250})));
    EXPECT_FALSE(alike(line, linear({100, 200.1}, {300, 250})));
    EXPECT_FALSE(alike(line, linear({100, 200}, {300.1, 250})));
    EXPECT_FALSE(alike(linear({0, 0}, {0.1, 0}), linear({0, 0}, {0.1001, 0}))) << "near nothing in units";
    EXPECT_TRUE(alike(linear({0, 0}, {0.1, 0}), linear({0, 0}, {0.100004, 0})))
        << "less than a hundred-thousandth of a unit";
    EXPECT_TRUE(alike(radial({0, 0}, 0, {0, 0}, 0.01), radial({0, 0}, 0, {0, 0}, 0.01002)));
}

TEST(AlikeGradients, HaveTheSameCirclesBesideTheirSize) {
    const Gradient circles = radial({900, 500}, 10, {1000, 500}, 700);
    EXPECT_TRUE(alike(circles, circles));
    EXPECT_TRUE(alike(circles, radial({900, 500}, 10, {1000, 500}, 700.001)));
    EXPECT_FALSE(alike(circles, radial({900, 500}, 10, {1000, 500}, 700.1)));
    EXPECT_FALSE(alike(circles, radial({900, 500}, 10, {1001, 500}, 700)));
    EXPECT_FALSE(alike(circles, radial({900, 500}, 11, {1000, 500}, 700)));
    EXPECT_FALSE(alike(circles, radial({901, 500}, 10, {1000, 500}, 700)));
    EXPECT_FALSE(alike(circles, linear({900, 500}, {1000, 500})));
}

TEST(AlikeGradients, MayHaveTheirCirclesTurnedBeforeButNotStretched) {
    Gradient circles = radial({0, 0}, 0, {0, 0}, 50);
    Gradient turned = circles;
    turned.toDrawing = Affine::rotation(30);
    EXPECT_TRUE(alike(circles, turned));
    for (const Affine& stretch :
         {Affine::scaling(1.01, 1), Affine::scaling(1, 1.01), Affine{1, 0, 0.01, 1, 0, 0}}) {
        turned.toDrawing = stretch;
        EXPECT_FALSE(alike(circles, turned));
        EXPECT_FALSE(alike(turned, circles));
    }
}

TEST(AlikeGradients, HaveTheSameStopsAndSpread) {
    const Gradient line = linear({0, 0}, {100, 0});
    Gradient other = line;
    other.spread = Spread::Repeat;
    EXPECT_FALSE(alike(line, other));
    const std::vector<RampStop>& stops = kRamp.stops();
    for (const RampStop& middle : {RampStop{0.5001, {0, 65535, 0}, 0.5}, RampStop{0.5, {0, 65534, 0}, 0.5},
                                   RampStop{0.5, {0, 65535, 0}, 0.5001}}) {
        other = line;
        other.ramp = Ramp({stops[0], middle, stops[2]});
        EXPECT_FALSE(alike(line, other));
    }
    other.ramp = Ramp({stops[0], {0.5 + 1e-9, {0, 65535, 0}, 0.5 - 1e-9}, stops[2]});
    EXPECT_TRUE(alike(line, other));
    other.ramp = Ramp({stops[0], stops[2]});
    EXPECT_FALSE(alike(line, other));
}

TEST(StandardGradient, IsMissingWithoutStopsAndWhereNumbersAreNotFinite) {
    const Path shape = rectanglePath({0, 0, 100, 50});
    CGradientData record;
    EXPECT_TRUE(standardGradient(record, nullptr, shape));
    record.SetType(kRadialGradient);
    ASSERT_TRUE(standardGradient(record, nullptr, shape));
    record.SetEnd({std::numeric_limits<double>::infinity(), 0.5});
    EXPECT_FALSE(standardGradient(record, nullptr, shape));
    record.SetEnd({1e300, 0.5});
    EXPECT_FALSE(standardGradient(record, nullptr, shape)) << "a radius beyond single precision";
    record = CGradientData();
    record.SetAngle(std::numeric_limits<float>::quiet_NaN());
    EXPECT_FALSE(standardGradient(record, nullptr, shape));
    record = CGradientData();
    record.ColorList().clear();
    EXPECT_FALSE(standardGradient(record, nullptr, shape));
}

} // namespace
