// The commands on the gradients of strokes.
#include "easel/drawing/StrokeGradient.h"
#include "easel/drawing/SelectedGradients.h"
#include "easel/drawing/StandardGradient.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace easel::drawing;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kBlue{0, 0, 65535};

Gradient redToBlue(GradientGeometry geometry, Spread spread = Spread::Pad) {
    return {geometry, {}, spread, Ramp({{0, kRed, 1}, {0.5, kBlue, 0.5}, {1, kBlue, 1}})};
}

// A line from (10, 20) to (90, 20), of this width.
Object line(const Gradient& gradient, double width = 8) {
    Object object;
    object.kind = Kind::Line;
    object.outline = polylinePath({{10, 20}, {90, 20}});
    Style style;
    style.stroke.width = width;
    style.stroke.paint = std::make_shared<const Gradient>(gradient);
    object.style = makeShared<const Style>(style);
    return object;
}

const Gradient& strokeOf(const Object& object) {
    return *std::get<GradientPtr>(styleOf(object).stroke.paint);
}

// The color of a linear gradient at a point.
RampColor colorAt(const Gradient& gradient, Point p) {
    const auto& ends = std::get<LinearGeometry>(gradient.geometry);
    const Point along = ends.end - ends.start;
    const Point at = gradient.toDrawing.inverse()(p) - ends.start;
    double place = dot(at, along) / dot(along, along);
    if (gradient.spread == Spread::Repeat)
        place -= std::floor(place);
    if (gradient.spread == Spread::Reflect)
        place = std::abs(place - 2 * std::round(place / 2));
    return gradient.ramp.at(place);
}

TEST(StrokeGradient, IsDescribedAcrossALineThatHasNoHeight) {
    const Object object = line(redToBlue(LinearGeometry{{0, 16}, {0, 24}}));
    const auto whole = wholeGradientOf(object, PaintStep::Stroke);
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->record.Angle(), -90) << "downwards";
    EXPECT_EQ(whole->record.ColorList().size(), 3U);
    EXPECT_EQ(whole->remainder.opacity.size(), 3U);
    EXPECT_FALSE(wholeGradientOf(object)) << "it has no fill";
}

TEST(StrokeGradient, FrameReachesAsFarAsThePen) {
    Object object = line(redToBlue(LinearGeometry{{0, 0}, {1, 0}}));
    EXPECT_EQ(strokeFrame(object).bounds(), (Box{6, 16, 94, 24}));
    object.units = makeShared<const Affine>(Affine::scaling(2, 0.5));
    EXPECT_EQ(strokeFrame(object).bounds(), (Box{2, 18, 98, 22}));
}

TEST(StrokeGradient, FrameIsTheOutlineInTheFourCornersOfThePen) {
    Object object = line(redToBlue(LinearGeometry{{0, 0}, {1, 0}}), 2);
    object.outline = ellipsePath({50, 40}, 30, 20);
    object.outline.moveTo({1, 2});
    object.outline.lineTo({3, 4});
    const Path frame = strokeFrame(object);
    const std::size_t verbs = object.outline.verbs().size();
    const std::size_t points = object.outline.points().size();
    ASSERT_EQ(frame.verbs().size(), 4 * verbs);
    ASSERT_EQ(frame.points().size(), 4 * points);
    std::size_t copy = 0;
    for (const Point corner : {Point{-1, -1}, Point{1, -1}, Point{1, 1}, Point{-1, 1}}) {
        for (std::size_t i = 0; i < verbs; ++i)
            EXPECT_EQ(frame.verbs()[copy * verbs + i], object.outline.verbs()[i]);
        for (std::size_t i = 0; i < points; ++i)
            EXPECT_EQ(frame.points()[copy * points + i], object.outline.points()[i] + corner);
        ++copy;
    }
}

TEST(StrokeGradient, IsNoneWhereTheStrokeDoesNotShow) {
    EXPECT_TRUE(gradientIn(strokeGradientOf(line(redToBlue(LinearGeometry{{0, 0}, {1, 0}}))).record));
    EXPECT_FALSE(gradientIn(strokeGradientOf(line(redToBlue(LinearGeometry{{0, 0}, {1, 0}}), 0)).record));
    EXPECT_FALSE(gradientIn(strokeGradientOf(Object()).record));
}

