// The commands on gradients, and on those of all selected objects.
#include "easel/drawing/GradientCommands.h"

#include "easel/drawing/SelectedGradients.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace easel::drawing;

constexpr RGBColor kRed{65535, 0, 0};
constexpr RGBColor kGreen{0, 65535, 0};
constexpr RGBColor kBlue{0, 0, 65535};

WholeGradient linear(float angle, std::list<CGradientColor> stops) {
    WholeGradient gradient;
    gradient.record.SetAngle(angle);
    gradient.record.ColorList() = std::move(stops);
    return gradient;
}

WholeGradient radial(TPoint<double> start, TPoint<double> end) {
    WholeGradient gradient = linear(0, {{kRed, 0}, {kBlue, 1}});
    gradient.record.SetType(kRadialGradient);
    gradient.record.SetStart(start);
    gradient.record.SetEnd(end);
    return gradient;
}

std::vector<RGBColor> colors(const WholeGradient& gradient) {
    std::vector<RGBColor> result;
    for (const CGradientColor& stop : gradient.record.ColorList())
        result.push_back(stop.ColorRGB());
    return result;
}

std::vector<double> positions(const WholeGradient& gradient) {
    std::vector<double> result;
    for (const CGradientColor& stop : gradient.record.ColorList())
        result.push_back(stop.Percent());
    return result;
}

Object rectangle(const Box& box = {0, 0, 100, 50}) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath(box);
    object.bounds = box;
    object.fillPattern = FillPattern::SolidBlack;
    return object;
}

const WholeGradient kRainbow = linear(30, {{kRed, 0.25}, {kGreen, 0.5}, {kBlue, 1}});

TEST(GradientCommands, ReverseTurnsColorsAndOpacityAround) {
    WholeGradient gradient = kRainbow;
    gradient.remainder.opacity = {{0, 0}, {0.25, 0.5}, {0.25, 1}};
    const WholeGradient turned = reversed(gradient, {rectanglePath({0, 0, 100, 50}), FillRule::NonZero});
    EXPECT_EQ(colors(turned), (std::vector{kBlue, kGreen, kRed}));
    EXPECT_EQ(positions(turned), (std::vector{0.0, 0.5, 0.75}));
    EXPECT_EQ(turned.remainder.opacity, (std::vector<OpacityStop>{{0.75, 1}, {0.75, 0.5}, {1, 0}}))
        << "a step stays a step, the other way around";
    EXPECT_EQ(turned.record.Angle(), 30);
}

TEST(GradientCommands, EvenStopsKeepTheirOrderAndTheOpacity) {
    WholeGradient gradient = kRainbow;
    gradient.remainder.opacity = {{0.1, 0.5}};
    const WholeGradient even = withEvenStops(gradient);
    EXPECT_EQ(colors(even), colors(kRainbow));
    EXPECT_EQ(positions(even), (std::vector{0.0, 0.5, 1.0}));
    EXPECT_EQ(even.remainder, gradient.remainder);
    EXPECT_EQ(positions(withEvenStops(linear(0, {{kRed, 0.3}}))), (std::vector{0.3}));
}

TEST(GradientCommands, OpacityIsScaledAndClampedAndOpaqueIsEmpty) {
    EXPECT_EQ(opacityScaled(kRainbow, 0.25).remainder.opacity,
              (std::vector<OpacityStop>{{0, 0.25}, {1, 0.25}}));
    WholeGradient faded = kRainbow;
    faded.remainder.opacity = {{0, 0.25}, {1, 0.75}};
    EXPECT_EQ(opacityScaled(faded, 2).remainder.opacity, (std::vector<OpacityStop>{{0, 0.5}, {1, 1}}));
    EXPECT_TRUE(opacityScaled(faded, 4).remainder.empty());
    EXPECT_TRUE(opacityScaled(kRainbow, 1).remainder.empty());
    EXPECT_TRUE(madeOpaque(faded).remainder.empty());
}

TEST(GradientCommands, MakeCircularLeavesTheOpacity) {
    WholeGradient gradient = radial({0.5, 0.5}, {0.5, 0.5});
    gradient.remainder = {{{0, 0.5}}, Affine::scaling(2, 0.5)};
    const Remainder left = madeCircular(gradient).remainder;
    EXPECT_FALSE(left.ellipse);
    EXPECT_EQ(left.opacity, gradient.remainder.opacity);
}

TEST(GradientCommands, AnglesAreKeptAboveMinusAndUpTo180Degrees) {
    EXPECT_EQ(principalAngle(180), 180);
    EXPECT_EQ(principalAngle(-180), 180);
    EXPECT_EQ(principalAngle(270), -90);
    EXPECT_EQ(principalAngle(-725), -5);
    EXPECT_EQ(withAngle(kRainbow, 405).record.Angle(), 45);
    const Box box{0, 0, 100, 50};
    EXPECT_EQ(rotated(kRainbow, 90, box).record.Angle(), 120);
    EXPECT_EQ(rotated(linear(135, {}), 90, box).record.Angle(), -135);
}

