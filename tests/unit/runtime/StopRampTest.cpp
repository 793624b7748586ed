// What an item that shows a ramp or a preview says of its stops, and the gestures that work on them.
#include "easel/runtime/StopRamp.h"
#include "easel/runtime/PreviewGestures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

using paint::PixelPoint;
using testing::ElementsAre;

constexpr int kLeft = 100;
constexpr int kWidth = 400;
constexpr int kMarks = 50; // vertically

int pixelOf(double position) {
    return kLeft + static_cast<int>(kWidth * position);
}

// A ramp from 100 to 500 with marks below it, and what the ends need beyond the stops that there are.
DialogItem rampOf(const std::vector<double>& positions, std::size_t active) {
    DialogItem item;
    item.kind = ItemKind::UserDrawn;
    CGradientData record;
    record.SetStart({kLeft, 40});
    record.SetEnd({kLeft + kWidth, 40});
    record.ColorList().clear();
    if (positions.front() > 0)
        record.ColorList().emplace_back(RGBColor{1, 1, 1}, 0);
    for (const double position : positions) {
        record.ColorList().emplace_back(RGBColor{static_cast<std::uint16_t>(1000 * position), 0, 0},
                                        position);
        item.content.framedMark({pixelOf(position), kMarks});
    }
    if (positions.back() < 1)
        record.ColorList().emplace_back(RGBColor{2, 2, 2}, 1);
    item.content.gradient = ShownGradient{{.left = kLeft, .top = 30, .right = 500, .bottom = 50}, record};
    item.content.paintedMark({pixelOf(positions[active]), kMarks});
    item.content.framedMark({pixelOf(positions[active]), kMarks});
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

TEST(StopRamp, OfTwoStopsInOnePlaceOnlyTheFirstIsTaken) {
    const StopRamp ramp = *StopRamp::in(rampOf({0, 0.5, 0.5, 1}, 1));
    EXPECT_TRUE(ramp.choose(1));
    EXPECT_FALSE(ramp.choose(2));
    EXPECT_EQ(ramp.chooseBeside(1)->press.h, 500) << "the next that can be taken";
    EXPECT_EQ(ramp.chooseBeside(-1)->press.h, 100);
    EXPECT_FALSE(StopRamp::in(rampOf({0, 1}, 1))->chooseBeside(1));
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
    std::vector<double> many;
    for (int i = 0; i <= 20; ++i)
        many.push_back(i / 20.0);
    EXPECT_FALSE(StopRamp::in(rampOf(many, 3))->add());
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
}

} // namespace
} // namespace easel::runtime
