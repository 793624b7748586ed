// Fonts that a file brings along for its own text. Their letters are boxes, so that where they go can be told
// by hand: at 20 units an em, a box of 500 font units is 10 wide.
#include "tests/unit/svg/ReadHelp.h"

#include <gtest/gtest.h>

using easel::drawing::Box;
using easel::drawing::Drawing;

namespace {

// A font with the letters A (a box of half an em) and B (one of a whole em).
std::string fontWith(const std::string& more, const std::string& face = "units-per-em='1000'") {
    return "<font horiz-adv-x='600'><font-face font-family='Own' " + face +
           "/><glyph unicode='A' glyph-name='a' d='M0 0H500V500H0Z'/>"
           "<glyph unicode='B' glyph-name='b' horiz-adv-x='1200' d='M0 0H1000V500H0Z'/>" +
           more + "</font>";
}

Box boundsOf(const std::string& font, const std::string& text, const std::string& family = "Own") {
    const Drawing drawing =
        readOk(svgFile("<defs>" + font + "</defs><text x='100' y='50' font-size='20' font-family='" + family +
                       "'>" + text + "</text>"));
    EXPECT_EQ(drawing.size(), 1U);
    return drawing.size() == 0 ? Box() : drawing.object(0)->bounds;
}

void expectBox(const Box& box, double left, double top, double right, double bottom) {
    EXPECT_NEAR(box.left, left, 1e-9);
    EXPECT_NEAR(box.top, top, 1e-9);
    EXPECT_NEAR(box.right, right, 1e-9);
    EXPECT_NEAR(box.bottom, bottom, 1e-9);
}

TEST(SvgFont, LettersStandOnTheLineAndAreAsWideAsTheySay) {
    expectBox(boundsOf(fontWith(""), "A"), 100, 40, 110, 50);
    // 600 of 1000 units at 20 units an em.
    expectBox(boundsOf(fontWith(""), "AA"), 100, 40, 122, 50);
    expectBox(boundsOf(fontWith(""), "BA"), 100, 40, 134, 50);
}

TEST(SvgFont, UnitsOfTheEmAreThoseOfTheFace) {
    expectBox(boundsOf(fontWith("", "units-per-em='2000'"), "AA"), 100, 45, 111, 50);
    // A thousand unless stated.
    expectBox(boundsOf(fontWith("", ""), "A"), 100, 40, 110, 50);
}

TEST(SvgFont, PairsAreKernedByCharactersRangesAndNames) {
    for (const std::string pair :
         {"u1='A' u2='B'", "u1='x,A' u2='U+42'", "u1='U+40-41' u2='U+4?'", "g1='a' g2='z,b'"})
        expectBox(boundsOf(fontWith("<hkern " + pair + " k='200'/>"), "AB"), 100, 40, 128, 50);
    expectBox(boundsOf(fontWith("<hkern u1='B' u2='A' k='200'/>"), "AB"), 100, 40, 132, 50);
}

TEST(SvgFont, PairsOfWhatTheFontLacksOrOfRangesThatAreNoneAreNotKerned) {
    for (const std::string pair : {"u1='x' u2='B'", "u1='A' u2='U+43'", "u1='A' u2=''", "g1='a'",
                                   "g1='nobody' g2='b'", "u1='A' u2='U+'", "u1='A' u2='U+0000042'",
                                   "u1='A' u2='U+4G'", "u1='A' u2='U+42-'", "u1='A' u2='U+41-41'"})
        expectBox(boundsOf(fontWith("<hkern " + pair + " k='200'/>"), "AB"), 100, 40, 132, 50);
    expectBox(boundsOf(fontWith("<hkern u1='u+0041' u2='U+4a,U+0042' k='200'/>"), "AB"), 100, 40, 128, 50);
}

Box boundsDown(const std::string& font, const std::string& text, const std::string& orientation = "upright") {
    const Drawing drawing = readOk(svgFile("<defs>" + font +
                                           "</defs><text x='100' y='50' font-size='20' font-family='Own' "
                                           "style='writing-mode:vertical-rl;text-orientation:" +
                                           orientation + "'>" + text + "</text>"));
    EXPECT_EQ(drawing.size(), 1U);
    return drawing.size() == 0 ? Box() : drawing.object(0)->bounds;
}

TEST(SvgFont, LettersThatStandInAColumnHangFromTheirOwnPlace) {
    // Unless stated, that is halfway along what the font says letters take, and as high as they go; the next
    // one comes an em below.
    expectBox(boundsDown(fontWith(""), "A"), 94, 56, 104, 66);
    expectBox(boundsDown(fontWith(""), "AA"), 94, 56, 104, 86);
    const std::string font =
        "<font horiz-adv-x='600' vert-origin-x='0' vert-origin-y='500' vert-adv-y='1500'>"
        "<font-face font-family='Own' units-per-em='1000' ascent='900'/>"
        "<glyph unicode='A' d='M0 0H500V500H0Z'/>"
        "<glyph unicode='B' d='M0 0H500V500H0Z' vert-origin-x='500' vert-origin-y='0' "
        "vert-adv-y='200'/></font>";
    expectBox(boundsDown(font, "A"), 100, 50, 110, 60);
    expectBox(boundsDown(font, "AA"), 100, 50, 110, 90);
    expectBox(boundsDown(font, "B"), 90, 40, 100, 50);
    expectBox(boundsDown(font, "BA"), 90, 40, 110, 64);
}

TEST(SvgFont, PairsInAColumnAreKernedByTheirOwnElements) {
    const std::string kerned = fontWith("<vkern u1='A' g2='a' k='200'/><hkern u1='A' u2='A' k='100'/>");
    expectBox(boundsDown(kerned, "AA"), 94, 56, 104, 82);
    // Side by side, on a line and where the line is turned with its letters.
    EXPECT_NEAR(boundsOf(kerned, "AA").width(), 20, 1e-9);
    EXPECT_NEAR(boundsDown(kerned, "AA", "mixed").height(), 20, 1e-9);
}

TEST(SvgFont, GlyphsAreThoseOfLettersThatStandAlone) {
    // The first glyph of a letter is the one that is shown.
    const std::string wide = "d='M0 0H2000V500H0Z'/>";
    const auto widthOfC = [&](const std::string& glyphs) {
        return boundsOf(fontWith(glyphs + "<glyph unicode='C' d='M0 0H100V500H0Z'/>"), "C").width();
    };
    EXPECT_NEAR(widthOfC(""), 2, 1e-9);
    EXPECT_NEAR(widthOfC("<glyph unicode='C' arabic-form='initial' " + wide), 2, 1e-9);
    EXPECT_NEAR(widthOfC("<glyph unicode='C' orientation='v' " + wide), 2, 1e-9);
    EXPECT_NEAR(widthOfC("<glyph " + wide + "<glyph glyph-name='C' " + wide), 2, 1e-9);
    EXPECT_NEAR(widthOfC("<glyph unicode='C' arabic-form='isolated' " + wide), 40, 1e-9);
    EXPECT_NEAR(widthOfC("<glyph unicode='C' orientation='h' " + wide), 40, 1e-9);
}

TEST(SvgFont, LettersThatStandInAColumnMayHaveGlyphsOfTheirOwn) {
    const std::string font = fontWith("<glyph unicode='C' orientation='v' d='M0 0H300V700H0Z'/>"
                                      "<glyph unicode='C' orientation='h' d='M0 0H200V500H0Z'/>"
                                      "<missing-glyph orientation='v' d='M0 0H900V900H0Z'/>"
                                      "<missing-glyph d='M0 0H100V100H0Z'/>"
                                      "<glyph unicode='D' orientation='h' d='M0 0H800V500H0Z'/>");
    const auto expectSize = [](const Box& box, double width, double height) {
        EXPECT_NEAR(box.width(), width, 1e-9);
        EXPECT_NEAR(box.height(), height, 1e-9);
    };
    expectSize(boundsDown(font, "C"), 6, 14);
    expectSize(boundsOf(font, "C"), 4, 10);
    // It lies on its side.
    expectSize(boundsDown(font, "C", "sideways"), 10, 4);
    expectSize(boundsDown(font, "D"), 2, 2);
}

TEST(SvgFont, MeasuresThatAreNoneAreTheUsualOnes) {
    for (const char* units :
         {"units-per-em='0'", "units-per-em='-5'", "units-per-em='1e9'", "units-per-em='em'"})
        expectBox(boundsOf(fontWith("", units), "AA"), 100, 40, 122, 50);
    expectBox(boundsOf(fontWith("<glyph unicode='C' horiz-adv-x='1e9'/>"), "CA"), 112, 40, 122, 50);
}

TEST(SvgFont, WithoutAFamilyNothingIsSetInIt) {
    const std::string nameless = "<font horiz-adv-x='600'><glyph unicode='A' d='M0 0H500V500H0Z'/></font>";
    const Box other = boundsOf("", "A");
    for (const std::string& font : {nameless, "<font><font-face/></font>" + nameless})
        expectBox(boundsOf(font, "A"), other.left, other.top, other.right, other.bottom);
}

TEST(SvgFont, OfAFamilyThatIsNamedLikeNoneInStyleSheetsKeepsItsName) {
    const std::string font = "<font horiz-adv-x='600'><font-face font-family='7 Seas'/>"
                             "<glyph unicode='A' d='M0 0H500V500H0Z'/></font>";
    expectBox(boundsOf(font, "A", "\"7 Seas\""), 100, 40, 110, 50);
}

TEST(SvgFont, SlantedFontsAreForSlantedText) {
    const std::string fonts = fontWith("") +
                              "<font horiz-adv-x='900'><font-face font-family='Own' "
                              "font-style='oblique'/><glyph unicode='A' d='M0 0H900V500H0Z'/></font>";
    EXPECT_NEAR(boundsOf(fonts, "<tspan font-style='italic'>A</tspan>").width(), 18, 1e-9);
    EXPECT_NEAR(boundsOf(fonts, "A").width(), 10, 1e-9);
}

TEST(SvgFont, WhatItLacksIsItsSignForThat) {
    expectBox(boundsOf(fontWith("<missing-glyph d='M0 0H100V1000H0Z'/>"), "?A"), 100, 30, 122, 50);
}

TEST(SvgFont, ItIsUsedWhereItsFamilyIsTheFirstThatIsThere) {
    const Box other = boundsOf("", "A", "DejaVu Sans");
    expectBox(boundsOf(fontWith(""), "A", "DejaVu Sans, Own"), other.left, other.top, other.right,
              other.bottom);
    expectBox(boundsOf(fontWith(""), "A", "No Such Family, \"Own\""), 100, 40, 110, 50);
}

TEST(SvgFont, FontsOfOneFamilyAreToldApartByWeightAndStyle) {
    const std::string fonts = fontWith("") +
                              "<font horiz-adv-x='900'><font-face font-family='Own' font-weight='bold'/>"
                              "<glyph unicode='A' d='M0 0H900V500H0Z'/></font>";
    const auto widthOf = [&](const std::string& weight) {
        return boundsOf(fonts, "<tspan font-weight='" + weight + "'>A</tspan>").width();
    };
    EXPECT_NEAR(widthOf("400"), 10, 1e-9);
    EXPECT_NEAR(widthOf("700"), 18, 1e-9);
}

TEST(SvgFont, AFontThatKernsMorePairsThanThereIsRoomForEndsTheReading) {
    std::string many;
    for (int i = 0; i < 4000; ++i)
        many += "<glyph unicode='&#" + std::to_string(0x4000 + i) + ";'/>";
    for (int i = 0; i < 4000; ++i)
        many += "<hkern u1='U+4000-6000' u2='U+4000-6000' k='1'/>";
    const auto read =
        easel::svg::readBytes(svgFile(fontWith(many) + "<text font-family='Own'>A</text>"), "many.svg");
    EXPECT_FALSE(read);
}

} // namespace
