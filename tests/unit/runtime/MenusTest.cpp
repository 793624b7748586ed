// The entries of a menu.
#include "easel/runtime/Menus.h"

#include <gtest/gtest.h>

namespace {

using easel::runtime::Menu;

TEST(Menu, AnEntryBetweenALineAndTheNameOfATemplateIsAHeading) {
    Menu menu;
    menu.append({"Save"});
    menu.append({"-", true, true});
    menu.append({"Templates"});
    EXPECT_FALSE(menu.isHeading(3)) << "nothing is below it";
    menu.append({"Dawn.GRD"});
    menu.append({"Sunset.GRD"});
    EXPECT_TRUE(menu.isHeading(3));
    for (const int other : {0, 1, 2, 4, 5, 6})
        EXPECT_FALSE(menu.isHeading(other)) << other;
    menu.setText(4, "Other");
    EXPECT_FALSE(menu.isHeading(3)) << "what follows is no template";
}

TEST(Menu, ANameThatFollowsAnotherEntryIsNotHeadedByIt) {
    Menu menu;
    menu.append({"Save"});
    menu.append({"Templates"});
    menu.append({"Dawn.GRD"});
    EXPECT_FALSE(menu.isHeading(2));
}

} // namespace
