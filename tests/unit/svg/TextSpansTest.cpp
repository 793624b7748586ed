// What elements in a text make of its letters: paints, directions, references, languages, and what is no part
// of it.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

using easel::drawing::Box;
using easel::drawing::Drawing;
using easel::drawing::Path;
using testing::IsEmpty;

namespace {

Drawing read(const std::string& content) {
    return readOk(svgFile("<g font-family='DejaVu Sans' font-size='20'>" + content + "</g>"));
}

Path outlineOf(const std::string& content) {
    const Drawing drawing = read(content);
    EXPECT_EQ(drawing.size(), 1U) << content;
    return drawing.size() == 1 ? drawing.object(0)->outline : Path();
}

bool looksThe(const std::string& one, const std::string& other) {
    return outlineOf(one) == outlineOf(other);
}

// The number of outlines with a paint of their own; 1 where one paint does for all.
std::size_t paintsOf(const std::string& spanAttributes) {
    const Drawing drawing =
        read("<linearGradient id='g'><stop/><stop offset='1' stop-color='red'/></linearGradient><text "
             "fill='lime' stroke='red'>a<tspan " +
             spanAttributes + ">b</tspan></text>");
    return drawing.object(0)->markers ? drawing.object(0)->markers->size() : 1;
}

TEST(SvgTextSpans, HaveAPaintOfTheirOwnWhereOneThingOfItDiffers) {
    for (const char* attributes :
         {"opacity='.5'", "fill='red'", "fill='none'", "fill='url(#g)'", "fill='url(#g) red'",
          "stroke='lime'", "stroke='none'", "color='red'", "fill-opacity='.5'", "stroke-opacity='.5'",
          "stroke-width='3'", "stroke-miterlimit='9'", "stroke-dashoffset='1'", "stroke-dasharray='2'",
          "fill-rule='evenodd'", "stroke-linejoin='round'", "stroke-linecap='round'", "paint-order='stroke'"})
        EXPECT_NE(paintsOf(attributes), 1U) << attributes;
    for (const char* attributes : {"", "fill='#0f0'", "stroke-width='1'", "font-style='normal'", "id='x'"})
        EXPECT_EQ(paintsOf(attributes), 1U) << attributes;
}

TEST(SvgTextSpans, RunInTheDirectionThatIsStated) {
    const std::string forwards = "<text>ab</text>";
    const std::string backwards = "<text>ba</text>";
    for (const char* bidi : {"bidi-override", "isolate-override"})
        for (const bool rightToLeft : {false, true}) {
            const std::string text = std::string("<text><tspan direction='") + (rightToLeft ? "rtl" : "ltr") +
                                     "' unicode-bidi='" + bidi + "'>ab</tspan></text>";
            const Box box = outlineOf(text).bounds();
            const Box expected = outlineOf(rightToLeft ? backwards : forwards).bounds();
            EXPECT_NEAR(box.left, expected.left, 1e-6) << text;
            EXPECT_NEAR(box.right, expected.right, 1e-6) << text;
        }
    // Letters with a direction of their own keep it, in whatever stands around them.
    for (const char* bidi : {"embed", "isolate", "plaintext", "normal"})
        for (const char* direction : {"ltr", "rtl"}) {
            const std::string text = std::string("<text><tspan direction='") + direction +
                                     "' unicode-bidi='" + bidi + "'>ab</tspan></text>";
            EXPECT_TRUE(looksThe(text, forwards)) << text;
        }
}

TEST(SvgTextSpans, OfOtherElementsArePassedOver) {
    EXPECT_TRUE(looksThe("<text>a<a><tspan>b</tspan></a><altGlyph>c</altGlyph></text>", "<text>abc</text>"));
    EXPECT_TRUE(looksThe("<text>a<!-- no letter --><![CDATA[b]]><?nothing?><title>t</title></text>",
                         "<text>ab</text>"));
    EXPECT_TRUE(looksThe("<text>a<tspan systemLanguage='de'>b</tspan></text>", "<text>a</text>"));
    EXPECT_TRUE(looksThe("<text>a<switch><!-- none --><tspan systemLanguage='de'>b</tspan></switch></text>",
                         "<text>a</text>"));
    EXPECT_TRUE(looksThe("<text>a<tspan/></text>", "<text>a</text>"));
    EXPECT_TRUE(looksThe("<text>a<rect width='5' height='5'/></text>", "<text>a</text>"));
}

TEST(SvgTextSpans, InSpansWithoutEndAreCutOffAndNamed) {
    std::string deep = "x";
    for (int i = 0; i < 150; ++i)
        deep = "<tspan>" + deep + "</tspan>";
    const Drawing drawing = read("<text>a" + deep + "</text>");
    EXPECT_EQ(drawing.notes().size(), 1U);
    EXPECT_TRUE(drawing.object(0)->outline == outlineOf("<text>a</text>"));
}

TEST(SvgTextSpans, ThatReferToOthersTakeTheirLettersWhereverTheyStand) {
    EXPECT_TRUE(
        looksThe("<defs><g id='r'>a<x>b<y>c</y></x><![CDATA[d]]></g></defs><text><tref href='#r'/>e</text>",
                 "<text>abcde</text>"));
    EXPECT_TRUE(looksThe("<defs><g id='r'/></defs><text><tref href='#r'/><tref href='#none'/>e</text>",
                         "<text>e</text>"));
}

TEST(SvgTextSpans, MayTakeUpALengthEachAndNoneThatIsNone) {
    const auto width = [](const std::string& attributes) {
        return outlineOf("<text " + attributes + ">lll</text>").bounds().width();
    };
    const double usual = width("");
    EXPECT_GT(width("textLength='90'"), usual + 10);
    for (const char* none :
         {"textLength='-5'", "textLength='long'", "textLength=''", "lengthAdjust='spacingAndGlyphs'"})
        EXPECT_NEAR(width(none), usual, 1e-9) << none;
    const auto height = [](const std::string& attributes) {
        return outlineOf("<text writing-mode='tb' x='50' " + attributes + ">lll</text>").bounds().height();
    };
    EXPECT_GT(height("textLength='90'"), height("") + 10) << "along the line, which runs down";
    EXPECT_TRUE(looksThe("<text>a<tspan textLength='50'> </tspan></text>", "<text>a</text>"))
        << "the blank at the end is none";
}

TEST(SvgTextSpans, KnowTheLanguageOfTheElementsAround) {
    // No letter of the font depends on it; what is read has to be the same whichever way it is stated.
    for (const char* stated : {"<g xml:lang='de'><text>a</text></g>", "<g lang='de'><text>a</text></g>",
                               "<text lang='de'>a</text>", "<text>a<tspan xml:lang='fr'/></text>"})
        EXPECT_TRUE(looksThe(stated, "<text>a</text>")) << stated;
}

TEST(SvgTextSpans, HaveLinesOverUnderAndThroughThem) {
    const auto bounds = [](const std::string& decoration) {
        return outlineOf("<text y='50' text-decoration='" + decoration + "'>a</text>").bounds();
    };
    const Box plain = bounds("none");
    EXPECT_GT(bounds("underline").bottom, plain.bottom);
    EXPECT_LT(bounds("overline").top, plain.top);
    const Box through = bounds("line-through");
    EXPECT_EQ(through.top, plain.top);
    EXPECT_LT(through.left, plain.left) << "as long as the cell of the letter";
    EXPECT_TRUE(looksThe("<text style='text-decoration: UNDERLINE'>a</text>",
                         "<text text-decoration='underline'>a</text>"));
    EXPECT_TRUE(looksThe("<text style='text-decoration-line: underline'>a</text>",
                         "<text text-decoration='underline'>a</text>"));
    EXPECT_TRUE(looksThe("<text text-decoration='underline'><tspan>a</tspan></text>",
                         "<text text-decoration='underline'>a</text>"));
}

TEST(SvgTextSpans, ShiftTheirBaselineByALengthAShareOrAName) {
    const auto shift = [](const std::string& stated) {
        return outlineOf("<text>l</text>").bounds().bottom -
               outlineOf("<text><tspan baseline-shift='" + stated + "'>l</tspan></text>").bounds().bottom;
    };
    EXPECT_NEAR(shift("3"), 3, 1e-6);
    EXPECT_NEAR(shift("0.5em"), 10, 1e-6);
    EXPECT_NEAR(shift("-50%"), -10, 1e-6);
    EXPECT_NEAR(shift("sub"), -4, 1e-6);
    EXPECT_NEAR(shift("super"), 8, 1e-6);
    for (const char* none : {"baseline", "x%", "up"})
        EXPECT_EQ(shift(none), 0) << none;
}

TEST(SvgTextSpans, StandOnPathsThatAreStatedInThemOrRunBackwards) {
    const std::string defs = "<defs><path id='p' d='M10 50L60 50C70 50 80 50 90 50'/></defs>";
    EXPECT_TRUE(looksThe("<text><textPath path='M10 50H90'>ab</textPath></text>",
                         defs + "<text><textPath href='#p'>ab</textPath></text>"));
    EXPECT_TRUE(looksThe(defs + "<text><textPath href='#p' side='right'>ab</textPath></text>",
                         "<text><textPath path='M90 50C80 50 70 50 60 50L10 50'>ab</textPath></text>"));
    const std::string closed = "<defs><path id='p' d='M10 10H60V60H10Z'/></defs>";
    EXPECT_FALSE(outlineOf(closed + "<text><textPath href='#p' side='right'>ab</textPath></text>").empty());
    // Offsets are in shares of the length that the path states.
    EXPECT_TRUE(looksThe("<defs><path id='p' pathLength='8' d='M10 50H90'/></defs><text><textPath href='#p' "
                         "startOffset='2'>ab</textPath></text>",
                         "<text><textPath path='M10 50H90' startOffset='20'>ab</textPath></text>"));
    EXPECT_EQ(read(defs + "<text><textPath href='#p'/></text>").size(), 0U);
}

TEST(SvgTextSpans, OfNoSizeShowNothing) {
    for (const char* empty :
         {"<text/>", "<text> </text>", "<text font-size='0'>a</text>", "<text font-size='-3'>a</text>"})
        EXPECT_THAT(read(empty).notes(), IsEmpty()) << empty;
    EXPECT_EQ(read("<text> </text>").size(), 0U);
}

} // namespace
