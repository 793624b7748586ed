// Where the points of a drawing are in its window, and where the window's are in the drawing.
#include "easel/runtime/View.h"

#include <gtest/gtest.h>

namespace easel::runtime {
namespace {

using drawing::Box;
using drawing::Point;

TEST(View, TakesPointsOfTheDrawingToTheWindowAndBack) {
    const View view{.zoom = 2, .deviceScale = 3, .origin = {8, 9}, .width = 40, .height = 30};
    EXPECT_EQ(view.toWindow({8, 9}), (Point{0, 0}));
    EXPECT_EQ(view.toWindow({10, 14}), (Point{4, 10}));
    EXPECT_EQ(view.toDrawing({4, 10}), (Point{10, 14}));
    EXPECT_EQ(view.toImage()({10, 14}), (Point{12, 30})) << "three pixels for each point of the window";
    EXPECT_EQ(view.seen(), (Box{8, 9, 28, 24}));
}

TEST(View, ShowsNothingUntilItHasASize) {
    EXPECT_EQ(View().seen(), (Box{0, 0, 0, 0}));
    EXPECT_EQ(View().toWindow({3, 4}), (Point{3, 4})) << "and is as large as the drawing";
    EXPECT_EQ(View().toImage()({3, 4}), (Point{3, 4}));
}

} // namespace
} // namespace easel::runtime
