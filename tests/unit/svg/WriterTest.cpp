// Saving: what changes in the file, and that nothing else does.
#include "tests/support/ErrorOf.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/unit/svg/ReadHelp.h"

#include "easel/svg/text/RecordText.h"

#include <random>

namespace {

using namespace easel::drawing;
using easel::svg::recordText;
using easel::svg::toBytes;

CGradientData oddRecord() {
    CGradientData record;
    record.SetAngle(33.3F);
    record.SetStart({0.1, 0.7});
    record.ColorList() = {{{1, 2, 3}, 0.125}, {{40000, 50000, 60000}, 1.0 / 3}};
    return record;
}

const char* const kUntidy =
    "<?xml version='1.0'?>\r\n<!-- a > b -->\n<svg  xmlns = \"http://www.w3.org/2000/svg\" width='100'\n"
    "  height=\"100\" >\n\t<unknown x='1'><y/></unknown>\n"
    "  <rect  id='a' width='50' height=\"50\"   fill = 'red' data-x='&amp;\"' />\n"
    "  <rect id='b' style='stroke:red; fill : blue ;' x='50' width='50' height='50'><title>t</title></rect>\n"
    "  <path id='c' d='M0 50h50v50z'/>\n</svg><!-- end -->\n";

TEST(SvgWriter, AnUnchangedDrawingGivesTheSameBytes) {
    EXPECT_EQ(toBytes(readOk(kUntidy)), kUntidy);
}

TEST(SvgWriter, OnlyTheStartTagOfTheChangedElementAndOurBlockDiffer) {
    Drawing drawing = readOk(kUntidy);
    giveGradient(drawing, 0, oddRecord());
    std::string bytes = toBytes(drawing);
    const std::size_t block = bytes.find("\r\n<defs data-easel=\"gradients\">");
    const std::size_t blockEnd = bytes.find("</defs>") + 7;
    ASSERT_NE(block, std::string::npos);
    bytes.erase(block, blockEnd - block);
    std::string expected = kUntidy;
    expected.replace(expected.find("red"), 3, "url(#easel-gradient-1)");
    EXPECT_EQ(bytes, expected);
}

TEST(SvgWriter, AFillInAStyleAttributeIsChangedThere) {
    Drawing drawing = readOk(kUntidy);
    giveGradient(drawing, 1, oddRecord());
    EXPECT_NE(toBytes(drawing).find("style='stroke:red; fill : url(#easel-gradient-1) ;' x='50'"),
              std::string::npos);
}

TEST(SvgWriter, AnEditedFillIsStrongerThanStyleSheets) {
    Drawing drawing = readOk(svgFile("<style>rect{fill:red !important}</style><rect width='9' height='9'/>"));
    giveGradient(drawing, 0, oddRecord());
    const Drawing again = readOk(toBytes(drawing));
    ASSERT_TRUE(recordOf(again));
    EXPECT_EQ(recordText(*recordOf(again)), recordText(oddRecord()));
}

TEST(SvgWriter, SavingAndOpeningGivesTheSameRecordOnEveryKindAndUnderTransforms) {
    const Drawing original =
        readOk(svgFile("<g transform='translate(5 5) rotate(20) skewX(15)'><rect width='30' height='20' "
                       "rx='4'/><circle r='9'/></g>"
                       "<svg viewBox='0 0 10 10' width='50' height='30' preserveAspectRatio='none'><polygon "
                       "points='0,0 9,1 4,8'/>"
                       "<path d='M0 0c9 9 3-4 5 8z' transform='matrix(.1 .2 -.3 .4 5 6)'/></svg>"));
    std::mt19937 random(21);
    for (int round = 0; round < 200; ++round) {
        CGradientData record;
        record.SetType(round % 2 == 0 ? kLinearGradient : kRadialGradient);
        record.SetAngle(static_cast<float>(random() % 7200) / 10 - 360);
        record.SetStart({static_cast<double>(random() % 100) / 99, static_cast<double>(random() % 100) / 99});
        record.SetEnd(round % 4 == 1 ? record.Start() : TPoint<double>(0.4, 0.3));
        record.ColorList().clear();
        double position = 0;
        for (std::size_t i = 0; i <= random() % 5; ++i) {
            const auto channel = [&random] { return static_cast<std::uint16_t>(random()); };
            record.ColorList().emplace_back(RGBColor{channel(), channel(), channel()}, position);
            position += static_cast<double>(random() % 1000) / 4000;
        }
        Drawing drawing = readOk(toBytes(original));
        const std::size_t index = random() % drawing.size();
        giveGradient(drawing, index, record);
        const Drawing again = readOk(toBytes(drawing));
        ASSERT_TRUE(recordOf(again, index)) << toBytes(drawing);
        ASSERT_EQ(recordText(*recordOf(again, index)), recordText(record));
        ASSERT_EQ(toBytes(again), toBytes(drawing));
    }
}

TEST(SvgWriter, ARecordThatIsNotFiniteOnItsObjectSurvives) {
    Drawing drawing = readOk(svgFile("<path d='M0 0H50' id='flat'/>"));
    CGradientData record = oddRecord();
    record.SetType(kRadialGradient);
    record.SetStart({std::numeric_limits<double>::infinity(), 0.5});
    record.SetEnd(record.Start());
    giveGradient(drawing, 0, record);
    const Drawing again = readOk(toBytes(drawing));
    ASSERT_TRUE(recordOf(again));
    EXPECT_EQ(recordText(*recordOf(again)), recordText(record));
}

TEST(SvgWriter, UndoingEverythingGivesTheOriginalBytes) {
    Drawing drawing = readOk(kUntidy);
    giveGradient(drawing, 2, oddRecord());
    drawing.prepareUndo(1);
    drawing.erase(0);
    const std::string edited = toBytes(drawing);
    drawing.undo();
    drawing.undo();
    EXPECT_EQ(toBytes(drawing), kUntidy);
    drawing.redo();
    drawing.redo();
    EXPECT_EQ(toBytes(drawing), edited);
}

TEST(SvgWriter, ADeletedObjectsElementGoesWithItsLine) {
    Drawing drawing = readOk(kUntidy);
    drawing.erase(1);
    std::string expected = kUntidy;
    const std::size_t begin = expected.find("\n  <rect id='b'");
    expected.erase(begin, expected.find("</rect>") + 7 - begin);
    EXPECT_EQ(toBytes(drawing), expected);
}

TEST(SvgWriter, DeletingWhatASwitchShowsDoesNotShowItsNextElement) {
    Drawing drawing = readOk(svgFile("<switch><rect systemLanguage='xx' width='1' height='1'/>"
                                     "<rect width='2' height='2'/><rect width='3' height='3'/></switch>"));
    ASSERT_EQ(drawing.size(), 1U);
    drawing.prepareUndo(1);
    drawing.erase(0);
    const std::string bytes = toBytes(drawing);
    EXPECT_EQ(readOk(bytes).size(), 0U);
    EXPECT_NE(bytes.find("<rect width='3' height='3'/>"), std::string::npos);
}

TEST(SvgWriter, TheFirstElementCanGoWhileOurBlockComesInItsPlace) {
    const std::string before =
        "<svg xmlns=\"http://www.w3.org/2000/svg\">\n  <rect id='a' width='9' height='9'/>\n"
        "  <rect id='b' width='9' height='9'/>\n</svg>\n";
    Drawing drawing = readOk(before);
    giveGradient(drawing, 1, oddRecord());
    drawing.erase(0);
    const Drawing again = readOk(toBytes(drawing));
    ASSERT_EQ(again.size(), 1U);
    EXPECT_TRUE(recordOf(again));
}

TEST(SvgWriter, GradientsThatNothingUsesAnyMoreLeaveOurBlock) {
    Drawing drawing = readOk(kUntidy);
    giveGradient(drawing, 0, oddRecord());
    giveGradient(drawing, 2, oddRecord());
    Drawing again = readOk(toBytes(drawing));
    CGradientData other = oddRecord();
    other.SetAngle(5);
    giveGradient(again, 0, other);
    const std::string bytes = toBytes(again);
    EXPECT_EQ(bytes.find("id=\"easel-gradient-1\""), std::string::npos);
    EXPECT_NE(bytes.find("id=\"easel-gradient-2\""), std::string::npos);
    const Drawing last = readOk(bytes);
    EXPECT_EQ(recordText(*recordOf(last, 0)), recordText(other));
    EXPECT_EQ(recordText(*recordOf(last, 2)), recordText(oddRecord()));
}

TEST(SvgWriter, OneRepetitionOfAUsedElementChangesAlone) {
    Drawing drawing = readOk(
        svgFile("<defs><g id='d' class='k'><rect id='r' width='5' height='5'/><rect id='q' y='5' width='5' "
                "height='5'/></g></defs>"
                "<symbol id='s' viewBox='0 0 10 10'><use href='#d' x='1' y='2'/></symbol>"
                "<use href='#d' fill='lime'/><use href='#s' x='20' width='40' height='40' fill='red'/>"));
    ASSERT_EQ(drawing.size(), 4U);
    std::vector<Box> boxes;
    drawing.forEach([&](const ObjectPtr& object) { boxes.push_back(object->bounds); });
    giveGradient(drawing, 2, oddRecord());
    const Drawing again = readOk(toBytes(drawing));
    ASSERT_EQ(again.size(), 4U) << toBytes(drawing);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(recordOf(again, i) != nullptr, i == 2) << i;
        EXPECT_NEAR(again.object(i)->bounds.left, boxes[i].left, 1e-9);
        EXPECT_NEAR(again.object(i)->bounds.bottom, boxes[i].bottom, 1e-9);
    }
    EXPECT_EQ(recordText(*recordOf(again, 2)), recordText(oddRecord()));
    EXPECT_EQ(std::get<ColorPaint>(again.object(3)->fill).color, (Rgb16{65535, 0, 0}));
}