TEST(StrokeGradient, CopiedAndPutBackLooksTheSame) {
    for (const Spread spread : {Spread::Pad, Spread::Reflect, Spread::Repeat}) {
        Object object = line(redToBlue(LinearGeometry{{20, 10}, {50, 30}}, spread));
        const Gradient before = strokeOf(object);
        Object target = line(redToBlue(LinearGeometry{{0, 0}, {0, 1}}));
        putGradient(target, *wholeGradientOf(object, PaintStep::Stroke), PaintStep::Stroke);
        for (double x = 6.37; x <= 94; ++x)
            for (const double y : {16.3, 20.0, 23.7}) {
                const RampColor meant = colorAt(before, {x, y});
                const RampColor is = colorAt(strokeOf(target), {x, y});
                ASSERT_NEAR(is.red, meant.red, 0.01) << x;
                ASSERT_NEAR(is.opacity, meant.opacity, 1e-4) << x;
            }
        EXPECT_EQ(styleOf(target).stroke.width, 8) << "the pen stays";
        EXPECT_EQ(target.strokeOrigin, PaintOrigin::Edited);
        EXPECT_EQ(target.fillOrigin, PaintOrigin::File);
    }
}

TEST(StrokeGradient, PutWhereItIsAlreadyChangesNothing) {
    Object object = line(redToBlue(LinearGeometry{{20, 10}, {50, 30}}));
    const auto whole = wholeGradientOf(object, PaintStep::Stroke);
    putGradient(object, *whole, PaintStep::Stroke);
    const Object before = object;
    putGradient(object, *whole, PaintStep::Stroke);
    EXPECT_TRUE(saysTheSame(object, before));
}

TEST(StrokeGradient, CommandsChangeItAndLeaveTheFillInOneStep) {
    Object shape = line(redToBlue(LinearGeometry{{6, 0}, {94, 0}}));
    shape.kind = Kind::Polygon;
    shape.fillPattern = FillPattern::SolidBlack;
    WholeGradient fill;
    fill.record.SetAngle(12);
    putGradient(shape, fill);
    Object bare = shape;
    bare.style = nullptr;
    Drawing drawing(100, 50, {sealed(shape), sealed(line(strokeOf(shape))), sealed(bare)}, nullptr, {});
    for (std::size_t i = 0; i < 3; ++i)
        drawing.select(i);

    const GradientCommand turn = reversed;
    EXPECT_TRUE(changeSelected(drawing, PaintStep::Stroke, turn));
    EXPECT_EQ(drawing.undoLevels(), 1U);
    for (const std::size_t i : {0U, 1U}) {
        const Gradient& now = strokeOf(*drawing.object(i));
        EXPECT_NEAR(colorAt(now, {6, 20}).blue, 255, 0.01) << i;
        EXPECT_NEAR(colorAt(now, {94, 20}).red, 255, 0.01) << i;
        EXPECT_NEAR(colorAt(now, {50, 20}).opacity, 0.5, 1e-6) << i;
    }
    EXPECT_TRUE(same(*wholeGradientOf(*drawing.object(0)), fill));
    EXPECT_TRUE(saysTheSame(*drawing.object(2), *sealed(bare))) << "it has no stroke";
    drawing.undo();
    EXPECT_EQ(strokeOf(*drawing.object(0)), strokeOf(shape));

    EXPECT_TRUE(
        changeSelected(drawing, PaintStep::Stroke, [](const WholeGradient& gradient, const GradientFrame&) {
            return madeOpaque(gradient);
        }));
    EXPECT_TRUE(strokeOf(*drawing.object(1)).ramp.opaque());
}

TEST(StrokeGradient, RemovedLeavesItsFirstColor) {
    Object object = line(redToBlue(LinearGeometry{{6, 0}, {94, 0}}));
    removeGradient(object, PaintStep::Stroke);
    EXPECT_EQ(styleOf(object).stroke.paint, Paint(ColorPaint{kRed, 1}));
    EXPECT_TRUE(takesGradient(object, PaintStep::Stroke));
    EXPECT_FALSE(takesGradient(object, PaintStep::Fill));
}

} // namespace
