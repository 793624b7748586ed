// The list of objects and the index of their places, which keep what they were given however it is cut up
// inside.
#include "easel/drawing/DisplayList.h"
#include "easel/drawing/PlaceIndex.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace easel::drawing;

ObjectPtr named(std::size_t number) {
    Object object;
    object.id = std::to_string(number);
    return sealed(std::move(object));
}

std::vector<ObjectPtr> manyObjects(std::size_t count) {
    std::vector<ObjectPtr> objects;
    for (std::size_t i = 0; i < count; ++i)
        objects.push_back(named(i));
    return objects;
}

// Every way to ask the list has to give these slots and objects.
void expectHolds(const DisplayList& list, const std::vector<std::pair<Slot, ObjectPtr>>& expected) {
    ASSERT_EQ(list.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        ASSERT_EQ(list.slotAt(i), expected[i].first) << i;
        ASSERT_EQ(list.indexOf(expected[i].first), i);
        ASSERT_EQ(list.object(expected[i].first), expected[i].second) << i;
        ASSERT_TRUE(list.holds(expected[i].first));
    }
    std::vector<std::pair<Slot, ObjectPtr>> visited;
    list.forEach([&](Slot slot, const ObjectPtr& object) { visited.emplace_back(slot, object); });
    ASSERT_EQ(visited, expected);
}

TEST(DisplayList, HoldsObjectsAppendedTwiceInTheirOrder) {
    DisplayList list;
    const std::vector<ObjectPtr> objects = manyObjects(1400);
    list.append({objects.begin(), objects.begin() + 700});
    list.append({objects.begin() + 700, objects.end()});
    std::vector<std::pair<Slot, ObjectPtr>> expected;
    expected.reserve(objects.size());
    for (const ObjectPtr& object : objects)
        expected.emplace_back(static_cast<Slot>(expected.size()), object);
    expectHolds(list, expected);
}

TEST(DisplayList, StaysInOrderWhereverObjectsAreInsertedAndErased) {
    std::mt19937 random(5);
    DisplayList list;
    list.append(manyObjects(600));
    std::vector<std::pair<Slot, ObjectPtr>> expected;
    list.forEach([&](Slot slot, const ObjectPtr& object) { expected.emplace_back(slot, object); });
    // First mostly insertions in one place, which has to be cut up, then mostly deletions until little is
    // left.
    for (std::size_t round = 0; round < 4000; ++round) {
        const bool erases = !expected.empty() && random() % 8 < (round < 1500 ? 1U : 6U);
        const std::size_t spread =
            round % 3 == 0 ? expected.size() : std::min<std::size_t>(expected.size(), 9);
        const std::size_t index = random() % (spread + (erases ? 0 : 1));
        const auto at = expected.begin() + static_cast<std::ptrdiff_t>(index);
        if (erases) {
            ASSERT_EQ(list.erase(at->first), at->second);
            ASSERT_FALSE(list.holds(at->first));
            expected.erase(at);
        } else {
            const Slot slot = list.newSlot();
            ASSERT_FALSE(list.holds(slot));
            const ObjectPtr object = named(round);
            list.insert(index, slot, object);
            expected.insert(at, {slot, object});
        }
        if (round % 97 == 0) {
            ASSERT_NO_FATAL_FAILURE(expectHolds(list, expected)) << round;
        }
    }
    expectHolds(list, expected);
}

TEST(DisplayList, FillsAgainAfterItWasEmptied) {
    DisplayList list;
    list.append(manyObjects(300));
    for (Slot slot = 300; slot-- > 0;)
        list.erase(slot);
    EXPECT_EQ(list.size(), 0U);
    const ObjectPtr object = named(1);
    list.insert(0, 7, object);
    expectHolds(list, {{7, object}});
}

TEST(DisplayList, GivesBackTheObjectThatItExchanges) {
    DisplayList list;
    const std::vector<ObjectPtr> objects = manyObjects(3);
    list.append(objects);
    const ObjectPtr other = named(9);
    EXPECT_EQ(list.replace(1, other), objects[1]);
    expectHolds(list, {{0, objects[0]}, {1, other}, {2, objects[2]}});
}

TEST(DisplayList, KnowsNoSlotThatItNeverGaveOut) {
    DisplayList list;
    EXPECT_FALSE(list.holds(0));
    list.append(manyObjects(2));
    EXPECT_TRUE(list.holds(1));
    EXPECT_FALSE(list.holds(2));
}

void assign(PlaceIndex& places, const std::vector<Box>& boxes) {
    places.assign(static_cast<Slot>(boxes.size()), [&](Slot slot) { return boxes[slot]; });
}

std::vector<Slot> sortedWithin(const PlaceIndex& places, const Box& area) {
    std::vector<Slot> found = places.within(area);
    std::sort(found.begin(), found.end());
    return found;
}

