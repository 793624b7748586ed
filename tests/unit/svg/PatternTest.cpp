// Patterns as elements state them: where the cell lies and what is in it.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/Pattern.h"

namespace {

using namespace easel::drawing;

const Pattern* patternOf(const Drawing& drawing, std::size_t index = 0) {
    const auto* const pattern = std::get_if<PatternPtr>(&drawing.object(index)->fill);
    return pattern ? pattern->get() : nullptr;
}

// A rectangle from (20, 40) to (60, 60) that is filled with the pattern.
Drawing readWith(const std::string& attributes, const std::string& content = "<rect width='5' height='5'/>") {
    return readOk(svgFile("<pattern id='p' " + attributes + ">" + content +
                          "</pattern><rect x='20' y='40' width='40' height='20' fill='url(#p)'/>"));
}

void expectBox(const Box& box, const Box& other) {
    EXPECT_NEAR(box.left, other.left, 1e-9);
    EXPECT_NEAR(box.top, other.top, 1e-9);
    EXPECT_NEAR(box.right, other.right, 1e-9);
    EXPECT_NEAR(box.bottom, other.bottom, 1e-9);
}

TEST(SvgPattern, HasACellInUserSpaceOrInSharesOfTheShape) {
    const Drawing user = readWith("patternUnits='userSpaceOnUse' x='1' y='2' width='10' height='5'");
    ASSERT_TRUE(patternOf(user));
    expectBox(patternOf(user)->cell, {1, 2, 11, 7});
    const Drawing shares = readWith("x='0.1' y='50%' width='.25' height='.5'");
    ASSERT_TRUE(patternOf(shares));
    expectBox(patternOf(shares)->cell, {24, 50, 34, 60});
    EXPECT_TRUE(shares.notes().empty());
}

// What is drawn begins where the cell does.
TEST(SvgPattern, MeasuresItsContentFromTheCell) {
    const auto contentBox = [](const std::string& attributes) {
        return readWith(attributes).object(0)->fill.index() == 3
                   ? (*patternOf(readWith(attributes))->objects)[0]->bounds
                   : Box();
    };
    expectBox(contentBox("patternUnits='userSpaceOnUse' x='1' y='2' width='10' height='10'"), {1, 2, 6, 7});
    expectBox(contentBox("width='.5' height='.5' patternContentUnits='objectBoundingBox'"),
              {20, 40, 220, 140});
    expectBox(contentBox("width='.5' height='1' viewBox='0 0 10 10'"), {20, 40, 30, 50});
    expectBox(contentBox("width='1' height='1' viewBox='0 0 10 10' preserveAspectRatio='none'"),
              {20, 40, 40, 50});
    // The view box counts, not the units of the content.
    expectBox(contentBox("width='1' height='1' viewBox='0 0 10 10' preserveAspectRatio='xMaxYMid' "
                         "patternContentUnits='objectBoundingBox'"),
              {40, 40, 50, 50});
}

TEST(SvgPattern, IsMovedByItsTransformAndThatOfTheShape) {
    const Drawing drawing =
        readOk(svgFile("<pattern id='p' patternUnits='userSpaceOnUse' width='4' height='4' "
                       "patternTransform='translate(1 2) scale(3)'><circle r='1'/></pattern>"
                       "<rect transform='scale(2)' width='9' height='9' stroke='url(#p)' fill='none'/>"));
    const auto& stroke = styleOf(*drawing.object(0)).stroke.paint;
    ASSERT_TRUE(std::holds_alternative<PatternPtr>(stroke));
    EXPECT_EQ(std::get<PatternPtr>(stroke)->toDrawing, (Affine{6, 0, 0, 6, 2, 4}));
}

TEST(SvgPattern, TakesOverWhatItDoesNotSay) {
    const Drawing drawing =
        readOk(svgFile("<pattern id='a' width='8' height='2' patternUnits='userSpaceOnUse'><rect width='3' "
                       "height='1'/></pattern>"
                       "<pattern id='b' href='#a' width='4' patternTransform='scale(2)'/>"
                       "<pattern id='c' xlink:href='#b' height='6'>text is no content</pattern>"
                       "<rect width='50' height='50' fill='url(#c)'/>"));
    const Pattern* const pattern = patternOf(drawing);
    ASSERT_TRUE(pattern);
    expectBox(pattern->cell, {0, 0, 4, 6});
    EXPECT_EQ(pattern->toDrawing, Affine::scaling(2, 2));
    ASSERT_EQ(pattern->objects->size(), 1U);
    expectBox(pattern->objects->front()->bounds, {0, 0, 3, 1});
}

TEST(SvgPattern, GivesItsContentTheStyleOfWhereItStands) {
    const Drawing drawing = readOk(svgFile(
        "<g fill='#00f'><pattern id='p' width='1' height='1' stroke='#f00'><rect width='3' height='3'/>"
        "</pattern></g><rect width='50' height='50' fill='url(#p)' stroke='#0f0'/>"));
    ASSERT_TRUE(patternOf(drawing));
    const Object& inside = *patternOf(drawing)->objects->front();
    EXPECT_EQ(std::get<ColorPaint>(inside.fill).color, (Rgb16{0, 0, 65535}));
    EXPECT_EQ(std::get<ColorPaint>(styleOf(inside).stroke.paint).color, (Rgb16{65535, 0, 0}));
    EXPECT_FALSE(inside.source.inFile());
}

TEST(SvgPattern, IsSharedByShapesThatShowTheSame) {
    const Drawing drawing = readOk(
        svgFile("<pattern id='p' patternUnits='userSpaceOnUse' width='4' height='4'><circle r='1'/></pattern>"
                "<rect width='9' height='9' fill='url(#p)'/><circle r='9' fill='url(#p)'/>"
                "<rect transform='scale(2)' width='9' height='9' fill='url(#p)'/>"));
    EXPECT_EQ(patternOf(drawing, 0), patternOf(drawing, 1));
    EXPECT_NE(patternOf(drawing, 1), patternOf(drawing, 2));
    EXPECT_EQ(patternOf(drawing, 1)->objects, patternOf(drawing, 2)->objects);
}

TEST(SvgPattern, WithoutExtentOrContentPaintsNothing) {
    for (const char* const attributes :
         {"", "width='1'", "width='0' height='1'", "width='-1' height='1'",
          "width='1' height='1' patternTransform='scale(0)'", "width='1e300' height='1'"})
        EXPECT_TRUE(std::holds_alternative<NoPaint>(readWith(attributes).object(0)->fill)) << attributes;
    EXPECT_TRUE(std::holds_alternative<NoPaint>(readWith("width='1' height='1'", "").object(0)->fill));
    // A line has no box to measure by.
    const Drawing line = readOk(svgFile("<pattern id='p' width='1' height='1'><rect width='3' height='3'/>"
                                        "</pattern><path d='M0 0H50' stroke='url(#p)'/>"));
    EXPECT_TRUE(std::holds_alternative<NoPaint>(styleOf(*line.object(0)).stroke.paint));
}

TEST(SvgPattern, ThatLeadsBackToItselfIsNoneThereAndIsNamed) {
    const Drawing drawing = readOk(svgFile(
        "<pattern id='a' width='1' height='1'><rect width='5' height='5' fill='url(#b)'/></pattern>"
        "<pattern id='b' width='1' height='1'><rect width='5' height='5' fill='url(#a)'/></pattern>"
        "<pattern id='c' href='#d' width='1' height='1'/><pattern id='d' href='#c'/>"
        "<rect width='50' height='50' fill='url(#a)'/><rect width='50' height='50' fill='url(#c)'/>"));
    ASSERT_TRUE(patternOf(drawing, 0));
    const auto& inner = std::get<PatternPtr>(patternOf(drawing, 0)->objects->front()->fill);
    EXPECT_TRUE(std::holds_alternative<NoPaint>(inner->objects->front()->fill));
    EXPECT_TRUE(std::holds_alternative<NoPaint>(drawing.object(1)->fill));
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_EQ(drawing.notes()[0],
              "References that lead back to themselves are kept in the file but not followed.");
}

TEST(SvgPattern, StaysInTheFileWhenAShapeTakesAGradient) {
    Drawing drawing = readWith("width='1' height='1'");
    const std::string before = easel::svg::toBytes(drawing);
    giveGradient(drawing, 0, CGradientData());
    const std::string after = easel::svg::toBytes(drawing);
    EXPECT_NE(after.find("<pattern id='p' width='1' height='1'>"), std::string::npos);
    EXPECT_EQ(after.find("url(#p)"), std::string::npos);
    drawing.undo();
    EXPECT_EQ(easel::svg::toBytes(drawing), before);
}

} // namespace
