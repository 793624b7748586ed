// Style sheets where librsvg does not go along: conditions, custom properties, geometry and transforms as
// style.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

#include <ctime>

namespace {

using namespace easel::drawing;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kLime{0, 65535, 0};
constexpr Rgb16 kBlue{0, 0, 65535};

Rgb16 fillOf(const Drawing& drawing, std::size_t index = 0) {
    const auto* const color = std::get_if<ColorPaint>(&drawing.object(index)->fill);
    EXPECT_TRUE(color);
    return color ? color->color : Rgb16{1, 1, 1};
}

Rgb16 fillUnder(const std::string& sheet) {
    return fillOf(readOk(svgFile("<style>" + sheet + "</style><rect class='a' width='5' height='5'/>")));
}

Box boxOf(const std::string& content) {
    return readOk(svgFile(content)).object(0)->bounds;
}

void expectBox(const Box& box, double left, double top, double right, double bottom) {
    EXPECT_NEAR(box.left, left, 1e-9);
    EXPECT_NEAR(box.top, top, 1e-9);
    EXPECT_NEAR(box.right, right, 1e-9);
    EXPECT_NEAR(box.bottom, bottom, 1e-9);
}

TEST(Css, CommentsInAttributesAreNothing) {
    for (const char* red :
         {"style='/* a */fill:red'", "style='fill:/* a */red'", "style='fill:red/* a */;stroke:none'",
          "style='fill:lime;/* fill:blue;*/fill:red'", "fill='/* a */red'", "fill=' red/* a'"}) {
        const Drawing drawing = readOk(svgFile("<rect width='9' height='9' " + std::string(red) + "/>"));
        const auto* const color = std::get_if<ColorPaint>(&drawing.object(0)->fill);
        EXPECT_TRUE(color && color->color == (Rgb16{65535, 0, 0})) << red;
    }
}

TEST(Css, MediaRulesHoldForAScreenOfTheDrawingsSize) {
    const std::string red = "{ .a { fill: #f00 } }";
    for (const char* query :
         {"screen", "all", "print, screen", "(min-width: 100px)", "not print",
          "only screen and (max-width: 1000px)", "(orientation: portrait)", "(prefers-color-scheme: light)"})
        EXPECT_EQ(fillUnder(std::string("@media ") + query + red), kRed) << query;
    for (const char* query : {"print", "(min-width: 101px)", "screen and (max-height: 99px)", "not all",
                              "(prefers-color-scheme: dark)", "(unheard-of: 1)", "speech and (color)"})
        EXPECT_EQ(fillUnder(std::string("@media ") + query + red), Rgb16()) << query;
    EXPECT_EQ(fillUnder("@media screen { @media print {.a{fill:#f00}} .a{fill:#0f0} } @font-face{} b{}"),
              kLime);
}

TEST(Css, PositionsAreCountedAmongElements) {
    const Drawing drawing =
        readOk(svgFile("<style>rect:nth-child(3n+2){fill:#f00} rect:nth-child(even of x){fill:#00f}"
                       "rect:nth-child( 6 ){fill:#0f0} svg > :not(rect, :nth-child(2)){fill:#00f}</style>"
                       "text<rect width='5' height='5'/><!-- no element --><circle r='5'/>"
                       "<rect width='5' height='5'/><rect width='5' height='5'/>"
                       "<rect width='5' height='5'/>"));
    ASSERT_EQ(drawing.size(), 5U);
    EXPECT_EQ(fillOf(drawing, 0), kRed); // after the sheet, the second
    EXPECT_EQ(fillOf(drawing, 1), kBlue);
    EXPECT_EQ(fillOf(drawing, 2), Rgb16());
    EXPECT_EQ(fillOf(drawing, 3), kRed);
    EXPECT_EQ(fillOf(drawing, 4), kLime);
}

TEST(Css, AnAncestorFartherAwayIsTriedWhereTheNearestDoesNotFit) {
    EXPECT_EQ(fillOf(readOk(svgFile("<style>.x > .y rect { fill: #f00 }</style><g class='x'><g class='y'><g "
                                    "class='y'><rect width='5' height='5'/></g></g></g>"))),
              kRed);
}

TEST(Css, CustomPropertiesAreInheritedThroughGroupsAndRepetitions) {
    const Drawing drawing =
        readOk(svgFile("<style>:root { --tone: #f00; --both: var(--tone) }</style>"
                       "<rect id='r' fill='var(--tone)' width='5' height='5'/>"
                       "<g style='--tone: #0f0'><rect style='fill:var( --tone , #00f)' width='5' "
                       "height='5'/><use href='#r'/></g>"
                       "<rect style='fill: var(--none, rgb(0, 0, 255))' width='5' height='5'/>"
                       "<rect style='fill: var(--none, var(--both))' width='5' height='5'/>"
                       "<linearGradient id='g'><stop stop-color='var(--tone)'/><stop offset='1' "
                       "stop-color='#00f'/></linearGradient>"
                       "<rect fill='url(#g)' width='5' height='5'/>"));
    ASSERT_EQ(drawing.size(), 6U);
    const std::vector<Rgb16> expected = {kRed, kLime, kLime, kBlue, kRed};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(fillOf(drawing, i), expected[i]) << i;
    ASSERT_TRUE(recordOf(drawing, 5));
    EXPECT_EQ(recordOf(drawing, 5)->ColorList().front().ColorRGB().red, 65535);
}

TEST(Css, CustomPropertiesThatRepeatEachOtherAreNothingInBoundedTime) {
    std::string bomb = "--a0: #f00;";
    for (int i = 1; i < 40; ++i)
        bomb += "--a" + std::to_string(i) + ": var(--a" + std::to_string(i - 1) + ") var(--a" +
                std::to_string(i - 1) + ");";
    const std::clock_t begin = std::clock();
    EXPECT_EQ(fillOf(readOk(
                  svgFile("<rect style='--x:var(--y);--y:var(--x);fill:var(--x)' width='5' height='5'/>"))),
              Rgb16());
    EXPECT_EQ(fillOf(readOk(svgFile("<rect style='" + bomb + "fill:var(--a39)' width='5' height='5'/>"))),
              Rgb16());
    EXPECT_LT(std::clock() - begin, 2 * CLOCKS_PER_SEC);
}

TEST(Css, GeometryMayBeStatedAsStyle) {
    const Drawing drawing = readOk(svgFile(
        "<style>rect { x: 10px; y: 20%; width: 30px; height: 40px; rx: 5px } circle { r: 7px; cx: 50% }"
        "ellipse { rx: 4px; ry: 3px } path { d: path('M1 2h3v4z') } .none { d: none }</style>"
        "<rect x='1' width='2'/><circle cy='10' r='1'/><ellipse/><path d='M0 0h99v99z'/><path class='none' "
        "d='M0 0h9v9z'/><use href='#s' style='x: 30px'/><defs><circle id='s'/></defs>"));
    ASSERT_EQ(drawing.size(), 5U);
    expectBox(drawing.object(0)->bounds, 10, 20, 40, 60);
    expectBox(drawing.object(1)->bounds, 43, 3, 57, 17);
    expectBox(drawing.object(2)->bounds, -4, -3, 4, 3);
    expectBox(drawing.object(3)->bounds, 1, 2, 4, 6);
    expectBox(drawing.object(4)->bounds, 73, -7, 87, 7);
}

TEST(Css, TransformsTurnAboutTheirOrigin) {
    const std::string rect = "<rect x='10' y='10' width='20' height='10' ";
    expectBox(boxOf(rect + "style='transform: scale(2); transform-origin: 10px 10px'/>"), 10, 10, 50, 30);
    expectBox(boxOf(rect + "style='transform: scale(2)'/>"), 20, 20, 60, 40);
    // The middle of the viewport of 100 by 100, then of the rectangle itself.
    expectBox(boxOf(rect + "transform='scale(2)' transform-origin='center'/>"), -30, -30, 10, -10);
    expectBox(
        boxOf(rect + "style='transform: scale(2); transform-origin: 50% 50%; transform-box: fill-box'/>"), 0,
        5, 40, 25);
    expectBox(boxOf(rect +
                    "style='transform: scale(2); transform-origin: bottom right; transform-box: fill-box'/>"),
              -10, 0, 30, 20);
    expectBox(boxOf("<g style='transform: rotate(90deg); transform-origin: 50px 50px'>" + rect + "/></g>"),
              80, 10, 90, 30);
}

TEST(Css, ASheetMadeToTakeForEverDoesNot) {
    std::string nested = "<style>";
    for (int i = 0; i < 30; ++i)
        nested += "g g g g g g ~ g > z g rect{fill:#f00}";
    nested += "rect:nth-child(2n) ~ rect + rect{fill:#f00}</style>";
    for (int i = 0; i < 3000; ++i)
        nested += "<g>";
    for (int i = 0; i < 1000; ++i)
        nested += "<rect width='1' height='1'/>";
    for (int i = 0; i < 3000; ++i)
        nested += "</g>";
    const std::clock_t begin = std::clock();
    EXPECT_EQ(readOk(svgFile(nested)).size(), 1000U);
    EXPECT_LT(std::clock() - begin, 20 * CLOCKS_PER_SEC);
}

TEST(Css, GradientsInLinearLightAreNamed) {
    const Drawing drawing =
        readOk(svgFile("<linearGradient id='g' style='color-interpolation: linearRGB'><stop/><stop "
                       "offset='1' stop-color='red'/></linearGradient><rect fill='url(#g)' "
                       "width='5' height='5'/>"));
    EXPECT_THAT(drawing.notes(), testing::ElementsAre(testing::HasSubstr("linear light")));
}

} // namespace
