// Where describing, turning and reversing a gradient leave its stops and circles, at the edges of what they
// can take.
#include "easel/drawing/GradientCommands.h"
#include "easel/drawing/GradientDescription.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

namespace {

using namespace easel::drawing;

const Ramp kRamp({{0, {65535, 0, 0}, 1}, {1, {0, 0, 65535}, 1}});

double firstPlace(const CGradientData& record) {
    return record.ColorList().front().Percent();
}
double lastPlace(const CGradientData& record) {
    return record.ColorList().back().Percent();
}

TEST(DescribedPlaces, AreTheEndsThemselvesWhereTheGradientEndsWithTheShape) {
    for (int i = 1; i < 200; ++i) {
        // Numbers that binary fractions only come near to, along an edge and from corner to corner.
        const Box box{0.1 * i, 0.3 * i, 0.8 * i, 1.0 * i};
        for (const Point end : {Point{box.right, box.top}, Point{box.right, box.bottom}}) {
            const GradientDescription description = describe(
                {LinearGeometry{{box.left, box.top}, end}, {}, Spread::Pad, kRamp}, rectanglePath(box));
            ASSERT_EQ(firstPlace(description.record), 0) << i;
            ASSERT_EQ(lastPlace(description.record), 1) << i;
            ASSERT_EQ(description.record.ColorList().size(), 2U) << i;
        }
    }
}

TEST(DescribedPlaces, OnAShapeWithoutExtentAreThoseOfTheGradientItself) {
    const Ramp ramp({{0.25, {65535, 0, 0}, 1}, {0.75, {0, 0, 65535}, 1}});
    const CGradientData line =
        describe({LinearGeometry{{0, 0}, {10, 0}}, {}, Spread::Pad, ramp}, rectanglePath({3, 3, 3, 3}))
            .record;
    EXPECT_EQ(firstPlace(line), 0.25);
    EXPECT_EQ(lastPlace(line), 0.75);
    const CGradientData nothing =
        describe({LinearGeometry{{4, 4}, {4, 4}}, {}, Spread::Pad, ramp}, rectanglePath({0, 0, 9, 9})).record;
    ASSERT_EQ(nothing.ColorList().size(), 1U) << "a gradient without extent shows its last color";
    EXPECT_EQ(nothing.ColorList().front().ColorRGB(), (RGBColor{0, 0, 65535}));
    EXPECT_EQ(firstPlace(nothing), 0.75);
}

TEST(DescribedPlaces, OfAGradientBesideTheShapeAreOneStop) {
    const Path shape = rectanglePath({0, 0, 10, 10});
    const CGradientData after =
        describe({LinearGeometry{{-9, 0}, {-5, 0}}, {}, Spread::Pad, kRamp}, shape).record;
    ASSERT_EQ(after.ColorList().size(), 1U);
    EXPECT_EQ(after.ColorList().front().ColorRGB(), (RGBColor{0, 0, 65535})) << "its last color";
    const CGradientData before =
        describe({LinearGeometry{{15, 0}, {19, 0}}, {}, Spread::Pad, kRamp}, shape).record;
    ASSERT_EQ(before.ColorList().size(), 1U);
    EXPECT_EQ(before.ColorList().front().ColorRGB(), (RGBColor{65535, 0, 0})) << "its first color";
}

TEST(DescribedPlaces, OfALineThatIsOneUnitLongAreInOneUnit) {
    const GradientDescription description =
        describe({LinearGeometry{{0, 0}, {1, 0}}, {}, Spread::Pad, kRamp}, rectanglePath({0, 0, 4, 4}));
    EXPECT_EQ(description.loss, Loss::None);
    EXPECT_EQ(firstPlace(description.record), 0);
    EXPECT_DOUBLE_EQ(std::next(description.record.ColorList().begin())->Percent(), 0.25);
}

TEST(DescribedPlaces, AFocusOutsideASmallCircleIsMovedInsideToo) {
    const GradientDescription description =
        describe({RadialGeometry{{0.8, 0}, 0, {0, 0}, 0.5}, {}, Spread::Pad, kRamp},
                 rectanglePath({-0.5, -0.5, 0.5, 0.5}));
    EXPECT_EQ(description.loss, Loss::Focus);
    // Just inside the circle, whose edge is that of the shape.
    EXPECT_GT(description.record.Start().h, 0.99);
    EXPECT_LT(description.record.Start().h, 1);
    EXPECT_EQ(description.record.Start().v, 0.5);
}

TEST(DescribedPlaces, OfCirclesOnAPointThatIsTheirFocusAreNumbers) {
    const GradientDescription description =
        describe({RadialGeometry{{3, 3}, 0, {3, 3}, 5}, {}, Spread::Pad, kRamp}, rectanglePath({3, 3, 3, 3}));
    EXPECT_EQ(description.loss, Loss::Extent);
    for (const CGradientColor& stop : description.record.ColorList())
        EXPECT_TRUE(std::isfinite(stop.Percent()));
}

TEST(DescribedPlaces, OfAMirroredRampStayOnTheRamp) {
    WholeGradient gradient;
    gradient.record.SetType(kRadialGradient);
    // The shape begins a good way out, so that the mirrored ends of the ramp lie beyond it.
    gradient.record.SetStart({-0.5, 0.5});
    gradient.record.SetEnd({-0.5, 0.5});
    gradient.record.ColorList() = {{{65535, 0, 0}, 0.1}, {{0, 0, 65535}, 0.9}};
    const WholeGradient turned = reversed(gradient, {rectanglePath({0, 0, 100, 50}), FillRule::NonZero});
    EXPECT_GE(firstPlace(turned.record), 0);
    EXPECT_LE(lastPlace(turned.record), 1);
    // The circles' radius is the distance of the far corners, and the near edge is 50 away.
    const double mirror = 1 + 50 / std::hypot(150.0, 25.0);
    EXPECT_NEAR(firstPlace(turned.record), mirror - 0.9, 1e-3);
}

TEST(DescribedPlaces, OfCirclesStayWhereAShapeHasNoHeight) {
    WholeGradient gradient;
    gradient.record.SetType(kRadialGradient);
    gradient.record.SetEnd({0.9, 0.25});
    EXPECT_TRUE(same(rotated(gradient, 90, {10, 10, 110, 10}), gradient));
}

} // namespace
