// What reaches the host's gradient drawing when a polygon is filled.
#include "Gradient/model/PolygonFill.h"
#include "easel/runtime/HostGraphics.h"
#include "host/Drawing.h"
#include "tests/support/FailingMemory.h"
#include "tests/unit/gradient/DrawnGradient.h"
#include "tests/unit/gradient/Polygons.h"
#include "tests/unit/gradient/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using testing::ElementsAre;

namespace {

// Fills the polygon and returns the record that was drawn.
CGradientData DrawnRecord(CFPolygonRef polygon, const CGradientData& gradient) {
    gDrawn.reset();
    HostGraphics state;
    CGraphicsEnvironment environment(state);
    FillGradientPoly(&environment, polygon, gradient);
    return gDrawn.value().record;
}

CGradientData DrawnOnRect(const TRect<double>& rect, const CGradientData& gradient) {
    const StOwnedPolygon polygon(FRectToFPoly(rect));
    return DrawnRecord(polygon.Get(), gradient);
}

constexpr auto kAnyType = static_cast<KGradientType>(-5);

TRect<double> WideRect() {
    return {0, 0, 50, 100};
}

} // namespace

TEST(PolygonFill, ExtendsTheRampFlatToBothEndsInACopy) {
    CGradientData gradient = RecordWith({{0.2, kRed}, {0.7, kBlue}});
    const CGradientData drawn = DrawnOnRect(WideRect(), gradient);
    EXPECT_THAT(StopsOf(drawn.ColorList()),
                ElementsAre(Stop{0.0, kRed}, Stop{0.2, kRed}, Stop{0.7, kBlue}, Stop{1.0, kBlue}));
    EXPECT_EQ(gradient.ColorList().size(), 2u);
}

TEST(PolygonFill, LeavesNoMemoryBehind) {
    for (const KGradientType type : {kLinearGradient, kRadialGradient}) {
        CGradientData gradient = RecordWith({{0.2, kRed}, {0.7, kBlue}});
        gradient.SetType(type);
        DrawnOnRect(WideRect(), gradient);
        const long before = FailingMemory::LiveBlocks();
        DrawnOnRect(WideRect(), gradient);
        EXPECT_EQ(FailingMemory::LiveBlocks(), before) << type;
    }
}

TEST(PolygonFill, AddsNoStopsToARampThatReachesBothEnds) {
    const CGradientData drawn = DrawnOnRect(WideRect(), RecordWith({{0.0, kRed}, {1.0, kBlue}}));
    EXPECT_THAT(StopsOf(drawn.ColorList()), ElementsAre(Stop{0.0, kRed}, Stop{1.0, kBlue}));
}

TEST(PolygonFill, ExtendsASingleStopToBothEnds) {
    const CGradientData drawn = DrawnOnRect(WideRect(), RecordWith({{0.5, kGreen}}));
    EXPECT_THAT(StopsOf(drawn.ColorList()),
                ElementsAre(Stop{0.0, kGreen}, Stop{0.5, kGreen}, Stop{1.0, kGreen}));
}

TEST(PolygonFill, KeepsStopsThatLieOutsideTheRamp) {
    const CGradientData drawn = DrawnOnRect(WideRect(), RecordWith({{-0.1, kRed}, {1.25, kBlue}}));
    EXPECT_THAT(StopsOf(drawn.ColorList()), ElementsAre(Stop{-0.1, kRed}, Stop{1.25, kBlue}));
}

TEST(PolygonFill, FitsALinearGradientWhateverPointsItHolds) {
    CGradientData gradient;
    gradient.SetStart({3, 4});
    gradient.SetEnd({5, 6});
    const CGradientData drawn = DrawnOnRect({20, 10, 70, 110}, gradient);
    EXPECT_EQ(drawn.Start(), TPoint<double>(10, 45));
    EXPECT_EQ(drawn.End(), TPoint<double>(110, 45));
}

TEST(PolygonFill, PlacesARadialGradientByFractionsOfTheBounds) {
    CGradientData gradient;
    gradient.SetType(kRadialGradient);
    const CGradientData drawn = DrawnOnRect(WideRect(), gradient);
    EXPECT_EQ(drawn.Start(), TPoint<double>(50, 25));
    EXPECT_EQ(drawn.End(), TPoint<double>(50, 25));
    EXPECT_EQ(drawn.StartRadius(), 0.0);
    EXPECT_EQ(drawn.EndRadius(), static_cast<double>(std::sqrt(3125.0F)));
}

TEST(PolygonFill, MeasuresTheEndRadiusFromTheEndPoint) {
    CGradientData gradient;
    gradient.SetType(kRadialGradient);
    gradient.SetStart({0.25, 1.0});
    gradient.SetEnd({0.0, 0.0});
    const CGradientData drawn = DrawnOnRect({100, 200, 150, 300}, gradient);
    EXPECT_EQ(drawn.Start(), TPoint<double>(225, 150));
    EXPECT_EQ(drawn.End(), TPoint<double>(200, 100));
    EXPECT_NEAR(drawn.EndRadius(), 111.8034, 5e-5);
}

TEST(PolygonFill, ReplacesStoredRadii) {
    CGradientData gradient;
    gradient.SetType(kRadialGradient);
    gradient.SetStartRadius(8.0F);
    gradient.SetEndRadius(9.0F);
    const CGradientData drawn = DrawnOnRect({0, 0, 30, 40}, gradient);
    EXPECT_EQ(drawn.StartRadius(), 0.0);
    EXPECT_EQ(drawn.EndRadius(), 25.0);
}

TEST(PolygonFill, TreatsEveryTypeButLinearAsRadial) {
    CGradientData gradient;
    gradient.SetType(kAnyType);
    const CGradientData drawn = DrawnOnRect(WideRect(), gradient);
    EXPECT_EQ(drawn.Type(), kAnyType);
    EXPECT_EQ(drawn.Start(), TPoint<double>(50, 25));
    EXPECT_GT(drawn.EndRadius(), 55.0);
}

TEST(PolygonFill, LeavesRecordAndPolygonAsTheyWere) {
    std::mt19937 random(8);
    const StOwnedPolygon polygon = RandomPolygon(random);
    const auto vertices = polygon.Get().Storage()->vertices;
    CGradientData gradient;
    gradient.SetType(kRadialGradient);
    gradient.SetStart({0.1, 0.2});
    DrawnRecord(polygon.Get(), gradient);
    EXPECT_EQ(polygon.Get().Storage()->vertices, vertices);
    EXPECT_EQ(gradient.Start(), TPoint<double>(0.1, 0.2));
    EXPECT_EQ(gradient.EndRadius(), 0.0);
}
