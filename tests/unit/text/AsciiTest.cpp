// Blanks, digits and letters without a locale.
#include "easel/text/Ascii.h"

#include <gtest/gtest.h>

namespace easel::text {
namespace {

TEST(Ascii, OnlyLettersAToZHaveTwoCases) {
    EXPECT_EQ(lowerCase("AZaz@[`{09-_"), "azaz@[`{09-_");
    EXPECT_EQ(lowerCase("\xC3\x84"), "\xC3\x84") << "the bytes of a letter with an accent are no letters";
    EXPECT_TRUE(equalIgnoringCase("LinearGradient", "lineargradient"));
    EXPECT_FALSE(equalIgnoringCase("@", "`"));
    EXPECT_FALSE(equalIgnoringCase("url", "url("));
}

TEST(Ascii, WordsAreFoundInEitherCase) {
    EXPECT_EQ(findIgnoringCase("a LineThrough b", "linethrough"), 2U);
    EXPECT_EQ(findIgnoringCase("aAb", "AB"), 1U);
    EXPECT_EQ(findIgnoringCase("fil", "fill"), std::string_view::npos);
    EXPECT_EQ(findIgnoringCase("", "a"), std::string_view::npos);
    EXPECT_EQ(findIgnoringCase("", ""), 0U);
}

TEST(Ascii, BlanksAreCutOffAtTheEndsOnly) {
    EXPECT_EQ(trimmed(" \t\r\n\f a b\v \n"), "a b\v");
    EXPECT_EQ(trimmed("  \n"), "");
    EXPECT_EQ(trimmed(""), "");
}

} // namespace
} // namespace easel::text