TEST(GradientCommands, ARadialGradientTurnsCounterClockwiseInTheUnitsOfTheDrawing) {
    // 40 units to the right of the middle of a shape of 100 by 50 becomes 40 units above it.
    WholeGradient gradient = radial({0.5, 0.5}, {0.9, 0.5});
    gradient.remainder.ellipse = Affine::scaling(2, 0.5);
    const WholeGradient turned = rotated(gradient, 90, {10, 10, 110, 60});
    EXPECT_NEAR(turned.record.End().h, 0.5, 1e-12);
    EXPECT_NEAR(turned.record.End().v, -0.3, 1e-12);
    EXPECT_EQ(turned.record.Start(), gradient.record.Start());
    EXPECT_EQ(turned.remainder.ellipse, Affine::scaling(0.5, 2)) << "what was wide is high";
    EXPECT_TRUE(same(rotated(gradient, 90, {10, 10, 10, 60}), gradient)) << "a shape without width";
    EXPECT_TRUE(same(withAngle(gradient, 90), gradient)) << "circles have no angle";
}

TEST(GradientCommands, AGradientShowsOnAnObjectThatHadNoFill) {
    Object object = rectangle();
    object.fillPattern = FillPattern::None;
    putGradient(object, kRainbow);
    EXPECT_TRUE(object.showsGradient());
    EXPECT_TRUE(same(wholeGradientOf(object).value(), kRainbow));
}

TEST(GradientCommands, ARemovedGradientLeavesItsFirstColorOpaque) {
    Object object = rectangle();
    WholeGradient gradient = kRainbow;
    gradient.remainder.opacity = {{0, 0.5}};
    putGradient(object, gradient);
    removeGradient(object);
    EXPECT_FALSE(object.showsGradient());
    EXPECT_FALSE(object.remainder);
    EXPECT_EQ(object.fill, Paint(ColorPaint{{65535, 0, 0}, 1}));
    EXPECT_FALSE(wholeGradientOf(object));
}

TEST(GradientCommands, ObjectsWithoutAGradientHaveNothingToRemove) {
    Object object = rectangle();
    const Object before = object;
    removeGradient(object);
    EXPECT_TRUE(saysTheSame(object, before));
}

TEST(GradientCommands, ARecordWithoutColorsLeavesBlack) {
    Object object = rectangle();
    putGradient(object, linear(0, {}));
    removeGradient(object);
    EXPECT_EQ(object.fill, Paint(ColorPaint()));
    EXPECT_EQ(object.fillPattern, FillPattern::SolidBlack);
}

TEST(GradientCommands, AnOpaqueBlackIsTheHostsPatternAndNoOtherColorIs) {
    Object object = rectangle();
    putPlainColor(object, {0, 0, 0});
    EXPECT_EQ(object.fillPattern, FillPattern::SolidBlack);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::Edited);
    putPlainColor(object, {0, 0, 1});
    EXPECT_EQ(object.fillPattern, FillPattern::Other);
    EXPECT_EQ(object.fill, Paint(ColorPaint{{0, 0, 1}, 1}));
}

TEST(GradientCommands, AGradientThatIsThereAlreadyIsNoEdit) {
    Object object = rectangle();
    object.fillPattern = FillPattern::Other;
    object.fill = std::make_shared<const Gradient>(
        Gradient{LinearGeometry{{0, 0}, {100, 0}}, {}, Spread::Pad, Ramp({{0, {1, 2, 3}}, {1, {4, 5, 6}}})});
    const WholeGradient shown = wholeGradientOf(object).value();
    putGradient(object, shown);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::File);
    EXPECT_FALSE(object.showsGradient()) << "the file's gradient is no record";
    putGradient(object, kRainbow);
    EXPECT_EQ(object.fillOrigin, PaintOrigin::Edited);
    EXPECT_EQ(object.fillPattern, FillPattern::Other) << "a pattern over which a gradient shows stays";
    EXPECT_FALSE(object.remainder);
    EXPECT_TRUE(object.showsGradient());
}

TEST(GradientCommands, TheGradientOfTheFileIsNotSeenOnceTheFillIsEditedOrCarriesNone) {
    Object object = rectangle();
    object.fill = std::make_shared<const Gradient>();
    EXPECT_TRUE(wholeGradientOf(object));
    object.fillOrigin = PaintOrigin::Edited;
    EXPECT_FALSE(wholeGradientOf(object));
    object.fillOrigin = PaintOrigin::File;
    object.fillPattern = FillPattern::None;
    EXPECT_FALSE(wholeGradientOf(object)) << "nothing is filled";
    object.fillPattern = FillPattern::Other;
    object.kind = Kind::Line;
    EXPECT_FALSE(wholeGradientOf(object));
    object.kind = Kind::Path;
    object.fill = ColorPaint();
    EXPECT_FALSE(wholeGradientOf(object));
}

