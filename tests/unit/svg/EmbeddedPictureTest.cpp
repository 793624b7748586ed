// Pictures in files beside the drawing, and drawings in drawings.
#include "tests/support/SmallPictures.h"
#include "tests/unit/svg/ReadHelp.h"

#include "easel/drawing/Filter.h"
#include "easel/drawing/Picture.h"
#include "easel/svg/read/PlaceBeside.h"
#include "easel/svg/text/DataUri.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace {

using namespace easel::drawing;
using easel::svg::base64Text;
using easel::svg::parseDataUri;
using easel::svg::placeBeside;
namespace fs = std::filesystem;

// A folder with a drawing in it, beside another folder; gone at the end.
class BesideDrawing : public testing::Test {
  protected:
    BesideDrawing() {
        fs::create_directories(folder() / "deep" / "er");
        fs::create_directories(top_ / "other");
        const std::string png =
            parseDataUri("data:;base64," + std::string(small_pictures::kFourColorsPng))->bytes;
        for (const fs::path& place :
             {folder() / "a b.png", folder() / "deep" / "er" / "c.png", top_ / "other" / "secret.png"})
            write(place, png);
        fs::create_symlink(top_ / "other" / "secret.png", folder() / "link.png");
        fs::create_symlink(top_ / "other", folder() / "linked");
    }
    ~BesideDrawing() override { fs::remove_all(top_); }

    fs::path folder() const { return top_ / "drawing"; }
    fs::path file() const { return folder() / "drawing.svg"; }
    static void write(const fs::path& place, const std::string& bytes) {
        std::ofstream(place, std::ios::binary) << bytes;
    }
    Drawing read(const std::string& content) const {
        write(file(), svgFile(content));
        auto result = easel::svg::readFile(file());
        EXPECT_TRUE(result);
        return result ? std::move(*result) : Drawing::create(1, 1);
    }

  private:
    fs::path top_ = fs::path(testing::TempDir()) / ("beside-" + std::to_string(::getpid()));
};

TEST_F(BesideDrawing, FilesInItsFolderAndBelowAreRead) {
    for (const std::string reference :
         {"a b.png", "a%20b.png", "./deep/../a b.png", "deep/er/c.png", "a%20b.png#part"}) {
        EXPECT_TRUE(placeBeside(file(), reference)) << reference;
        const Drawing drawing = read("<image width='9' height='9' href='" + reference + "'/>");
        ASSERT_EQ(drawing.size(), 1U) << reference;
        EXPECT_EQ(std::get<PicturePtr>(drawing.object(0)->fill)->picture->width(), 2);
        EXPECT_TRUE(drawing.notes().empty());
    }
    EXPECT_TRUE(placeBeside(file(), "file://" + (folder() / "a%20b.png").string()));
}

// What the only effect of a filter shows, whose region is 40 by 20 at 10, 10.
const std::vector<ObjectPtr>* filterImage(const Drawing& drawing) {
    const auto& filter = drawing.object(0)->group->filter;
    const auto* const image = std::get_if<ImageEffect>(&filter->steps.back().effect);
    return image ? image->objects.get() : nullptr;
}

std::string filterShowing(const std::string& attributes) {
    return "<filter id='f' filterUnits='userSpaceOnUse' x='10' y='10' width='40' height='20'><feImage " +
           attributes + "/></filter><rect width='60' height='60' filter='url(#f)'/>";
}

TEST_F(BesideDrawing, FiltersShowFilesToo) {
    const Drawing drawing = read(filterShowing("href='a b.png'"));
    EXPECT_TRUE(drawing.notes().empty());
    const auto* const objects = filterImage(drawing);
    ASSERT_TRUE(objects && objects->size() == 1U);
    // Two by two pixels fill the height of the region, in its middle.
    const PlacedPicture& picture = *std::get<PicturePtr>(objects->front()->fill);
    EXPECT_EQ(picture.toDrawing(Point{0, 0}), (Point{20, 10}));
    EXPECT_EQ(picture.toDrawing(Point{2, 2}), (Point{40, 30}));
    EXPECT_EQ(objects->front()->bounds, (Box{20, 10, 40, 30}));

    const Drawing part = read(filterShowing("x='12' width='8' preserveAspectRatio='none' href='a b.png'"));
    ASSERT_TRUE(filterImage(part));
    EXPECT_EQ(filterImage(part)->front()->bounds, (Box{12, 10, 20, 30})) << "fitted into its own region";
}