TEST(PlaceIndex, FindsBoxesThatTheAreaMeetsAndNoOthersFarAway) {
    PlaceIndex places;
    assign(places, {{0, 0, 10, 10}, {20, 0, 30, 10}, {0, 20, 10, 30}});
    EXPECT_EQ(sortedWithin(places, {10, 10, 20, 20}), (std::vector<Slot>{0, 1, 2})) << "corners meet";
    EXPECT_EQ(sortedWithin(places, {11, 11, 19, 19}), std::vector<Slot>{});
    EXPECT_EQ(sortedWithin(places, {5, 5, 6, 25}), (std::vector<Slot>{0, 2}));
    places.insert({12, 12, 13, 13}, 4);
    EXPECT_EQ(sortedWithin(places, {11, 11, 19, 19}), std::vector<Slot>{4});
    places.erase({12, 12, 13, 13}, 4);
    EXPECT_EQ(sortedWithin(places, {11, 11, 19, 19}), std::vector<Slot>{});
    assign(places, {{0, 0, 1, 1}});
    EXPECT_EQ(sortedWithin(places, {-100, -100, 100, 100}), std::vector<Slot>{0});
}

// So many that they lie in several trees.
TEST(PlaceIndex, FindsBoxesOfVeryManySlots) {
    constexpr Slot kCount = 300'000;
    const auto boxOf = [](Slot slot) { return Box{1.0 * slot, 0, 1.0 * slot, 1}; };
    PlaceIndex places;
    places.assign(kCount, boxOf);
    for (const Slot slot : {0U, 131'071U, 131'072U, 262'144U, kCount - 1}) {
        EXPECT_EQ(sortedWithin(places, boxOf(slot)), std::vector<Slot>{slot});
        places.erase(boxOf(slot), slot);
        EXPECT_EQ(sortedWithin(places, boxOf(slot)), std::vector<Slot>{});
    }
    const Slot later = 1'000'000;
    places.insert({7.5, 0, 7.5, 1}, later);
    EXPECT_EQ(sortedWithin(places, {7, 0, 8, 1}), (std::vector<Slot>{7, 8, later}));
    assign(places, {{0, 0, 1, 1}});
    EXPECT_EQ(sortedWithin(places, {0, 0, kCount, 1}), std::vector<Slot>{0});
}

TEST(PlaceIndex, HasNoPlaceForNothing) {
    PlaceIndex places;
    assign(places, {Box(), {5, 5, 5, 5}});
    places.insert(Box(), 2);
    const double far = std::numeric_limits<double>::infinity();
    EXPECT_EQ(sortedWithin(places, {-far, -far, far, far}), std::vector<Slot>{1}) << "a point is a place";
    EXPECT_EQ(sortedWithin(places, Box()), std::vector<Slot>{});
    places.erase(Box(), 1);
    EXPECT_EQ(sortedWithin(places, {5, 5, 5, 5}), std::vector<Slot>{1});
}

// Around 2^26 neighboring numbers of single precision are 8 apart.
TEST(PlaceIndex, MissesNoBoxWhereItsNumbersAreCoarse) {
    const double far = 67108864;
    for (const double sign : {1.0, -1.0})
        for (int i = 0; i < 40; ++i) {
            const double at = sign * (far + i * 0.7);
            PlaceIndex places;
            places.insert({at - 0.1, 2 - at, at + 0.1, 3 - at}, 1);
            for (const Box& touching :
                 {Box{at + 0.1, 2 - at, at + 0.2, 3 - at}, Box{at - 0.2, 2 - at, at - 0.1, 3 - at},
                  Box{at, 3 - at, at, 4 - at}, Box{at, 1 - at, at, 2 - at}})
                EXPECT_EQ(places.within(touching).size(), 1U) << at;
            EXPECT_TRUE(places.within({at + 30, 2 - at, at + 40, 3 - at}).empty()) << at;
            EXPECT_TRUE(places.within({at - 40, 2 - at, at - 30, 3 - at}).empty()) << at;
            EXPECT_TRUE(places.within({at, 33 - at, at, 43 - at}).empty()) << at;
            EXPECT_TRUE(places.within({at, -38 - at, at, -28 - at}).empty()) << at;
        }
}

TEST(PlaceIndex, FindsWhatLiesBeyondItsNumbers) {
    PlaceIndex places;
    places.insert({1e300, 0, 2e300, 1}, 1);
    places.insert({-2e300, 0, -1e300, 1}, 2);
    EXPECT_EQ(sortedWithin(places, {1.5e300, 0, 1.6e300, 1}), std::vector<Slot>{1});
    EXPECT_EQ(sortedWithin(places, {-1.6e300, 0, -1.5e300, 1}), std::vector<Slot>{2});
    EXPECT_EQ(sortedWithin(places, {-10, 0, 10, 1}), std::vector<Slot>{});
}

} // namespace
