// Shapes, structure and style as the reader understands them.
#include "tests/support/ErrorOf.h"
#include "tests/unit/svg/ReadHelp.h"

#include "easel/svg/text/PathData.h"

#include <cmath>

namespace {

using namespace easel::drawing;

void expectBox(const Box& box, double left, double top, double right, double bottom, double within = 1e-9) {
    EXPECT_NEAR(box.left, left, within);
    EXPECT_NEAR(box.top, top, within);
    EXPECT_NEAR(box.right, right, within);
    EXPECT_NEAR(box.bottom, bottom, within);
}

ColorPaint fillOf(const Drawing& drawing, std::size_t index = 0) {
    return std::get<ColorPaint>(drawing.object(index)->fill);
}

TEST(SvgReader, EveryShapeElementBecomesAnObjectOfItsKind) {
    const Drawing drawing = readOk(
        svgFile("<rect x='1' y='2' width='3' height='4'/><circle cx='50' cy='50' r='10'/>"
                "<ellipse cx='50' cy='50' rx='10' ry='5'/><polygon points='0,0 10,0 10,10'/>"
                "<polyline points='0 0 10 0 10 10'/><line x2='7' y2='8'/><path id='p' d='M1 1h5v5'/>"));
    std::string kinds;
    drawing.forEach([&](const ObjectPtr& object) { kinds += std::string(kindName(object->kind)) + ' '; });
    EXPECT_EQ(kinds, "rect ellipse ellipse polygon polyline line path ");
    expectBox(drawing.object(0)->bounds, 1, 2, 4, 6);
    expectBox(drawing.object(1)->bounds, 40, 40, 60, 60);
    expectBox(drawing.object(5)->bounds, 0, 0, 7, 8);
    EXPECT_EQ(drawing.indexOfId("p"), 6U);
}

TEST(SvgReader, ShapesWithoutExtentAreNoObjects) {
    EXPECT_EQ(readOk(svgFile("<rect width='0' height='5'/><circle r='0'/><path d=''/><polygon/>")).size(),
              0U);
}

TEST(SvgReader, PathCommandsRelativeAndAbsoluteDescribeTheSameOutline) {
    using easel::svg::parsePathData;
    EXPECT_EQ(parsePathData("M10 10h5v5H10z m1 1l2 0").path,
              parsePathData("M10,10 L15,10 15,15 10,15Z M11 11 13 11").path);
    EXPECT_EQ(parsePathData("M0 0c1 2 3 4 5 6s1 2 3 4").path,
              parsePathData("M0 0C1 2 3 4 5 6C7 8 6 8 8 10").path);
    EXPECT_EQ(parsePathData("M0 0.5.5-1").path, parsePathData("M0 .5L.5 -1").path);
}

TEST(SvgReader, APathEndsBeforeItsFirstMistake) {
    const auto data = easel::svg::parsePathData("M0 0L5 5L6 oops L9 9");
    EXPECT_FALSE(data.complete);
    EXPECT_EQ(data.path.points().size(), 2U);
    EXPECT_TRUE(easel::svg::parsePathData("L1 1").path.empty());
}

TEST(SvgReader, ArcsLieOnTheirEllipseAndTurnTheWayTheFlagsSay) {
    // Half circles about (10, 0): above with clockwise sweep, below without.
    expectBox(easel::svg::parsePathData("M0 0A10 10 0 0 1 20 0").path.bounds(), 0, -10, 20, 0, 5e-3);
    expectBox(easel::svg::parsePathData("M0 0A10 10 0 0 0 20 0").path.bounds(), 0, 0, 20, 10, 5e-3);
    // Three quarters of the circle about (10, 10), flags written without blanks.
    expectBox(easel::svg::parsePathData("M10 0a10 10 0 11-10 10").path.bounds(), 0, 0, 20, 20, 5e-3);
    // Radii too small are enlarged.
    expectBox(easel::svg::parsePathData("M0 0A1 1 0 0 1 20 0").path.bounds(), 0, -10, 20, 0, 5e-3);
}

TEST(SvgReader, TransformsApplyFromTheInsideOut) {
    const Drawing drawing =
        readOk(svgFile("<g transform='translate(10 20) scale(2)'>"
                       "<rect width='5' height='5' transform='rotate(90) translate(0,-5)'/></g>"));
    expectBox(drawing.object(0)->bounds, 10, 20, 20, 30);
}

TEST(SvgReader, UnitsAndPercentagesAreMeasuredAgainstTheViewport) {
    const Drawing drawing =
        readOk("<svg xmlns='http://www.w3.org/2000/svg' width='2in' height='72pt' viewBox='0 0 200 100'>"
               "<rect x='10%' y='50%' width='1cm' height='2em' font-size='10'/></svg>");
    EXPECT_DOUBLE_EQ(drawing.width(), 192);
    EXPECT_DOUBLE_EQ(drawing.height(), 96);
    const double scale = 192.0 / 200;
    expectBox(drawing.object(0)->bounds, 20 * scale, 50 * scale, (20 + 96 / 2.54) * scale, 70 * scale);
}

TEST(SvgReader, ADrawingThatStatesNoSizeReachesAsFarAsItsContent) {
    const auto sizeOf = [](const std::string& root, const std::string& content) {
        const Drawing drawing =
            readOk("<svg xmlns='http://www.w3.org/2000/svg' " + root + ">" + content + "</svg>");
        return std::pair(drawing.width(), drawing.height());
    };
    const std::string rect = "<rect x='10' y='20' width='100' height='50' stroke='red' stroke-width='4'/>";
    EXPECT_EQ(sizeOf("", rect), std::pair(112.0, 72.0));
    EXPECT_EQ(sizeOf("width='100%' height='100%'", rect), std::pair(112.0, 72.0));
    EXPECT_EQ(sizeOf("width='40'", rect), std::pair(40.0, 72.0));
    EXPECT_EQ(sizeOf("", ""), std::pair(300.0, 150.0));
    EXPECT_EQ(sizeOf("viewBox='0 0 20 10'", rect), std::pair(20.0, 10.0));
    EXPECT_EQ(sizeOf("width='100' viewBox='0 0 20 10'", rect), std::pair(100.0, 50.0));
    EXPECT_EQ(sizeOf("width='1e30' height='7'", rect), std::pair(112.0, 7.0));
}

TEST(SvgReader, NamesOfSvgMayHaveAPrefixOrNoNamespaceAtAll) {
    EXPECT_EQ(readOk("<svg width='9' height='9'><rect width='5' height='5'/></svg>").size(), 1U);
    EXPECT_EQ(readOk("<s:svg xmlns:s='http://www.w3.org/2000/svg'><s:rect width='5' "
                     "height='5'/></s:svg>")
                  .size(),
              1U);
}

TEST(SvgReader, InternalEntitiesStandForTheirTextEverywhere) {
    const Drawing drawing =
        readOk("<!DOCTYPE svg [<!ENTITY ns 'http://www.w3.org/2000/svg'> <!ENTITY wide \"width='7'\">"
               "<!ENTITY tone 'fill: #f00'> <!ENTITY rule '.b { &tone; }'>]>"
               "<svg xmlns='&ns;'><style>&rule;</style><rect style='&tone;' width='5' height='5'/>"
               "<rect class='b' width='5' height='5'/></svg>");
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_EQ(fillOf(drawing, 0).color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(fillOf(drawing, 1).color, (Rgb16{65535, 0, 0}));
}

TEST(SvgReader, AClipPathInSharesOfAGroupIsMeasuredByWhatTheGroupHolds) {
    const Drawing drawing = readOk(svgFile(
        "<clipPath id='c' clipPathUnits='objectBoundingBox'><rect width='.5' height='.25'/></clipPath>"
        "<g clip-path='url(#c)' transform='scale(2)'><rect x='10' y='10' width='5' height='5'/>"
        "<g transform='translate(10 10)'><rect x='10' width='10' height='10'/></g></g>"));
    ASSERT_EQ(drawing.size(), 2U);
    const GroupPtr group = drawing.object(0)->group;
    ASSERT_TRUE(group && group->clip);
    EXPECT_EQ(drawing.object(1)->group, group);
    // The group reaches from (10, 10) to (30, 20), twice as large in the drawing.
    expectBox(group->clip->shapes.at(0).outline.bounds(), 20, 20, 40, 25);
}

TEST(SvgReader, PreserveAspectRatioPlacesTheViewBox) {
    const auto boxFor = [](const std::string& ratio) {
        return readOk("<svg xmlns='http://www.w3.org/2000/svg' width='200' height='100' viewBox='0 0 10 10' "
                      "preserveAspectRatio='" +
                      ratio + "'><rect width='10' height='10'/></svg>")
            .object(0)
            ->bounds;
    };
    expectBox(boxFor("xMidYMid"), 50, 0, 150, 100);
    expectBox(boxFor("xMaxYMin meet"), 100, 0, 200, 100);
    expectBox(boxFor("xMidYMid slice"), 0, -50, 200, 150);
    expectBox(boxFor("none"), 0, 0, 200, 100);
}

TEST(SvgReader, UseRepeatsElementsAndFitsSymbols) {
    const Drawing drawing = readOk(svgFile("<defs><rect id='r' width='4' height='4'/></defs><symbol id='s' "
                                           "viewBox='0 0 2 2'><circle cx='1' cy='1' "
                                           "r='1'/></symbol><use href='#r' x='10' y='20'/><use "
                                           "xlink:href='#s' width='10' height='10' fill='red'/>"));
    ASSERT_EQ(drawing.size(), 2U);
    expectBox(drawing.object(0)->bounds, 10, 20, 14, 24);
    expectBox(drawing.object(1)->bounds, 0, 0, 10, 10);
    EXPECT_EQ(fillOf(drawing, 1).color, (Rgb16{65535, 0, 0}));
}

TEST(SvgReader, SwitchTakesTheFirstChildThatFits) {
    const Drawing drawing = readOk(svgFile("<switch><rect id='a' systemLanguage='xx' width='1' height='1'/>"
                                           "<rect id='b' systemLanguage='fr, en-GB' width='1' height='1'/>"
                                           "<rect id='c' width='1' height='1'/></switch>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(drawing.object(0)->id.text(), "b");
}

TEST(SvgReader, NestedViewportsMoveScaleAndClip) {
    const Drawing drawing = readOk(svgFile("<svg x='10' y='10' width='20' height='20' viewBox='0 0 10 10'>"
                                           "<rect width='100' height='5'/></svg>"));
    expectBox(drawing.object(0)->bounds, 10, 10, 210, 20);
    ASSERT_TRUE(drawing.object(0)->group && drawing.object(0)->group->clip);
    expectBox(drawing.object(0)->group->clip->shapes.at(0).outline.bounds(), 10, 10, 30, 30);
}

TEST(SvgReader, StyleAttributesBeatSheetsAndSheetsBeatPresentationAttributes) {
    const Drawing drawing = readOk(
        svgFile("<style>rect{fill:blue} .g{fill:lime} #i.g{fill:#fff} g > .k{fill:red !important}</style>"
                "<rect fill='red' width='1' height='1'/><rect class='x g' width='1' height='1'/>"
                "<rect id='i' class='g' width='1' height='1'/><rect class='g' style='fill:black' width='1' "
                "height='1'/>"
                "<g><rect class='k' style='fill:black' width='1' height='1'/></g>"));
    const Rgb16 expected[] = {{0, 0, 65535}, {0, 65535, 0}, {65535, 65535, 65535}, {0, 0, 0}, {65535, 0, 0}};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(fillOf(drawing, i).color, expected[i]) << i;
}

TEST(SvgReader, CurrentColorIsThatOfTheElementThatUsesIt) {
    const Drawing drawing = readOk(svgFile("<g color='red' fill='currentColor'><rect width='1' height='1'/>"
                                           "<rect color='lime' width='1' height='1'/></g>"));
    EXPECT_EQ(fillOf(drawing, 0).color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(fillOf(drawing, 1).color, (Rgb16{0, 65535, 0}));
}

TEST(SvgReader, StrokePropertiesReachTheObject) {
    const Drawing drawing = readOk(
        svgFile("<g stroke='#f00' stroke-width='2mm' stroke-linejoin='round'><path d='M0 0h9' "
                "stroke-linecap='square' "
                "stroke-dasharray='1,2 3' stroke-dashoffset='4' stroke-miterlimit='7' stroke-opacity='50%' "
                "paint-order='stroke' opacity='.5' fill-opacity='.25'/></g>"));
    const Style& style = styleOf(*drawing.object(0));
    EXPECT_NEAR(style.stroke.width, 2 * 96 / 25.4, 1e-9);
    EXPECT_EQ(style.stroke.join, LineJoin::Round);
    EXPECT_EQ(style.stroke.cap, LineCap::Square);
    EXPECT_EQ(style.stroke.dashes, (std::vector<double>{1, 2, 3, 1, 2, 3}));
    EXPECT_EQ(style.stroke.dashOffset, 4);
    EXPECT_EQ(style.stroke.miterLimit, 7);
    EXPECT_EQ(style.stroke.opacity, 0.5);
    EXPECT_EQ(style.opacity, 0.5);
    EXPECT_EQ(style.fillOpacity, 0.25);
    EXPECT_EQ(style.first, PaintStep::Stroke);
}

TEST(SvgReader, DashesAreSharesOfTheStatedPathLength) {
    const auto dashes = [](const std::string& shape) {
        const Drawing drawing = readOk(svgFile("<g transform='scale(3)'>" + shape +
                                               " pathLength='10' fill='none' stroke='red' "
                                               "stroke-dasharray='1 4' stroke-dashoffset='2'/></g>"));
        const Stroke& stroke = styleOf(*drawing.object(0)).stroke;
        EXPECT_NEAR(stroke.dashOffset, 2 * stroke.dashes[0], 1e-9);
        EXPECT_NEAR(stroke.dashes[1], 4 * stroke.dashes[0], 1e-9);
        return stroke.dashes[0];
    };
    EXPECT_NEAR(dashes("<path d='M0 0H20V10'"), 3, 1e-9);
    EXPECT_NEAR(dashes("<rect width='20' height='10'"), 6, 1e-9);
    EXPECT_NEAR(dashes("<circle r='10'"), 2 * std::acos(-1.0), 0.01);
}

TEST(SvgReader, GroupOpacityAndClipPathsBecomeGroupsThatObjectsShare) {
    const Drawing drawing =
        readOk(svgFile("<clipPath id='c'><rect width='5' height='5' clip-rule='evenodd'/></clipPath><g "
                       "opacity='.5' clip-path='url(#c)' "
                       "transform='scale(2)'><rect width='9' height='9'/><rect width='8' height='8'/></g>"));
    const GroupPtr group = drawing.object(0)->group;
    ASSERT_TRUE(group);
    EXPECT_EQ(group, drawing.object(1)->group);
    EXPECT_EQ(group->opacity, 0.5);
    EXPECT_EQ(group->depth, 1U);
    expectBox(group->clip->shapes.at(0).outline.bounds(), 0, 0, 10, 10);
    EXPECT_EQ(group->clip->shapes.at(0).rule, FillRule::EvenOdd);
}

TEST(SvgReader, HiddenElementsAreNoObjects) {
    const Drawing drawing = readOk(svgFile("<g display='none'><rect width='1' height='1'/></g>"
                                           "<g visibility='hidden'><rect width='1' height='1'/>"
                                           "<rect id='v' visibility='visible' width='1' height='1'/></g>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(drawing.object(0)->id.text(), "v");
}

TEST(SvgReader, WhatIsNotShownIsNamedOnce) {
    const Drawing drawing = readOk(svgFile(
        "<flowRoot/><flowRoot/><image href='http://example.com/a.png'/><g "
        "filter='glow(2)'><rect width='1' "
        "height='1' mask='radial-gradient(red, blue)' fill='url(other.svg#x) red'/></g><script>1</script>"));
    EXPECT_EQ(drawing.notes().size(), 6U);
    EXPECT_EQ(fillOf(drawing).color, (Rgb16{65535, 0, 0}));
}

TEST(SvgReader, EntitiesOfTheDocumentTypeAreReplaced) {
    const Drawing drawing =
        readOk("<!DOCTYPE svg [<!ENTITY red 'fill:#f00'><!ENTITY st '&red;;stroke:none'>]>"
               "<svg xmlns='http://www.w3.org/2000/svg'><rect width='1' height='1' style='&st;'/></svg>");
    EXPECT_EQ(fillOf(drawing).color, (Rgb16{65535, 0, 0}));
}

TEST(SvgReader, SvgElementsMayCarryAPrefix) {
    const Drawing drawing =
        readOk("<s:svg xmlns:s='http://www.w3.org/2000/svg'><s:rect width='1' height='1'/>"
               "<rect width='1' height='1'/></s:svg>");
    EXPECT_EQ(drawing.size(), 2U);
}

TEST(SvgReader, ReadingCanBeCancelled) {
    std::string content;
    for (int i = 0; i < 2000; ++i)
        content += "<rect width='1' height='1'/>";
    easel::svg::ReadOptions options;
    double last = 0;
    options.progress = [&](double part) {
        last = part;
        return false;
    };
    const auto result = easel::svg::readBytes(svgFile(content), "x.svg", options);
    EXPECT_TRUE(tests::errorOf(result).isCancellation());
    EXPECT_GT(last, 0);
    EXPECT_LT(last, 1);
}

} // namespace
