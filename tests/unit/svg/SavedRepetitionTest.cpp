// Elements that `use` repeats, of which one repetition changes or goes: it is written out, and everything
// else stays where it is.
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using easel::svg::toBytes;
using testing::HasSubstr;
using testing::Not;

CGradientData someRecord() {
    CGradientData record;
    record.SetAngle(33.3F);
    return record;
}

std::vector<Box> boxesOf(const Drawing& drawing) {
    std::vector<Box> boxes;
    drawing.forEach([&](const ObjectPtr& object) { boxes.push_back(object->bounds); });
    return boxes;
}

void expectNear(const std::vector<Box>& boxes, const std::vector<Box>& expected, const std::string& file) {
    ASSERT_EQ(boxes.size(), expected.size()) << file;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        EXPECT_NEAR(boxes[i].left, expected[i].left, 1e-9) << i << ' ' << file;
        EXPECT_NEAR(boxes[i].top, expected[i].top, 1e-9) << i << ' ' << file;
        EXPECT_NEAR(boxes[i].right, expected[i].right, 1e-9) << i << ' ' << file;
        EXPECT_NEAR(boxes[i].bottom, expected[i].bottom, 1e-9) << i << ' ' << file;
    }
}

// The file with this content after the object at the index was given a gradient, which changes no other.
std::string afterGradient(const std::string& content, std::size_t index) {
    Drawing drawing = readOk(svgFile(content));
    const std::vector<Box> before = boxesOf(drawing);
    giveGradient(drawing, index, someRecord());
    std::string bytes = toBytes(drawing);
    const Drawing again = readOk(bytes);
    expectNear(boxesOf(again), before, bytes);
    for (std::size_t i = 0; i < again.size(); ++i)
        EXPECT_EQ(recordOf(again, i) != nullptr, i == index) << i << ' ' << bytes;
    return bytes;
}

// The same after it was deleted.
std::string afterDeletion(const std::string& content, std::size_t index) {
    Drawing drawing = readOk(svgFile(content));
    std::vector<Box> before = boxesOf(drawing);
    drawing.prepareUndo(1);
    drawing.erase(index);
    before.erase(before.begin() + static_cast<std::ptrdiff_t>(index));
    std::string bytes = toBytes(drawing);
    expectNear(boxesOf(readOk(bytes)), before, bytes);
    return bytes;
}

const std::string kRects = "<rect x='1' y='2' width='5' height='5'/><rect x='8' width='2' height='9'/>";

TEST(SavedRepetitions, OfShapesAndGroupsKeepTheirPlaces) {
    for (const std::string& target :
         {std::string("<rect id='t' x='1' width='5' height='5'/>"), "<g id='t'>" + kRects + "</g>",
          "<g id='t' transform='rotate(90)'>" + kRects + "</g>"})
        for (const char* use : {"<use href='#t'/>", "<use href='#t' x='3' y='4'/>", "<use href='#t' y='4'/>",
                                "<use xlink:href='#t' x='3' transform='scale(2)'/>",
                                "<use href='#t' x='3' width='7' height='7' opacity='.5'/>"}) {
            const std::string content = "<defs>" + target + "</defs>" + use + use;
            afterGradient(content, 0);
            afterDeletion(content, 0);
        }
}

TEST(SavedRepetitions, OfSymbolsAndNestedDrawingsKeepTheirPlacesAndSizes) {
    for (const std::string& target :
         {"<symbol id='t' viewBox='0 0 10 10'>" + kRects + "</symbol>",
          "<symbol id='t' viewBox='0 0 10 20' width='20' height='30' x='1' y='1'>" + kRects + "</symbol>",
          "<symbol id='t'>" + kRects + "</symbol>",
          "<svg id='t' viewBox='0 0 10 10' width='20' height='30' x='2' y='3'>" + kRects + "</svg>"})
        for (const char* use :
             {"<use href='#t'/>", "<use href='#t' x='3' y='4'/>", "<use href='#t' width='40'/>",
              "<use href='#t' height='40' y='5'/>", "<use href='#t' x='3' width='40' height='20'/>"}) {
            const std::string content = "<defs>" + target + "</defs>" + use + "<g>" + use + "</g>";
            afterGradient(content, 1);
            afterDeletion(content, 1);
        }
}

