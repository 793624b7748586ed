// Undo, redo and what counts as saved, when steps and changes outside of steps meet.
#include "easel/drawing/Drawing.h"
#include "easel/drawing/Filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace easel::drawing;

ObjectPtr boxed(const std::string& id, const Box& box) {
    Object object;
    object.kind = Kind::Rect;
    object.id = id;
    object.outline = rectanglePath(box);
    return sealed(std::move(object));
}

ObjectPtr letter(const std::string& id) {
    return boxed(id, {0, 0, 10, 10});
}

std::string lettersOf(const Drawing& drawing) {
    std::string result;
    drawing.forEach([&](const ObjectPtr& object) { result += object->id.text(); });
    return result;
}

class DrawingHistory : public testing::Test {
  protected:
    // One step that takes out the object at the back.
    void eraseInAStep() {
        drawing_.prepareUndo(1);
        drawing_.erase(0);
        drawing_.closeUndo();
    }

    Drawing drawing_{100, 100, {letter("a"), letter("b"), letter("c")}, nullptr, {}};
};

TEST_F(DrawingHistory, EditsOfOneStepAreUndoneInTheOppositeOrder) {
    drawing_.prepareUndo(1);
    drawing_.erase(0);
    drawing_.insert(2, letter("d"));
    drawing_.erase(0);
    drawing_.insert(0, letter("e"));
    drawing_.insert(1, letter("f"));
    EXPECT_EQ(lettersOf(drawing_), "efcd");
    EXPECT_TRUE(drawing_.undo());
    EXPECT_EQ(lettersOf(drawing_), "abc");
    EXPECT_TRUE(drawing_.redo());
    EXPECT_EQ(lettersOf(drawing_), "efcd");
}

TEST_F(DrawingHistory, EachPreparedUndoIsAStepOfItsOwn) {
    eraseInAStep();
    drawing_.prepareUndo(2);
    drawing_.erase(0);
    EXPECT_EQ(drawing_.undoKind(), 2);
    EXPECT_EQ(drawing_.undoLevels(), 2U);
    drawing_.undo();
    EXPECT_EQ(lettersOf(drawing_), "bc");
    EXPECT_EQ(drawing_.undoLevels(), 1U);
    EXPECT_EQ(drawing_.redoLevels(), 1U);
    drawing_.erase(0);
    EXPECT_EQ(drawing_.undoLevels(), 1U) << "undoing closes the step";
}

TEST_F(DrawingHistory, AStepClosedBeforeAChangeIsNone) {
    drawing_.prepareUndo(1);
    drawing_.closeUndo();
    drawing_.erase(0);
    EXPECT_EQ(drawing_.undoLevels(), 0U);
    EXPECT_FALSE(drawing_.undo());
    EXPECT_FALSE(drawing_.takeBack());
    EXPECT_EQ(lettersOf(drawing_), "bc");
}

TEST_F(DrawingHistory, AStepFindsItsPlaceAmongFewerObjectsThanItKnew) {
    drawing_.prepareUndo(1);
    drawing_.erase(2);
    drawing_.closeUndo();
    drawing_.erase(0);
    drawing_.erase(0);
    EXPECT_TRUE(drawing_.undo());
    EXPECT_EQ(lettersOf(drawing_), "c");
}

TEST_F(DrawingHistory, AnInsertedObjectThatIsGoneIsNotTakenOutAgain) {
    drawing_.prepareUndo(1);
    drawing_.insert(1, letter("d"));
    drawing_.closeUndo();
    drawing_.erase(1);
    EXPECT_TRUE(drawing_.undo());
    EXPECT_EQ(lettersOf(drawing_), "abc");
    EXPECT_TRUE(drawing_.redo());
    EXPECT_EQ(lettersOf(drawing_), "adbc");
}

