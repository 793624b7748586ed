// Path data, command by command, by the points and controls that the standard derives for each.
#include "easel/svg/text/PathData.h"

#include <gtest/gtest.h>

#include <utility>

using namespace easel::svg;
using easel::drawing::Path;
using easel::drawing::Point;

namespace {

Path whole(std::string_view text) {
    const PathData data = parsePathData(text);
    EXPECT_TRUE(data.complete) << text;
    return data.path;
}

// The control points and the end of the last curve.
void expectLastCurve(std::string_view text, Point first, Point second, Point end) {
    const Path path = whole(text);
    const auto points = path.points();
    ASSERT_GE(points.size(), 4U) << text;
    const Point expected[] = {first, second, end};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(points[points.size() - 3 + i].x, expected[i].x, 1e-9) << text << " " << i;
        EXPECT_NEAR(points[points.size() - 3 + i].y, expected[i].y, 1e-9) << text << " " << i;
    }
}

TEST(PathData, NumbersNeedNoSeparatorsWhereTheyCanBeTold) {
    const Path path = whole("M1,2-3.5.5L+4 5 6,7");
    Path expected;
    expected.moveTo({1, 2});
    expected.lineTo({-3.5, 0.5});
    expected.lineTo({4, 5});
    expected.lineTo({6, 7});
    EXPECT_TRUE(path == expected);
}

TEST(PathData, ASmoothCurveMirrorsTheControlBeforeItIfThatWasOneOfItsKind) {
    expectLastCurve("M0 0C1 2 3 4 10 10S20 15 20 20", {17, 16}, {20, 15}, {20, 20});
    expectLastCurve("M0 0C1 2 3 4 10 10s5 5 6 6s1 0 2 2", {17, 17}, {17, 16}, {18, 18});
    expectLastCurve("M0 0L10 10S20 15 20 20", {10, 10}, {20, 15}, {20, 20});
    expectLastCurve("M0 0Q5 0 10 10S20 15 20 20", {10, 10}, {20, 15}, {20, 20});
}

TEST(PathData, AQuadraticCurveIsRaisedToACubicOne) {
    // Two thirds of the way to the control from either end.
    expectLastCurve("M0 0Q3 6 9 0", {2, 4}, {5, 4}, {9, 0});
    // The next control is the mirror image of the one before: (15, -6).
    expectLastCurve("M0 0Q3 6 9 0T18 0", {13, -4}, {16, -4}, {18, 0});
    expectLastCurve("M0 0Q3 6 9 0T18 0t9 0", {20, 4}, {23, 4}, {27, 0});
    // After anything else it is the point itself.
    expectLastCurve("M0 0L9 0T18 0", {9, 0}, {12, 0}, {18, 0});
    expectLastCurve("M0 0C1 1 2 2 9 0T18 0", {9, 0}, {12, 0}, {18, 0});
}

TEST(PathData, FlagsOfArcsMayStandWithoutSeparators) {
    EXPECT_TRUE(whole("M0 0A5 5 0 1110 0") == whole("M0 0 A 5 5 0 1 1 10 0"));
    EXPECT_TRUE(whole("M0 0a5 5 0 0010 0") == whole("M0 0 a 5,5 0 0,0 10,0"));
}

TEST(PathData, AfterACloseThePointIsWhereTheSubpathBegan) {
    const Path path = whole("m1 1h5v5zl3 3");
    EXPECT_EQ(path.points().back(), (Point{4, 4}));
}

TEST(PathData, EndsBeforeTheFirstMistake) {
    const std::pair<const char*, std::size_t> mistakes[] = {{"L1 1", 0},
                                                            {"1 1", 0},
                                                            {"M", 0},
                                                            {"M1", 0},
                                                            {"M1 1L", 1},
                                                            {"M1 1L2", 1},
                                                            {"M1 1H", 1},
                                                            {"M1 1V x", 1},
                                                            {"M1 1C1 1 2 2 3", 1},
                                                            {"M1 1S1 1 2", 1},
                                                            {"M1 1Q1 1 2", 1},
                                                            {"M1 1T", 1},
                                                            {"M1 1A", 1},
                                                            {"M1 1A1", 1},
                                                            {"M1 1A1 1", 1},
                                                            {"M1 1A1 1 0", 1},
                                                            {"M1 1A1 1 0 2", 1},
                                                            {"M1 1A1 1 0 1", 1},
                                                            {"M1 1A1 1 0 1 5", 1},
                                                            {"M1 1A1 1 0 1 1 2", 1},
                                                            {"M1 1X2 2", 1},
                                                            {"M1 1L2 2 3", 2},
                                                            {"M1 1 & 2", 1}};
    for (const auto& [text, points] : mistakes) {
        const PathData data = parsePathData(text);
        EXPECT_FALSE(data.complete) << text;
        EXPECT_EQ(data.path.points().size(), points) << text;
    }
    EXPECT_TRUE(parsePathData("  ").complete);
    EXPECT_TRUE(parsePathData("").path.empty());
}

TEST(PathData, VerbsThatEndInsideAnArcAreNamed) {
    const PathData half = parsePathData("M0 0A5 5 0 0 1 10 0L20 0");
    EXPECT_FALSE(half.insideArcs.empty());
    EXPECT_EQ(half.insideArcs.front(), 1U) << "after the move";
    EXPECT_TRUE(parsePathData("M0 0L5 5").insideArcs.empty());
}

TEST(PathData, PointsAreReadInPairs) {
    EXPECT_EQ(parsePoints(" 1,2 3 4\n5,6"), (std::vector<Point>{{1, 2}, {3, 4}, {5, 6}}));
    EXPECT_EQ(parsePoints("1,2 3"), (std::vector<Point>{{1, 2}}));
    EXPECT_EQ(parsePoints("1,2 x 3,4"), (std::vector<Point>{{1, 2}}));
    EXPECT_TRUE(parsePoints("").empty());
}

} // namespace
