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

TEST(Menu, AnEntryThatGoesLeavesTheOthersInTheirOrder) {
    Menu menu;
    for (const char* const text : {"One", "Two", "Three"})
        menu.append({text});
    menu.remove(2);
    EXPECT_EQ(menu.text(1), "One");
    EXPECT_EQ(menu.text(2), "Three");
    EXPECT_FALSE(menu.has(3));
    menu.remove(3);
    EXPECT_TRUE(menu.has(2)) << "there was no third one any more";
}

} // namespace
