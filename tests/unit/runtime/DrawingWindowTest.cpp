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
    std::uint32_t pixel(int x, int y) const { return window.image().row(y)[x]; }

    static constexpr std::uint32_t kWhite = 0xffffffff;
    static constexpr std::uint32_t kBlack = 0xff000000;
    runtime::DrawingWindow window{drawing::Drawing::create(100, 50), process_};
};

TEST_F(DrawingWindowTest, ShowsChangesOnlyOnceTheyArePainted) {
    window.paintMarked();
    EXPECT_TRUE(window.marks().empty());
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    EXPECT_FALSE(window.marks().empty());
    EXPECT_EQ(pixel(15, 15), kWhite);
    window.paintMarked();
    EXPECT_EQ(pixel(15, 15), kBlack);
    EXPECT_EQ(pixel(25, 15), kWhite);
    window.drawing().erase(0);
    EXPECT_EQ(pixel(15, 15), kBlack);
    window.paintMarked();
    EXPECT_EQ(pixel(15, 15), kWhite);
}

TEST_F(DrawingWindowTest, PaintsThroughItsView) {
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    window.setView({.zoom = 2, .deviceScale = 1.5, .origin = {8, 9}, .width = 40, .height = 30});
    window.paintMarked();
    EXPECT_EQ(window.image().width(), 60);
    EXPECT_EQ(window.image().height(), 45);
    // The box begins two units right of and one below the corner, at three pixels per unit.
    EXPECT_EQ(pixel(5, 4), kWhite);
    EXPECT_EQ(pixel(6, 3), kBlack);
    EXPECT_EQ(pixel(35, 32), kBlack);
    EXPECT_EQ(pixel(36, 32), kWhite);
}

TEST_F(DrawingWindowTest, MarksAnAreaOnceHoweverOftenItChanges) {
    window.paintMarked();
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    window.drawing().select(0);
    window.drawing().invalidateSelection();
    ASSERT_EQ(window.marks().size(), 1U);
    const drawing::Box small = window.marks().front();
    window.drawing().erase(0);
    window.drawing().insert(0, blackBox({5, 5, 30, 30}));
    ASSERT_EQ(window.marks().size(), 1U);
    EXPECT_EQ(window.marks().front().intersection(small), small);
    EXPECT_GT(window.marks().front().right, small.right);
    window.drawing().insert(1, blackBox({80, 10, 85, 40}));
    EXPECT_EQ(window.marks().size(), 2U) << "another area is another mark";
    window.paintMarked();
    EXPECT_EQ(pixel(25, 25), kBlack);
    EXPECT_EQ(pixel(82, 25), kBlack);
}

TEST_F(DrawingWindowTest, PaintsManySmallChangesAllTheSame) {
    window.paintMarked();
    for (int i = 0; i < 40; ++i)
        window.drawing().insert(window.drawing().size(), blackBox({i * 2.0, 5, i * 2.0 + 1, 45}));
    window.paintMarked();
    for (int i = 0; i < 40; ++i) {
        EXPECT_EQ(pixel(2 * i, 25), kBlack);
        EXPECT_EQ(pixel(2 * i + 1, 25), kWhite);
    }
}

TEST_F(DrawingWindowTest, MarksWhatWasPaintedInTheBackgroundAndShowsItThen) {
    const std::string group =
        "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='50'><filter id='f' "
        "color-interpolation-filters='sRGB'><feFlood flood-color='#12c84a'/></filter>"
        "<rect width='40' height='40' filter='url(#f)'/></svg>";
    window.setDrawing(std::move(easel::svg::readBytes(group, "group.svg").value()));
    std::binary_semaphore ready(0);
    window.paintInBackground([&] { ready.release(); });
    window.paintMarked();
    EXPECT_EQ(pixel(70, 20), kWhite);
    ready.acquire();
    window.markReady();
    EXPECT_FALSE(window.marks().empty());
    window.paintMarked();
    EXPECT_EQ(pixel(20, 20), 0xff12c84a);
    window.drawing().erase(0);
    window.paintMarked();
    EXPECT_EQ(pixel(20, 20), kWhite);
    window.paintAtOnce();
    window.paintMarked();
    EXPECT_EQ(pixel(20, 20), kWhite);
}

