// The image of a drawing window and the host's operations on its objects.
#include "easel/runtime/DrawingWindow.h"
#include "easel/paint/pixels/Surface.h"
#include "easel/runtime/PickFilter.h"
#include "easel/runtime/Snap.h"
#include "easel/svg/Document.h"
#include "host/Objects.h"
#include "tests/support/HostTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <semaphore>
#include <stdexcept>
#include <string>

namespace {

namespace drawing = easel::drawing;
namespace runtime = easel::runtime;

drawing::ObjectPtr blackBox(const drawing::Box& box, drawing::Kind kind = drawing::Kind::Rect) {
    drawing::Object object;
    object.kind = kind;
    object.outline = drawing::rectanglePath(box);
    object.fill = drawing::ColorPaint{};
    object.fillPattern = drawing::FillPattern::SolidBlack;
    return sealed(std::move(object));
}

class DrawingWindowTest : public tests::HostTest {
  protected:
    std::uint32_t pixel(int x, int y) const { return window_.image().row(y)[x]; }

    static constexpr std::uint32_t kWhite = 0xffffffff;
    static constexpr std::uint32_t kBlack = 0xff000000;
    runtime::DrawingWindow window_{drawing::Drawing::create(100, 50), process_};
};

TEST_F(DrawingWindowTest, ShowsChangesOnlyOnceTheyArePainted) {
    window_.paintMarked();
    EXPECT_TRUE(window_.marks().empty());
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    EXPECT_FALSE(window_.marks().empty());
    EXPECT_EQ(pixel(15, 15), kWhite);
    window_.paintMarked();
    EXPECT_EQ(pixel(15, 15), kBlack);
    EXPECT_EQ(pixel(25, 15), kWhite);
    window_.drawing().erase(0);
    EXPECT_EQ(pixel(15, 15), kBlack);
    window_.paintMarked();
    EXPECT_EQ(pixel(15, 15), kWhite);
}

TEST_F(DrawingWindowTest, PaintsThroughItsView) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    window_.setView({.zoom = 2, .deviceScale = 1.5, .origin = {8, 9}, .width = 40, .height = 30});
    window_.paintMarked();
    EXPECT_EQ(window_.image().width(), 60);
    EXPECT_EQ(window_.image().height(), 45);
    // The box begins two units right of and one below the corner, at three pixels per unit.
    EXPECT_EQ(pixel(5, 4), kWhite);
    EXPECT_EQ(pixel(6, 3), kBlack);
    EXPECT_EQ(pixel(35, 32), kBlack);
    EXPECT_EQ(pixel(36, 32), kWhite);
}

TEST_F(DrawingWindowTest, MarksAnAreaOnceHoweverOftenItChanges) {
    window_.paintMarked();
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    window_.drawing().select(0);
    window_.drawing().invalidateSelection();
    ASSERT_EQ(window_.marks().size(), 1U);
    const drawing::Box small = window_.marks().front();
    window_.drawing().erase(0);
    window_.drawing().insert(0, blackBox({5, 5, 30, 30}));
    ASSERT_EQ(window_.marks().size(), 1U);
    EXPECT_EQ(window_.marks().front().intersection(small), small);
    EXPECT_GT(window_.marks().front().right, small.right);
    window_.drawing().insert(1, blackBox({80, 10, 85, 40}));
    EXPECT_EQ(window_.marks().size(), 2U) << "another area is another mark";
    window_.paintMarked();
    EXPECT_EQ(pixel(25, 25), kBlack);
    EXPECT_EQ(pixel(82, 25), kBlack);
}

TEST_F(DrawingWindowTest, PaintsManySmallChangesAllTheSame) {
    window_.paintMarked();
    for (int i = 0; i < 40; ++i)
        window_.drawing().insert(window_.drawing().size(), blackBox({i * 2.0, 5, i * 2.0 + 1, 45}));
    window_.paintMarked();
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(pixel(2 * i, 25), kBlack);
        EXPECT_EQ(pixel(2 * i + 1, 25), kWhite);
    }
}

TEST_F(DrawingWindowTest, ShowsTheWholeDrawingAtScaleOneUntilItsViewIsSet) {
    EXPECT_EQ(window_.view().seen(), (drawing::Box{0, 0, 100, 50}));
    EXPECT_THAT(window_.marks(), testing::ElementsAre(drawing::Box{0, 0, 100, 50}));
    window_.paintMarked();
    EXPECT_EQ(window_.image().width(), 100);
    EXPECT_EQ(window_.image().height(), 50);
}

TEST_F(DrawingWindowTest, AnotherViewIsMarkedAsAWholeAndNothingElseIs) {
    window_.paintMarked();
    window_.mark({90, 10, 95, 20});
    window_.setView({.zoom = 1, .deviceScale = 1, .origin = {0, 0}, .width = 50, .height = 50});
    EXPECT_THAT(window_.marks(), testing::ElementsAre(drawing::Box{0, 0, 50, 50}));
    window_.mark({60, 10, 70, 20});
    EXPECT_EQ(window_.marks().size(), 1U) << "what is not seen is not marked";
}

