// A drag in a dialog that the user breaks off: what followed the mouse goes back to where it was.
#include "easel/runtime/DialogDrag.h"
#include "easel/runtime/Dialog.h"
#include "easel/runtime/Ports.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace easel::runtime {
namespace {

using Point = TPoint<double>;

class DialogDragTest : public testing::Test {
  protected:
    static DialogDescription description() {
        DialogDescription made{7, "Seven", 200, 100, {}};
        for (const auto& [number, kind] : {std::pair(1, ItemKind::EditText), {2, ItemKind::UserDrawn}}) {
            DialogItem item;
            item.number = number;
            item.kind = kind;
            made.items.push_back(item);
        }
        return made;
    }

    // One look of whoever follows the mouse, which sets the position.
    double follow(double before, double wanted) {
        drag_.followed(dialog_);
        return drag_.positionFor(before, wanted);
    }

    Ports ports_;
    Dialog dialog_{description(), {}, ports_};
    DialogDrag drag_;
};

TEST_F(DialogDragTest, WithoutAPressEverythingIsSetAsWanted) {
    drag_.followed(dialog_);
    EXPECT_EQ(drag_.positionFor(0.1, 0.2), 0.2);
    EXPECT_EQ(drag_.angleFor(1, 2), 2);
    EXPECT_EQ(drag_.startFor({0, 0}, {1, 1}), (Point{1, 1}));
    EXPECT_EQ(drag_.endFor({0, 0}, {1, 1}), (Point{1, 1}));
}

TEST_F(DialogDragTest, WhileItLastsEverythingFollowsTheMouse) {
    drag_.begin();
    EXPECT_EQ(follow(0.1, 0.4), 0.4);
    EXPECT_EQ(follow(0.4, 0.7), 0.7);
    EXPECT_EQ(drag_.angleFor(1, 2), 2);
    drag_.finish(dialog_);
    EXPECT_EQ(follow(0.7, 0.8), 0.8);
}

TEST_F(DialogDragTest, AStopGoesToTheFrontOfAllAndThenToWhereItWas) {
    drag_.begin();
    EXPECT_EQ(follow(0.25, 0.4), 0.4);
    EXPECT_EQ(follow(0.4, 0.7), 0.7);
    const auto steps = drag_.takeBack();
    EXPECT_EQ(steps.size(), 3U);
    EXPECT_EQ(std::adjacent_find(steps.begin(), steps.end()), steps.end()) << "each is a move of the mouse";
    std::vector<double> positions;
    for (std::size_t i = 0; i < steps.size(); ++i)
        positions.push_back(follow(0.7, 0.5));
    EXPECT_EQ(positions.front(), -1) << "before every stop that a ramp has";
    EXPECT_EQ(positions.back(), 0.25);
    EXPECT_EQ(follow(0.25, 0.5), 0.25) << "where it stays until the button goes up";
}

TEST_F(DialogDragTest, OnlyTheFirstValueAfterALookAtTheMouseIsTheDraggedOne) {
    drag_.begin();
    drag_.followed(dialog_);
    EXPECT_EQ(drag_.startFor({0.1, 0.1}, {0.5, 0.5}), (Point{0.5, 0.5}));
    EXPECT_EQ(drag_.endFor({0.2, 0.2}, {0.6, 0.6}), (Point{0.6, 0.6}));
    drag_.takeBack();
    drag_.followed(dialog_);
    EXPECT_EQ(drag_.startFor({0.5, 0.5}, {0.9, 0.9}), (Point{0.1, 0.1}));
    EXPECT_EQ(drag_.startFor({0.1, 0.1}, {0.9, 0.9}), (Point{0.9, 0.9})) << "something else sets it";
    EXPECT_EQ(drag_.endFor({0.6, 0.6}, {0.9, 0.9}), (Point{0.2, 0.2}));
    EXPECT_EQ(drag_.angleFor(3, 4), 3);
}

TEST_F(DialogDragTest, WhatIsSetWithThePressGoesBackToWhatWasBeforeIt) {
    drag_.begin();
    EXPECT_EQ(drag_.startFor({0.1, 0.1}, {0.5, 0.5}), (Point{0.5, 0.5}));
    EXPECT_EQ(drag_.endFor({0.2, 0.2}, {0.6, 0.6}), (Point{0.6, 0.6}));
    drag_.takeBack();
    drag_.followed(dialog_);
    EXPECT_EQ(drag_.startFor({0.5, 0.5}, {0.9, 0.9}), (Point{0.1, 0.1}));
    EXPECT_EQ(drag_.endFor({0.6, 0.6}, {0.9, 0.9}), (Point{0.2, 0.2}));
}

TEST_F(DialogDragTest, WhatIsDrawnIsDrawnAgainOnceAllIsBack) {
    for (const bool brokenOff : {false, true}) {
        dialog_.drawInvalidItems();
        drag_.begin();
        drag_.followed(dialog_);
        if (brokenOff)
            drag_.takeBack();
        drag_.finish(dialog_);
        EXPECT_EQ(dialog_.item(2)->invalid, brokenOff);
    }
}

TEST_F(DialogDragTest, AStopThatCameWithThePressIsPulledOffAgain) {
    drag_.begin();
    drag_.stopMade();
    drag_.followed(dialog_);
    const auto steps = drag_.takeBack();
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_GT(steps[0].v, 1000);
    // One that was made once the mouse was followed did not come with the press.
    drag_.begin();
    drag_.followed(dialog_);
    drag_.stopMade();
    EXPECT_EQ(drag_.takeBack().size(), 3U);
}

TEST_F(DialogDragTest, FieldsHaveTheirTextAgainUnlessTheStopIsGone) {
    for (const bool madeStop : {false, true}) {
        dialog_.setText(1, "12");
        drag_.begin();
        if (madeStop)
            drag_.stopMade();
        drag_.followed(dialog_);
        dialog_.setText(1, "34");
        drag_.takeBack();
        drag_.finish(dialog_);
        EXPECT_EQ(dialog_.item(1)->text, madeStop ? "34" : "12");
    }
    drag_.begin();
    drag_.followed(dialog_);
    dialog_.setText(1, "56");
    drag_.finish(dialog_);
    EXPECT_EQ(dialog_.item(1)->text, "56") << "nobody broke the drag off";
}

} // namespace
} // namespace easel::runtime
