// Where markers stand, how they are turned, and what becomes of drawings with them.
#include "easel/drawing/Filter.h"
#include "easel/drawing/Group.h"
#include "easel/svg/read/MarkerVertices.h"
#include "easel/svg/text/PathData.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using easel::svg::MarkerVertex;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;

std::vector<MarkerVertex> verticesOf(const std::string& path) {
    auto data = easel::svg::parsePathData(path);
    return easel::svg::markerVertices({Kind::Path, data.path, data.insideArcs});
}

auto turnedBy(double degrees) {
    return Field(&MarkerVertex::degrees, DoubleNear(degrees, 1e-6));
}

const std::string kMarker = "<marker id='m' orient='auto' markerUnits='userSpaceOnUse' markerWidth='4' "
                            "markerHeight='4'><rect width='4' height='2'/></marker>";

Box markerBox(const std::string& content, std::size_t marker = 0) {
    const Drawing drawing = readOk(svgFile(content));
    const auto& markers = drawing.object(0)->markers;
    EXPECT_TRUE(markers && marker < markers->size());
    return markers && marker < markers->size() ? (*markers)[marker]->bounds : Box();
}

TEST(Markers, TurnHalfwayBetweenHowTheOutlineComesAndGoes) {
    EXPECT_THAT(verticesOf("M0 0H10V10H0"),
                ElementsAre(turnedBy(0), turnedBy(45), turnedBy(135), turnedBy(180)));
    // Across the cut of the angles at half a turn.
    EXPECT_THAT(verticesOf("M10 1L0 0L10 -1")[1], turnedBy(-90));
    EXPECT_THAT(verticesOf("M0 0C10 0 20 10 20 20"), ElementsAre(turnedBy(0), turnedBy(90)));
}

TEST(Markers, AClosedOutlineTurnsAtItsSeamAsAtItsOtherVertices) {
    EXPECT_THAT(verticesOf("M0 0H10V10H0Z"),
                ElementsAre(turnedBy(-45), turnedBy(45), turnedBy(135), turnedBy(225), turnedBy(-45)));
}

TEST(Markers, SegmentsWithoutLengthGoAsTheirNeighborsDo) {
    EXPECT_THAT(verticesOf("M0 0L0 0L10 10L10 10V20"),
                ElementsAre(turnedBy(45), turnedBy(45), turnedBy(45), turnedBy(67.5), turnedBy(90)));
}

TEST(Markers, AnArcIsOneSegmentAndAPointHasAStartAndAnEnd) {
    EXPECT_EQ(verticesOf("M0 0A10 10 0 0 1 20 0").size(), 2U);
    EXPECT_EQ(verticesOf("M0 0A10 10 0 0 1 20 0L30 0A5 5 0 1 1 31 1").size(), 4U);
    const auto point = verticesOf("M5 5");
    ASSERT_EQ(point.size(), 2U);
    EXPECT_EQ(point[0].slot, MarkerVertex::Slot::Start);
    EXPECT_EQ(point[1].slot, MarkerVertex::Slot::End);
}

TEST(Markers, AreTurnedAndMovedToTheirVertices) {
    const Box down = markerBox(kMarker + "<path d='M10 10V50' marker-end='url(#m)'/>");
    EXPECT_NEAR(down.left, 8, 1e-9);
    EXPECT_NEAR(down.top, 50, 1e-9);
    EXPECT_NEAR(down.right, 10, 1e-9);
    EXPECT_NEAR(down.bottom, 54, 1e-9);
    const std::string reversed =
        "<marker id='m' orient='auto-start-reverse' markerUnits='userSpaceOnUse' refX='right' "
        "refY='center' markerWidth='4' markerHeight='2'><rect width='4' height='2'/></marker>";
    const Box left = markerBox(reversed + "<path d='M10 10H50' marker-start='url(#m)'/>");
    EXPECT_NEAR(left.left, 10, 1e-9);
    EXPECT_NEAR(left.right, 14, 1e-9);
    EXPECT_NEAR(left.top, 9, 1e-9);
}

