// What shapes are painted with that ask for the paints of the `use` element that repeats them.
#include "easel/drawing/StandardGradient.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using testing::HasSubstr;
using testing::Not;

constexpr Rgb16 kRed{65535, 0, 0};
constexpr Rgb16 kLime{0, 65535, 0};
constexpr Rgb16 kBlue{0, 0, 65535};

const std::string kAsking =
    "<defs><rect id='a' width='10' height='10' fill='context-fill' stroke='context-stroke'/></defs>";

std::optional<Rgb16> colorOf(const Paint& paint) {
    const auto* const color = std::get_if<ColorPaint>(&paint);
    return color ? std::optional(color->color) : std::nullopt;
}

struct Colors {
    std::optional<Rgb16> fill, stroke;
    bool operator==(const Colors&) const = default;
};

Colors colorsIn(const std::string& content) {
    const Drawing drawing = readOk(svgFile(content));
    EXPECT_EQ(drawing.size(), 1U);
    if (drawing.size() == 0)
        return {};
    const Object& object = *drawing.object(drawing.size() - 1);
    return {colorOf(object.fill), colorOf(styleOf(object).stroke.paint)};
}

TEST(UseContext, ShapesTakeThePaintsOfTheUseElementThatRepeatsThem) {
    const Colors redInBlue{kRed, kBlue};
    EXPECT_EQ(colorsIn(kAsking + "<use href='#a' fill='red' stroke='blue'/>"), redInBlue);
    EXPECT_EQ(colorsIn(kAsking + "<g fill='red' color='blue'><use href='#a' stroke='currentColor'/></g>"),
              redInBlue);
    // What the elements in between state does not matter, and case never does.
    EXPECT_EQ(
        colorsIn("<symbol id='s' fill='lime'><circle r='5' style='FILL:Context-Fill;stroke:CONTEXT-STROKE'/>"
                 "</symbol><use href='#s' fill='red' stroke='blue'/>"),
        redInBlue);
}

TEST(UseContext, OfSeveralUseElementsTheInnermostCounts) {
    const std::string nested =
        kAsking + "<defs><g id='b'><use href='#a' fill='lime' stroke='context-fill'/></g></defs>";
    EXPECT_EQ(colorsIn(nested + "<use href='#b' fill='red' stroke='blue'/>"), (Colors{kLime, kRed}));
}

TEST(UseContext, WithoutAUseElementThereIsNoPaint) {
    EXPECT_EQ(colorsIn("<rect width='9' height='9' fill='context-fill' stroke='context-stroke'/>"), Colors());
    const Drawing drawing = readOk(svgFile("<use href='#r' fill='red'/><rect id='r' width='9' height='9' "
                                           "fill='context-fill'/>"));
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_EQ(colorOf(drawing.object(0)->fill), kRed);
    EXPECT_EQ(colorOf(drawing.object(1)->fill), std::nullopt) << "only the copy is repeated";
}

TEST(UseContext, MarkersTakeThePaintsOfTheShapeThatShowsThem) {
    const Drawing inside =
        readOk(svgFile("<marker id='m'><rect width='1' height='1' fill='context-fill'/></marker>"
                       "<defs><path id='p' d='M0 0H10' fill='lime' marker-end='url(#m)'/></defs><use "
                       "href='#p' fill='red'/>"));
    ASSERT_TRUE(inside.size() == 1 && inside.object(0)->markers);
    EXPECT_EQ(colorOf(inside.object(0)->markers->front()->fill), kLime);
    // A marker is nearer than what is repeated in it.
    const Drawing repeated =
        readOk(svgFile(kAsking + "<marker id='m'><use href='#a' fill='red'/></marker>"
                                 "<path d='M0 0H10' fill='lime' marker-end='url(#m)'/>"));
    ASSERT_TRUE(repeated.size() == 1 && repeated.object(0)->markers);
    EXPECT_EQ(colorOf(repeated.object(0)->markers->front()->fill), kLime);
}

// Where the gradients of the objects begin and end, in the drawing.
std::vector<Box> gradientLines(const std::string& content) {
    const Drawing drawing = readOk(
        svgFile("<linearGradient id='g' y2='1'><stop stop-color='red' stop-opacity='.5'/><stop offset='1'/>"
                "</linearGradient>" +
                content));
    std::vector<Box> lines;
    drawing.forEach([&](const ObjectPtr& object) {
        const Gradient* const gradient = gradientIn(object->fill);
        const auto* const line = gradient ? std::get_if<LinearGeometry>(&gradient->geometry) : nullptr;
        if (!line)
            return lines.push_back({});
        const Point start = gradient->toDrawing(line->start);
        const Point end = gradient->toDrawing(line->end);
        lines.push_back({start.x, start.y, end.x, end.y});
    });
    return lines;
}

