// That a changed fill is the one that the saved file gives again, whatever way the file stated the old one.
#include "tests/unit/svg/ReadHelp.h"

#include "easel/svg/text/RecordText.h"
#include "easel/svg/write/ReadBack.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace easel::drawing;
using easel::svg::lostIn;
using easel::svg::recordText;
using easel::svg::toBytes;

CGradientData someRecord() {
    CGradientData record;
    record.SetAngle(33.3F);
    record.ColorList() = {{{1, 2, 3}, 0.125}, {{40000, 50000, 60000}, 1.0 / 3}};
    return record;
}

// What the object's record is after a change of it was saved and read; empty if there is none.
std::string savedRecord(const std::string& text, std::size_t index = 0) {
    Drawing drawing = readOk(text);
    giveGradient(drawing, index, someRecord());
    const Drawing again = readOk(toBytes(drawing));
    const CGradientData* const record = recordOf(again, index);
    return record ? recordText(*record) : std::string();
}

std::string rectangleWith(const std::string& attributes) {
    return svgFile("<rect width='9' height='9' " + attributes + "/>");
}

TEST(SavedFill, IsTheOneThatCountsOfSeveralStatements) {
    for (const char* attributes :
         {"style='fill:red !important;fill:blue'", "style='fill:red;fill:blue'",
          "style='fill:blue !important;fill:red !important'", "fill='red' fill='blue'",
          "style=\"fill:red;font-family:&quot;a;fill:blue&quot;\"", "style='font-family:&apos;a&apos;'",
          "style='fill:red;stroke:none;font-family:&apos;a&apos;' fill='blue'", "style='font-family:\"a'",
          "style='/* a */fill:red'", "style='fill:red/* a;b */;stroke:none'",
          "style='stroke:red/* fill:lime'", "style=' '", "fill='red'", ""})
        EXPECT_EQ(savedRecord(rectangleWith(attributes)), recordText(someRecord())) << attributes;
}

TEST(SavedFill, IsStrongerThanASheetEvenInAStyleThatDoesNotEnd) {
    EXPECT_EQ(savedRecord(svgFile("<style>rect{fill:red !important}</style>"
                                  "<rect width='9' height='9' style='font-family:\"a'/>")),
              recordText(someRecord()));
}

TEST(SavedFill, TakesThePlaceOfOneWithEscapes) {
    Drawing drawing = readOk(rectangleWith("style='f\\69ll:red;opacity:1'"));
    giveGradient(drawing, 0, someRecord());
    const std::string text = toBytes(drawing);
    EXPECT_NE(text.find("style='f\\69ll:url(#"), std::string::npos) << text;
    for (const char* attributes : {"style='f\\69ll:red !important'", "style='fill:red;\\66 ill:lime'"})
        EXPECT_EQ(savedRecord(rectangleWith(attributes)), recordText(someRecord())) << attributes;
    EXPECT_EQ(savedRecord(svgFile("<style>rect{f\\69ll:red}</style><rect width='9' height='9'/>")),
              recordText(someRecord()));
}

TEST(SavedFill, TakesThePlaceOfOneInCapitals) {
    Drawing drawing = readOk(rectangleWith("style='Stroke:red;FILL : Lime;opacity:1'"));
    giveGradient(drawing, 0, someRecord());
    const std::string text = toBytes(drawing);
    EXPECT_NE(text.find("style='Stroke:red;FILL : url(#"), std::string::npos) << text;
    EXPECT_EQ(savedRecord(rectangleWith("style='fill:red;FILL:lime'")), recordText(someRecord()));
    EXPECT_EQ(savedRecord(svgFile("<style>rect{FILL:red}</style><rect width='9' height='9'/>")),
              recordText(someRecord()));
}

TEST(SavedFill, IsReplacedInItsPlaceBehindReferencesToQuotes) {
    Drawing drawing = readOk(rectangleWith(
        "style=\"font-family:&quot;a&quot;,&apos;b&#39;,&#34;c&amp;&#34;;fill:red;stroke:none\""));
    giveGradient(drawing, 0, someRecord());
    const std::string text = toBytes(drawing);
    EXPECT_NE(text.find("c&amp;&#34;;fill:url(#"), std::string::npos) << text;
    EXPECT_NE(text.find(");stroke:none\""), std::string::npos) << text;
}

TEST(SavedFill, ComesAfterEntitiesThatMayStateOne) {
    for (const char* style :
         {"&f;", "stroke:none;&f;", "&f;;fill:blue", "&f; stroke:none", "&g;", "&g;;fill:blue"}) {
        const std::string text =
            "<!DOCTYPE svg [<!ENTITY f \"fill:red\"><!ENTITY g \"fill:red !important\">]>" +
            rectangleWith(std::string("style='") + style + "'");
        EXPECT_EQ(savedRecord(text), recordText(someRecord())) << style;
    }
}

TEST(SavedFill, IsStatedOnceHoweverOftenAStyleWithAnEntityIsChanged) {
    std::string text = "<!DOCTYPE svg [<!ENTITY f \"fill:red\">]>" + rectangleWith("style='&f;'");
    for (int round = 0; round < 3; ++round) {
        Drawing drawing = readOk(text);
        CGradientData record = someRecord();
        record.SetAngle(10.0F + static_cast<float>(round));
        giveGradient(drawing, 0, record);
        text = toBytes(drawing);
        EXPECT_EQ(text.find("fill:url"), text.rfind("fill:url")) << text;
    }
}

