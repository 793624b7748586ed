// What an item that shows a ramp or a preview says of its stops, and the gestures that work on them.
#include "easel/runtime/StopRamp.h"
#include "easel/runtime/PreviewGestures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>

namespace easel::runtime {
namespace {

using paint::PixelPoint;
using testing::ElementsAre;

constexpr int kLeft = 100;
constexpr int kWidth = 400;
constexpr int kMarks = 50; // vertically

int pixelOf(double position, int width = kWidth) {
    return kLeft + static_cast<int>(width * position);
}

// A ramp from 100 to 500, or as wide as is said, with marks below it, and what the ends need beyond the stops
// that there are.
DialogItem rampOf(const std::vector<double>& positions, std::size_t active, int width = kWidth) {
    DialogItem item;
    item.kind = ItemKind::UserDrawn;
    CGradientData record;
    record.SetStart({kLeft, 40});
    record.SetEnd({static_cast<double>(kLeft + width), 40});
    record.ColorList().clear();
    if (positions.front() > 0)
        record.ColorList().emplace_back(RGBColor{1, 1, 1}, 0);
    for (const double position : positions) {
        record.ColorList().emplace_back(RGBColor{static_cast<std::uint16_t>(1000 * position), 0, 0},
                                        position);
        item.content.framedMark({pixelOf(position, width), kMarks});
    }
    if (positions.back() < 1)
        record.ColorList().emplace_back(RGBColor{2, 2, 2}, 1);
    item.content.gradient =
        ShownGradient{{.left = kLeft, .top = 30, .right = kLeft + width, .bottom = 50}, record};
    item.content.paintedMark({pixelOf(positions[active], width), kMarks});
    item.content.framedMark({pixelOf(positions[active], width), kMarks});
    return item;
}

std::vector<double> positionsOf(const StopRamp& ramp) {
    std::vector<double> positions;
    for (const ShownStop& stop : ramp.stops())
        positions.push_back(stop.position);
    return positions;
}

TEST(StopRamp, TheMarksTellTheStopsFromThoseThatFillTheEnds) {
    for (const std::vector<double>& positions :
         {std::vector{0.0, 0.5, 1.0}, {0.25, 0.5}, {0.0, 0.5}, {0.25, 1.0}, {0.0, 0.0, 1.0, 1.0}}) {
        const auto ramp = StopRamp::in(rampOf(positions, 1));
        ASSERT_TRUE(ramp);
        EXPECT_EQ(positionsOf(*ramp), positions);
        EXPECT_EQ(ramp->stops()[ramp->active()].position, positions[1]);
    }
    EXPECT_EQ(StopRamp::in(rampOf({0.25, 0.5}, 0))->stops()[0].color, (drawing::Rgb16{250, 0, 0}));
}

TEST(StopRamp, EachMarkHasAPartInTellingTheStopsFromThoseThatFillTheEnds) {
    // Without the first mark the stop at the start could be the first one, and without the others too: it
    // lies in the pixel of the second ramp's first stop.
    for (const std::vector<double>& positions : {std::vector{0.5, 0.5}, {1.0 / 1024, 0.5}})
        EXPECT_EQ(positionsOf(*StopRamp::in(rampOf(positions, 0))), positions);
}

TEST(StopRamp, WhatIsNoRampHasNoStops) {
    const DialogItem whole = rampOf({0.25, 0.5}, 0);
    ASSERT_TRUE(StopRamp::in(whole));
    DialogItem item = whole;
    item.content.gradient.reset();
    EXPECT_FALSE(StopRamp::in(item)) << "no gradient";
    item = whole;
    item.content.marks.clear();
    EXPECT_FALSE(StopRamp::in(item)) << "no marks";
    item = whole;
    item.content.filledMark.reset();
    EXPECT_FALSE(StopRamp::in(item)) << "no mark of the active stop";
    item = whole;
    item.content.gradient->record.ColorList().emplace_back(RGBColor{}, 1);
    EXPECT_FALSE(StopRamp::in(item)) << "three stops more than marks, and a ramp has two ends";
    item.content.gradient->record.ColorList().clear();
    item.content.gradient->record.ColorList().emplace_back(RGBColor{}, 1);
    EXPECT_FALSE(StopRamp::in(item)) << "fewer stops than marks";
}

TEST(StopRamp, StopsGoFromLeftToRightAndInOnePlaceAsTheRecordHasThem) {
    DialogItem item = rampOf({0, 0.75, 0.25, 0.25, 1}, 0);
    auto& colors = item.content.gradient->record.ColorList();
    std::next(colors.begin(), 2)->SetColor({7, 7, 7});
    std::next(colors.begin(), 3)->SetColor({8, 8, 8});
    const StopRamp ramp = *StopRamp::in(item);
    EXPECT_EQ(positionsOf(ramp), (std::vector{0.0, 0.25, 0.25, 0.75, 1.0}));
    EXPECT_EQ(ramp.stops()[1].color, (drawing::Rgb16{7, 7, 7}));
    EXPECT_EQ(ramp.stops()[2].color, (drawing::Rgb16{8, 8, 8}));
}

TEST(StopRamp, APositionIsAPixelBetweenTheEndsOfTheRamp) {
    const StopRamp ramp = *StopRamp::in(rampOf({0.25, 0.5}, 0));
    EXPECT_EQ(ramp.left(), 100);
    EXPECT_EQ(ramp.right(), 500);
    EXPECT_EQ(ramp.pixelAt(0), 100);
    EXPECT_EQ(ramp.pixelAt(0.75), 400);
    EXPECT_EQ(ramp.pixelAt(1), 500);
    EXPECT_EQ(ramp.pixelAt(-0.5), 100);
    EXPECT_EQ(ramp.pixelAt(1.5), 500);
}

TEST(StopRamp, WithoutMarksThereAreNoStops) {
    DialogItem item = rampOf({0, 1}, 0);
    item.content.erased({.left = 90, .top = kMarks, .right = 510, .bottom = kMarks + 10});
    EXPECT_FALSE(StopRamp::in(item));
    EXPECT_TRUE(item.content.marks.empty());
}

TEST(StopRamp, ErasingBesideTheMarksLeavesThem) {
    DialogItem item = rampOf({0, 1}, 0);
    item.content.erased({.left = 90, .top = kMarks + 1, .right = 510, .bottom = kMarks + 10});
    EXPECT_TRUE(StopRamp::in(item));
}

TEST(StopRamp, AStopIsTakenWhereItIsTheNearest) {
    const StopRamp ramp = *StopRamp::in(rampOf({0.2, 0.2025, 0.7}, 0));
    EXPECT_EQ(ramp.choose(0)->press, (PixelPoint{180, kMarks}));
    EXPECT_EQ(ramp.choose(1)->press, (PixelPoint{181, kMarks}));
    EXPECT_TRUE(ramp.choose(2)->way.empty());
}

TEST(StopRamp, AStopBetweenPixelsIsTakenOnTheSideWhereNoOtherIsNearer) {
    // The stops lie in eighths of a pixel, 200 pixels from the start.
    const auto pressOf = [](double one, double other, std::size_t stop) {
        return StopRamp::in(rampOf({0, (200 + one) / 1024, (200 + other) / 1024, 1}, 0, 1024))
            ->choose(stop)
            ->press.h;
    };
    EXPECT_EQ(pressOf(0.125, 0.375, 1), 300);
    EXPECT_EQ(pressOf(0.125, 0.375, 2), 301) << "pixel 300 is nearer to the first";
    EXPECT_EQ(pressOf(0.625, 0.875, 1), 300) << "pixel 301 is nearer to the second";
    EXPECT_EQ(pressOf(0.625, 0.875, 2), 301);
}

TEST(StopRamp, OfTwoStopsInOnePlaceOnlyTheFirstIsTaken) {
    const StopRamp ramp = *StopRamp::in(rampOf({0, 0.5, 0.5, 1}, 1));
    EXPECT_TRUE(ramp.choose(1));
    EXPECT_FALSE(ramp.choose(2));
    EXPECT_EQ(ramp.chooseBeside(1)->press.h, 500) << "the next that can be taken";
    EXPECT_EQ(ramp.chooseBeside(-1)->press.h, 100);
    EXPECT_FALSE(StopRamp::in(rampOf({0, 1}, 1))->chooseBeside(1));
    EXPECT_FALSE(StopRamp::in(rampOf({0, 1}, 0))->chooseBeside(-1));
}

TEST(StopRamp, AMoveIsADragThatEndsWhereTheStopCanBeTakenAgain) {
    const StopRamp ramp = *StopRamp::in(rampOf({0, 0.5, 1}, 1));
    const auto drag = ramp.move(1, 301, 1);
    ASSERT_TRUE(drag);
    EXPECT_EQ(drag->press, (PixelPoint{300, kMarks}));
    EXPECT_EQ(drag->way.back(), (PixelPoint{301, kMarks}));
    EXPECT_EQ(drag->way.front().h, 300);
    EXPECT_LT(drag->way.front().v, kMarks - 4) << "further than a click";
    EXPECT_EQ(ramp.move(1, 100, 1)->way.back().h, 101) << "beside the stop at the start, which comes first";
    EXPECT_EQ(ramp.move(1, 900, -1)->way.back().h, 500) << "before the stop at the end";
    EXPECT_EQ(ramp.move(2, 300, -1)->way.back().h, 299);
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.25, 0.25, 0.75, 1}, 3))->move(3, 150, -1)->way.back().h, 150)
        << "past two in one place";
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.25, 0.5, 0.75, 1}, 3))->move(3, 200, -1)->way.back().h, 199)
        << "beside the stop that lies there and comes first";
    EXPECT_FALSE(ramp.move(1, 100, -1)) << "there is nothing further to the left";
}

