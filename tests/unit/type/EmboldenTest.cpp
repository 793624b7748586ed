// Letters made bold: each stem is a twenty-fourth of an em wider, and the lower left corner stays.
#include "easel/type/pango/Embolden.h"

#include <gtest/gtest.h>

#include <algorithm>

using easel::drawing::Box;
using easel::drawing::Path;
using easel::drawing::Point;
using easel::drawing::rectanglePath;
using easel::type::emboldened;

namespace {

constexpr double kUnitsPerEm = 1000;
constexpr double kWider = kUnitsPerEm / 24;

void expectBox(const Box& box, double left, double top, double right, double bottom) {
    EXPECT_NEAR(box.left, left, 0.05);
    EXPECT_NEAR(box.top, top, 0.05);
    EXPECT_NEAR(box.right, right, 0.05);
    EXPECT_NEAR(box.bottom, bottom, 0.05);
}

Box boxOf(const Path& path, std::size_t begin, std::size_t end) {
    Box box;
    for (std::size_t i = begin; i < end; ++i)
        box.add(path.points()[i]);
    return box;
}

Path joined(const Path& first, const Path& second) {
    Path path = first;
    path.moveTo(second.points()[0]);
    for (const Point p : second.points().subspan(1))
        path.lineTo(p);
    path.close();
    return path;
}

TEST(Embolden, AStemIsWiderAndHigherAndItsCornerStays) {
    const Path bold = emboldened(rectanglePath({100, 0, 200, 700}), kUnitsPerEm);
    expectBox(bold.bounds(), 100, 0, 200 + kWider, 700 + kWider);
    EXPECT_TRUE(bold.closed());
}

TEST(Embolden, AHoleIsSmallerByAsMuch) {
    const Path outer = rectanglePath({0, 0, 700, 700});
    const Path hole = easel::drawing::polygonPath({{200, 200}, {200, 500}, {500, 500}, {500, 200}});
    const Path bold = emboldened(joined(outer, hole), kUnitsPerEm);
    ASSERT_EQ(bold.points().size(), 8U);
    expectBox(boxOf(bold, 0, 4), 0, 0, 700 + kWider, 700 + kWider);
    expectBox(boxOf(bold, 4, 8), 200 + kWider, 200 + kWider, 500, 500);
}

TEST(Embolden, CurvesStayCurvesAndEndWhereTheyBegan) {
    const Path circle = easel::drawing::ellipsePath({500, 500}, 300, 300);
    const Path bold = emboldened(circle, kUnitsPerEm);
    EXPECT_TRUE(
        std::equal(bold.verbs().begin(), bold.verbs().end(), circle.verbs().begin(), circle.verbs().end()));
    EXPECT_EQ(bold.points().front(), bold.points().back());
    const Box box = bold.bounds();
    EXPECT_NEAR(box.width(), 600 + kWider, 1);
    EXPECT_NEAR(box.left, 200, 1);
}

TEST(Embolden, ContoursThatAreNotClosedAreWidenedAsIfTheyWere) {
    Path open;
    open.moveTo({100, 0});
    open.lineTo({200, 0});
    open.lineTo({200, 700});
    open.lineTo({100, 700});
    open.moveTo({500, 0});
    open.lineTo({600, 0});
    open.lineTo({600, 700});
    open.lineTo({500, 700});
    open.lineTo({500, 0}); // back to the beginning
    const Path bold = emboldened(open, kUnitsPerEm);
    ASSERT_EQ(bold.points().size(), 9U);
    expectBox(boxOf(bold, 0, 4), 100, 0, 200 + kWider, 700 + kWider);
    expectBox(boxOf(bold, 4, 9), 500, 0, 600 + kWider, 700 + kWider);
    EXPECT_EQ(bold.points()[4], bold.points()[8]);
    EXPECT_FALSE(bold.closed());
}

TEST(Embolden, WhatHasNoAreaOrIsTooLongForTheLibraryStaysAsItIs) {
    EXPECT_TRUE(emboldened(Path(), kUnitsPerEm).empty());
    Path point;
    point.moveTo({3, 4});
    EXPECT_EQ(emboldened(point, kUnitsPerEm).points().size(), 1U);
    Path longest;
    for (int i = 0; i < 40'000; ++i)
        longest.lineTo({static_cast<double>(i % 200), static_cast<double>(i)});
    EXPECT_TRUE(emboldened(longest, kUnitsPerEm) == longest);
}

} // namespace