TEST_F(DrawingWindowTest, RefusesAViewThatNoImageCanHold) {
    window.setView({.zoom = 1, .deviceScale = 1, .origin = {}, .width = 1e9, .height = 10});
    EXPECT_THROW(window.paintMarked(), std::length_error);
}

TEST_F(DrawingWindowTest, PicksFartherInDrawingUnitsWhenZoomedOut) {
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    EXPECT_FALSE(PickObj(&window.ref(), {25, 15}, index, list));
    EXPECT_EQ(index, -1);
    window.setView({.zoom = 0.5, .deviceScale = 1, .origin = {}, .width = 50, .height = 25});
    EXPECT_TRUE(PickObj(&window.ref(), {25, 15}, index, list));
    EXPECT_EQ(index, 0);
}

TEST_F(DrawingWindowTest, PicksOnlyWhatTheFilterAdmits) {
    window.drawing().insert(0, blackBox({10, 10, 20, 20}, drawing::Kind::Rect));
    window.drawing().insert(1, blackBox({10, 10, 20, 20}, drawing::Kind::Line));
    SelDescrimT before;
    GetSelDescrim(before);
    CTessObjList list;
    long index = -1;
    SetSelDescrim(descrimAllOff);
    EXPECT_FALSE(PickObj(&window.ref(), {15, 15}, index, list));
    SetOneSelDescrim(static_cast<short>(drawing::Kind::Rect));
    EXPECT_TRUE(PickObj(&window.ref(), {15, 15}, index, list));
    EXPECT_EQ(index, 0);
    SetSelDescrim(before);
    EXPECT_TRUE(PickObj(&window.ref(), {15, 15}, index, list));
    EXPECT_EQ(index, 1);
}

TEST_F(DrawingWindowTest, ChangesOfACloneLeaveTheDrawingAlone) {
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    ASSERT_TRUE(PickObj(&window.ref(), {15, 15}, index, list));
    const TessObject original = list[index];
    TessObject clone;
    CloneItem(&original, clone);
    clone.SetGradient(SharedResourcePtr<CGradient>(std::make_unique<CGradient>(CGradientData()).release()));
    EXPECT_NE(static_cast<const CGradient*>(clone.GetGradient()), nullptr);
    EXPECT_EQ(static_cast<const CGradient*>(original.GetGradient()), nullptr);
    EXPECT_EQ(static_cast<const CGradient*>(list[index].GetGradient()), nullptr);
}

TEST_F(DrawingWindowTest, IndicesThatAreNotThereChangeNothing) {
    window.drawing().insert(0, blackBox({10, 10, 20, 20}));
    CTessObjList list;
    long index = -1;
    ASSERT_TRUE(PickObj(&window.ref(), {15, 15}, index, list));
    for (const long wrong : {-1L, 1L, 1L << 40}) {
        EXPECT_EQ(list[wrong].WhatObject(), 0);
        DeleteUObj(wrong, list);
        SelObject(wrong, list);
    }
    InsertObj(TessObject(), 0, list);
    DeleteUObj(0, CTessObjList());
    EXPECT_EQ(window.drawing().size(), 1u);
    EXPECT_TRUE(window.drawing().selection().empty());
}

TEST_F(DrawingWindowTest, SnapsToCornersBeforeTheGridAndOnlyAsFarAsTheSwitchesSay) {
    using runtime::Switch;
    window.drawing().insert(0, blackBox({13, 13, 33, 33}));
    EXPECT_EQ(snapped(window, {14, 16}, {Switch::Off, Switch::Off}), (drawing::Point{14, 16}));
    EXPECT_EQ(snapped(window, {14, 16}, {Switch::On, Switch::Off}), (drawing::Point{10, 20}));
    EXPECT_EQ(snapped(window, {14, 16}, {Switch::Off, Switch::On}), (drawing::Point{13, 13}));
    EXPECT_EQ(snapped(window, {14, 16}, {Switch::On, Switch::On}), (drawing::Point{13, 13}));
    EXPECT_EQ(snapped(window, {23, 23}, {Switch::On, Switch::On}), (drawing::Point{20, 20}));
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
    SelDescrimT filter;
    runtime::admit(filter, -1);
    runtime::admit(filter, 256);
    EXPECT_EQ(filter, descrimAllOff);
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
