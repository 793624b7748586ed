// Text elements as objects. Sizes and places are told by comparison with other texts and by the measures of
// the font.
#include "easel/drawing/ShapeGradient.h"
#include "easel/svg/write/ReadBack.h"
#include "easel/type/Typesetter.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gtest/gtest.h>

#include <cmath>

using easel::drawing::Box;
using easel::drawing::Drawing;
using easel::drawing::Kind;
using easel::drawing::Object;
using easel::drawing::Path;

namespace {

// The texts stand in one font that is always there, 20 units high.
Drawing read(const std::string& content) {
    return readOk(svgFile("<g font-family='DejaVu Sans' font-size='20'>" + content + "</g>"));
}

Path outlineOf(const std::string& content) {
    const Drawing drawing = read(content);
    EXPECT_EQ(drawing.size(), 1U) << content;
    return drawing.size() == 0 ? Path() : drawing.object(0)->outline;
}

Box boundsOf(const std::string& content) {
    return outlineOf(content).bounds();
}

// In units, at 20 units an em.
double advanceOf(const std::string& text) {
    easel::type::Line line;
    line.text = text;
    line.runs.push_back(
        {text.size(), std::make_shared<const easel::type::Font>(easel::type::Font{"DejaVu Sans"})});
    double sum = 0;
    for (const auto& cluster : easel::type::typesetter()->shape(line))
        sum += cluster.advance;
    return 20 * sum;
}

easel::type::FontMetrics metrics() {
    return easel::type::typesetter()->metrics({"DejaVu Sans"});
}

void expectShifted(const std::string& shifted, const std::string& plain, double x, double y) {
    const Box a = boundsOf(shifted);
    const Box b = boundsOf(plain);
    EXPECT_NEAR(a.left - b.left, x, 1e-6);
    EXPECT_NEAR(a.right - b.right, x, 1e-6);
    EXPECT_NEAR(a.top - b.top, y, 1e-6);
    EXPECT_NEAR(a.bottom - b.bottom, y, 1e-6);
}

void expectSame(const std::string& one, const std::string& other) {
    expectShifted(one, other, 0, 0);
}

} // namespace

TEST(SvgText, ShowsItsLettersInTheCaseThatIsStated) {
    const auto styled = [](const char* transform, const std::string& content) {
        return "<text y='50' style='text-transform:" + std::string(transform) + "'>" + content + "</text>";
    };
    const auto plain = [](const std::string& content) { return "<text y='50'>" + content + "</text>"; };
    expectSame(styled("uppercase", "Straße, наука ﬁn é1a"), plain("STRASSE, НАУКА ﬁN É1A"));
    expectSame(styled("lowercase", "ÀB ΩΑ<tspan>X</tspan>"), plain("àb ωαx"));
    expectSame(styled("capitalize", "it's o’clock, (3d ömer) é-b<tspan>cd</tspan>"),
               plain("It's O’clock, (3d Ömer) É-Bcd"));
    expectSame(styled("uppercase", "a<tspan style='text-transform:none'>b</tspan>"), plain("Ab"));
    // A letter that becomes two takes one place of a list.
    expectSame("<text y='50' x='0 30 60' style='text-transform:uppercase'>aßb</text>",
               "<text y='50'>A<tspan x='30'>SS</tspan><tspan x='60'>B</tspan></text>");
}

TEST(SvgText, AnElementIsOneObjectThatCarriesNoGradient) {
    const Drawing drawing = read("<text id='t' x='10' y='50' fill='red'>Hi</text>");
    ASSERT_EQ(drawing.size(), 1U);
    const Object& object = *drawing.object(0);
    EXPECT_EQ(object.kind, Kind::Text);
    EXPECT_EQ(kindName(object.kind), "text");
    EXPECT_EQ(object.id.text(), "t");
    EXPECT_FALSE(carriesGradient(object.kind));
    EXPECT_TRUE(drawing.notes().empty());
    const Box box = object.bounds;
    EXPECT_TRUE(drawing.pick({box.left + 1, box.bottom - 1}, 0, easel::drawing::KindSet::all()));
}

