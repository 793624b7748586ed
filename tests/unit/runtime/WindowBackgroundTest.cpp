// What a drawing window leaves to other threads, and what becomes of that when window or drawing go on.
#include "easel/paint/pixels/Surface.h"
#include "easel/runtime/DrawingWindow.h"
#include "easel/svg/Document.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <semaphore>
#include <string>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t kWhite = 0xffffffff;

// A square of 40 units in the corner, filled by a filter, which is what takes long.
drawing::Drawing floodedWith(const std::string& color) {
    const std::string text =
        "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='50'><filter id='f' "
        "x='0' y='0' width='1' height='1' color-interpolation-filters='sRGB'><feFlood flood-color='" +
        color + "'/></filter><rect width='40' height='40' filter='url(#f)'/></svg>";
    return std::move(easel::svg::readBytes(text, "flooded.svg").value());
}

class WindowBackgroundTest : public tests::HostTest {
  protected:
    std::uint32_t pixel(int x, int y) const { return window_.image().row(y)[x]; }
    // Waits until something more can be shown, and marks it.
    void waitAndMark() {
        ready_.acquire();
        window_.markReady();
    }

    // Other threads release it, so it goes after the window.
    std::counting_semaphore<1000> ready_{0};
    runtime::DrawingWindow window_{floodedWith("#12c84a"), process_};
    static constexpr drawing::Box kAll{0, 0, 100, 50};
    static constexpr std::uint32_t kFlood = 0xff12c84a;
};

TEST_F(WindowBackgroundTest, WithoutItEverythingIsThereAtOnce) {
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kFlood);
    EXPECT_EQ(pixel(45, 20), kWhite);
    window_.markReady();
    EXPECT_THAT(window_.marks(), IsEmpty());
}

TEST_F(WindowBackgroundTest, GoingThereAndBackPaintsAllAnew) {
    window_.paintMarked();
    window_.paintInBackground([&] { ready_.release(); });
    EXPECT_THAT(window_.marks(), ElementsAre(kAll));
    window_.paintMarked();
    EXPECT_THAT(window_.marks(), IsEmpty());
    window_.paintAtOnce();
    EXPECT_THAT(window_.marks(), ElementsAre(kAll));
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kFlood) << "nobody has to wait for it any more";
}

TEST_F(WindowBackgroundTest, WhatWasReadyMarksNothingOnceAllIsPaintedAtOnceAgain) {
    window_.paintInBackground([&] { ready_.release(); });
    window_.paintMarked();
    ready_.acquire();
    window_.paintAtOnce();
    window_.paintMarked();
    window_.markReady();
    EXPECT_THAT(window_.marks(), IsEmpty());
}

TEST_F(WindowBackgroundTest, WhatIsReadyIsMarkedOnceAndOnlyWhereItLies) {
    window_.paintInBackground([&] { ready_.release(); });
    window_.paintMarked();
    waitAndMark();
    ASSERT_FALSE(window_.marks().empty());
    EXPECT_TRUE(window_.marks().front().contains({20, 20}));
    EXPECT_FALSE(window_.marks().front().contains({90, 20}));
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kFlood);
    window_.markReady();
    EXPECT_THAT(window_.marks(), IsEmpty());
}

TEST_F(WindowBackgroundTest, WhatWasReadyOfTheDrawingBeforeMarksNothingInTheNext) {
    window_.paintInBackground([&] { ready_.release(); });
    window_.paintMarked();
    ready_.acquire();
    window_.setDrawing(drawing::Drawing::create(100, 50));
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kWhite);
    window_.markReady();
    EXPECT_THAT(window_.marks(), IsEmpty());
}

TEST_F(WindowBackgroundTest, TheNextDrawingIsPaintedInTheBackgroundToo) {
    window_.paintInBackground([&] { ready_.release(); });
    window_.paintMarked();
    ready_.acquire();
    window_.setDrawing(floodedWith("#0000ff"));
    window_.paintMarked();
    waitAndMark();
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), 0xff0000ffU);
}

TEST_F(WindowBackgroundTest, ADrawingThatIsShownNoMoreIsHeldByNothing) {
    window_.paintMarked();
    const drawing::ObjectPtr object = window_.drawing().object(0);
    ASSERT_GT(object.useCount(), 1U);
    window_.setDrawing(drawing::Drawing::create(100, 50));
    EXPECT_EQ(object.useCount(), 1U);
}

TEST_F(WindowBackgroundTest, AnotherZoomIsPaintedBesideToo) {
    window_.paintInBackground([&] { ready_.release(); });
    window_.paintMarked();
    ready_.acquire();
    window_.setView({.zoom = 1, .deviceScale = 2, .origin = {}, .width = 100, .height = 50});
    EXPECT_THAT(window_.marks(), ElementsAre(kAll));
    window_.paintMarked();
    waitAndMark();
    window_.paintMarked();
    EXPECT_EQ(pixel(79, 79), kFlood);
    EXPECT_EQ(pixel(81, 40), kWhite);
}

} // namespace
