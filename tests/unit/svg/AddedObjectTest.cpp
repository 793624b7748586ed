// Objects that no file holds yet: as they are written, so they are read.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using namespace easel::drawing;
using testing::HasSubstr;
using testing::Not;

Object rectangle(Path outline = rectanglePath({10, 20, 40, 60})) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = std::move(outline);
    object.fillPattern = FillPattern::Other;
    object.fill = ColorPaint{{65535, 0, 0}, 1};
    return object;
}

std::string writtenWith(const Object& object) {
    Drawing drawing = Drawing::create(100, 100);
    drawing.insert(0, sealed(object));
    return easel::svg::toBytes(drawing);
}

Drawing readBack(const Object& object) {
    Drawing drawing = readOk(writtenWith(object));
    EXPECT_EQ(drawing.size(), 1U);
    return drawing;
}

Object strokedWith(const Stroke& stroke) {
    Object object = rectangle();
    Style style;
    style.stroke = stroke;
    object.style = makeShared<const Style>(style);
    return object;
}

Stroke redStroke() {
    Stroke stroke;
    stroke.paint = ColorPaint{{65535, 0, 0}, 1};
    return stroke;
}

TEST(AddedObjects, KeepTheirPen) {
    Stroke stroke = redStroke();
    stroke.width = 3.5;
    stroke.opacity = 0.5;
    stroke.join = LineJoin::Round;
    stroke.cap = LineCap::Square;
    stroke.miterLimit = 7;
    stroke.dashes = {3, 1, 4, 1};
    stroke.dashOffset = 2;
    EXPECT_EQ(styleOf(*readBack(strokedWith(stroke)).object(0)).stroke, stroke);
    stroke.join = LineJoin::Bevel;
    stroke.cap = LineCap::Round;
    stroke.dashes.clear();
    stroke.dashOffset = 0;
    EXPECT_EQ(styleOf(*readBack(strokedWith(stroke)).object(0)).stroke, stroke);
}

TEST(AddedObjects, KeepAPenThatIsMeasuredInTheDrawing) {
    Stroke stroke = redStroke();
    stroke.inDrawingUnits = true;
    Object object = strokedWith(stroke);
    object.units = makeShared<const Affine>(Affine::scaling(2, 4));
    EXPECT_THAT(writtenWith(object), HasSubstr("vector-effect=\"non-scaling-stroke\""));
    const Drawing again = readBack(object);
    EXPECT_TRUE(styleOf(*again.object(0)).stroke.inDrawingUnits);
    EXPECT_EQ(again.object(0)->bounds, (Box{10, 20, 40, 60}));
}

TEST(AddedObjects, KeepTheirUnitsUnlessTheseCannotBeTurnedRound) {
    Object object = strokedWith(redStroke());
    object.units = makeShared<const Affine>(Affine{2, 0, 0, 4, 5, 6});
    EXPECT_EQ(unitsOf(*readBack(object).object(0)), (Affine{2, 0, 0, 4, 5, 6}));
    object.units = makeShared<const Affine>(Affine{0, 0, 0, 0, 5, 6});
    EXPECT_EQ(readBack(object).object(0)->bounds, (Box{10, 20, 40, 60}));
}

TEST(AddedObjects, KeepOpacitiesAndTheOrderOfPainting) {
    Object object = rectangle();
    Style style;
    style.opacity = 0.25;
    style.fillOpacity = 0.5;
    style.first = PaintStep::Stroke;
    style.stroke = redStroke();
    object.style = makeShared<const Style>(style);
    object.fillRule = FillRule::EvenOdd;
    const Drawing again = readBack(object);
    EXPECT_EQ(styleOf(*again.object(0)), style);
    EXPECT_EQ(again.object(0)->fillRule, FillRule::EvenOdd);
    Object faint = rectangle();
    faint.fill = ColorPaint{{0, 0, 65535}, 0.5};
    EXPECT_THAT(writtenWith(faint), HasSubstr("fill-opacity=\"0.5\""));
    faint.fill = NoPaint{};
    faint.fillPattern = FillPattern::None;
    EXPECT_THAT(writtenWith(faint), HasSubstr("fill=\"none\""));
}

TEST(AddedObjects, StateTheOpacityOfTheirFillWhereItIsNotFull) {
    Object object = rectangle();
    EXPECT_THAT(writtenWith(object), Not(HasSubstr("opacity")));
    Style style;
    style.fillOpacity = 0;
    object.style = makeShared<const Style>(style);
    EXPECT_THAT(writtenWith(object), HasSubstr(" fill-opacity=\"0\""));
    style.fillOpacity = 0.5;
    object.style = makeShared<const Style>(style);
    object.fill = ColorPaint{{65535, 0, 0}, 0.25};
    EXPECT_THAT(writtenWith(object), HasSubstr(" fill-opacity=\"0.125\""));
}