TEST_F(DrawingWindowTest, AreasThatOverlapAreMarkedEachUnlessOneLiesInTheOther) {
    window_.paintMarked();
    window_.mark({10, 10, 20, 20});
    window_.mark({15, 15, 30, 30});
    window_.mark({5, 5, 15, 15});
    EXPECT_EQ(window_.marks().size(), 3U);
    window_.mark({16, 16, 29, 30});
    EXPECT_EQ(window_.marks().size(), 3U) << "the second one has it";
    window_.mark({5, 5, 30, 30});
    EXPECT_THAT(window_.marks(), testing::ElementsAre(drawing::Box{5, 5, 30, 30}));
}

TEST_F(DrawingWindowTest, KeepsSixteenMarksAndMakesOneOfMore) {
    window_.paintMarked();
    for (int i = 0; i < 16; ++i)
        window_.mark({i * 2.0, 5, i * 2.0 + 1, 45});
    EXPECT_EQ(window_.marks().size(), 16U);
    window_.mark({32, 10, 33, 49});
    EXPECT_THAT(window_.marks(), testing::ElementsAre(drawing::Box{0, 5, 33, 49}));
}

TEST_F(DrawingWindowTest, AnotherDrawingLeavesNothingOfTheOneBefore) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    window_.setFeedback({{{1, 2}, {3, 4}}});
    window_.paintMarked();
    const double zoom = 0.5;
    window_.setView({.zoom = zoom, .deviceScale = 1, .origin = {}, .width = 50, .height = 25});
    window_.paintMarked();
    window_.setDrawing(drawing::Drawing::create(200, 100));
    EXPECT_TRUE(window_.feedback().empty());
    EXPECT_EQ(window_.view().zoom, zoom);
    window_.paintMarked();
    EXPECT_EQ(pixel(7, 7), kWhite);
    window_.drawing().insert(0, blackBox({50, 10, 60, 20}));
    EXPECT_FALSE(window_.marks().empty()) << "changes of the new drawing are told too";
}

TEST_F(DrawingWindowTest, MarksWhatWasPaintedInTheBackgroundAndShowsItThen) {
    const std::string group =
        "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='50'><filter id='f' "
        "color-interpolation-filters='sRGB'><feFlood flood-color='#12c84a'/></filter>"
        "<rect width='40' height='40' filter='url(#f)'/></svg>";
    window_.setDrawing(std::move(easel::svg::readBytes(group, "group.svg").value()));
    std::binary_semaphore ready(0);
    window_.paintInBackground([&] { ready.release(); });
    window_.paintMarked();
    EXPECT_EQ(pixel(70, 20), kWhite);
    ready.acquire();
    window_.markReady();
    EXPECT_FALSE(window_.marks().empty());
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), 0xff12c84a);
    window_.drawing().erase(0);
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kWhite);
    window_.paintAtOnce();
    window_.paintMarked();
    EXPECT_EQ(pixel(20, 20), kWhite);
}

TEST_F(DrawingWindowTest, RefusesAViewThatNoImageCanHold) {
    window_.setView({.zoom = 1, .deviceScale = 1, .origin = {}, .width = 1e9, .height = 10});
    EXPECT_THROW(window_.paintMarked(), std::length_error);
}

TEST_F(DrawingWindowTest, AnImageHasUpTo32767PixelsEachWayAndAtLeastOne) {
    const auto paintAt = [&](double width, double height, double scale) {
        window_.setView({.zoom = 1, .deviceScale = scale, .origin = {}, .width = width, .height = height});
        window_.paintMarked();
    };
    paintAt(32767, 1, 1);
    EXPECT_EQ(window_.image().width(), 32767);
    paintAt(0.25, 32767 / 2.0, 2);
    EXPECT_EQ(window_.image().width(), 1);
    EXPECT_EQ(window_.image().height(), 32767);
    EXPECT_THROW(paintAt(32767.25, 1, 1), std::length_error);
    EXPECT_THROW(paintAt(1, 16384, 2), std::length_error);
    paintAt(0, 0, 1);
    EXPECT_EQ(window_.image().width(), 1);
    EXPECT_EQ(window_.image().height(), 1);
}

TEST_F(DrawingWindowTest, PicksFartherInDrawingUnitsWhenZoomedOut) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    EXPECT_FALSE(PickObj(&window_.ref(), {25, 15}, index, list));
    EXPECT_EQ(index, -1);
    window_.setView({.zoom = 0.5, .deviceScale = 1, .origin = {}, .width = 50, .height = 25});
    EXPECT_TRUE(PickObj(&window_.ref(), {25, 15}, index, list));
    EXPECT_EQ(index, 0);
}

TEST_F(DrawingWindowTest, PicksOnlyWhatTheFilterAdmits) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}, drawing::Kind::Rect));
    window_.drawing().insert(1, blackBox({10, 10, 20, 20}, drawing::Kind::Line));
    SelDescrimT before;
    GetSelDescrim(before);
    CTessObjList list;
    long index = -1;
    SetSelDescrim(descrimAllOff);
    EXPECT_FALSE(PickObj(&window_.ref(), {15, 15}, index, list));
    SetOneSelDescrim(static_cast<short>(drawing::Kind::Rect));
    EXPECT_TRUE(PickObj(&window_.ref(), {15, 15}, index, list));
    EXPECT_EQ(index, 0);
    SetSelDescrim(before);
    EXPECT_TRUE(PickObj(&window_.ref(), {15, 15}, index, list));
    EXPECT_EQ(index, 1);
}