TEST_F(DrawingHistory, ASelectionComesBackAsFarAsItsObjectsAreThere) {
    drawing_.select(0);
    drawing_.select(1);
    drawing_.prepareUndo(1);
    drawing_.erase(2);
    drawing_.closeUndo();
    drawing_.unselectAll();
    drawing_.erase(0);
    drawing_.undo();
    EXPECT_EQ(lettersOf(drawing_), "bc");
    EXPECT_EQ(drawing_.selection(), std::vector<std::size_t>{0});
}

TEST_F(DrawingHistory, TheSelectionIsToldFromTheBackWhateverCameFirst) {
    drawing_.insert(0, letter("d"));
    for (const std::size_t index : {2U, 0U, 1U})
        drawing_.select(index);
    EXPECT_EQ(drawing_.selection(), (std::vector<std::size_t>{0, 1, 2}));
    drawing_.erase(1);
    EXPECT_EQ(drawing_.selection(), (std::vector<std::size_t>{0, 1}))
        << "what is erased is selected no longer";
}

TEST_F(DrawingHistory, NoTwoStatesHaveOneRevision) {
    std::set<std::uint64_t> revisions{drawing_.revision()};
    const auto isNew = [&] { return revisions.insert(drawing_.revision()).second; };
    eraseInAStep();
    EXPECT_TRUE(isNew());
    drawing_.insert(0, letter("x"));
    EXPECT_TRUE(isNew());
    drawing_.undo();
    EXPECT_TRUE(isNew()) << "what was inserted is still there";
    drawing_.insert(0, letter("y"));
    EXPECT_TRUE(isNew());
    drawing_.redo();
    EXPECT_TRUE(isNew()) << "and here too";
    drawing_.amend(0, letter("z"));
    EXPECT_TRUE(isNew());
    eraseInAStep();
    EXPECT_TRUE(isNew());
    drawing_.insert(0, letter("w"));
    EXPECT_TRUE(isNew());
    EXPECT_TRUE(drawing_.takeBack());
    EXPECT_TRUE(isNew());
    EXPECT_TRUE(drawing_.dirty());
}

TEST_F(DrawingHistory, ARevisionComesBackWithUndoRedoAndTakingBack) {
    const auto first = drawing_.revision();
    eraseInAStep();
    const auto second = drawing_.revision();
    drawing_.undo();
    EXPECT_EQ(drawing_.revision(), first);
    drawing_.redo();
    EXPECT_EQ(drawing_.revision(), second);
    eraseInAStep();
    EXPECT_TRUE(drawing_.takeBack());
    EXPECT_EQ(drawing_.revision(), second);
}

TEST_F(DrawingHistory, WhatWasUndoneOrDoneAgainIsNotTakenBack) {
    eraseInAStep();
    eraseInAStep();
    drawing_.undo();
    EXPECT_FALSE(drawing_.takeBack());
    EXPECT_EQ(lettersOf(drawing_), "bc");
    drawing_.redo();
    EXPECT_FALSE(drawing_.takeBack());
    EXPECT_EQ(lettersOf(drawing_), "c");
}

TEST_F(DrawingHistory, AChangeAfterTakingBackStartsNoNewStepByItself) {
    eraseInAStep();
    drawing_.prepareUndo(1);
    drawing_.erase(0);
    EXPECT_TRUE(drawing_.takeBack());
    drawing_.erase(1);
    EXPECT_EQ(drawing_.undoLevels(), 1U);
    drawing_.undo();
    EXPECT_EQ(lettersOf(drawing_), "ab") << "the second erasure belonged to no step";
}

TEST_F(DrawingHistory, TwoEqualInsertionsAreAChange) {
    drawing_.prepareUndo(1);
    drawing_.insert(0, letter("d"));
    drawing_.insert(0, letter("d"));
    EXPECT_TRUE(drawing_.dirty());
}

