// Path data as it is written, above all around points that are not finite.
#include "easel/svg/write/ElementText.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using easel::drawing::Path;
using easel::drawing::Point;
using easel::svg::pathText;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// A line to (2, 0), the curve, and a line.
Path lineCurveLine(Point control1, Point control2, Point end, Point last = {9, 9}) {
    Path path;
    path.moveTo({1, 0});
    path.lineTo({2, 0});
    path.cubicTo(control1, control2, end);
    path.lineTo(last);
    return path;
}

TEST(PathText, BeginsEachSubpathWithAMove) {
    Path path;
    path.moveTo({1, 2});
    path.lineTo({3, 4});
    path.cubicTo({5, 6}, {7, 8}, {9, 10});
    path.close();
    path.moveTo({11, 12});
    path.lineTo({13, -14.5});
    EXPECT_EQ(pathText(path), "M1 2L3 4C5 6 7 8 9 10ZM11 12L13 -14.5");
}

TEST(PathText, OfACurveThatLacksAControlPointIsALine) {
    for (const Point none : {Point{kInfinity, 4}, Point{3, kNone}}) {
        EXPECT_EQ(pathText(lineCurveLine(none, {5, 6}, {7, 8})), "M1 0L2 0L7 8L9 9");
        EXPECT_EQ(pathText(lineCurveLine({3, 4}, none, {7, 8})), "M1 0L2 0L7 8L9 9");
        EXPECT_EQ(pathText(lineCurveLine(none, none, {7, 8})), "M1 0L2 0L7 8L9 9");
        EXPECT_EQ(pathText(lineCurveLine(none, {5, 6}, {7, 8}, none)), "M1 0L2 0L7 8");
    }
}

TEST(PathText, OfACurveWithoutAnEndLeavesItOut) {
    for (const Point none : {Point{-kInfinity, 8}, Point{7, kNone}}) {
        EXPECT_EQ(pathText(lineCurveLine({3, 4}, {5, 6}, none)), "M1 0L2 0L9 9");
        EXPECT_EQ(pathText(lineCurveLine(none, {5, 6}, none)), "M1 0L2 0L9 9");
        EXPECT_EQ(pathText(lineCurveLine(none, none, none)), "M1 0L2 0L9 9");
    }
}

TEST(PathText, OfACurveDependsOnNoOtherPoint) {
    EXPECT_EQ(pathText(lineCurveLine({3, 4}, {5, 6}, {7, 8}, {kNone, 9})), "M1 0L2 0C3 4 5 6 7 8");
    Path path;
    path.moveTo({1, 0});
    path.lineTo({kNone, 0});
    path.cubicTo({3, 4}, {5, 6}, {7, 8});
    EXPECT_EQ(pathText(path), "M1 0C3 4 5 6 7 8");
}

TEST(PathText, BeginsWithTheFirstPointThatThereIs) {
    Path line;
    line.moveTo({kNone, 0});
    line.lineTo({3, 4});
    line.lineTo({5, 6});
    EXPECT_EQ(pathText(line), "M3 4L5 6");
    Path curve;
    curve.moveTo({kNone, 0});
    curve.cubicTo({3, 4}, {5, 6}, {7, 8});
    curve.lineTo({9, 9});
    EXPECT_EQ(pathText(curve), "M7 8L9 9");
    Path nothing;
    nothing.moveTo({kNone, 0});
    nothing.close();
    EXPECT_EQ(pathText(nothing), "");
}

} // namespace
