// The syntax of items that are appended to a menu.
#include "easel/runtime/MenuSyntax.h"

#include <gtest/gtest.h>

namespace {

using easel::runtime::menuEntriesIn;
using easel::runtime::MenuEntry;

TEST(MenuSyntax, ATextWithoutSignsIsOneItem) {
    const std::vector<MenuEntry> entries = menuEntriesIn("a-b 100%");
    ASSERT_EQ(entries.size(), 1U);
    EXPECT_EQ(entries[0].text, "a-b 100%");
    EXPECT_TRUE(entries[0].enabled);
    EXPECT_FALSE(entries[0].separator);
}

TEST(MenuSyntax, SemicolonsAndLineBreaksSeparateItemsAndAHyphenAloneIsADivider) {
    const std::vector<MenuEntry> entries = menuEntriesIn("one;two\nthree\rfour;-");
    ASSERT_EQ(entries.size(), 5U);
    EXPECT_EQ(entries[0].text, "one");
    EXPECT_EQ(entries[3].text, "four");
    EXPECT_FALSE(entries[3].separator);
    EXPECT_TRUE(entries[4].separator);
}

TEST(MenuSyntax, SignsAreTakenOutOfTheTextWithTheCharactersTheyTakeAlong) {
    const std::vector<MenuEntry> entries = menuEntriesIn("(Op!xen/O;Sa<Bve^1 (as)/");
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].text, "Open");
    EXPECT_FALSE(entries[0].enabled);
    EXPECT_EQ(entries[1].text, "Save as)");
    EXPECT_FALSE(entries[1].enabled);
}

} // namespace
