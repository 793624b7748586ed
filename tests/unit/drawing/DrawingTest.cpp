// Drawings: order, picking, selection, undo and what has to be repainted.
#include "easel/drawing/Drawing.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace easel::drawing;

ObjectPtr rectangle(const std::string& id, const Box& box) {
    Object object;
    object.kind = Kind::Rect;
    object.id = id;
    object.outline = rectanglePath(box);
    object.fillPattern = FillPattern::SolidBlack;
    return sealed(std::move(object));
}

Drawing threeRectangles() {
    return {
        100,
        100,
        {rectangle("a", {0, 0, 40, 40}), rectangle("b", {20, 20, 60, 60}), rectangle("c", {50, 50, 90, 90})},
        nullptr,
        {}};
}

std::string ids(const Drawing& drawing) {
    std::string result;
    drawing.forEach([&](const ObjectPtr& object) { result += object->id.text(); });
    return result;
}

TEST(Drawing, PickTakesTheFrontMostObjectUnderThePoint) {
    const Drawing drawing = threeRectangles();
    EXPECT_EQ(drawing.pick({30, 30}, 3, KindSet::all()), 1U);
    EXPECT_EQ(drawing.pick({55, 55}, 3, KindSet::all()), 2U);
    EXPECT_EQ(drawing.pick({5, 5}, 3, KindSet::all()), 0U);
}

TEST(Drawing, PickReachesThreePixelsBeyondTheOutline) {
    const Drawing drawing = threeRectangles();
    EXPECT_EQ(drawing.pick({92.9, 70}, 3, KindSet::all()), 2U);
    EXPECT_EQ(drawing.pick({93.1, 70}, 3, KindSet::all()), std::nullopt);
}

TEST(Drawing, PickPassesOverKindsThatTheFilterLeavesOut) {
    Drawing drawing = threeRectangles();
    Object line;
    line.kind = Kind::Line;
    line.outline = polylinePath({{0, 0}, {100, 100}});
    drawing.insert(3, sealed(line));
    KindSet rectangles;
    rectangles.add(Kind::Rect);
    EXPECT_EQ(drawing.pick({30, 30}, 3, rectangles), 1U);
    EXPECT_EQ(drawing.pick({30, 30}, 3, KindSet::all()), 3U);
    EXPECT_EQ(drawing.pick({30, 30}, 3, KindSet::none()), std::nullopt);
}

TEST(Drawing, DeletionAndInsertionUnderOnePreparedUndoAreOneStep) {
    Drawing drawing = threeRectangles();
    drawing.select(0);
    drawing.prepareUndo(3);
    drawing.erase(1);
    drawing.insert(1, rectangle("B", {20, 20, 60, 60}));
    drawing.unselectAll();
    drawing.select(1);
    EXPECT_EQ(drawing.undoLevels(), 1U);
    EXPECT_TRUE(drawing.dirty());

    EXPECT_TRUE(drawing.undo());
    EXPECT_EQ(ids(drawing), "abc");
    EXPECT_EQ(drawing.selection(), std::vector<std::size_t>{0});
    EXPECT_FALSE(drawing.dirty());
    EXPECT_EQ(drawing.undoLevels(), 0U);
    EXPECT_EQ(drawing.redoLevels(), 1U);

    EXPECT_TRUE(drawing.redo());
    EXPECT_EQ(ids(drawing), "aBc");
    EXPECT_EQ(drawing.selection(), std::vector<std::size_t>{1});
    EXPECT_FALSE(drawing.redo());
}

TEST(Drawing, APreparedUndoWithoutAChangeIsNoStep) {
    Drawing drawing = threeRectangles();
    EXPECT_EQ(drawing.undoKind(), std::nullopt);
    drawing.prepareUndo(3);
    EXPECT_EQ(drawing.undoKind(), 3);
    EXPECT_EQ(drawing.undoLevels(), 0U);
    EXPECT_FALSE(drawing.undo());
}

TEST(Drawing, AChangeAfterUndoForgetsWhatCouldBeRedone) {
    Drawing drawing = threeRectangles();
    drawing.prepareUndo(1);
    drawing.erase(0);
    drawing.undo();
    drawing.prepareUndo(1);
    EXPECT_EQ(drawing.redoLevels(), 1U);
    drawing.erase(2);
    EXPECT_EQ(drawing.redoLevels(), 0U);
}

TEST(Drawing, ChangesOutsideAStepAreNotUndoneAndLeaveTheDrawingDirty) {
    Drawing drawing = threeRectangles();
    drawing.prepareUndo(1);
    drawing.erase(0);
    drawing.closeUndo();
    drawing.insert(0, rectangle("z", {0, 0, 1, 1}));
    EXPECT_EQ(drawing.undoLevels(), 1U);
    drawing.undo();
    EXPECT_EQ(ids(drawing), "azbc");
    EXPECT_TRUE(drawing.dirty());
}

TEST(Drawing, SavingMakesTheDrawingCleanAndUndoingBeyondItDirty) {
    Drawing drawing = threeRectangles();
    drawing.prepareUndo(1);
    drawing.erase(0);
    drawing.markSaved();
    EXPECT_FALSE(drawing.dirty());
    drawing.undo();
    EXPECT_TRUE(drawing.dirty());
    drawing.redo();
    EXPECT_FALSE(drawing.dirty());
}

TEST(Drawing, EachChangeTellsTheAreaToRepaint) {
    Drawing drawing = threeRectangles();
    Box told;
    drawing.setChangeListener([&](const Box& area) { told.add(area); });
    drawing.erase(2);
    EXPECT_TRUE(told.contains({50, 50}) && told.contains({90, 90}));
    EXPECT_FALSE(told.contains({20, 20}));
}