TEST_F(DrawingWindowTest, ChangesOfACloneLeaveTheDrawingAlone) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    ASSERT_TRUE(PickObj(&window_.ref(), {15, 15}, index, list));
    const TessObject original = list[index];
    TessObject clone;
    CloneItem(&original, clone);
    clone.SetGradient(SharedResourcePtr<CGradient>(std::make_unique<CGradient>(CGradientData()).release()));
    EXPECT_NE(static_cast<const CGradient*>(clone.GetGradient()), nullptr);
    EXPECT_EQ(static_cast<const CGradient*>(original.GetGradient()), nullptr);
    EXPECT_EQ(static_cast<const CGradient*>(list[index].GetGradient()), nullptr);
}

TEST_F(DrawingWindowTest, IndicesThatAreNotThereChangeNothing) {
    window_.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    ASSERT_TRUE(PickObj(&window_.ref(), {15, 15}, index, list));
    for (const long wrong : {-1L, 1L, 1L << 40}) {
        EXPECT_EQ(list[wrong].WhatObject(), 0);
        DeleteUObj(wrong, list);
        SelObject(wrong, list);
    }
    InsertObj(TessObject(), 0, list);
    DeleteUObj(0, CTessObjList());
    EXPECT_EQ(window_.drawing().size(), 1u);
    EXPECT_TRUE(window_.drawing().selection().empty());
}

TEST_F(DrawingWindowTest, SnapsToCornersBeforeTheGridAndOnlyAsFarAsTheSwitchesSay) {
    using runtime::Switch;
    window_.drawing().insert(0, blackBox({13, 13, 33, 33}));
    EXPECT_EQ(snapped(window_, {14, 16}, {Switch::Off, Switch::Off}), (drawing::Point{14, 16}));
    EXPECT_EQ(snapped(window_, {14, 16}, {Switch::On, Switch::Off}), (drawing::Point{10, 20}));
    EXPECT_EQ(snapped(window_, {14, 16}, {Switch::Off, Switch::On}), (drawing::Point{13, 13}));
    EXPECT_EQ(snapped(window_, {14, 16}, {Switch::On, Switch::On}), (drawing::Point{13, 13}));
    EXPECT_EQ(snapped(window_, {23, 23}, {Switch::On, Switch::On}), (drawing::Point{20, 20}));
}

TEST(PickFilter, KeepsEveryKindApart) {
    for (const drawing::Kind kind : drawing::kAllKinds) {
        SelDescrimT filter;
        runtime::admit(filter, static_cast<int>(kind));
        for (const drawing::Kind other : drawing::kAllKinds)
            EXPECT_EQ(runtime::kindsIn(filter).has(other), other == kind);
    }
    EXPECT_EQ(runtime::kindsIn(runtime::filterOf(drawing::KindSet::all())), drawing::KindSet::all());
}

TEST(PickFilter, IgnoresNumbersBeyondItsBits) {
    // What went beyond the bits of the first would be in the second.
    std::array<SelDescrimT, 2> filters;
    for (const int beyond : {-1, 256, 257, 300})
        runtime::admit(filters[0], beyond);
    EXPECT_THAT(filters, testing::Each(descrimAllOff));
    for (const int last : {0, 255}) {
        SelDescrimT one;
        runtime::admit(one, last);
        EXPECT_NE(one, descrimAllOff) << last;
    }
}

using ObjToPolyTest = tests::HostTest;

TEST_F(ObjToPolyTest, MakesAPolygonOfAnythingWithAnInside) {
    // No drawing is needed for an object that is in none.
    runtime::DrawingWindow window{drawing::Drawing::create(100, 100), process_};
    drawing::Object ellipse;
    ellipse.kind = drawing::Kind::Ellipse;
    ellipse.outline = drawing::ellipsePath({50, 50}, 40, 20);
    window.drawing().insert(0, sealed(std::move(ellipse)));
    CTessObjList list;
    long index = 0;
    ASSERT_TRUE(PickObj(&window.ref(), {50, 50}, index, list));
    const TessObject object = list[0];
    TessObject polygon;
    ObjToPoly(&object, polygon, 0.07);
    EXPECT_EQ(polygon.WhatObject(), static_cast<short>(drawing::Kind::Polygon));
    EXPECT_NEAR(polygon.BBox().Width(), 80, 0.2);
    EXPECT_NEAR(polygon.BBox().Height(), 40, 0.2);
    RecoverObject(polygon);
    EXPECT_EQ(polygon.WhatObject(), 0);
    ObjToPoly(nullptr, polygon, 0.07);
    EXPECT_EQ(polygon.WhatObject(), 0);
    ObjToPoly(&object, polygon, 0);
    EXPECT_EQ(polygon.WhatObject(), 0);
}

} // namespace