TEST(SvgWriter, TheEncodingOfTheFileIsKept) {
    const std::string latin =
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><svg xmlns=\"http://www.w3.org/2000/svg\">"
        "<!-- \xe4\xff --><rect id=\"\xe4\" width=\"9\" height=\"9\"/><!-- \xe9 --></svg>";
    Drawing drawing = readOk(latin);
    EXPECT_EQ(drawing.object(0)->id.text(), "\xc3\xa4");
    giveGradient(drawing, 0, oddRecord());
    const std::string bytes = toBytes(drawing);
    EXPECT_NE(
        bytes.find(
            "<rect id=\"\xe4\" width=\"9\" height=\"9\" fill=\"url(#easel-gradient-1)\"/><!-- \xe9 -->"),
        std::string::npos);

    std::string wide = "\xff\xfe";
    for (const char c : svgFile("<rect id='a' width='9' height='9'/>")) {
        wide += c;
        wide += '\0';
    }
    Drawing second = readOk(wide);
    EXPECT_EQ(toBytes(second), wide);
    giveGradient(second, 0, oddRecord());
    const std::string changed = toBytes(second);
    EXPECT_EQ(changed.size() % 2, 0U);
    EXPECT_EQ(recordText(*recordOf(readOk(changed))), recordText(oddRecord()));
}