TEST(Markers, MayBePaintedAsTheShapeThatShowsThem) {
    const Drawing drawing = readOk(
        svgFile("<marker id='m' fill='blue'><rect fill='context-stroke' stroke='context-fill' width='1' "
                "height='1'/><rect width='1' height='1'/></marker>"
                "<path d='M0 0H10' fill='#0f0' stroke='#f00' style='marker-end:url(#m)'/>"));
    ASSERT_TRUE(drawing.object(0)->markers);
    const auto& markers = *drawing.object(0)->markers;
    ASSERT_EQ(markers.size(), 2U);
    EXPECT_EQ(std::get<ColorPaint>(markers[0]->fill).color, (Rgb16{65535, 0, 0}));
    EXPECT_EQ(std::get<ColorPaint>(styleOf(*markers[0]).stroke.paint).color, (Rgb16{0, 65535, 0}));
    EXPECT_EQ(std::get<ColorPaint>(markers[1]->fill).color, (Rgb16{0, 0, 65535}));
}

// The layer with a filter that the first marker lies in.
const Group* filteredLayer(const Drawing& drawing) {
    const auto& markers = drawing.object(0)->markers;
    const Group* group = markers && !markers->empty() ? markers->front()->group.get() : nullptr;
    while (group && !group->filter)
        group = group->parent.get();
    return group;
}

TEST(Markers, AreFilteredAsTheyAreAndAsWhatIsInThemIs) {
    const std::string flood = "<filter id='f'><feFlood/></filter>";
    const std::string line = "<path d='M10 10H50' marker-start='url(#m)'/>";
    const std::string begin = "<marker id='m' markerUnits='userSpaceOnUse' markerWidth='9' markerHeight='9' ";
    const Drawing whole =
        readOk(svgFile(flood + begin + "filter='url(#f)'><rect width='40' height='20'/></marker>" + line));
    EXPECT_THAT(whole.notes(), testing::IsEmpty());
    ASSERT_TRUE(filteredLayer(whole));
    // A tenth more on each side of what it holds, moved to the vertex; what cuts it off does so before.
    EXPECT_EQ(filteredLayer(whole)->filter->bounds(), (Box{6, 8, 54, 32}));
    const Drawing part = readOk(
        svgFile(flood + begin + "><g><rect width='40' height='20' filter='url(#f)'/></g></marker>" + line));
    ASSERT_TRUE(filteredLayer(part));
    EXPECT_EQ(filteredLayer(part)->filter->bounds(), (Box{6, 8, 54, 32}));
    // What is hidden counts for the box.
    const Drawing hidden = readOk(svgFile(flood + begin +
                                          "filter='url(#f)'><rect width='40' height='20'/><rect x='40' "
                                          "visibility='hidden' width='60' height='20'/></marker>" +
                                          line));
    ASSERT_TRUE(filteredLayer(hidden));
    EXPECT_EQ(filteredLayer(hidden)->filter->bounds(), (Box{0, 8, 120, 32}));
}

TEST(Markers, AreNoObjectsOfTheirOwnAndStayInTheFile) {
    const std::string text = svgFile(kMarker + "<path id='p' d='M10 10V50H60z' marker='none' "
                                               "style='marker:url(#m);marker-mid:none'/>");
    Drawing drawing = readOk(text);
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(drawing.object(0)->markers->size(), 2U);
    EXPECT_TRUE(drawing.notes().empty());
    EXPECT_EQ(easel::svg::toBytes(drawing), text);
    giveGradient(drawing, 0, CGradientData());
    const Drawing again = readOk(easel::svg::toBytes(drawing));
    ASSERT_EQ(again.size(), 1U);
    EXPECT_EQ(again.object(0)->markers->size(), 2U);
}

TEST(Markers, ThatShowThemselvesAreNamed) {
    const Drawing drawing = readOk(svgFile(
        "<marker id='m'><path d='M0 0H1' marker-end='url(#m)'/></marker><g marker-end='url(#m)'><path "
        "d='M0 0H10'/></g>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("lead back to themselves")));
}

} // namespace