TEST(SvgText, BlanksCollapseAndThoseAtTheEndsGo) {
    expectSame("<text> a \n\t b </text>", "<text>a b</text>");
    expectSame("<text>a <tspan> b</tspan></text>", "<text>a b</text>");
    // The blank between elements is one.
    expectSame("<text><tspan>a</tspan> <tspan>b</tspan></text>", "<text>a b</text>");
}

TEST(SvgText, BlanksStayWhereTheyAreToBePreserved) {
    const double blank = advanceOf(" ");
    expectShifted("<text xml:space='preserve'> a</text>", "<text>a</text>", blank, 0);
    expectShifted("<g xml:space='preserve'><text>\na</text></g>", "<text>a</text>", blank, 0);
    expectShifted("<text style='white-space:pre'>  a</text>", "<text>a</text>", 2 * blank, 0);
    expectSame("<text xml:space='preserve' style='white-space:normal'>  a</text>", "<text>a</text>");
}

TEST(SvgText, ListsPlaceLettersAndInnerOnesAreStronger) {
    expectSame("<text x='10 40' y='20 30'>ab</text>",
               "<text><tspan x='10' y='20'>a</tspan><tspan x='40' y='30'>b</tspan></text>");
    expectSame("<text x='10 90' y='20 90'>a<tspan x='40' y='30'>b</tspan></text>",
               "<text x='10 40' y='20 30'>ab</text>");
    const double before = boundsOf("<text>.</text>").left;
    const double last = advanceOf(".") + boundsOf("<text>a</text>").right;
    EXPECT_NEAR(boundsOf("<text dx='1 2em'>.a</text>").left, before + 1, 1e-6);
    EXPECT_NEAR(boundsOf("<text dx='1 2em'>.a</text>").right, last + 1 + 40, 1e-6);
}

TEST(SvgText, TheLastAngleIsThatOfAllLettersBehindIt) {
    expectSame("<text x='10 30 50' rotate='10 20'>abc</text>",
               "<text x='10 30 50' rotate='10 20 20'>abc</text>");
    const Box upright = boundsOf("<text x='50' y='50'>l</text>");
    const Box lying = boundsOf("<text x='50' y='50' rotate='90'>l</text>");
    EXPECT_NEAR(lying.width(), upright.height(), 1e-6);
    EXPECT_NEAR(lying.right - 50, 50 - upright.top, 1e-6);
}

TEST(SvgText, AnchoredInTheMiddleASymmetricLetterIsSymmetric) {
    const Box box = boundsOf("<text x='50' y='50' text-anchor='middle'>OVO</text>");
    EXPECT_NEAR(box.centre().x, 50, 0.1);
    expectShifted("<text x='50' text-anchor='end'>ab</text>", "<text x='50'>ab</text>", -advanceOf("ab"), 0);
}

TEST(SvgText, TheShorthandIsTheFontsPropertiesTogether) {
    expectSame(
        "<text style='font: italic bold 30px/2 \"DejaVu Serif\", serif'>ab</text>",
        "<text font-style='italic' font-weight='bold' font-size='30' font-family='DejaVu Serif'>ab</text>");
    // What it does not name is as it is at first.
    expectSame("<text style='font-weight:bold; font: 20px DejaVu Sans'>ab</text>", "<text>ab</text>");
    expectSame("<text style='font: 20px DejaVu Sans; font-weight:bold'>ab</text>",
               "<text font-weight='bold'>ab</text>");
}

TEST(SvgText, AFamilyWithADigitInFrontHasToBeQuoted) {
    expectSame("<text font-family='1 Family, DejaVu Serif'>ab</text>", "<text>ab</text>");
    expectSame("<text font-family=\"'1 Family', DejaVu Serif\">ab</text>",
               "<text font-family='DejaVu Serif'>ab</text>");
}