TEST(SvgWriter, ANewDrawingWithEveryKindReadsBackTheSame) {
    Drawing drawing = Drawing::create(200, 100);
    const auto add = [&drawing](Kind kind, const char* id, Path path) {
        Object object;
        object.kind = kind;
        object.id = id;
        object.outline = std::move(path);
        object.fillPattern = FillPattern::Other;
        object.fill = ColorPaint{{1, 2, 3}, 1};
        drawing.insert(drawing.size(), sealed(std::move(object)));
    };
    add(Kind::Rect, "r", rectanglePath({1, 2, 31, 42}));
    add(Kind::Rect, "rounded", roundedRectanglePath({0, 0, 40, 20}, 4, 2));
    add(Kind::Ellipse, "e", ellipsePath({50, 50}, 20, 10));
    add(Kind::Polygon, "p<&\"", polygonPath({{0, 0}, {10, 0.1}, {5, 7}}));
    add(Kind::Polyline, "l", polylinePath({{0, 0}, {10, 0.1}, {5, 7}}));
    add(Kind::Line, "n", polylinePath({{0, 0}, {10, 10}}));
    add(Kind::Path, "x", ellipsePath({5, 5}, 3, 3));
    giveGradient(drawing, 2, oddRecord());
    const std::string bytes = toBytes(drawing);
    const Drawing again = readOk(bytes);
    EXPECT_EQ(again.width(), 200);
    ASSERT_EQ(again.size(), drawing.size());
    for (std::size_t i = 0; i < drawing.size(); ++i) {
        EXPECT_EQ(again.object(i)->kind, drawing.object(i)->kind);
        EXPECT_EQ(again.object(i)->id.text(), drawing.object(i)->id.text());
        EXPECT_EQ(again.object(i)->outline, drawing.object(i)->outline) << drawing.object(i)->id.text();
        EXPECT_EQ(again.object(i)->fillPattern, drawing.object(i)->fillPattern);
    }
    EXPECT_EQ(recordText(*recordOf(again, 2)), recordText(oddRecord()));
    EXPECT_EQ(toBytes(again), bytes);
}