TEST(SavedRepetitions, OfWhatComesLaterInTheFileAreWrittenOutToo) {
    const std::string content = "<use href='#t' x='20'/><g id='t'>" + kRects + "</g>";
    const std::string bytes = afterGradient(content, 1);
    EXPECT_EQ(bytes.find("id='t'"), bytes.rfind("id='t'"))
        << "the id stays with the original alone: " << bytes;
    afterDeletion(content, 0);
}

TEST(SavedRepetitions, InRepetitionsAreWrittenOutWithThem) {
    const std::string content = "<defs><g id='a'>" + kRects +
                                "</g><g id='b'><use href='#a'/><use href='#a' y='20'/></g></defs>"
                                "<use href='#b' x='10'/><use href='#b' x='50'/>";
    for (std::size_t i = 0; i < 8; ++i) {
        afterGradient(content, i);
        afterDeletion(content, i);
    }
}

TEST(SavedRepetitions, AllOfWhichAreDeletedLeaveNone) {
    Drawing drawing = readOk(svgFile("<defs><g id='a'>" + kRects + "</g></defs><use href='#a'/>"));
    drawing.prepareUndo(1);
    drawing.erase(1);
    drawing.erase(0);
    EXPECT_EQ(readOk(toBytes(drawing)).size(), 0U);
}

TEST(SavedRepetitions, HaveTheElementsOfTheFilesPrefix) {
    Drawing drawing = readOk("<s:svg xmlns:s='http://www.w3.org/2000/svg' width='100' height='100'><s:defs>"
                             "<s:symbol id='t'><s:rect width='5' height='5'/></s:symbol></s:defs>"
                             "<s:use href='#t' x='3'/><s:use href='#t' x='30'/></s:svg>");
    ASSERT_EQ(drawing.size(), 2U);
    const std::vector<Box> before = boxesOf(drawing);
    giveGradient(drawing, 1, someRecord());
    const std::string bytes = toBytes(drawing);
    EXPECT_THAT(bytes, HasSubstr("<s:svg x='30'"));
    EXPECT_THAT(bytes, Not(HasSubstr("<svg")));
    expectNear(boxesOf(readOk(bytes)), before, bytes);
}

TEST(SavedRepetitions, KeepIdsThatSheetsColorByWhereTheyStandBehindTheOriginal) {
    const std::string content = "<style>#k{fill:#00f}\n#k.x{stroke:none} .u{fill:url(#m)}</style>"
                                "<g id='t'><rect id='k' width='5' height='5'/>"
                                "<rect id='m' x='9' width='5' height='5'/></g><use href='#t' y='20'/>";
    Drawing drawing = readOk(svgFile(content));
    ASSERT_EQ(drawing.size(), 4U);
    giveGradient(drawing, 3, someRecord());
    const std::string bytes = toBytes(drawing);
    const Drawing again = readOk(bytes);
    ASSERT_EQ(again.size(), 4U) << bytes;
    EXPECT_EQ(std::get<ColorPaint>(again.object(2)->fill).color, (Rgb16{0, 0, 65535})) << bytes;
    EXPECT_NE(bytes.find("id='k'"), bytes.rfind("id='k'"));
    EXPECT_EQ(bytes.find("id='m'"), bytes.rfind("id='m'")) << "no rule asks for it";
}

TEST(SavedDeletions, TakeTheirLineWithThemHoweverItEnds) {
    const auto without = [](const std::string& content) {
        Drawing drawing = readOk(svgFile(content));
        drawing.prepareUndo(1);
        drawing.erase(0);
        return toBytes(drawing);
    };
    const std::string rect = "<rect width='9' height='9'/>";
    EXPECT_EQ(without("<!-- a -->\n\t " + rect + "\n<!-- b -->"), svgFile("<!-- a -->\n<!-- b -->"));
    EXPECT_EQ(without("<!-- a -->\r\n  " + rect + "\r\n<!-- b -->"), svgFile("<!-- a -->\r\n<!-- b -->"));
    EXPECT_EQ(without("<!-- a -->  " + rect + "\n<!-- b -->"), svgFile("<!-- a -->  \n<!-- b -->"));
    EXPECT_EQ(without("<!-- a -->\n  " + rect + "<!-- b -->"), svgFile("<!-- a -->\n  <!-- b -->"));
}

} // namespace
