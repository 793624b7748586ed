// The conditions of style sheets, on a light screen of 300 by 200.
#include "easel/svg/style/MediaQuery.h"

#include <gtest/gtest.h>

using easel::svg::mediaMatches;

namespace {

constexpr easel::svg::MediaSize kLying{300, 200};

TEST(MediaQuery, HoldsForWhatIsTrueOfTheScreen) {
    for (const char* query :
         {"", "all", "SCREEN", "only screen", "(width: 300px)", "(min-width: 300px)", "(max-width: 300px)",
          "(height: 200px)", "(min-height: 199px)", "(max-height: 201px)", "(orientation: landscape)",
          "(color)", "screen and (color) and (width: 300)", "print, (color)", "not print",
          "not screen and (max-width: 10px)"})
        EXPECT_TRUE(mediaMatches(query, kLying)) << query;
}

TEST(MediaQuery, DoesNotHoldForWhatIsNot) {
    for (const char* query :
         {"print", "(width: 299px)", "(min-width: 301px)", "(max-width: 299px)", "(height: 1px)",
          "(min-height: 201px)", "(max-height: 199px)", "(orientation: portrait)", "(color: 3)", "(width)",
          "(width: wide)", "screen and (width: 1px)", "print and (color)", "not all", "print, tv",
          "(prefers-color-scheme: dark)", "!", "screen and !"})
        EXPECT_FALSE(mediaMatches(query, kLying)) << query;
}

TEST(MediaQuery, AScreenThatIsNotWiderThanHighStandsUpright) {
    EXPECT_TRUE(mediaMatches("(orientation: portrait)", {200, 200}));
    EXPECT_FALSE(mediaMatches("(orientation: landscape)", {200, 200}));
}

} // namespace
