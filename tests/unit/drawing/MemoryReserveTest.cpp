// Memory that is kept so that changes of drawings are finished, or not begun.
#include "easel/memory/MemoryReserve.h"

#include "easel/drawing/SelectedGradients.h"
#include "easel/drawing/WholeChange.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <vector>

namespace {

using namespace easel::drawing;
using namespace easel::memory;

bool gHasMemory = true;

void* ifThereIsAny(std::size_t bytes) {
    return gHasMemory ? std::malloc(bytes) : nullptr;
}

ObjectPtr square(double at) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath({at, at, at + 10, at + 10});
    object.fillPattern = FillPattern::SolidBlack;
    return sealed(std::move(object));
}

class MemoryReserveTest : public testing::Test {
  protected:
    MemoryReserveTest() {
        for (std::size_t i = 0; i < drawing_.size(); ++i)
            drawing_.select(i);
    }
    ~MemoryReserveTest() override { gHasMemory = true; }

    // `new` finds no memory from now on, and has found none for something small.
    static void runOut() {
        gHasMemory = false;
        std::get_new_handler()();
    }
    static std::vector<ObjectPtr> objectsOf(const Drawing& drawing) {
        std::vector<ObjectPtr> all;
        drawing.forEach([&](const ObjectPtr& object) { all.push_back(object); });
        return all;
    }
    void expectAsBefore() {
        EXPECT_EQ(objectsOf(drawing_), before_);
        EXPECT_EQ(drawing_.selection(), (std::vector<std::size_t>{0, 1, 2}));
        EXPECT_EQ(drawing_.undoLevels(), 0U);
        EXPECT_FALSE(drawing_.dirty());
        EXPECT_EQ(drawing_.pick({155, 155}, 0, KindSet::all()), 2U);
    }

    MemoryReserve reserve_{ifThereIsAny};
    Drawing drawing_{200, 200, {square(0), square(50), square(150)}, nullptr, {}};
    const std::vector<ObjectPtr> before_ = objectsOf(drawing_);
};

TEST_F(MemoryReserveTest, IsGivenOutPieceByPieceAndThenThereIsNone) {
    gHasMemory = false;
    for (int i = 0; i < 8; ++i)
        EXPECT_NO_THROW(std::get_new_handler()());
    EXPECT_THROW(std::get_new_handler()(), std::bad_alloc);
    EXPECT_FALSE(memoryIsLeft());
    gHasMemory = true;
    EXPECT_TRUE(memoryIsLeft());
    EXPECT_NO_THROW(std::get_new_handler()());
}

TEST_F(MemoryReserveTest, NoChangeBeginsOnceItIsTouchedAndAllGoOnWhenThereIsMemoryAgain) {
    drawing_.prepareUndo(1);
    runOut();
    EXPECT_THROW(drawing_.erase(0), std::bad_alloc);
    EXPECT_THROW(drawing_.insert(0, square(20)), std::bad_alloc);
    EXPECT_THROW(drawing_.undo(), std::bad_alloc);
    EXPECT_THROW(drawing_.redo(), std::bad_alloc);
    expectAsBefore();
    gHasMemory = true;
    drawing_.erase(0);
    EXPECT_EQ(drawing_.size(), 2U);
    EXPECT_TRUE(drawing_.undo());
    EXPECT_TRUE(drawing_.redo());
    EXPECT_EQ(drawing_.size(), 2U);
}

TEST_F(MemoryReserveTest, AChangeOfManyObjectsIsTakenBackWhenMemoryEndsInTheMiddle) {
    // Exchanging an object is heard twice.
    int heard = 0;
    drawing_.setChangeListener([&](const Box&) {
        if (++heard == 4)
            runOut();
    });
    EXPECT_THROW(changeSelectedObjects(drawing_, PaintStep::Fill,
                                       [](Object& object) { object.setFillPattern(FillPattern::None); }),
                 std::bad_alloc);
    EXPECT_GE(heard, 4);
    expectAsBefore();
}

TEST_F(MemoryReserveTest, TheStepBeforeStaysWhenAnotherDoesNotEvenBegin) {
    drawing_.prepareUndo(1);
    drawing_.erase(0);
    EXPECT_THROW(changeWholly(drawing_, [] { throw std::runtime_error("early"); }), std::runtime_error);
    EXPECT_EQ(drawing_.size(), 2U);
    EXPECT_EQ(drawing_.undoLevels(), 1U);
}

} // namespace