TEST(Drawing, AreaQueriesGiveObjectsBackToFront) {
    const Drawing drawing = threeRectangles();
    const auto objects = drawing.objectsWithin({30, 30, 55, 55});
    ASSERT_EQ(objects.size(), 3U);
    EXPECT_EQ(objects[0]->id.text() + objects[1]->id.text() + objects[2]->id.text(), "abc");
    EXPECT_TRUE(drawing.objectsWithin({95, 0, 99, 5}).empty());
}

// A plain list does the same edits; undoing and redoing everything must retrace every state.
TEST(Drawing, RandomEditsMatchAPlainListAndUndoRetracesEveryState) {
    std::mt19937 random(11);
    Drawing drawing = Drawing::create(100, 100);
    std::vector<ObjectPtr> plain;
    std::vector<std::vector<ObjectPtr>> states{plain};
    for (int round = 0; round < 3000; ++round) {
        drawing.prepareUndo(1);
        const bool erases = !plain.empty() && random() % 3 == 0;
        const std::size_t index = random() % (plain.size() + (erases ? 0 : 1));
        const auto at = plain.begin() + static_cast<std::ptrdiff_t>(index);
        if (erases) {
            drawing.erase(index);
            plain.erase(at);
        } else {
            const double x = static_cast<double>(random() % 90);
            const ObjectPtr object = rectangle(std::to_string(round), {x, x, x + 5, x + 5});
            drawing.insert(index, object);
            plain.insert(at, object);
        }
        states.push_back(plain);
    }
    const auto present = [&drawing] {
        std::vector<ObjectPtr> list;
        drawing.forEach([&](const ObjectPtr& object) { list.push_back(object); });
        return list;
    };
    for (std::size_t i = states.size(); i-- > 0;) {
        ASSERT_EQ(present(), states[i]);
        for (std::size_t k = i % 37; k < drawing.size(); k += 370) {
            ASSERT_EQ(drawing.object(k), states[i][k]);
        }
        ASSERT_EQ(drawing.undo(), i > 0);
    }
    for (std::size_t i = 1; i < states.size(); ++i) {
        ASSERT_TRUE(drawing.redo());
        ASSERT_EQ(drawing.size(), states[i].size());
    }
    EXPECT_EQ(present(), states.back());
}

TEST(Drawing, WhatIsTakenBackIsNoStepAndLeavesRedoAsItWas) {
    Drawing drawing = threeRectangles();
    drawing.prepareUndo(3);
    drawing.erase(0);
    drawing.undo();
    drawing.select(1);
    drawing.prepareUndo(3);
    drawing.unselectAll();
    drawing.erase(2);
    drawing.closeUndo();
    EXPECT_TRUE(drawing.takeBack());
    EXPECT_EQ(ids(drawing), "abc");
    EXPECT_TRUE(drawing.selected(1));
    EXPECT_FALSE(drawing.dirty());
    EXPECT_EQ(drawing.undoLevels(), 0U);
    EXPECT_FALSE(drawing.takeBack()) << "once";
    EXPECT_TRUE(drawing.redo());
    EXPECT_EQ(ids(drawing), "bc") << "what was undone before, not what was taken back";
}

TEST(Drawing, AnEarlierStepIsNotTakenBack) {
    Drawing drawing = threeRectangles();
    drawing.prepareUndo(3);
    drawing.erase(0);
    drawing.prepareUndo(3);
    EXPECT_FALSE(drawing.takeBack()) << "nothing changed since";
    EXPECT_EQ(ids(drawing), "bc");
    EXPECT_EQ(drawing.undoLevels(), 1U);
}

std::string ids(const Snapshot& snapshot) {
    std::string result;
    snapshot.forEach([&](const ObjectPtr& object) { result += object->id.text(); });
    return result;
}

TEST(Drawing, ASnapshotStaysAsItWasWhileTheDrawingChanges) {
    Drawing drawing = threeRectangles();
    const Snapshot before = drawing.snapshot();
    drawing.amend(1, rectangle("B", {0, 0, 5, 5}));
    drawing.erase(0);
    drawing.insert(0, rectangle("x", {0, 0, 5, 5}));
    const Snapshot after = drawing.snapshot();
    drawing.erase(2);
    EXPECT_EQ(ids(before), "abc");
    EXPECT_EQ(ids(after), "xBc");
    EXPECT_EQ(ids(drawing), "xB");
    EXPECT_EQ(before.width, 100);
}

TEST(Drawing, ASnapshotSharesItsObjects) {
    const Drawing drawing = threeRectangles();
    const auto uses = drawing.object(0).useCount();
    const Snapshot snapshot = drawing.snapshot();
    EXPECT_EQ(drawing.object(0).useCount(), uses);
}

TEST(Drawing, ARevisionComesBackWithItsState) {
    Drawing drawing = threeRectangles();
    const auto before = drawing.revision();
    drawing.prepareUndo(3);
    drawing.erase(0);
    EXPECT_NE(drawing.revision(), before);
    drawing.undo();
    EXPECT_EQ(drawing.revision(), before);
}

TEST(Drawing, WhatWasNeverSavedIsDirtyInEveryState) {
    Drawing drawing = threeRectangles();
    drawing.markUnsaved();
    EXPECT_TRUE(drawing.dirty());
    drawing.prepareUndo(3);
    drawing.erase(0);
    drawing.undo();
    EXPECT_TRUE(drawing.dirty());
    drawing.markSaved();
    EXPECT_FALSE(drawing.dirty());
}

} // namespace