TEST(StopRamp, AStopThatIsALittleBeforeItsPixelIsCountedFromIt) {
    const double position = 0.5025F;
    ASSERT_LT(position, 0.5025);
    EXPECT_EQ(StopRamp::in(rampOf({0, position, 1}, 1))->placeOf(1), 301);
}

TEST(StopRamp, ANewStopLiesBehindTheActiveOneOrInTheWidestSpace) {
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.5, 1}, 0))->add()->press.h, 200);
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.5, 1}, 1))->add()->press.h, 400);
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.25, 1}, 2))->add()->press.h, 350);
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.5, 0.54, 1}, 1))->add()->press.h, 200) << "8 pixels are too near";
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.48, 0.52, 1}, 1))->add()->press.h, 196) << "the first of two as wide";
    std::vector<double> many;
    for (int i = 0; i <= 20; ++i)
        many.push_back(i / 20.0);
    EXPECT_FALSE(StopRamp::in(rampOf(many, 3))->add());
}

TEST(StopRamp, TheSpaceForANewStopMayReachToEitherEndOfTheRamp) {
    EXPECT_EQ(StopRamp::in(rampOf({0.25, 0.5}, 1))->add()->press.h, 400) << "behind the last stop";
    EXPECT_EQ(StopRamp::in(rampOf({0.75, 0.875, 1}, 2))->add()->press.h, 250) << "before the first one";
    EXPECT_EQ(StopRamp::in(rampOf({0, 0.03125, 0.25}, 0))->add()->press.h, 350) << "the widest is the last";
}