TEST_F(BesideDrawing, FiltersShowDrawingsButNotInCirclesOrFromElsewhere) {
    write(folder() / "inner.svg",
          "<svg xmlns='http://www.w3.org/2000/svg' width='4' height='2'><rect width='1' height='1'/></svg>");
    const Drawing drawing = read(filterShowing("href='inner.svg'"));
    EXPECT_TRUE(drawing.notes().empty());
    ASSERT_TRUE(filterImage(drawing));
    EXPECT_EQ(filterImage(drawing)->front()->bounds, (Box{10, 10, 20, 20}));
    const Drawing circle = read(filterShowing("href='drawing.svg'"));
    EXPECT_EQ(circle.notes().size(), 1U);
    const Drawing elsewhere = read(filterShowing("href='../other/secret.png'"));
    EXPECT_FALSE(filterImage(elsewhere));
    EXPECT_EQ(elsewhere.notes().size(), 1U);
}

TEST_F(BesideDrawing, FilesElsewhereAreNotReadWhateverWayLeadsThere) {
    for (const std::string& reference :
         {std::string("../other/secret.png"), std::string("deep/../../other/secret.png"),
          std::string("..%2Fother%2Fsecret.png"), std::string("link.png"), std::string("linked/secret.png"),
          fs::absolute(folder() / ".." / "other" / "secret.png").string(),
          "file://" + (folder() / "../other/secret.png").string(), std::string("http://example.org/a.png"),
          std::string("//example.org/a.png"), std::string("ftp:a.png"), std::string("a b.png%00.svg"),
          std::string("."), std::string("")}) {
        EXPECT_FALSE(placeBeside(file(), reference)) << reference;
    }
    const Drawing drawing = read("<image width='9' height='9' href='link.png'/>");
    EXPECT_EQ(drawing.size(), 0U);
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_EQ(drawing.notes()[0],
              "Pictures are read from the folder of the drawing and those below it, and from nowhere else.");
    EXPECT_FALSE(placeBeside({}, "a b.png"));
}

TEST_F(BesideDrawing, ThatAreNotThereAreNamed) {
    const Drawing drawing = read("<image width='9' height='9' href='none.png'/>");
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_EQ(drawing.notes()[0], "Pictures in files that cannot be read are not shown.");
}

TEST_F(BesideDrawing, SavingDoesNotAskForThemAgain) {
    Drawing drawing = read("<rect width='9' height='9'/><image width='9' height='9' href='a b.png'/>");
    ASSERT_EQ(drawing.size(), 2U);
    fs::remove(folder() / "a b.png");
    giveGradient(drawing, 0, CGradientData());
    EXPECT_TRUE(easel::svg::saveFile(drawing, file()));
}

TEST_F(BesideDrawing, DrawingsThatShowEachOtherEnd) {
    write(folder() / "one.svg", svgFile("<rect width='1' height='1'/><image href='two.svg'/>"));
    write(folder() / "two.svg", svgFile("<image href='one.svg'/>"));
    const Drawing drawing = read("<image href='one.svg'/>");
    ASSERT_EQ(drawing.size(), 1U);
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_EQ(drawing.notes()[0],
              "References that lead back to themselves are kept in the file but not followed.");
}

std::string asPicture(const std::string& svg) {
    return "href='data:image/svg+xml;base64," + base64Text(svg) + "'";
}

// The shapes that the picture shows.
const std::vector<ObjectPtr>& shapesIn(const Drawing& drawing) {
    return *drawing.object(0)->markers;
}

