// Calls on objects, places and lists that are empty or not there.
#include "easel/runtime/DrawingWindow.h"
#include "easel/runtime/HostObject.h"
#include "host/Objects.h"
#include "tests/support/HostTest.h"

#include <limits>

namespace {

namespace drawing = easel::drawing;

class AbsentObjectsTest : public tests::HostTest {
  protected:
    AbsentObjectsTest() {
        drawing::Object object;
        object.kind = drawing::Kind::Rect;
        object.outline = drawing::rectanglePath({10, 10, 30, 30});
        object.fill = drawing::ColorPaint{};
        object.fillPattern = drawing::FillPattern::SolidBlack;
        window_.drawing().insert(0, sealed(std::move(object)));
        long index = -1;
        EXPECT_TRUE(PickObj(&window_.ref(), {20, 20}, index, list_));
        EXPECT_EQ(index, 0);
    }

    easel::runtime::DrawingWindow window_{drawing::Drawing::create(100, 50), process_};
    CTessObjList list_;
};

TEST_F(AbsentObjectsTest, AnEmptyObjectHasNothingAndTakesNothing) {
    TessObject empty;
    empty.SetGradient({});
    empty.SetFillPattern(kBlackPat());
    EXPECT_EQ(empty.WhatObject(), 0);
    EXPECT_EQ(empty.BBox().Width(), 0);
    EXPECT_TRUE(!empty.GetGradient());
    EXPECT_EQ(empty.State(), nullptr);
}

TEST_F(AbsentObjectsTest, ACopyOfAnEmptyObjectIsEmpty) {
    TessObject copy = list_[0];
    EXPECT_NE(copy.WhatObject(), 0);
    CloneItem(nullptr, copy);
    EXPECT_EQ(copy.WhatObject(), 0);
    copy = list_[0];
    const TessObject empty;
    CloneItem(&empty, copy);
    EXPECT_EQ(copy.WhatObject(), 0);
}

TEST_F(AbsentObjectsTest, NoPolygonComesOfAnEmptyObjectNorOfAToleranceThatIsNone) {
    const TessObject rect = list_[0];
    TessObject polygon = rect;
    ObjToPoly(nullptr, polygon, 1);
    EXPECT_EQ(polygon.WhatObject(), 0);
    for (const double tolerance : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        polygon = rect;
        ObjToPoly(&rect, polygon, tolerance);
        EXPECT_EQ(polygon.WhatObject(), 0) << tolerance;
    }
    ObjToPoly(&rect, polygon, 0.5);
    EXPECT_EQ(polygon.WhatObject(), static_cast<short>(drawing::Kind::Polygon));
    EXPECT_EQ(polygon.BBox().Width(), 20);
}

TEST_F(AbsentObjectsTest, AListHasNoObjectsBesideThoseOfItsDrawing) {
    EXPECT_EQ(list_[-1].WhatObject(), 0);
    EXPECT_EQ(list_[1].WhatObject(), 0);
    EXPECT_EQ(CTessObjList()[0].WhatObject(), 0);
    DeleteUObj(-1, list_);
    DeleteUObj(1, list_);
    DeleteUObj(0, CTessObjList());
    SelObject(1, list_);
    EXPECT_EQ(window_.drawing().size(), 1U);
    EXPECT_TRUE(window_.drawing().selection().empty());
}

TEST_F(AbsentObjectsTest, WhatIsPutBeyondAnEndIsPutAtIt) {
    TessObject copy;
    const TessObject rect = list_[0];
    CloneItem(&rect, copy);
    copy.SetFillPattern(kBlackPat());
    ASSERT_NE(copy.State()->object, rect.State()->object);
    InsertObj(TessObject(), 0, list_);
    InsertObj(copy, 0, CTessObjList());
    EXPECT_EQ(window_.drawing().size(), 1U);
    InsertObj(copy, 9, list_);
    ASSERT_EQ(window_.drawing().size(), 2U);
    EXPECT_EQ(window_.drawing().object(1), copy.State()->object);
    InsertObj(copy, -9, list_);
    ASSERT_EQ(window_.drawing().size(), 3U);
    EXPECT_EQ(window_.drawing().object(0), copy.State()->object);
}

TEST_F(AbsentObjectsTest, NothingIsPickedWithoutAWindow) {
    long index = 7;
    CTessObjList list;
    EXPECT_FALSE(PickObj(nullptr, {20, 20}, index, list));
    EXPECT_EQ(index, 7);
    EXPECT_EQ(list.State(), nullptr);
}

} // namespace