TEST(SavedFill, OfAShapeWithoutWidthOrHeightComesBack) {
    for (const char* d : {"M20 20l0 0z", "M20 20h30z", "M20 20v30z"})
        for (const KGradientType type : {kLinearGradient, kRadialGradient}) {
            Drawing drawing = readOk(svgFile(std::string("<path stroke='red' d='") + d + "'/>"));
            CGradientData record = someRecord();
            record.SetType(type);
            giveGradient(drawing, 0, record);
            const Drawing again = readOk(toBytes(drawing));
            ASSERT_TRUE(recordOf(again)) << d;
            EXPECT_EQ(recordText(*recordOf(again)), recordText(record)) << d;
        }
}

// The fills of the objects that read from the saved drawing, with "record" for a record.
std::string savedFills(const Drawing& drawing) {
    const Drawing again = readOk(toBytes(drawing));
    std::string fills;
    again.forEach([&](const ObjectPtr& object) {
        const auto* const color = std::get_if<ColorPaint>(&object->fill);
        fills += gradientIn(object->gradient)         ? "record "
                 : !color                             ? "none "
                 : color->color == Rgb16{65535, 0, 0} ? "red "
                                                      : "other ";
    });
    return fills;
}

TEST(SavedFill, OfAnElementThatIsRepeatedLeavesItsCopies) {
    Drawing drawing = readOk(svgFile("<rect id='a' width='9' height='9' fill='red'/>"
                                     "<use href='#a' x='20'/><use href='#a' x='40'/>"));
    giveGradient(drawing, 0, someRecord());
    EXPECT_EQ(savedFills(drawing), "record red red ");
    EXPECT_EQ(readOk(toBytes(drawing)).object(2)->bounds.left, 40);
}

TEST(SavedFill, OfWhatARepetitionRepeatsLeavesTheRepetitionsOfThatRepetition) {
    Drawing drawing = readOk(svgFile("<defs><rect id='a' width='9' height='9' fill='red'/></defs>"
                                     "<g id='g'><use href='#a'/></g><use href='#g' x='20'/>"));
    giveGradient(drawing, 0, someRecord());
    EXPECT_EQ(savedFills(drawing), "record red ");
}

TEST(SavedFill, OfAnOriginalThatASheetColorsByItsIdLeavesItsCopies) {
    Drawing drawing = readOk(svgFile("<style>#a{fill:#ff0000}</style><rect id='a' width='9' height='9'/>"
                                     "<use href='#a' x='20'/><use href='#a' x='40'/>"));
    giveGradient(drawing, 0, someRecord());
    EXPECT_EQ(savedFills(drawing), "record red red ");
}

TEST(SavedFill, OfADeletedOriginalStaysWithItsCopies) {
    Drawing drawing =
        readOk(svgFile("<rect id='a' width='9' height='9' fill='red'/><use href='#a' x='20'/>"));
    drawing.prepareUndo(3);
    drawing.erase(0);
    EXPECT_EQ(savedFills(drawing), "red ");
}

// A reference to what opens a quote and leaves it open, so that no declaration after it can be read.
const std::string kUnsavable =
    "<!DOCTYPE svg [<!ENTITY q \"font-family:'a\">]>" + rectangleWith("id='r' style=\"&q;\"");

TEST(SavedFill, ThatWouldNotComeBackIsAnErrorAndTheFileIsNotTouched) {
    const tests::TemporaryFolder folder;
    const auto file = folder / "kept.svg";
    tests::writeContent(file, kUnsavable);
    Drawing drawing = readOk(kUnsavable);
    giveGradient(drawing, 0, someRecord());
    const auto saved = easel::svg::saveFile(drawing, file);
    ASSERT_FALSE(saved);
    const std::string message = saved.error().message();
    EXPECT_EQ(message.find(file.string()), 0U) << message;
    EXPECT_NE(message.find("\"r\""), std::string::npos) << message;
    EXPECT_TRUE(drawing.dirty());
    EXPECT_EQ(tests::contentOf(file), kUnsavable);
}

TEST(SavedFill, IsComparedToTheBitWithItsRemainder) {
    Drawing drawing = readOk(svgFile("<rect width='9' height='9'/><rect x='20' width='9' height='9'/>"));
    giveGradient(drawing, 0, someRecord());
    const std::string bytes = toBytes(drawing);
    EXPECT_EQ(lostIn(bytes, drawing.snapshot()), std::nullopt);

    std::string other = bytes;
    other.replace(other.find("0.125"), 5, "0.126");
    EXPECT_TRUE(lostIn(other, drawing.snapshot()));
    other = bytes;
    other.insert(other.find(" data-easel-record"), " data-easel-opacity='0 1;1 1'");
    EXPECT_TRUE(lostIn(other, drawing.snapshot()));
    other = bytes;
    other.insert(other.rfind("height='9'"), "fill='none' ");
    EXPECT_EQ(lostIn(other, drawing.snapshot()), std::nullopt) << "of an object that was not changed";
    other = bytes;
    other.erase(other.find("<rect x="));
    EXPECT_TRUE(lostIn(other + "</svg>", drawing.snapshot()));
}

} // namespace