TEST(StopRamp, ANewStopIsOutOfReachOfBothNeighbors) {
    std::vector<double> sixteenths;
    for (int i = 0; i <= 16; ++i)
        sixteenths.push_back(i / 16.0);
    // A press 10 pixels from a stop no longer takes hold of it, and half a pixel may be lost at either side.
    const auto gesture = StopRamp::in(rampOf(sixteenths, 3, 16 * 22))->add();
    ASSERT_TRUE(gesture);
    EXPECT_EQ(gesture->press.h, kLeft + 3 * 22 + 11);
    EXPECT_FALSE(StopRamp::in(rampOf(sixteenths, 3, 16 * 21))->add());
}

TEST(StopRamp, AStopIsPulledOffUnlessThereAreOnlyTwo) {
    const auto pull = StopRamp::in(rampOf({0, 0.5, 1}, 1))->remove(1);
    ASSERT_TRUE(pull);
    EXPECT_EQ(pull->press.h, 300);
    EXPECT_GT(pull->way.back().v, 1000);
    EXPECT_FALSE(StopRamp::in(rampOf({0, 1}, 1))->remove(1));
}

DialogItem previewOf(KGradientType type, TPoint<double> start, TPoint<double> end) {
    DialogItem item;
    item.kind = ItemKind::UserDrawn;
    item.bounds = {.left = 10, .top = 20, .right = 210, .bottom = 120};
    CGradientData record;
    record.SetType(type);
    record.SetStart(start);
    record.SetEnd(end);
    item.content.gradient = ShownGradient{item.bounds, record};
    return item;
}

