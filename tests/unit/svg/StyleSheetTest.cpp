// Style sheets as text: what counts as a rule, a comment, a block, and which of several declarations is the
// strongest.
#include "tests/unit/svg/ReadHelp.h"

namespace {

using easel::drawing::ColorPaint;
using easel::drawing::Drawing;
using easel::drawing::Rgb16;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kBlack{};

// The fill of a rectangle of the class "a b" under what stands in front of it.
Rgb16 fillBehind(const std::string& content, const std::string& attributes = "") {
    const Drawing drawing =
        readOk(svgFile(content + "<rect class='a b' id='r' width='5' height='5' " + attributes + "/>"));
    const auto* const color =
        drawing.size() == 1 ? std::get_if<ColorPaint>(&drawing.object(0)->fill) : nullptr;
    EXPECT_TRUE(color) << content;
    return color ? color->color : Rgb16{1, 2, 3};
}

Rgb16 fillUnder(const std::string& sheet) {
    return fillBehind("<style>" + sheet + "</style>");
}

TEST(StyleSheet, CommentsAndOldMarksAreNoPartOfIt) {
    EXPECT_EQ(fillUnder("/* .a{fill:lime} */ .a/**/{ fill /* x */ : red }"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red} /* never closed .a{fill:lime}"), kRed);
    EXPECT_EQ(fillUnder("<![CDATA[<!-- .a{fill:red} -->]]>"), kRed);
}

TEST(StyleSheet, BlocksAndBracketsThatAreOpenEndWithTheSheet) {
    EXPECT_EQ(fillUnder(".a{fill:red"), kRed);
    EXPECT_EQ(fillUnder("@media screen { .a{fill:red"), kRed);
    EXPECT_EQ(fillUnder(".a{"), kBlack);
    EXPECT_EQ(fillUnder(".a{fill:red} .b"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red} .b[c"), kRed);
}

TEST(StyleSheet, QuotesAndBracketsHideWhatEndsAStatement) {
    EXPECT_EQ(fillUnder(".a{ content: ';fill:lime}'; fill:red }"), kRed);
    EXPECT_EQ(fillUnder(".a{ mask: url(x;fill:lime); fill:red }"), kRed);
    EXPECT_EQ(fillUnder("[id=']'] , .x{fill:lime} .a:not(.x, .y){fill:red}"), kRed);
    EXPECT_EQ(fillUnder(".a{ x: ); fill:red }"), kRed);
}

TEST(StyleSheet, RulesOfOtherKindsArePassedOver) {
    EXPECT_EQ(fillUnder("@charset 'x'; @namespace y; .a{fill:red}"), kRed);
    EXPECT_EQ(fillUnder("@font-face{ .a{fill:lime} } .a{fill:red}"), kRed);
    EXPECT_EQ(fillUnder(".a:hover, .a{fill:red}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill} .a{red; fill:red}"), kRed);
    std::string deep = ".a{fill:lime}";
    for (int i = 0; i < 40; ++i)
        deep = "@media screen {" + deep + "}";
    EXPECT_EQ(fillUnder(".a{fill:red}" + deep), kRed) << "nested deeper than anybody nests";
}

TEST(StyleSheet, NamesOfPropertiesMayBeInCapitals) {
    EXPECT_EQ(fillUnder(".a{fill:lime; FILL:red}"), kRed);
    EXPECT_EQ(fillUnder(".a{Fill:RED; fill:lime}"), (Rgb16{0, 65535, 0}));
    EXPECT_EQ(fillBehind("", "style='FILL:red' fill='lime'"), kRed);
    EXPECT_EQ(fillBehind("", "FILL='red'"), kBlack) << "the names of attributes have one case only";
}

TEST(StyleSheet, NamesOfCustomPropertiesHaveOneCaseAndTheFunctionHasTwo) {
    EXPECT_EQ(fillUnder(".a{--c:red; --C:lime; fill:VAR(--c)}"), kRed);
    EXPECT_EQ(fillUnder(".a{--c:red; fill:Var(--C, lime)}"), (Rgb16{0, 65535, 0}));
    EXPECT_EQ(fillUnder(".a{--VAR:red; fill:var(--n,var(--VAR))}"), kRed);
}

TEST(StyleSheet, TheMostSpecificThenTheLastDeclarationCounts) {
    EXPECT_EQ(fillUnder("#r{fill:red} .a.b{fill:lime} rect{fill:lime} *{fill:lime}"), kRed);
    EXPECT_EQ(fillUnder(".b{fill:lime} .a{fill:red}"), kRed);
    EXPECT_EQ(fillUnder("rect{fill:red} *{fill:lime}"), kRed);
}

TEST(StyleSheet, ImportantDeclarationsAreStrongerThanAllOthers) {
    EXPECT_EQ(fillUnder("rect{fill:red ! important} #r{fill:lime}"), kRed);
    EXPECT_EQ(fillUnder("rect{fill:red!IMPORTANT;fill:lime}"), kRed);
    EXPECT_EQ(fillBehind("<style>rect{fill:red!important}</style>", "style='fill:lime'"), kRed);
    EXPECT_EQ(fillBehind("<style>rect{fill:lime!important}</style>", "style='fill:red!important'"), kRed);
}

TEST(StyleSheet, MistakesBeatNothing) {
    EXPECT_EQ(fillUnder(".a{fill:red;fill:lime!unknown}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red;fill:lime!}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red;fill:lime!important!important}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red;fill:nonsense}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:nonsense!important;fill:red}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:red} #r{fill:nonsense}"), kRed);
    EXPECT_EQ(fillBehind("<style>.a{fill:red}</style>", "style='fill:'"), kRed);
    EXPECT_EQ(fillBehind("", "fill='red' style='fill:12'"), kRed);
    EXPECT_EQ(fillBehind("<g fill='lime'/>", "fill='nonsense' style='--c:lime!x;fill:var(--c,red)'"), kRed);
    EXPECT_EQ(fillUnder(".a{fill:lime;fill:var(--none)}"), kBlack) << "what it asks for is found out later";
}

TEST(StyleSheet, AnElementOfSheetsHoldsForItsTypeAndItsMedia) {
    EXPECT_EQ(
        fillBehind(
            "<style type='text/css'>.a{fill:red}</style><style type='text/other'>.a{fill:lime}</style>"),
        kRed);
    EXPECT_EQ(fillBehind("<style type=' TEXT/CSS '>.a{fill:red}</style>"), kRed);
    EXPECT_EQ(
        fillBehind("<style media='screen'>.a{fill:red}</style><style media='print'>.a{fill:lime}</style>"),
        kRed);
    EXPECT_EQ(fillBehind("<o:style xmlns:o='urn:other'>.a{fill:lime}</o:style>"), kBlack);
}

TEST(StyleSheet, CustomPropertiesKeepTheStrongestAndFallBack) {
    EXPECT_EQ(fillUnder(".a{--c: red !important; --c: lime; fill: var(--c)}"), kRed);
    EXPECT_EQ(fillUnder(".a{--c: lime; --c: red; fill: var(--c)}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill: var(--none, rgb(255, 0, 0))}"), kRed);
    EXPECT_EQ(fillUnder(".a{fill: var(--none)}"), kBlack);
    EXPECT_EQ(fillUnder(".a{--r: 255; fill: rgb(var(--r), 0, 0)}"), kRed);
    EXPECT_EQ(fillBehind("", "style='--r: 255; fill: var(--none, rgb(var(--r) 0 0)'"), kRed)
        << "open brackets end with the value";
    std::string longest = "x";
    for (int i = 0; i < 13; ++i)
        longest += longest;
    EXPECT_EQ(fillUnder(".a{--l: " + longest + "; fill: var(--l, lime)}"), kBlack);
}

TEST(StyleSheet, CustomPropertiesOfElementsAroundHold) {
    EXPECT_EQ(fillBehind("<g style='--c: lime'/>", "style='fill: var(--c, red)'"), kRed);
    const Drawing drawing = readOk(svgFile(
        "<g style='--c: red'><g style='--d: blue'><rect width='5' height='5' fill='var(--c)'/></g></g>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(std::get<ColorPaint>(drawing.object(0)->fill).color, kRed);
}

} // namespace