TEST_F(DrawingHistory, AnAmendedObjectIsNoStepAndEndsTheOneThatIsOpen) {
    drawing_.select(1);
    drawing_.prepareUndo(1);
    drawing_.erase(0);
    drawing_.amend(0, boxed("B", {50, 50, 60, 60}));
    drawing_.erase(1);
    EXPECT_EQ(lettersOf(drawing_), "B");
    EXPECT_TRUE(drawing_.selected(0)) << "in the place of the selected one";
    EXPECT_EQ(drawing_.undoLevels(), 1U);
    drawing_.undo();
    EXPECT_EQ(lettersOf(drawing_), "aB");
    EXPECT_TRUE(drawing_.dirty());
}

TEST_F(DrawingHistory, AnAmendedObjectIsFoundAtItsNewPlaceAlone) {
    drawing_.amend(1, boxed("B", {50, 50, 60, 60}));
    EXPECT_EQ(drawing_.objectsWithin({45, 45, 55, 55}).size(), 1U);
    EXPECT_EQ(drawing_.objectsWithin({5, 5, 6, 6}).size(), 2U);
    EXPECT_EQ(drawing_.pick({55, 55}, 0, KindSet::all()), 1U);
    EXPECT_TRUE(drawing_.dirty());
}

TEST(DrawingPlaces, TheListenerHearsOfAnObjectAndOfWhereItsFilterShowsIt) {
    Group group;
    group.filter = std::make_shared<const Filter>(Filter{{}, {0, 0, 20, 30}, Affine::translation(100, 100)});
    Object object;
    object.outline = rectanglePath({10, 10, 20, 20});
    object.group = makeShared<const Group>(group);
    Drawing drawing(200, 200, {sealed(object)}, nullptr, {});
    Box told;
    drawing.setChangeListener([&](const Box& area) { told.add(area); });
    drawing.select(0);
    EXPECT_EQ(told, (Box{2, 2, 128, 138}));
    EXPECT_EQ(drawing.objectsWithin({110, 110, 111, 111}).size(), 1U);
    EXPECT_TRUE(drawing.objectsWithin({12, 12, 15, 15}).empty());
    drawing.erase(0);
    EXPECT_TRUE(drawing.objectsWithin({0, 0, 200, 200}).empty());
}

// The distance from a rectangle, 0 inside.
double distanceFrom(const Box& box, Point p) {
    return std::hypot(std::max({box.left - p.x, p.x - box.right, 0.0}),
                      std::max({box.top - p.y, p.y - box.bottom, 0.0}));
}

TEST(DrawingPlaces, PicksAndFindsWhatALookAtEachObjectWould) {
    std::mt19937 random(8);
    const auto number = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random);
    };
    std::vector<ObjectPtr> objects;
    for (int i = 0; i < 400; ++i) {
        const Point at{number(0, 1000), number(0, 1000)};
        objects.push_back(boxed(std::to_string(i), {at.x, at.y, at.x + number(0, 80), at.y + number(0, 80)}));
    }
    Drawing drawing(1000, 1000, {objects.begin() + 200, objects.end()}, nullptr, {});
    for (std::size_t i = 0; i < 200; ++i)
        drawing.insert(i, objects[i]);
    for (int round = 0; round < 300; ++round) {
        const Point p{number(-20, 1100), number(-20, 1100)};
        const double reach = number(0, 9);
        std::optional<std::size_t> front;
        for (std::size_t i = 0; i < objects.size(); ++i)
            if (distanceFrom(objects[i]->bounds, p) <= reach)
                front = i;
        EXPECT_EQ(drawing.pick(p, reach, KindSet::all()), front) << round;
        const Box area{p.x, p.y, p.x + number(0, 900), p.y + number(0, 900)};
        std::vector<ObjectPtr> within;
        for (const ObjectPtr& object : objects)
            if (object->bounds.overlaps(area))
                within.push_back(object);
        EXPECT_EQ(drawing.objectsWithin(area), within) << round;
    }
}

} // namespace
