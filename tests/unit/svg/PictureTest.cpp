// Pictures in drawings: where they come from and where they lie.
#include "tests/support/SmallPictures.h"
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/Picture.h"
#include "easel/svg/text/DataUri.h"

#include <cmath>
#include <random>

namespace {

using namespace easel::drawing;
using easel::svg::base64Text;
using easel::svg::parseDataUri;

const std::string kFour = "href='data:image/png;base64," + std::string(small_pictures::kFourColorsPng) + "'";

const PlacedPicture& pictureOf(const Drawing& drawing, std::size_t index = 0) {
    return *std::get<PicturePtr>(drawing.object(index)->fill);
}

void expectMapped(const Drawing& drawing, Point pixel, Point place) {
    const Point mapped = pictureOf(drawing).toDrawing(pixel);
    EXPECT_NEAR(mapped.x, place.x, 1e-9);
    EXPECT_NEAR(mapped.y, place.y, 1e-9);
}

TEST(DataUri, SaysWhatItHoldsAndHowItIsWritten) {
    EXPECT_EQ(parseDataUri("data:,a%20b%2").value().bytes, "a b%2");
    EXPECT_EQ(parseDataUri(" data:image/svg+xml;utf8,<svg/> ").value().bytes, "<svg/>");
    EXPECT_EQ(parseDataUri("DATA:image/png ; charset=x;BASE64,QUJD").value().mediaType, "image/png");
    EXPECT_EQ(parseDataUri("data:;base64,QUJDRA==").value().bytes, "ABCD");
    EXPECT_EQ(parseDataUri("data:;base64,QU\n JD\tRA").value().bytes, "ABCD");
    EXPECT_EQ(parseDataUri("data:;base64,QUJDRA%3D%3D").value().bytes, "ABCD");
}

TEST(DataUri, WithoutDataThatCanBeToldIsNone) {
    for (const char* const text :
         {"", "data:", "data:image/png", "http://a/b,c", "data:;base64,Q", "data:;base64,QUJ*",
          "data:;base64,QQ=", "data:;base64,QQ==Q", "data:;base64,QUJD="})
        EXPECT_FALSE(parseDataUri(text)) << text;
}

TEST(DataUri, ReadsBackWhateverWasWritten) {
    std::mt19937 random(3);
    for (std::size_t size = 0; size < 50; ++size) {
        std::string bytes;
        while (bytes.size() < size)
            bytes += static_cast<char>(random());
        EXPECT_EQ(parseDataUri("data:;base64," + base64Text(bytes)).value().bytes, bytes);
    }
}

TEST(SvgPicture, IsAnObjectOfItsOwnKind) {
    const Drawing drawing =
        readOk(svgFile("<image id='p' x='10' y='20' width='40' height='40' " + kFour + "/>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(kindName(drawing.object(0)->kind), "picture");
    EXPECT_FALSE(carriesGradient(drawing.object(0)->kind));
    EXPECT_EQ(drawing.object(0)->bounds, (Box{10, 20, 50, 60}));
    expectMapped(drawing, {0, 0}, {10, 20});
    expectMapped(drawing, {2, 2}, {50, 60});
    EXPECT_TRUE(drawing.notes().empty());
}

TEST(SvgPicture, IsFittedAsItsAspectRatioSays) {
    const auto read = [](const std::string& how) {
        return readOk(svgFile("<image x='10' y='10' width='40' height='20' preserveAspectRatio='" + how +
                              "' " + kFour + "/>"));
    };
    expectMapped(read("xMidYMid"), {0, 0}, {20, 10});
    expectMapped(read("xMaxYMin meet"), {2, 2}, {50, 30});
    expectMapped(read("none"), {2, 2}, {50, 30});
    // As wide as the rectangle, and twice as high: the middle is what shows.
    const Drawing cut = read("xMidYMid slice");
    expectMapped(cut, {0, 0}, {10, 0});
    expectMapped(cut, {2, 2}, {50, 40});
    EXPECT_EQ(cut.object(0)->bounds, (Box{10, 10, 50, 30}));
}

TEST(SvgPicture, TakesSidesThatAreNotStatedFromThePicture) {
    const std::string wide = "href='data:;base64," + std::string(small_pictures::kHalfClearPng) + "'";
    const auto boundsOf = [](const std::string& attributes) {
        return readOk(svgFile("<image " + attributes + "/>")).object(0)->bounds;
    };
    EXPECT_EQ(boundsOf(wide), (Box{0, 0, 2, 1}));
    EXPECT_EQ(boundsOf("width='40' " + wide), (Box{0, 0, 40, 20}));
    EXPECT_EQ(boundsOf("height='40' width='auto' " + wide), (Box{0, 0, 80, 40}));
    EXPECT_EQ(readOk(svgFile("<image width='0' " + wide + "/>")).size(), 0U);
}

TEST(SvgPicture, IsSharedWhereTheSameDataStandsTwice) {
    const Drawing drawing = readOk(svgFile("<image " + kFour + "/><image x='9' " + kFour + "/>"));
    ASSERT_EQ(drawing.size(), 2U);
    EXPECT_EQ(pictureOf(drawing, 0).picture, pictureOf(drawing, 1).picture);
}

TEST(SvgPicture, IsSmoothUnlessItIsAskedForPixels) {
    const auto smooth = [](const std::string& style) {
        return pictureOf(readOk(svgFile("<g " + style + "><image " + kFour + "/></g>"))).smooth;
    };
    EXPECT_TRUE(smooth(""));
    EXPECT_TRUE(smooth("image-rendering='optimizeQuality'"));
    EXPECT_FALSE(smooth("image-rendering='pixelated'"));
    EXPECT_FALSE(smooth("style='image-rendering:crisp-edges'"));
    EXPECT_FALSE(smooth("image-rendering='optimizeSpeed'"));
}

TEST(SvgPicture, ThatIsNotShownIsNamed) {
    const auto noteOf = [](const std::string& reference) {
        const Drawing drawing = readOk(svgFile("<image width='9' height='9' href='" + reference + "'/>"));
        EXPECT_EQ(drawing.size(), 0U) << reference;
        return drawing.notes().empty() ? "" : drawing.notes().front();
    };
    EXPECT_EQ(noteOf("http://example.org/a.png"),
              "Pictures are read from the folder of the drawing and those below it, and from nowhere else.");
    EXPECT_EQ(noteOf("data:image/png;base64,****"),
              "Pictures that are damaged are kept in the file but not shown.");
    EXPECT_EQ(noteOf("data:image/tiff;base64,SUkqAA=="),
              "Pictures that are neither PNG, JPEG, GIF, WebP nor SVG are kept in the file but not shown.");
    EXPECT_EQ(noteOf(""), "");
}

TEST(SvgPicture, ThatIsDeletedLeavesTheRestOfTheFile) {
    const std::string image = "<image " + kFour + "/>";
    Drawing drawing =
        readOk(svgFile("<rect width='1' height='1'/>" + image + "<rect width='2' height='2'/>"));
    ASSERT_EQ(drawing.size(), 3U);
    drawing.prepareUndo(1);
    drawing.erase(1);
    EXPECT_EQ(easel::svg::toBytes(drawing),
              svgFile("<rect width='1' height='1'/><rect width='2' height='2'/>"));
    drawing.undo();
    EXPECT_EQ(easel::svg::toBytes(drawing),
              svgFile("<rect width='1' height='1'/>" + image + "<rect width='2' height='2'/>"));
}

TEST(SvgPicture, IsWrittenWithItsDataWhereAnElementIsAdded) {
    Drawing drawing = readOk(svgFile("<g transform='translate(5 5)'><image width='40' height='40' "
                                     "opacity='0.5' image-rendering='pixelated' " +
                                     kFour + "/></g>"));
    Object copy = *drawing.object(0);
    copy.source = {};
    drawing.insert(1, sealed(std::move(copy)));
    const Drawing again = readOk(easel::svg::toBytes(drawing));
    ASSERT_EQ(again.size(), 2U);
    EXPECT_EQ(again.object(1)->bounds, drawing.object(0)->bounds);
    EXPECT_EQ(pictureOf(again, 1).picture->bytes(), pictureOf(drawing, 0).picture->bytes());
    EXPECT_EQ(pictureOf(again, 1).toDrawing, pictureOf(drawing, 0).toDrawing);
    EXPECT_FALSE(pictureOf(again, 1).smooth);
    EXPECT_EQ(styleOf(*again.object(1)).opacity, 0.5);
}

} // namespace
