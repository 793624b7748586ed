// What of a drawing a file would lose: its bytes are read and compared with what was meant.
#include "easel/svg/write/ReadBack.h"

#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using easel::svg::toBytes;
using testing::HasSubstr;

constexpr const char* kGradient = "<linearGradient id='g'><stop stop-color='red'/>"
                                  "<stop offset='1' stop-color='blue' stop-opacity='.5'/></linearGradient>";

// The file with one square that has these attributes.
std::string squareFile(const std::string& attributes) {
    return svgFile(kGradient + ("<rect width='9' height='9' " + attributes + "/>"));
}

Object newSquare(Paint fill) {
    Object object;
    object.kind = Kind::Rect;
    object.outline = rectanglePath({0, 0, 9, 9});
    object.fillPattern = std::holds_alternative<NoPaint>(fill) ? FillPattern::None : FillPattern::Other;
    object.fill = std::move(fill);
    return object;
}

Drawing drawingOf(const Object& object) {
    Drawing drawing = Drawing::create(100, 100);
    drawing.insert(0, sealed(object));
    return drawing;
}

// What those bytes would lose of it; empty if they lose nothing.
std::string lostOf(const Drawing& drawing, const std::string& bytes) {
    return easel::svg::lostIn(bytes, drawing.snapshot()).value_or("");
}

std::string squareWithARecord() {
    Drawing drawing = readOk(squareFile(""));
    giveGradient(drawing, 0, CGradientData());
    return toBytes(drawing);
}

const std::string kFillLost = "the fill of object 1 would not be read back as it is now";

TEST(ReadBack, OfAColorWantsThatColor) {
    const Drawing red = drawingOf(newSquare(ColorPaint{{65535, 0, 0}, 1}));
    EXPECT_EQ(lostOf(red, squareFile("fill='red'")), "");
    for (const char* other : {"fill='blue'", "fill='none'", "fill='url(#g)'", ""})
        EXPECT_EQ(lostOf(red, squareFile(other)), kFillLost) << other;
    EXPECT_EQ(lostOf(red, squareWithARecord()), kFillLost);
}

TEST(ReadBack, OfNoPaintWantsNone) {
    const Drawing empty = drawingOf(newSquare(NoPaint()));
    EXPECT_EQ(lostOf(empty, squareFile("fill='none'")), "");
    for (const char* other : {"fill='red'", "fill='url(#g)'", ""})
        EXPECT_EQ(lostOf(empty, squareFile(other)), kFillLost) << other;
    EXPECT_EQ(lostOf(empty, squareWithARecord()), kFillLost);
}

TEST(ReadBack, OfAFilesGradientTakesWhatTheFileHas) {
    Object copy = *readOk(squareFile("fill='url(#g)'")).object(0);
    ASSERT_FALSE(copy.showsGradient());
    copy.source = {};
    EXPECT_EQ(lostOf(drawingOf(copy), squareFile("fill='url(#g)'")), "");
}

TEST(ReadBack, ComparesAPlainFillOnlyWhereItWasChanged) {
    Drawing drawing = readOk(squareFile("fill='red'"));
    EXPECT_EQ(lostOf(drawing, squareFile("fill='blue'")), "");
    Object changed = *drawing.object(0);
    changed.setFillPattern(FillPattern::None);
    drawing.amend(0, sealed(changed));
    EXPECT_EQ(lostOf(drawing, squareFile("fill='none'")), "");
    EXPECT_EQ(lostOf(drawing, squareFile("fill='blue'")), kFillLost);
    changed.setFillPattern(FillPattern::SolidBlack);
    drawing.amend(0, sealed(changed));
    EXPECT_EQ(lostOf(drawing, squareFile("fill='black'")), "");
    EXPECT_EQ(lostOf(drawing, squareFile("fill='red'")), kFillLost);
}

TEST(ReadBack, OfAStrokeThatWasChangedWantsThatPaint) {
    const auto drawingWith = [](const std::string& attributes) {
        Drawing drawing = readOk(squareFile(attributes));
        Object changed = *drawing.object(0);
        changed.strokeOrigin = PaintOrigin::Edited;
        drawing.amend(0, sealed(std::move(changed)));
        return drawing;
    };
    const std::vector<std::string> strokes{"stroke='url(#g)'", "stroke='red'", "stroke='blue'",
                                           "stroke='none'"};
    for (const std::string& meant : strokes)
        for (const std::string& read : strokes)
            EXPECT_EQ(lostOf(drawingWith(meant), squareFile(read)),
                      meant == read ? "" : "the stroke of object 1 would not be read back as it is now")
                << meant << " and " << read;
}

TEST(ReadBack, WantsEachNewObjectAfterThoseOfTheFile) {
    Drawing drawing = readOk(squareFile("fill='red'"));
    Object added = newSquare(ColorPaint{{0, 0, 65535}, 1});
    added.id = "n";
    drawing.insert(0, sealed(added));
    const std::string square = "<rect width='9' height='9' fill='red'/>";
    const std::string second = "<rect id='n' width='9' height='9' fill='blue'/>";
    EXPECT_EQ(lostOf(drawing, svgFile(square + second)), "");
    EXPECT_EQ(lostOf(drawing, svgFile(square)), "it would hold 1 objects instead of 2");
    EXPECT_THAT(lostOf(drawing, svgFile(second + square)), HasSubstr("the fill of the object \"n\""));
}

TEST(ReadBack, WantsACopyOfAnObjectBesideIt) {
    Drawing drawing = readOk(squareFile("fill='red'"));
    drawing.insert(1, drawing.object(0));
    EXPECT_EQ(lostOf(drawing, squareFile("fill='red'")), "it would hold 1 objects instead of 2");
}

TEST(ReadBack, MissesNoNewObjectWithoutAnOutline) {
    Object nothing = newSquare(ColorPaint());
    nothing.outline = {};
    EXPECT_EQ(lostOf(drawingOf(nothing), svgFile("")), "");
}

} // namespace