TEST(EmbeddedDrawing, IsOneObjectThatShowsItsShapesFittedAndCutOff) {
    const Drawing drawing =
        readOk(svgFile("<image id='p' x='10' y='20' width='40' height='20' opacity='.5' " +
                       asPicture("<svg xmlns='http://www.w3.org/2000/svg' width='10' height='10'>"
                                 "<rect id='inner' x='1' y='2' width='30' height='3' fill='red'/></svg>") +
                       "/>"));
    ASSERT_EQ(drawing.size(), 1U);
    const Object& picture = *drawing.object(0);
    EXPECT_EQ(picture.kind, Kind::Picture);
    EXPECT_EQ(styleOf(picture).opacity, 0.5);
    // Twice as large, in the middle.
    EXPECT_EQ(picture.bounds, (Box{20, 20, 40, 40}));
    ASSERT_EQ(shapesIn(drawing).size(), 1U);
    const Object& shape = *shapesIn(drawing).front();
    EXPECT_EQ(shape.bounds, (Box{22, 24, 82, 30}));
    EXPECT_FALSE(shape.source.inFile());
    ASSERT_TRUE(shape.group);
    EXPECT_EQ(shape.group->clip->shapes.front().outline.bounds(), (Box{20, 20, 40, 40}));
    EXPECT_FALSE(drawing.indexOfId("inner"));
}

TEST(EmbeddedDrawing, WithAViewBoxAloneTakesTheShapeOfTheViewBox) {
    const Drawing drawing = readOk(
        svgFile("<image width='40' " +
                asPicture("<svg xmlns='http://www.w3.org/2000/svg' viewBox='5 5 20 10'><rect x='5' y='5' "
                          "width='20' height='10'/></svg>") +
                "/>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(drawing.object(0)->bounds, (Box{0, 0, 40, 20}));
    EXPECT_EQ(shapesIn(drawing).front()->bounds, (Box{0, 0, 40, 20}));
}

TEST(EmbeddedDrawing, KnowsNothingOfTheStyleAndNamesOutside) {
    const Drawing drawing = readOk(
        svgFile("<style>rect{fill:#0f0}</style><linearGradient id='g'><stop/></linearGradient><g "
                "fill='#f00'><image " +
                asPicture("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'><rect width='9' "
                          "height='9'/><circle r='3' fill='url(#g) blue'/></svg>") +
                "/></g>"));
    ASSERT_EQ(drawing.size(), 1U);
    EXPECT_EQ(std::get<ColorPaint>(shapesIn(drawing)[0]->fill), ColorPaint{});
    EXPECT_EQ(std::get<ColorPaint>(shapesIn(drawing)[1]->fill).color, (Rgb16{0, 0, 65535}));
}

TEST(EmbeddedDrawing, IsReadOnlySoDeep) {
    std::string svg = svgFile("<rect width='9' height='9'/>");
    for (int depth = 0; depth < 8; ++depth)
        svg = svgFile("<image " + asPicture(svg) + "/>");
    const Drawing drawing = readOk(svg);
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_NE(drawing.notes()[0].find("nested very deep"), std::string::npos);
}

TEST(EmbeddedDrawing, ThatIsDamagedIsNamed) {
    const Drawing drawing = readOk(svgFile("<image " + asPicture("<svg><") + "/>"));
    EXPECT_EQ(drawing.size(), 0U);
    ASSERT_EQ(drawing.notes().size(), 1U);
    EXPECT_EQ(drawing.notes()[0], "Pictures that are damaged are kept in the file but not shown.");
}

// A few bytes that show a drawing a million times are refused as shapes are.
TEST(EmbeddedDrawing, CannotBeRepeatedWithoutEnd) {
    std::string content =
        "<g id='a0'><image " + asPicture(svgFile("<rect width='9' height='9'/>")) + "/></g>";
    for (int i = 1; i < 24; ++i) {
        const std::string inner = "<use href='#a" + std::to_string(i - 1) + "'/>";
        content += "<g id='a" + std::to_string(i) + "'>" + inner + inner + "</g>";
    }
    EXPECT_FALSE(easel::svg::readBytes(svgFile(content), "test.svg"));
}

} // namespace