TEST(AddedObjects, StateTheOpacityOfTheirStrokeWhereItIsNotFull) {
    Stroke stroke = redStroke();
    EXPECT_THAT(writtenWith(strokedWith(stroke)), Not(HasSubstr("opacity")));
    stroke.opacity = 0;
    EXPECT_THAT(writtenWith(strokedWith(stroke)), HasSubstr(" stroke-opacity=\"0\""));
    stroke.opacity = 0.5;
    stroke.paint = ColorPaint{{65535, 0, 0}, 0.25};
    EXPECT_THAT(writtenWith(strokedWith(stroke)), HasSubstr(" stroke-opacity=\"0.125\""));
    stroke.paint = std::make_shared<const Gradient>();
    EXPECT_THAT(writtenWith(strokedWith(stroke)), HasSubstr(" stroke-opacity=\"0.5\""));
    stroke.opacity = 1;
    EXPECT_THAT(writtenWith(strokedWith(stroke)), Not(HasSubstr("stroke-opacity")));
}

TEST(AddedObjects, WithRoundedCornersStateBothRadii) {
    EXPECT_THAT(writtenWith(rectangle(roundedRectanglePath({10, 20, 50, 100}, 4, 8))),
                HasSubstr(" x=\"10\" y=\"20\" width=\"40\" height=\"80\" rx=\"4\" ry=\"8\""));
}

TEST(AddedObjects, OfAnOutlineThatTheirElementCannotSayArePaths) {
    const Box box{10, 20, 40, 60};
    Path almostRounded = roundedRectanglePath(box, 4, 2);
    Path turned = polygonPath({{10, 20}, {40, 20}, {40, 60}});
    for (const Path& outline :
         {turned, ellipsePath({25, 40}, 15, 20), almostRounded.transformed(Affine::rotation(5))}) {
        Object object = rectangle(outline);
        EXPECT_THAT(writtenWith(object), HasSubstr("<path"));
        EXPECT_THAT(writtenWith(object), Not(HasSubstr("<rect")));
    }
    Object ellipse = rectangle(turned);
    ellipse.kind = Kind::Ellipse;
    EXPECT_THAT(writtenWith(ellipse), HasSubstr("<path"));
    ellipse.outline = ellipsePath({25, 40}, 15, 20).transformed(Affine::rotation(5));
    EXPECT_THAT(writtenWith(ellipse), HasSubstr("<path"));
    Object polygon = rectangle(polylinePath({{1, 1}, {5, 5}, {9, 1}}));
    polygon.kind = Kind::Polygon;
    EXPECT_THAT(writtenWith(polygon), HasSubstr("<path"));
    Object polyline = rectangle(turned);
    polyline.kind = Kind::Polyline;
    EXPECT_THAT(writtenWith(polyline), HasSubstr("<path"));
    Object line = rectangle(polylinePath({{1, 1}, {5, 5}, {9, 1}}));
    line.kind = Kind::Line;
    EXPECT_THAT(writtenWith(line), HasSubstr("<path"));
    line.outline = polygonPath({{1, 1}, {5, 5}});
    EXPECT_THAT(writtenWith(line), HasSubstr("<path"));
    line.outline = polylinePath({{1, 1}, {5, 5}});
    EXPECT_THAT(writtenWith(line), HasSubstr("<line"));
}

TEST(AddedObjects, KeepAGradientOfAFile) {
    const Drawing source =
        readOk(svgFile("<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='10' x2='40' "
                       "spreadMethod='repeat'><stop stop-color='red' "
                       "stop-opacity='.5'/><stop offset='1' stop-color='blue'/></linearGradient><rect x='10' "
                       "y='20' width='30' "
                       "height='40' fill='url(#g)' stroke='url(#g)'/>"));
    Object copy = *source.object(0);
    copy.source = {};
    const Drawing again = readBack(copy);
    const GradientPtr* const fill = std::get_if<GradientPtr>(&again.object(0)->fill);
    ASSERT_TRUE(fill);
    const auto& line = std::get<LinearGeometry>((*fill)->geometry);
    EXPECT_EQ((*fill)->toDrawing(line.start).x, 10);
    EXPECT_EQ((*fill)->toDrawing(line.end).x, 40);
}

TEST(AddedObjects, LeaveOutNumbersThatAreNone) {
    Path broken;
    broken.moveTo({1, 1});
    broken.lineTo({9, 1});
    broken.lineTo({std::numeric_limits<double>::quiet_NaN(), 5});
    broken.lineTo({9, 9});
    broken.cubicTo({1, 1}, {std::numeric_limits<double>::infinity(), 2}, {3, 7});
    broken.close();
    Object object = rectangle(broken);
    object.kind = Kind::Path;
    const Drawing again = readBack(object);
    EXPECT_EQ(again.object(0)->bounds, (Box{1, 1, 9, 9}));
    Path allBroken;
    allBroken.moveTo({std::numeric_limits<double>::infinity(), 1});
    allBroken.lineTo({3, std::numeric_limits<double>::quiet_NaN()});
    object.outline = allBroken;
    EXPECT_EQ(readOk(writtenWith(object)).size(), 0U);
}

} // namespace
