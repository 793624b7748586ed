// The elements of objects in a few bytes each.
#include "easel/svg/text/PackedSpans.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using easel::drawing::ElementSpan;
using easel::svg::PackedSpans;

TEST(PackedSpans, GiveBackWhatWasAddedHoweverFarItLies) {
    constexpr std::uint32_t kMost = UINT32_MAX;
    std::vector<ElementSpan> added = {{0, 1, 0},
                                      {1, 128, 0},
                                      {129, 130, 1},
                                      {2, 9, 2},
                                      {kMost - 1, kMost, kMost},
                                      {0, kMost, 0},
                                      {5, 6, kMost},
                                      {5, 6, 1},
                                      {1u << 31, (1u << 31) + 1, 1u << 31},
                                      {0, 1, 0}};
    // Numbers of every size.
    std::mt19937 random(1);
    const auto number = [&] {
        return std::uniform_int_distribution<std::uint32_t>(0, kMost)(random) >> random() % 32;
    };
    for (int i = 0; i < 2000; ++i) {
        const std::uint32_t begin = number();
        added.push_back({begin, begin + (kMost - begin) / (1 + number() % 100), number()});
    }
    PackedSpans spans;
    for (const ElementSpan& span : added)
        spans.add(span);
    EXPECT_EQ(spans.all(), added);
    spans.shrinkToFit();
    EXPECT_EQ(spans.all(), added);
    EXPECT_TRUE(PackedSpans().all().empty());
}

} // namespace
