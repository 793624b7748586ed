// The shorthand of a font, taken apart.
#include "easel/svg/style/FontShorthand.h"

#include <gtest/gtest.h>

using namespace easel::svg;

namespace {

TEST(FontShorthand, StatesWhatItNamesAndResetsTheRest) {
    const FontStatements font = parseFont("italic small-caps 600 semi-condensed 12px/1.5 'Some Font', serif");
    EXPECT_EQ(font.style, "italic");
    EXPECT_EQ(font.variant, "small-caps");
    EXPECT_EQ(font.weight, "600");
    EXPECT_EQ(font.stretch, "semi-condensed");
    EXPECT_EQ(font.size, "12px");
    EXPECT_EQ(font.families, "'Some Font', serif");
    const FontStatements plain = parseFont("normal normal 1em serif");
    for (const std::string_view reset : {plain.style, plain.variant, plain.weight, plain.stretch})
        EXPECT_EQ(reset, "normal");
    EXPECT_EQ(plain.size, "1em");
    EXPECT_EQ(parseFont("bolder ultra-expanded 9pt x").stretch, "ultra-expanded");
    EXPECT_EQ(parseFont("bolder ultra-expanded 9pt x").weight, "bolder");
    EXPECT_EQ(parseFont("CONDENSED 9pt x").stretch, "CONDENSED");
}

TEST(FontShorthand, TheHeightOfALineMayStandApartFromItsSlash) {
    for (const char* text : {"12px/2 serif", "12px/ 2 serif", "12px /2 serif", "12px / 2 serif"}) {
        EXPECT_EQ(parseFont(text).size, "12px") << text;
        EXPECT_EQ(parseFont(text).families, "serif") << text;
    }
}

TEST(FontShorthand, WordsForAllPropertiesHoldForEach) {
    for (const char* word : {"inherit", "initial", "unset"}) {
        const FontStatements font = parseFont(word);
        for (const std::string_view each :
             {font.style, font.variant, font.weight, font.stretch, font.size, font.families})
            EXPECT_EQ(each, word);
    }
}

TEST(FontShorthand, WithoutSizeOrFamiliesItIsNone) {
    for (const char* text : {"", "caption", "12px", "bold italic", "700"}) {
        EXPECT_EQ(parseFont(text).size, "") << text;
        EXPECT_EQ(parseFont(text).families, "") << text;
    }
}

} // namespace