TEST(SvgText, BaselinesLieAtTheFontsHeights) {
    const auto shifted = [](const std::string& baseline, double height) {
        expectShifted("<text dominant-baseline='" + baseline + "'>ab</text>", "<text>ab</text>", 0,
                      20 * height);
    };
    shifted("middle", metrics().xHeight / 2);
    shifted("central", (metrics().ascent + metrics().descent) / 2);
    shifted("text-before-edge", metrics().ascent);
    shifted("text-after-edge", metrics().descent);
    shifted("alphabetic", 0);
}

TEST(SvgText, ABaselineInsideIsThatOfTheTextAround) {
    // The tops of the letter cells are level: the one around has 20 units an em, the one inside 10.
    const double ascent = metrics().ascent;
    expectShifted("<text><tspan font-size='10' alignment-baseline='text-before-edge'>a</tspan></text>",
                  "<text font-size='10'>a</text>", 0, -10 * ascent);
}

TEST(SvgText, ShiftsOfTheBaselineAddUp) {
    expectShifted("<text><tspan baseline-shift='5'><tspan baseline-shift='2'>a</tspan></tspan></text>",
                  "<text>a</text>", 0, -7);
    expectShifted("<text><tspan baseline-shift='25%'>a</tspan></text>", "<text>a</text>", 0, -5);
    EXPECT_LT(boundsOf("<text><tspan baseline-shift='super'>a</tspan></text>").bottom,
              boundsOf("<text>a</text>").bottom);
    EXPECT_GT(boundsOf("<text><tspan baseline-shift='sub'>a</tspan></text>").bottom,
              boundsOf("<text>a</text>").bottom);
}

TEST(SvgText, ALineUnderTheTextIsAsLongAsItAndThick) {
    const Box box = boundsOf("<text text-decoration='underline'>aa</text>");
    EXPECT_NEAR(box.left, 0, 1e-6);
    EXPECT_NEAR(box.right, advanceOf("aa"), 1e-6);
    EXPECT_NEAR(box.bottom, 20 * (-metrics().underline + metrics().underlineThickness / 2), 1e-6);
}

TEST(SvgText, WhatIsPaintedAlikeIsOneOutlineAndOtherPaintsLieOverIt) {
    EXPECT_FALSE(read("<text>a<tspan font-weight='bold'>b</tspan></text>").object(0)->markers);
    const Drawing drawing = read("<text>a<tspan fill='red'>b</tspan></text>");
    const Object& object = *drawing.object(0);
    ASSERT_TRUE(object.markers);
    ASSERT_EQ(object.markers->size(), 2U);
    const auto* const red = std::get_if<easel::drawing::ColorPaint>(&object.markers->at(1)->fill);
    ASSERT_TRUE(red);
    EXPECT_EQ(red->color, (easel::drawing::Rgb16{65535, 0, 0}));
    EXPECT_EQ(object.fillPattern, easel::drawing::FillPattern::None);
    EXPECT_GT(object.bounds.right, object.markers->at(0)->bounds.right);
}

TEST(SvgText, AGradientIsMeasuredByTheCellsOfTheWholeText) {
    const Drawing drawing = read(
        "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient>"
        "<text x='10' y='50'>a<tspan fill='url(#g)'>b</tspan></text>");
    const auto* const gradient = easel::drawing::gradientIn(drawing.object(0)->markers->at(1)->fill);
    ASSERT_TRUE(gradient);
    const auto& line = std::get<easel::drawing::LinearGeometry>(gradient->geometry);
    const auto start = gradient->toDrawing(line.start);
    const auto end = gradient->toDrawing(line.end);
    EXPECT_NEAR(start.x, 10, 1e-6);
    EXPECT_NEAR(end.x, 10 + advanceOf("ab"), 1e-6);
    EXPECT_NEAR(start.y, 50 - 20 * metrics().ascent, 1e-6);
}