TEST(UseContext, AGradientLiesInTheBoxOfEverythingThatIsRepeated) {
    const std::string two = "<defs><g id='two' fill='context-fill'><rect width='10' height='10'/>"
                            "<rect x='30' y='10' width='10' height='10'/></g></defs>";
    const std::vector<Box> whole = {{5, 5, 45, 25}, {5, 5, 45, 25}};
    EXPECT_EQ(gradientLines(two + "<use href='#two' x='5' y='5' fill='url(#g)'/>"), whole);
    // In the units of the use element.
    const std::vector<Box> doubled = {{10, 0, 90, 40}, {10, 0, 90, 40}};
    EXPECT_EQ(gradientLines(two + "<use href='#two' transform='scale(2)' x='5' fill='url(#g)'/>"), doubled);
}

TEST(UseContext, WhatIsHiddenCountsForTheBox) {
    const std::string hidden = "<defs><g id='two'><rect width='10' height='10' fill='context-fill'/><g>"
                               "<rect width='100' height='20' visibility='hidden'/></g></g></defs>";
    EXPECT_EQ(gradientLines(hidden + "<use href='#two' fill='url(#g)'/>"),
              (std::vector<Box>{{0, 0, 100, 20}}));
}

TEST(UseContext, ARepetitionInARepetitionLiesInItsOwnBox) {
    const std::string inner =
        "<defs><rect id='r' width='10' height='10' fill='context-fill'/><g id='two'><use href='#r'/>"
        "<use href='#r' x='30' fill='context-fill'/></g></defs>";
    EXPECT_EQ(gradientLines(inner + "<use href='#two' fill='url(#g)'/>"),
              (std::vector<Box>{{0, 0, 10, 10}, {0, 0, 40, 10}}));
}

TEST(UseContext, RepetitionsInEachOtherTakeBoundedTime) {
    std::string content = "<g id='u0'><rect width='9' height='9' fill='context-fill'/></g>";
    for (int i = 1; i <= 200; ++i)
        content += "<g id='u" + std::to_string(i) + "'><use href='#u" + std::to_string(i - 1) +
                   "' fill='url(#g)'/></g>";
    EXPECT_EQ(gradientLines("<defs>" + content + "</defs><use href='#u200'/>").size(), 1U);
}

TEST(UseContext, AChangedFillIsSavedAndTheRestStays) {
    Drawing drawing = readOk(svgFile(kAsking + "<use href='#a' fill='red' stroke='blue'/>"
                                               "<use href='#a' x='20' fill='lime'/>"));
    ASSERT_EQ(drawing.size(), 2U);
    CGradientData record;
    record.SetAngle(30);
    giveGradient(drawing, 0, record);
    const Drawing again = readOk(easel::svg::toBytes(drawing));
    ASSERT_EQ(again.size(), 2U);
    ASSERT_TRUE(recordOf(again));
    EXPECT_EQ(recordOf(again)->Angle(), 30);
    EXPECT_EQ(colorOf(styleOf(*again.object(0)).stroke.paint), kBlue);
    EXPECT_EQ(colorOf(again.object(1)->fill), kLime);
}

TEST(UseContext, WhatIsWrittenOutBesideAChangedShapeKeepsThePaintsOfTheUseElement) {
    Drawing drawing = readOk(svgFile(
        "<linearGradient id='g'><stop stop-color='red' stop-opacity='.5'/><stop offset='1'/></linearGradient>"
        "<defs><g id='two'><rect width='10' height='10'/><rect x='30' width='10' height='10' "
        "fill='context-fill' stroke='context-stroke' stroke-opacity='.5'/></g></defs>"
        "<use href='#two' fill='url(#g)' stroke='rgba(0,0,255,.5)'/>"));
    giveGradient(drawing, 0, CGradientData());
    const Drawing again = readOk(easel::svg::toBytes(drawing));
    ASSERT_EQ(again.size(), 2U);
    const Gradient* const before = gradientIn(drawing.object(1)->fill);
    const Gradient* const after = gradientIn(again.object(1)->fill);
    ASSERT_TRUE(before && after);
    EXPECT_TRUE(alike(*before, *after));
    const Stroke& stroke = styleOf(*again.object(1)).stroke;
    EXPECT_EQ(colorOf(stroke.paint), kBlue);
    EXPECT_EQ(stroke.opacity, 0.25);
}

TEST(UseContext, NoMoreIsStatedThanThePaintsThatWereAskedFor) {
    Drawing drawing =
        readOk(svgFile("<defs><g id='two'><rect width='10' height='10'/><rect x='30' width='10' "
                       "height='10' fill='context-fill' stroke='green'/></g></defs>"
                       "<use href='#two' fill='red'/><use href='#two' y='20' fill='lime'/>"));
    giveGradient(drawing, 0, CGradientData());
    const std::string text = easel::svg::toBytes(drawing);
    EXPECT_THAT(text, HasSubstr("<use href='#two' y='20' fill='lime'/>"));
    EXPECT_THAT(text, HasSubstr("#ff0000"));
    EXPECT_THAT(text, Not(HasSubstr("#008000")));
    EXPECT_THAT(text, Not(HasSubstr("fill-opacity")));
}

} // namespace
