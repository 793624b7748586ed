// What painting an object may touch, where its groups show it, and which points hit it.
#include "easel/drawing/Filter.h"
#include "easel/drawing/Object.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace easel::drawing;

Object squareOf(double side) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath({0, 0, side, side});
    return object;
}

// A pen with round joins, which reaches half its width.
SharedPtr<const Style> roundPen(double width) {
    Style style;
    style.stroke.paint = ColorPaint();
    style.stroke.width = width;
    style.stroke.join = LineJoin::Round;
    return makeShared<const Style>(style);
}

GroupPtr groupIn(const GroupPtr& parent, const std::shared_ptr<const Filter>& filter = nullptr) {
    Group group;
    group.parent = parent;
    group.filter = filter;
    return makeShared<const Group>(group);
}

std::shared_ptr<const Filter> filterOf(const Box& region, const Affine& toDrawing = {}) {
    return std::make_shared<const Filter>(Filter{{}, region, toDrawing});
}

TEST(ObjectBounds, AreThoseOfTheOutlineWithHalfThePen) {
    Object object = squareOf(10);
    EXPECT_EQ(sealed(object)->bounds, (Box{0, 0, 10, 10}));
    EXPECT_EQ(sealed(object)->paintBounds(), (Box{0, 0, 10, 10}));
    object.style = roundPen(4);
    EXPECT_EQ(sealed(object)->bounds, (Box{0, 0, 10, 10}));
    EXPECT_EQ(sealed(object)->paintBounds(), (Box{-2, -2, 12, 12}));
}

TEST(ObjectBounds, GrowWithThePenWhereItsUnitsAreLarger) {
    Object object = squareOf(10);
    object.style = roundPen(4);
    object.units = makeShared<const Affine>(Affine::scaling(3, 0.5));
    EXPECT_EQ(sealed(object)->paintBounds(), (Box{-6, -6, 16, 16})) << "three times as wide at most";
    Style inDrawing = *object.style;
    inDrawing.stroke.inDrawingUnits = true;
    object.style = makeShared<const Style>(inDrawing);
    EXPECT_EQ(sealed(object)->paintBounds(), (Box{-2, -2, 12, 12}));
}

TEST(ObjectBounds, HoldTheMarkersWithTheirOwnPens) {
    Object marker = squareOf(1);
    marker.outline = rectanglePath({20, -5, 30, 5});
    marker.style = roundPen(2);
    Object object = squareOf(10);
    object.markers = makeShared<const std::vector<ObjectPtr>>(std::vector{sealed(marker)});
    EXPECT_EQ(sealed(object)->paintBounds(), (Box{0, -6, 31, 10}));
}

TEST(ObjectBounds, AreTheRegionOfTheOutermostFilterAroundTheObject) {
    const GroupPtr outer = groupIn(nullptr, filterOf({0, 0, 5, 6}, Affine::translation(100, 200)));
    const GroupPtr between = groupIn(outer);
    const GroupPtr inner = groupIn(between, filterOf({1, 2, 3, 4}, Affine::scaling(10, 10)));
    Object object = squareOf(7);
    EXPECT_EQ(sealed(object)->shownBounds(), (Box{0, 0, 7, 7}));
    object.group = groupIn(groupIn(nullptr));
    EXPECT_EQ(sealed(object)->shownBounds(), (Box{0, 0, 7, 7})) << "no filter";
    object.group = groupIn(inner);
    const ObjectPtr filtered = sealed(object);
    EXPECT_EQ(filtered->shownBounds(), (Box{100, 200, 105, 206}));
    EXPECT_EQ(filtered->boundsWithin(outer.get()), (Box{10, 20, 30, 40}));
    EXPECT_EQ(filtered->boundsWithin(between.get()), (Box{10, 20, 30, 40}));
    EXPECT_EQ(filtered->boundsWithin(inner.get()), (Box{0, 0, 7, 7}));
    EXPECT_EQ(filtered->boundsWithin(filtered->group.get()), (Box{0, 0, 7, 7}));
}

TEST(ObjectBounds, AnObjectIsHitInsideAndWithinReachOfItsOutline) {
    Object line = squareOf(1);
    line.kind = Kind::Line;
    line.outline = polylinePath({{10, 10}, {50, 10}, {50, 50}});
    const ObjectPtr open = sealed(line);
    EXPECT_TRUE(open->hitBy({45, 20}, 0)) << "inside the triangle that a fill would be";
    EXPECT_TRUE(open->hitBy({20, 8}, 2));
    EXPECT_FALSE(open->hitBy({20, 7.9}, 2));
    EXPECT_FALSE(open->hitBy({25, 35}, 2)) << "the side that is not drawn";
    EXPECT_TRUE(open->hitBy({52, 30}, 2));
    EXPECT_FALSE(open->hitBy({52, 52}, 2)) << "within the box, not within reach of the corner";
    EXPECT_TRUE(open->hitBy({51, 51}, 2));
}

TEST(ObjectBounds, AHoleIsHitByTheNonZeroRuleAlone) {
    Object ring = squareOf(100);
    ring.outline.moveTo({30, 30});
    for (const Point p : {Point{70, 30}, Point{70, 70}, Point{30, 70}})
        ring.outline.lineTo(p);
    ring.outline.close();
    EXPECT_TRUE(sealed(ring)->hitBy({50, 50}, 3));
    ring.fillRule = FillRule::EvenOdd;
    EXPECT_FALSE(sealed(ring)->hitBy({50, 50}, 3));
    EXPECT_TRUE(sealed(ring)->hitBy({50, 32}, 3));
}

TEST(ObjectBounds, AGradientShowsOnlyOverAPattern) {
    Object object = squareOf(10);
    EXPECT_FALSE(object.showsGradient());
    object.fillPattern = FillPattern::Other;
    EXPECT_FALSE(object.showsGradient()) << "there is none";
    object.gradient = ObjectGradient(std::make_unique<CGradient>(CGradientData()).release());
    EXPECT_TRUE(object.showsGradient());
    object.fillPattern = FillPattern::None;
    EXPECT_FALSE(object.showsGradient());
}

} // namespace