TEST(SvgText, LettersMayTakeUpALength) {
    const Box box = boundsOf("<text textLength='90' text-decoration='underline'>abc</text>");
    EXPECT_NEAR(box.width(), 90, 1e-6);
    const Box twice = boundsOf("<text textLength='" + std::to_string(2 * advanceOf("l")) +
                               "' lengthAdjust='spacingAndGlyphs'>l</text>");
    EXPECT_NEAR(twice.width(), 2 * boundsOf("<text>l</text>").width(), 1e-4);
}

TEST(SvgText, TextRunsAlongAPath) {
    const std::string path = "<defs><path id='p' d='M50,0 V100'/></defs>";
    const auto along = [&](const std::string& attributes) {
        return boundsOf(path + "<text><textPath href='#p' " + attributes + ">l</textPath></text>");
    };
    const Box plain = boundsOf("<text>l</text>");
    // Downwards: what was the horizontal place is the vertical one, and what was up is right.
    EXPECT_NEAR(along("").top, plain.left, 1e-3);
    EXPECT_NEAR(along("").right, 50 - plain.top, 1e-3);
    EXPECT_NEAR(along("startOffset='25%'").top, 25 + plain.left, 1e-3);
    EXPECT_NEAR(along("startOffset='10'").top, 10 + plain.left, 1e-3);
    EXPECT_NEAR(along("side='right'").bottom, 100 - plain.left, 1e-3);
    EXPECT_EQ(read(path + "<text><textPath href='#p' startOffset='101'>l</textPath></text>").size(), 0U);
    EXPECT_EQ(read("<text><textPath href='#none'>l</textPath></text>").size(), 0U);
}

TEST(SvgText, ReferencedTextStandsInTheStyleOfItsPlace) {
    expectSame(
        "<defs><text id='r' font-size='5'>a<tspan>b</tspan></text></defs><text><tref href='#r'/></text>",
        "<text>ab</text>");
}

TEST(SvgText, OneLanguageOfASwitchIsShown) {
    expectSame("<text><switch><tspan systemLanguage='de'>zwei</tspan><tspan systemLanguage='en'>two</tspan>"
               "<tspan>2</tspan></switch></text>",
               "<text>two</text>");
    expectSame("<text>a<tspan display='none'>b</tspan></text>", "<text>a</text>");
}

TEST(SvgText, LettersMayBeOverriddenToRunFromTheRight) {
    expectSame("<text><tspan direction='rtl' unicode-bidi='bidi-override'>ab</tspan></text>",
               "<text>ba</text>");
}

TEST(SvgText, TextClips) {
    const Drawing drawing =
        read("<clipPath id='c'><text x='5' y='30'>ab</text></clipPath><rect width='90' height='90' "
             "clip-path='url(#c)'/>");
    ASSERT_EQ(drawing.size(), 1U);
    ASSERT_TRUE(drawing.object(0)->group && drawing.object(0)->group->clip);
    const auto& shapes = drawing.object(0)->group->clip->shapes;
    ASSERT_EQ(shapes.size(), 1U);
    EXPECT_TRUE(shapes[0].outline == outlineOf("<text x='5' y='30'>ab</text>"));
}

TEST(SvgText, ADrawingWithTextIsSavedAsItWasAndWithoutWhatWasDeleted) {
    const std::string bytes =
        svgFile("<text x='9'>a<tspan fill='red'>b</tspan></text>\n<rect width='9' height='9'/>");
    Drawing drawing = readOk(bytes);
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_FALSE(easel::svg::lostIn(bytes, drawing.snapshot()));
    drawing.prepareUndo(1);
    drawing.erase(0);
    EXPECT_TRUE(easel::svg::lostIn(bytes, drawing.snapshot())); // the text would still be there
}
