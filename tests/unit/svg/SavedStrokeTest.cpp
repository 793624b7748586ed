// That a changed stroke is the one that the saved file gives again, whatever way the file stated the old one.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/GradientCommands.h"
#include "easel/drawing/StandardGradient.h"
#include "easel/svg/write/ReadBack.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using easel::svg::lostIn;
using easel::svg::toBytes;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

const char* const kGradient =
    "<linearGradient id='g' gradientUnits='userSpaceOnUse' x1='5' x2='60' y2='9' spreadMethod='reflect'>"
    "<stop offset='.2' stop-color='#123456'/><stop offset='.8' stop-color='#fedcba' stop-opacity='.4'/>"
    "</linearGradient>";

WholeGradient someGradient() {
    WholeGradient gradient;
    gradient.record.SetType(kRadialGradient);
    gradient.record.SetStart({0.25, 0.5});
    gradient.record.SetEnd({0.4, 0.5});
    gradient.record.ColorList() = {{{1, 2, 3}, 0.125}, {{40000, 50000, 60000}, 1.0 / 3}};
    gradient.remainder = {{{0, 1}, {0.3, 0.1}}, Affine::scaling(2, 0.5)};
    return gradient;
}

void change(Drawing& drawing, std::size_t index, const std::function<void(Object& object)>& how) {
    Object object = *drawing.object(index);
    how(object);
    drawing.prepareUndo(2);
    drawing.erase(index);
    drawing.insert(index, sealed(std::move(object)));
}

void putOnStroke(Drawing& drawing, std::size_t index) {
    change(drawing, index, [](Object& object) { putGradient(object, someGradient(), PaintStep::Stroke); });
}

const Gradient* strokeOf(const Drawing& drawing, std::size_t index = 0) {
    return index < drawing.size() ? gradientIn(styleOf(*drawing.object(index)).stroke.paint) : nullptr;
}

// Whether the drawing with another stroke, saved and opened, has that stroke.
bool comesBack(const std::string& text, std::size_t index = 0) {
    Drawing drawing = readOk(text);
    putOnStroke(drawing, index);
    const std::string bytes = toBytes(drawing);
    const Drawing again = readOk(bytes);
    const Gradient* const meant = strokeOf(drawing, index);
    const Gradient* const read = strokeOf(again, index);
    return meant && read && alike(*meant, *read) && !lostIn(bytes, drawing.snapshot());
}

std::string rectangleWith(const std::string& attributes) {
    return svgFile(kGradient + ("<rect width='40' height='30' " + attributes + "/>"));
}

TEST(SavedStroke, IsTheOneThatCountsOfSeveralStatements) {
    for (const char* attributes :
         {"stroke='url(#g)'", "style='stroke:url(#g)'", "style='stroke:red !important;stroke:blue'",
          "stroke='red' stroke='url(#g)'", "style='fill:none;stroke-width:3' stroke='red'",
          "style=\"stroke:url(#g);font-family:&quot;a;stroke:blue&quot;\"",
          "style='font-family:&apos;a&apos;' stroke='red'", "style='stroke-opacity:.5;stroke:#abc'"})
        EXPECT_TRUE(comesBack(rectangleWith(attributes))) << attributes;
}

TEST(SavedStroke, IsStrongerThanASheet) {
    for (const char* attributes : {"", "style='fill:red'", "style='stroke:blue'", "style='font-family:\"a'"})
        EXPECT_TRUE(comesBack(svgFile(std::string("<style>rect{stroke:red !important}</style>"
                                                  "<rect width='40' height='30' ") +
                                      attributes + "/>")))
            << attributes;
}

TEST(SavedStroke, ComesAfterEntitiesThatMayStateOne) {
    for (const char* style : {"&f;", "fill:none;&f;", "&f;;stroke:blue"})
        EXPECT_TRUE(comesBack("<!DOCTYPE svg [<!ENTITY f \"stroke:red\">]>" +
                              rectangleWith(std::string("style='") + style + "'")))
            << style;
}

TEST(SavedStroke, InUnitsThatAreSkewedAndMirroredComesBack) {
    EXPECT_TRUE(comesBack(svgFile("<g transform='matrix(-3 1 .5 2 40 5)'>"
                                  "<path d='M1 2L9 8C3 4 5 6 2 9' fill='none' stroke='red'/></g>")));
    EXPECT_TRUE(comesBack(svgFile("<line x1='5' y1='9' x2='70' y2='9' stroke='red' stroke-width='4'/>")));
}

TEST(SavedStroke, ChangesNothingElseOfTheFile) {
    const std::string text = rectangleWith("fill='url(#g)' style='stroke: url(#g) ;stroke-width:2'");
    Drawing drawing = readOk(text);
    putOnStroke(drawing, 0);
    std::string bytes = toBytes(drawing);
    const std::size_t block = bytes.find("\n<defs");
    const std::size_t end = bytes.find("</defs>", block) + 7;
    bytes.erase(block, end - block);
    const std::size_t reference = bytes.find("url(#easel-gradient-1)");
    ASSERT_NE(reference, std::string::npos);
    bytes.replace(reference, 22, "url(#g)");
    EXPECT_EQ(bytes, text);
}

TEST(SavedStroke, AndFillOfOneElementAreBothStated) {
    for (const char* sheet : {"", "<style>rect{fill:red;stroke:red}</style>"})
        for (const char* attributes : {"fill='blue' stroke='blue'", "style='stroke-width:1' stroke='blue'"}) {
            Drawing drawing =
                readOk(svgFile(std::string(sheet) + "<rect width='40' height='30' " + attributes + "/>"));
            putOnStroke(drawing, 0);
            change(drawing, 0, [](Object& object) { putGradient(object, someGradient()); });
            const std::string bytes = toBytes(drawing);
            const Drawing again = readOk(bytes);
            EXPECT_FALSE(lostIn(bytes, drawing.snapshot())) << bytes;
            ASSERT_TRUE(strokeOf(again)) << bytes;
            EXPECT_TRUE(alike(*strokeOf(again), *strokeOf(drawing)));
            EXPECT_TRUE(same(*wholeGradientOf(*again.object(0)), someGradient()));
        }
}

TEST(SavedStroke, OfAnElementThatIsRepeatedLeavesItsCopies) {
    Drawing drawing =
        readOk(svgFile("<rect id='a' width='9' height='9' stroke='red'/><use href='#a' x='20'/>"));
    putOnStroke(drawing, 0);
    const Drawing again = readOk(toBytes(drawing));
    EXPECT_TRUE(strokeOf(again, 0));
    EXPECT_EQ(styleOf(*again.object(1)).stroke.paint, Paint(ColorPaint{{65535, 0, 0}, 1}));
}

TEST(SavedStroke, ThatWouldBeLostIsFoundBeforeTheFileIsTouched) {
    Drawing drawing = readOk(rectangleWith("id='r' stroke='url(#g)'"));
    const std::string before = toBytes(drawing);
    putOnStroke(drawing, 0);
    EXPECT_THAT(lostIn(before, drawing.snapshot()).value_or(""), HasSubstr("the stroke of the object \"r\""));
}

TEST(SavedStroke, PlainColorAfterAGradientComesBack) {
    Drawing drawing = readOk(rectangleWith("stroke='url(#g)'"));
    change(drawing, 0, [](Object& object) { removeGradient(object, PaintStep::Stroke); });
    const std::string bytes = toBytes(drawing);
    EXPECT_THAT(bytes, AllOf(HasSubstr("stroke='#"), Not(HasSubstr("easel-gradient"))));
    EXPECT_FALSE(lostIn(bytes, drawing.snapshot()));
}

} // namespace
