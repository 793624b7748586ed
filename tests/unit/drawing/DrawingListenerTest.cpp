// What a drawing tells its listener to paint anew, and finding objects by their ids and the selection.
#include "easel/drawing/Drawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace easel::drawing;

ObjectPtr square(const std::string& id, double at) {
    Object object;
    object.kind = Kind::Rect;
    object.id = id;
    object.outline = rectanglePath({at, at, at + 10, at + 10});
    object.fillPattern = FillPattern::SolidBlack;
    return sealed(std::move(object));
}

class DrawingListener : public testing::Test {
  protected:
    DrawingListener() {
        drawing_.setChangeListener([this](const Box& area) { told_.push_back(area); });
    }

    // Whether just the squares that begin at these places were told since the last call, with a margin for
    // what marks them.
    void expectTold(const std::vector<double>& places) {
        std::vector<Box> areas;
        areas.reserve(places.size());
        for (const double at : places)
            areas.push_back(Box{at, at, at + 10, at + 10}.grownBy(8));
        EXPECT_EQ(told_, areas);
        told_.clear();
    }

    Drawing drawing_{
        200, 200, {square("a", 0), square("b", 50), square("c", 100), square("b", 150)}, nullptr, {}};

  private:
    std::vector<Box> told_;
};

TEST_F(DrawingListener, HearsWhatIsPutInTakenOutAndExchanged) {
    drawing_.insert(1, square("new", 30));
    expectTold({30});
    drawing_.erase(0);
    expectTold({0});
    drawing_.amend(1, square("b", 70));
    expectTold({50, 70});
}

TEST_F(DrawingListener, HearsOfAnObjectOnlyWhenItsSelectionChanges) {
    drawing_.select(1);
    expectTold({50});
    drawing_.select(1);
    expectTold({});
    drawing_.unselect(2);
    expectTold({});
    drawing_.unselect(1);
    expectTold({50});
    drawing_.select(0);
    drawing_.select(2);
    expectTold({0, 100});
    drawing_.invalidateSelection();
    expectTold({0, 100});
    drawing_.unselectAll();
    expectTold({0, 100});
    EXPECT_FALSE(drawing_.hasSelection());
}

TEST_F(DrawingListener, HearsOfBothSelectionsWhenAStepIsUndone) {
    drawing_.select(0);
    drawing_.prepareUndo(1);
    drawing_.erase(2);
    drawing_.unselectAll();
    drawing_.select(1);
    expectTold({0, 100, 0, 50});
    drawing_.undo();
    expectTold({100, 50, 0});
}

TEST(DrawingListenerAsking, FindsTheDrawingAsItIsAfterTheChange) {
    Drawing drawing(200, 200, {square("a", 0), square("b", 100)}, nullptr, {});
    std::vector<std::size_t> found;
    drawing.setChangeListener([&](const Box& area) { found.push_back(drawing.objectsWithin(area).size()); });
    drawing.erase(0);
    EXPECT_EQ(found.back(), 0U);
    drawing.insert(0, square("c", 50));
    EXPECT_EQ(found.back(), 1U);
    drawing.amend(0, square("d", 150));
    EXPECT_EQ(found, (std::vector<std::size_t>{0, 1, 0, 1})) << "where it was and where it is";
}

TEST_F(DrawingListener, FindsTheFirstObjectFromTheBackByItsId) {
    EXPECT_EQ(drawing_.indexOfId("a"), 0U);
    EXPECT_EQ(drawing_.indexOfId("b"), 1U);
    EXPECT_EQ(drawing_.indexOfId("z"), std::nullopt);
}

TEST_F(DrawingListener, GivesAsManySelectedObjectsAsAreAskedFor) {
    EXPECT_TRUE(drawing_.someSelected(3).empty());
    for (const std::size_t index : {0U, 2U, 3U})
        drawing_.select(index);
    EXPECT_EQ(drawing_.someSelected(2).size(), 2U);
    EXPECT_EQ(drawing_.someSelected(9).size(), 3U);
    EXPECT_TRUE(drawing_.someSelected(0).empty());
}

TEST(History, AnEqualObjectPutBackInItsPlaceIsNoChangeThatHasToBeSaved) {
    Drawing drawing(100, 100, {square("a", 0), square("b", 50)}, nullptr, {});
    const ObjectPtr before = drawing.object(0);
    drawing.prepareUndo(1);
    drawing.erase(0);
    drawing.insert(0, before);
    EXPECT_FALSE(drawing.dirty());
    drawing.undo();
    EXPECT_FALSE(drawing.dirty());
    drawing.redo();
    EXPECT_FALSE(drawing.dirty());
}

TEST(History, AnotherObjectOrAnotherPlaceIsAChange) {
    Drawing drawing(100, 100, {square("a", 0), square("b", 50)}, nullptr, {});
    const ObjectPtr before = drawing.object(0);
    drawing.prepareUndo(1);
    drawing.erase(0);
    drawing.insert(1, before);
    EXPECT_TRUE(drawing.dirty());
    drawing.erase(0);
    drawing.insert(0, square("b", 50));
    EXPECT_TRUE(drawing.dirty()) << "the step moved an object before";
}

} // namespace