TEST(GradientCommands, AreOnTheOutlineOrOnTheFrameOfTheStroke) {
    Object object = rectangle();
    object.fillRule = FillRule::EvenOdd;
    EXPECT_EQ(frameOf(object, PaintStep::Fill).outline, object.outline);
    EXPECT_EQ(frameOf(object, PaintStep::Fill).inside, FillRule::EvenOdd);
    Style style;
    style.stroke.paint = ColorPaint();
    style.stroke.width = 6;
    object.style = makeShared<const Style>(style);
    EXPECT_EQ(frameOf(object, PaintStep::Stroke).outline.bounds(), (Box{-3, -3, 103, 53}));
    EXPECT_EQ(frameOf(object, PaintStep::Stroke).inside, std::nullopt);
}

TEST(GradientCommands, TwoStopsAreEvenAtTheEnds) {
    EXPECT_EQ(positions(withEvenStops(linear(0, {{kRed, 0.3}, {kBlue, 0.4}}))), (std::vector{0.0, 1.0}));
    EXPECT_TRUE(positions(withEvenStops(linear(0, {}))).empty());
}

TEST(GradientCommands, GradientsAreTheSameInRecordAndRemainder) {
    WholeGradient other = kRainbow;
    EXPECT_TRUE(same(kRainbow, other));
    other.remainder.opacity = {{0, 0.5}};
    EXPECT_FALSE(same(kRainbow, other));
    EXPECT_FALSE(same(kRainbow, linear(31, kRainbow.record.ColorList())));
}

Drawing twoShapesAndALine() {
    Object line = rectangle();
    line.kind = Kind::Line;
    Object red = rectangle();
    putGradient(red, kRainbow);
    return {100, 50, {sealed(red), sealed(rectangle()), sealed(line)}, nullptr, {}};
}

void selectAll(Drawing& drawing) {
    for (std::size_t i = 0; i < drawing.size(); ++i)
        drawing.select(i);
}

TEST(SelectedGradients, AllSelectedShapesTakeAGradientInOneStep) {
    Drawing drawing = twoShapesAndALine();
    selectAll(drawing);
    const WholeGradient pasted = radial({0, 0}, {1, 1});
    EXPECT_TRUE(changeSelectedObjects(drawing, PaintStep::Fill,
                                      [&](Object& object) { putGradient(object, pasted); }));
    EXPECT_TRUE(same(wholeGradientOf(*drawing.object(0)).value(), pasted));
    EXPECT_TRUE(same(wholeGradientOf(*drawing.object(1)).value(), pasted));
    EXPECT_FALSE(wholeGradientOf(*drawing.object(2))) << "a line carries none";
    EXPECT_EQ(drawing.selection().size(), 3U);
    EXPECT_EQ(drawing.undoLevels(), 1U);
    drawing.undo();
    EXPECT_TRUE(same(wholeGradientOf(*drawing.object(0)).value(), kRainbow));
    EXPECT_FALSE(wholeGradientOf(*drawing.object(1)));
    EXPECT_EQ(drawing.selection().size(), 3U);
}

TEST(SelectedGradients, WithoutAChangeThereIsNoStep) {
    Drawing drawing = twoShapesAndALine();
    selectAll(drawing);
    const GradientCommand opaque = [](const WholeGradient& gradient, const GradientFrame&) {
        return madeOpaque(gradient);
    };
    const GradientCommand turn = reversed;
    EXPECT_FALSE(wouldChange(drawing, PaintStep::Fill, opaque));
    EXPECT_FALSE(changeSelected(drawing, PaintStep::Fill, opaque));
    EXPECT_EQ(drawing.undoLevels(), 0U);
    EXPECT_FALSE(drawing.dirty());
    EXPECT_TRUE(wouldChange(drawing, PaintStep::Fill, turn));
    EXPECT_TRUE(canTakeGradient(drawing, PaintStep::Fill));
    drawing.unselectAll();
    EXPECT_FALSE(wouldChange(drawing, PaintStep::Fill, turn));
    EXPECT_FALSE(canTakeGradient(drawing, PaintStep::Fill));
    drawing.select(2);
    EXPECT_FALSE(canTakeGradient(drawing, PaintStep::Fill)) << "a line";
}

TEST(SelectedGradients, AStepHasAKindOfItsOwnAndIsOver) {
    Drawing drawing = twoShapesAndALine();
    drawing.select(0);
    EXPECT_TRUE(changeSelected(drawing, PaintStep::Fill, reversed));
    EXPECT_EQ(drawing.undoKind(), 2);
    drawing.erase(2);
    drawing.undo();
    EXPECT_EQ(drawing.size(), 2U) << "what followed is not undone with it";
}

TEST(SelectedGradients, WhatStaysAsItIsStaysOutOfTheStep) {
    Drawing drawing = twoShapesAndALine();
    selectAll(drawing);
    const ObjectPtr plain = drawing.object(1);
    const ObjectPtr line = drawing.object(2);
    EXPECT_TRUE(changeSelected(drawing, PaintStep::Fill, reversed));
    EXPECT_EQ(drawing.object(1), plain);
    EXPECT_EQ(drawing.object(2), line);
    EXPECT_FALSE(changeSelectedObjects(drawing, PaintStep::Fill, [](Object&) {}));
    EXPECT_EQ(drawing.undoLevels(), 1U);
}

} // namespace
