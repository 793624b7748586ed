// Gradients in the counted pointer that shares equal ones.
#include "host/SharedResource.h"
#include "host/Gradient.h"
#include "tests/support/FailingMemory.h"
#include "tests/unit/gradient/Records.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

TEST(SharedResource, EqualGradientsBecomeOneWithACountOfThree) {
    CGradientData data = RecordWith({{0.0, kRed}, {1.0, kBlue}});
    data.SetAngle(17.0F);
    const SharedResourcePtr<CGradient> first(new CGradient(data));
    const SharedResourcePtr<CGradient> second(new CGradient(data));
    EXPECT_NE(static_cast<const CGradient*>(first), nullptr);
    EXPECT_EQ(static_cast<const CGradient*>(first), static_cast<const CGradient*>(second));
    EXPECT_EQ(first.UseCount(), 3u);
}

TEST(SharedResource, DifferentGradientsStayTwo) {
    const SharedResourcePtr<CGradient> first(new CGradient(RecordWith({{0.0, kRed}, {0.3, kBlue}})));
    const SharedResourcePtr<CGradient> second(new CGradient(RecordWith({{0.0, kRed}, {0.3, kGreen}})));
    EXPECT_NE(static_cast<const CGradient*>(first), static_cast<const CGradient*>(second));
}

TEST(SharedResource, RecordsAndGradientsLeakNothingOverManyRandomOperations) {
    constexpr int kOperations = 100000;
    std::mt19937 random(6);
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    // Every gradient that the test wraps is in the table before, so that what is alive afterwards can be
    // compared.
    std::vector<CGradientData> records;
    for (int i = 0; i < 16; ++i) {
        CGradientData data;
        data.SetAngle(static_cast<float>(i) + 0.125F);
        data.ColorList().resize(static_cast<std::size_t>(i) + 1, CGradientColor(kRed, 0.5));
        records.push_back(data);
        SharedResourcePtr<CGradient>{new CGradient(data)};
    }
    const long before = FailingMemory::LiveBlocks();
    {
        std::vector<CGradientData> values(8, records.front());
        std::vector<SharedResourcePtr<CGradient>> pointers(8);
        for (int i = 0; i < kOperations; ++i) {
            CGradientData& value = values[pick(values.size())];
            SharedResourcePtr<CGradient>& pointer = pointers[pick(pointers.size())];
            switch (pick(5)) {
            case 0:
                value = records[pick(records.size())];
                break;
            case 1:
                pointer = SharedResourcePtr<CGradient>(new CGradient(value));
                break;
            case 2:
                if (pointer != nullptr) {
                    value = pointer->GetGradientData();
                }
                break;
            case 3:
                pointer = pointers[pick(pointers.size())];
                break;
            default:
                pointer = SharedResourcePtr<CGradient>();
                break;
            }
        }
    }
    EXPECT_EQ(FailingMemory::LiveBlocks(), before);
}
