// The counted pointer by which drawings hold objects, and what these share.
#include "easel/drawing/SharedPtr.h"

#include "easel/drawing/Object.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <latch>
#include <thread>
#include <utility>

namespace {

using easel::drawing::makeShared;
using easel::drawing::Object;
using easel::drawing::SharedPtr;

// Tells in a number of its owner how many there are.
class Live {
  public:
    explicit Live(int& count) : count_(count) { ++count_; }
    ~Live() { --count_; }
    Live(const Live&) = delete;
    Live& operator=(const Live&) = delete;

  private:
    int& count_;
};

TEST(SharedPtr, TakesTheRoomOfOnePointer) {
    EXPECT_EQ(sizeof(SharedPtr<const Object>), sizeof(void*));
}

// A drawing may hold a million of them.
TEST(SharedPtr, ObjectsTakeNoMoreRoomThanTheyDid) {
    EXPECT_LE(sizeof(Object), std::size_t{144});
    EXPECT_LE(sizeof(easel::drawing::Counted<Object>), std::size_t{152});
}

TEST(SharedPtr, TheValueLivesAsLongAsOneOfItsPointers) {
    int live = 0;
    auto first = makeShared<const Live>(live);
    {
        const SharedPtr<const Live> second = first;
        EXPECT_EQ(first.useCount(), 2u);
        first = nullptr;
        EXPECT_EQ(live, 1);
        EXPECT_EQ(second.useCount(), 1u);
    }
    EXPECT_EQ(live, 0);
}

TEST(SharedPtr, AnAssignedOneLetsGoOfWhatItHeld) {
    int live = 0;
    auto pointer = makeShared<const Live>(live);
    const auto other = makeShared<const Live>(live);
    pointer = other;
    EXPECT_EQ(live, 1);
    const auto& itself = pointer;
    pointer = itself;
    EXPECT_EQ(pointer.useCount(), 2u);
}

TEST(SharedPtr, MovingPassesTheValueOn) {
    auto from = makeShared<const int>(5);
    const SharedPtr<const int> to = std::move(from);
    EXPECT_EQ(*to, 5);
    EXPECT_EQ(to.useCount(), 1u);
}

TEST(SharedPtr, WhatMayBeChangedIsSeenToChangeByThoseWhoOnlyLook) {
    const auto changeable = makeShared<int>(5);
    const SharedPtr<const int> seen = changeable;
    *changeable = 6;
    EXPECT_EQ(*seen, 6);
    EXPECT_EQ(seen.get(), changeable.get());
}

TEST(SharedPtr, IsEqualToThoseOfTheVerySameValue) {
    const auto one = makeShared<const int>(5);
    const auto other = makeShared<const int>(5);
    EXPECT_EQ(one, SharedPtr<const int>(one));
    EXPECT_NE(one, other);
    EXPECT_NE(one, nullptr);
}

TEST(SharedPtr, WithoutAValueIsNull) {
    const SharedPtr<const int> none;
    EXPECT_FALSE(none);
    EXPECT_EQ(none.get(), nullptr);
    EXPECT_EQ(none.useCount(), 0u);
    EXPECT_EQ(none, nullptr);
}

TEST(SharedPtr, ThreadsCountTogether) {
    const auto shared = makeShared<const int>(5);
    std::latch start(2);
    const auto copyOften = [&] {
        start.arrive_and_wait();
        for (int i = 0; i < 1'000'000; ++i)
            static_cast<void>(SharedPtr<const int>(shared));
    };
    std::thread other(copyOften);
    copyOften();
    other.join();
    EXPECT_EQ(shared.useCount(), 1u);
}

} // namespace
