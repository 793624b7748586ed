// The gradient record and the key under which equal gradients are shared.
#include "host/Gradient.h"
#include "host/SharedResource.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <random>
#include <set>

namespace {

std::uint32_t keyOf(const CGradientData& data) {
    return CGradient(data).HashID();
}

TEST(GradientRecord, BeginsLinearFromBlackToWhite) {
    const CGradientData record;
    EXPECT_EQ(record.Type(), kLinearGradient);
    EXPECT_EQ(record.Angle(), 0.0F);
    EXPECT_EQ(record.Start(), TPoint<double>(0.5, 0.5));
    EXPECT_EQ(record.End(), TPoint<double>(0.5, 0.5));
    EXPECT_EQ(record.StartRadius(), 0.0);
    EXPECT_EQ(record.EndRadius(), 0.0);
    ASSERT_EQ(record.ColorList().size(), 2u);
    EXPECT_EQ(record.ColorList().front().ColorRGB(), (RGBColor{0, 0, 0}));
    EXPECT_EQ(record.ColorList().front().Percent(), 0.0);
    EXPECT_EQ(record.ColorList().back().ColorRGB(), (RGBColor{65535, 65535, 65535}));
    EXPECT_EQ(record.ColorList().back().Percent(), 1.0);
}

TEST(GradientRecord, NarrowsAPercentThatIsSetAndNotOneThatIsGiven) {
    CGradientColor stop({1, 2, 3}, 0.3);
    EXPECT_EQ(stop.Percent(), 0.3);
    stop.SetPercent(0.3F);
    EXPECT_EQ(stop.Percent(), 0.30000001192092896);
}

TEST(GradientRecord, RecordsOfEqualNumbersHaveEqualKeys) {
    CGradientData record;
    const std::uint32_t key = keyOf(record);
    record.SetAngle(-0.0F);
    record.SetStartRadius(-0.0F);
    record.ColorList().front() = CGradientColor({0, 0, 0}, -0.0);
    EXPECT_EQ(keyOf(record), key);
}

TEST(GradientRecord, KeyDependsOnEveryField) {
    const auto changed = [](const std::function<void(CGradientData&)>& change) {
        CGradientData record;
        change(record);
        return keyOf(record);
    };
    const std::set<std::uint32_t> keys = {
        keyOf(CGradientData()),
        changed([](CGradientData& r) { r.SetType(kRadialGradient); }),
        changed([](CGradientData& r) { r.SetAngle(1e-6F); }),
        changed([](CGradientData& r) {
            r.SetStart({0.5, 0.25});
        }),
        changed([](CGradientData& r) {
            r.SetStart({0.25, 0.5});
        }),
        changed([](CGradientData& r) {
            r.SetEnd({0.5, 0.25});
        }),
        changed([](CGradientData& r) {
            r.SetEnd({0.25, 0.5});
        }),
        changed([](CGradientData& r) { r.SetStartRadius(1); }),
        changed([](CGradientData& r) { r.SetEndRadius(1); }),
        changed([](CGradientData& r) { r.ColorList().front().SetPercent(0.1F); }),
        changed([](CGradientData& r) {
            r.ColorList().front().SetColor({1, 0, 0});
        }),
        changed([](CGradientData& r) {
            r.ColorList().front().SetColor({0, 1, 0});
        }),
        changed([](CGradientData& r) {
            r.ColorList().front().SetColor({0, 0, 1});
        }),
        changed([](CGradientData& r) { r.ColorList().pop_back(); }),
        changed([](CGradientData& r) { r.ColorList().reverse(); }),
        changed([](CGradientData& r) { r.ColorList().clear(); }),
    };
    EXPECT_EQ(keys.size(), 16u);
}

TEST(GradientRecord, KeysOfManyGradientsDiffer) {
    std::mt19937 random(3);
    std::set<std::uint32_t> keys;
    CGradientData record;
    for (int i = 0; i < 10000; ++i) {
        record.SetAngle(static_cast<float>(i));
        keys.insert(keyOf(record));
    }
    // 10,000 draws out of 2^32 collide 0.012 times on average.
    EXPECT_GE(keys.size(), 9999u);
}

TEST(GradientRecord, EqualRecordsHaveEqualKeysWhereverTheyWereMade) {
    CGradientData first;
    first.SetAngle(std::numeric_limits<float>::quiet_NaN());
    const CGradientData second = first;
    EXPECT_EQ(keyOf(first), keyOf(second));
}

TEST(GradientRecord, TakesOverEveryFieldAndStopOfAnother) {
    CGradientData source;
    source.SetType(kRadialGradient);
    source.SetAngle(12);
    source.SetStart({0.1, 0.2});
    source.SetEnd({0.3, 0.4});
    source.SetStartRadius(5);
    source.SetEndRadius(6);
    source.ColorList().emplace_back(RGBColor{1, 2, 3}, 0.75);
    CGradientData target;
    target = source;
    EXPECT_EQ(keyOf(target), keyOf(source));
    EXPECT_EQ(target.Type(), kRadialGradient);
    EXPECT_EQ(target.End(), TPoint<double>(0.3, 0.4));
    EXPECT_EQ(target.ColorList().size(), 3u);
}

TEST(GradientKinds, AreTheClosedOnes) {
    int capable = 0;
    for (long kind = -3; kind < 70000; ++kind)
        capable += IsGradientCapable(kind) ? 1 : 0;
    EXPECT_EQ(capable, kNumGradObjIDs);
    EXPECT_EQ(kNumGradObjIDs, 4);
    EXPECT_FALSE(IsGradientCapable(0));
    for (int i = 0; i < kNumGradObjIDs; ++i)
        EXPECT_TRUE(IsGradientCapable(kGradObjIDs[i]));
}

} // namespace