TEST(PreviewGestures, TheDirectionIsReadOffTheLineThatTheColorsFollow) {
    EXPECT_NEAR(*shownAngle(previewOf(kLinearGradient, {10, 120}, {110, 20})), 45, 1e-9);
    EXPECT_NEAR(*shownAngle(previewOf(kLinearGradient, {110, 20}, {110, 120})), -90, 1e-9);
    EXPECT_FALSE(shownAngle(previewOf(kRadialGradient, {10, 120}, {110, 20})));
    EXPECT_FALSE(shownCentre(previewOf(kLinearGradient, {10, 120}, {110, 20})));
    EXPECT_EQ(*shownCentre(previewOf(kRadialGradient, {10, 120}, {110, 25})), (drawing::Point{110, 25}));
}

TEST(PreviewGestures, AStepGoesToTheNextMultiple) {
    EXPECT_EQ(nextAngle(30, 15), 45);
    EXPECT_EQ(nextAngle(29.9999, 15), 45) << "as near as pixels come";
    EXPECT_EQ(nextAngle(31, 15), 45);
    EXPECT_EQ(nextAngle(31, -15), 30);
    EXPECT_EQ(nextAngle(30.0001, -15), 15);
    EXPECT_EQ(nextAngle(-0.5, 1), 0);
}

TEST(PreviewGestures, ATurnIsALineFromTheMiddleThatIsHardlyOff) {
    const DialogItem item = previewOf(kLinearGradient, {10, 70}, {210, 70});
    for (int degrees = -179; degrees <= 180; ++degrees) {
        const MouseGesture turn = turnTo(item, degrees);
        ASSERT_EQ(turn.press, (PixelPoint{110, 70}));
        const PixelPoint to = turn.way.back();
        const auto line = previewOf(kLinearGradient, {110, 70}, {double(to.h), double(to.v)});
        // Half the diagonal of a pixel, 30,000 pixels away.
        EXPECT_NEAR(*shownAngle(line), degrees, 0.00136);
        EXPECT_LE(std::max(std::abs(to.h), std::abs(to.v)), 32767);
    }
}

TEST(PreviewGestures, ACentreOutsideIsReachedByADragFromWithin) {
    const DialogItem item = previewOf(kRadialGradient, {110, 70}, {110, 70});
    const MouseGesture out = moveCentreTo(item, {-5, 500});
    EXPECT_EQ(out.press, (PixelPoint{10, 119}));
    EXPECT_THAT(out.way, ElementsAre(PixelPoint{-5, 500}));
    EXPECT_EQ(moveCentreTo(item, {500, -5}).press, (PixelPoint{209, 20}));
    EXPECT_EQ(moveCentreTo(item, {30, 40}).press, (PixelPoint{30, 40}))
        << "inside there is no need to go far";
}

} // namespace
} // namespace easel::runtime
