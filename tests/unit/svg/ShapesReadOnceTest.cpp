// Shapes leave the tree of elements once they have been read; what may still be asked for stays.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/svg/text/XmlTree.h"

namespace {

using namespace easel::drawing;

bool readOnce(const std::string& body) {
    const std::string text = svgFile(body);
    return easel::svg::XmlTree(text).readOnce();
}

TEST(ShapesReadOnce, OnlyWhereNothingShowsThemAgainAndNoSheetAsksWhatIsBesideThem) {
    EXPECT_TRUE(
        readOnce("<rect id='r' width='9' height='9' fill='url(#g)'/><linearGradient id='g'/>"
                 "<linearGradient xlink:href='#g'/><radialGradient href='#g'/><image href='a.png'/>"));
    EXPECT_FALSE(readOnce("<rect/><use href='#r'/>"));
    EXPECT_FALSE(readOnce("<rect/><use xlink:href=' #r'/>"));
    EXPECT_FALSE(readOnce("<rect/><style/>"));
}

// The drawing's objects by their kinds, one letter each.
std::string shown(const std::string& body) {
    std::string letters;
    readOk(svgFile(body)).forEach([&](const ObjectPtr& object) {
        letters += kindName(object->kind).front();
    });
    return letters;
}

TEST(ShapesReadOnce, AGroupIsShownAgainWithShapesThatHaveNoNames) {
    EXPECT_EQ(shown("<g id='g'><rect width='9' height='9'/><circle r='5'/></g><use href='#g'/>"), "rere");
}

TEST(ShapesReadOnce, ASheetCountsTheShapesBeforeAnother) {
    EXPECT_EQ(shown("<style>rect:nth-child(3) { display: none }</style><rect width='9' height='9'/>"
                    "<rect width='8' height='8'/>"),
              "r");
}

TEST(ShapesReadOnce, AMarkerIsMadeOfShapesThatAreReadForEachLine) {
    const Drawing drawing =
        readOk(svgFile("<marker id='m' overflow='visible'><rect width='9' height='9'/></marker>"
                       "<line x2='9' marker-end='url(#m)'/><line x2='8' marker-end='url(#m)'/>"));
    for (const std::size_t line : {0u, 1u}) {
        ASSERT_TRUE(drawing.object(line)->markers) << line;
        EXPECT_EQ(drawing.object(line)->markers->size(), 1u);
    }
}

// So many that what they took is given to something else.
std::string manySquares() {
    std::string squares;
    for (int i = 0; i < 5000; ++i)
        squares += "<rect width='1' height='1'/>";
    return squares;
}

TEST(ShapesReadOnce, AFillMayNameAShape) {
    const Drawing drawing =
        readOk(svgFile(manySquares() + "<rect id='r' width='9' height='9'/>" + manySquares() +
                       "<rect width='9' height='9' fill='url(#r) #f00'/>"));
    ASSERT_EQ(drawing.size(), 10'002u);
    EXPECT_EQ(std::get<ColorPaint>(drawing.object(10'001)->fill), (ColorPaint{{65535, 0, 0}, 1}));
}

TEST(ShapesReadOnce, AFillMayNameAGradientInsideAShape) {
    const Drawing drawing = readOk(svgFile(manySquares() +
                                           "<rect width='9' height='9'><linearGradient id='g'><stop/><stop "
                                           "offset='1'/></linearGradient></rect>" +
                                           manySquares() + "<rect width='9' height='9' fill='url(#g)'/>"));
    ASSERT_EQ(drawing.size(), 10'002u);
    EXPECT_TRUE(drawing.object(10'001)->showsGradient());
}

} // namespace
