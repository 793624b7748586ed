// The gradient record as a value.
#include "Gradient/model/StopOrder.h"
#include "tests/unit/gradient/Records.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

CGradientData UnusualRecord() {
    CGradientData data = RecordWith({{0.125, kRed}, {0.75, kBlue}});
    data.SetType(static_cast<KGradientType>(7));
    data.SetAngle(-33.25F);
    data.SetStart({0.25, -0.5});
    data.SetEnd({1.75, 0.375});
    data.SetStartRadius(3.5F);
    data.SetEndRadius(40.25F);
    return data;
}

void ExpectUnusual(const CGradientData& data) {
    EXPECT_EQ(data.Type(), 7);
    EXPECT_EQ(data.Angle(), -33.25F);
    EXPECT_EQ(data.Start(), TPoint<double>(0.25, -0.5));
    EXPECT_EQ(data.End(), TPoint<double>(1.75, 0.375));
    EXPECT_EQ(data.StartRadius(), 3.5);
    EXPECT_EQ(data.EndRadius(), 40.25);
    EXPECT_THAT(StopsOf(data.ColorList()), ElementsAre(Stop{0.125, kRed}, Stop{0.75, kBlue}));
}

class CopiedRecord : public testing::TestWithParam<std::size_t> {};

} // namespace

TEST_P(CopiedRecord, HasAListOfItsOwn) {
    CGradientData source;
    source.ColorList().clear();
    for (std::size_t i = 0; i < GetParam(); ++i) {
        source.ColorList().emplace_back(kGreen, static_cast<double>(i));
    }
    const std::vector<Stop> before = StopsOf(source.ColorList());
    CGradientData copy(source);
    EXPECT_EQ(StopsOf(copy.ColorList()), before);
    for (CGradientColor& stop : copy.ColorList()) {
        stop.SetColor(kRed);
        stop.SetPercent(0.5F);
    }
    copy.ColorList().emplace_back(kBlue, 9.0);
    EXPECT_EQ(StopsOf(source.ColorList()), before);
}

INSTANTIATE_TEST_SUITE_P(NoOneAndManyStops, CopiedRecord, testing::Values(0, 1, 1000));

TEST(GradientRecord, CopyAndAssignmentTakeEveryField) {
    const CGradientData source = UnusualRecord();
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is tested.
    const CGradientData copy(source);
    ExpectUnusual(copy);
    CGradientData assigned;
    CGradientData& result = (assigned = source);
    EXPECT_EQ(&result, &assigned);
    ExpectUnusual(assigned);
}

TEST(GradientRecord, AssigningThreeStopsToFiveLeavesExactlyTheThree) {
    const CGradientData source = RecordWith({{0.0, kRed}, {0.25, kGreen}, {1.0, kBlue}});
    CGradientData target =
        RecordWith({{0.0, kBlack}, {0.1, kWhite}, {0.2, kBlack}, {0.3, kWhite}, {0.4, kBlack}});
    target = source;
    EXPECT_THAT(StopsOf(target.ColorList()),
                ElementsAre(Stop{0.0, kRed}, Stop{0.25, kGreen}, Stop{1.0, kBlue}));
}

TEST(GradientRecord, AssignmentToItselfKeepsEverything) {
    CGradientData data = UnusualRecord();
    const CGradientData& same = data;
    data = same;
    ExpectUnusual(data);
}

TEST(GradientRecord, SortingKeepsTheOrderOfStopsAtOnePosition) {
    auto colors = ColorsOf({{0.5, kRed}, {0.0, kBlack}, {1.0, kWhite}, {0.5, kBlue}});
    SortGradients(colors);
    EXPECT_THAT(StopsOf(colors),
                ElementsAre(Stop{0.0, kBlack}, Stop{0.5, kRed}, Stop{0.5, kBlue}, Stop{1.0, kWhite}));
}

TEST(GradientRecord, SortingKeepsIteratorsOnTheirStops) {
    auto colors = ColorsOf({{0.9, kRed}, {0.1, kBlue}, {0.5, kGreen}});
    const auto red = colors.begin();
    SortGradients(colors);
    EXPECT_EQ(red->ColorRGB(), kRed);
    EXPECT_EQ(std::next(red), colors.end());
}

TEST(GradientRecord, APositionThatIsSetPassesThroughSinglePrecision) {
    CGradientColor stop(kBlack, 0.3);
    EXPECT_EQ(stop.Percent(), 0.3);
    stop.SetPercent(static_cast<float>(0.3));
    EXPECT_EQ(stop.Percent(), 0.30000001192092896);
}

TEST(GradientRecord, DefaultIsLinearFromBlackToWhite) {
    const CGradientData data;
    EXPECT_EQ(data.Type(), kLinearGradient);
    EXPECT_EQ(data.Angle(), 0.0F);
    EXPECT_EQ(data.Start(), TPoint<double>(0.5, 0.5));
    EXPECT_EQ(data.End(), TPoint<double>(0.5, 0.5));
    EXPECT_THAT(StopsOf(data.ColorList()), ElementsAre(Stop{0.0, kBlack}, Stop{1.0, kWhite}));
}