TEST(SvgWriter, AddedObjectsGoBeforeTheRootsEndInItsUnits) {
    for (const std::string end : {"/>", "></svg>"}) {
        Drawing drawing = readOk(
            "<svg xmlns='http://www.w3.org/2000/svg' width='100' height='100' viewBox='0 0 50 50'" + end);
        Object object;
        object.kind = Kind::Rect;
        object.outline = rectanglePath({10, 10, 30, 30});
        object.fillPattern = FillPattern::SolidBlack;
        drawing.insert(0, sealed(object));
        const Drawing again = readOk(toBytes(drawing));
        ASSERT_EQ(again.size(), 1U);
        EXPECT_EQ(again.object(0)->bounds, (Box{10, 10, 30, 30}));
        EXPECT_EQ(again.object(0)->kind, Kind::Rect);
    }
}

TEST(SvgWriter, AnAddedObjectHasItsGradientInARootThatWasEmptyToo) {
    for (const std::string end : {"/>", "></svg>"}) {
        Drawing drawing = readOk("<svg xmlns='http://www.w3.org/2000/svg' width='100' height='100'" + end);
        Object object;
        object.kind = Kind::Rect;
        object.outline = rectanglePath({10, 10, 30, 30});
        drawing.insert(0, sealed(object));
        giveGradient(drawing, 0, oddRecord());
        const Drawing again = readOk(toBytes(drawing));
        ASSERT_EQ(again.size(), 1U);
        ASSERT_TRUE(recordOf(again, 0));
        EXPECT_EQ(recordText(*recordOf(again, 0)), recordText(oddRecord()));
    }
}

TEST(SvgWriter, OfTwoCopiesOfAnObjectTheFirstKeepsItsElement) {
    const std::string element = "<rect id='a' width='9' height='9' fill='red'/>";
    Drawing drawing = readOk(svgFile(element));
    Object copy = *drawing.object(0);
    copy.outline = rectanglePath({20, 0, 29, 9});
    drawing.insert(1, sealed(copy));
    giveGradient(drawing, 1, oddRecord());
    const std::string bytes = toBytes(drawing);
    EXPECT_NE(bytes.find(element), std::string::npos) << bytes;
    const Drawing again = readOk(bytes);
    ASSERT_EQ(again.size(), 2U);
    EXPECT_EQ(again.object(0)->bounds, (Box{0, 0, 9, 9}));
    EXPECT_EQ(again.object(1)->bounds, (Box{20, 0, 29, 9}));
    EXPECT_FALSE(recordOf(again, 0));
    EXPECT_TRUE(recordOf(again, 1));
}

TEST(SvgWriter, ItsLinesEndAsTheFirstOneOfTheFileDoes) {
    const auto afterTheRoot = [](const std::string& before, const std::string& after) {
        Drawing drawing = readOk(
            before + "<svg xmlns='http://www.w3.org/2000/svg'><rect width='9' height='9'/></svg>" + after);
        giveGradient(drawing, 0, oddRecord());
        const std::string bytes = toBytes(drawing);
        const std::size_t begin = bytes.find('>', bytes.find("<svg")) + 1;
        return bytes.substr(begin, bytes.find('<', begin) - begin);
    };
    EXPECT_EQ(afterTheRoot("", ""), "\n") << "there is none yet";
    EXPECT_EQ(afterTheRoot("", "\r\n"), "\r\n");
    EXPECT_EQ(afterTheRoot("\n", "\r\n"), "\n");
    EXPECT_EQ(afterTheRoot("\r\n", "\n"), "\r\n");
    EXPECT_EQ(afterTheRoot(" \n", ""), "\n");
}

TEST(SvgWriter, SavingMarksTheDrawingSavedAndAFailureLeavesItDirty) {
    const tests::TemporaryFolder folder;
    Drawing drawing = readOk(kUntidy);
    drawing.erase(0);
    const auto error = tests::errorOf(easel::svg::saveFile(drawing, folder / "no/such.svg"));
    EXPECT_NE(error.message().find("such.svg"), std::string::npos);
    EXPECT_TRUE(drawing.dirty());
    EXPECT_TRUE(easel::svg::saveFile(drawing, folder / "a.svg"));
    EXPECT_FALSE(drawing.dirty());
    EXPECT_EQ(tests::contentOf(folder / "a.svg"), toBytes(drawing));
}

} // namespace
