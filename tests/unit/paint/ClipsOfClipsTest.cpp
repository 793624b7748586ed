// Clip paths that are clipped themselves: what shows is what lies in all of them.
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using easel::drawing::Drawing;
using easel::paint::Surface;

// Whether the middle of the pixel is covered in a drawing of 100 by 100 that is all black where it is not
// clipped.
class Clipped {
  public:
    Clipped(const std::string& clips, const std::string& attributes, const std::string& box = "")
        : surface_(100, 100) {
        const std::string rectangle = box.empty() ? "width='100' height='100'" : box;
        const auto read =
            easel::svg::readBytes("<svg xmlns='http://www.w3.org/2000/svg' width='100' height='100'>" +
                                      clips + "<rect " + rectangle + " " + attributes + "/></svg>",
                                  "clips.svg");
        renderDrawing(read.value(), surface_.view(), {});
    }
    bool shows(int x, int y) { return (surface_.row(y)[x] >> 24) > 128; }

  private:
    Surface surface_;
};

const std::string kHalves =
    "<clipPath id='left'><rect width='50' height='100'/></clipPath>"
    "<clipPath id='top' clip-path='url(#left)'><rect width='100' height='50'/></clipPath>"
    "<clipPath id='share' clipPathUnits='objectBoundingBox'><rect width='.5' height='1'/></clipPath>";

TEST(ClipsOfClips, AChainNarrowsWithEachOfItsClips) {
    Clipped picture(
        kHalves + "<clipPath id='c' clip-path='url(#top)'><rect x='20' width='80' height='90'/></clipPath>",
        "clip-path='url(#c)'");
    EXPECT_TRUE(picture.shows(30, 30));
    EXPECT_FALSE(picture.shows(10, 30)); // outside the first
    EXPECT_FALSE(picture.shows(30, 70)); // outside the second
    EXPECT_FALSE(picture.shows(70, 30)); // outside the third
}

TEST(ClipsOfClips, AClipOfOneShapeLeavesTheOthersAlone) {
    Clipped picture(kHalves + "<clipPath id='c'><rect x='20' width='60' height='40' clip-path='url(#share)'/>"
                              "<rect x='20' y='60' width='60' height='40'/></clipPath>",
                    "clip-path='url(#c)'");
    EXPECT_TRUE(picture.shows(30, 20));
    EXPECT_FALSE(picture.shows(70, 20)); // in the right half of the clipped shape
    EXPECT_TRUE(picture.shows(70, 80));
}

TEST(ClipsOfClips, ARepeatedShapeIsClippedWhereItIsRepeatedAndWhereItStands) {
    Clipped picture(kHalves +
                        "<defs><rect id='r' width='60' height='40' clip-path='url(#left)'/></defs><clipPath "
                        "id='c'><use href='#r' x='30' y='10' clip-path='url(#top)'/></clipPath>",
                    "clip-path='url(#c)'");
    EXPECT_TRUE(picture.shows(40, 30));
    EXPECT_FALSE(picture.shows(20, 30)); // left of the shape
    EXPECT_FALSE(picture.shows(60, 30)); // right of the left half, where the repetition is clipped
    Clipped lone(kHalves +
                     "<defs><rect id='r' width='60' height='40' clip-path='url(#left)'/></defs><clipPath "
                     "id='c'><use href='#r' x='30' y='10'/></clipPath>",
                 "clip-path='url(#c)'");
    EXPECT_TRUE(lone.shows(75, 30)); // inside the left half of where the shape stands, moved with it
    EXPECT_FALSE(lone.shows(85, 30));
}

TEST(ClipsOfClips, SharesOfABoxDifferFromObjectToObject) {
    const std::string clips =
        kHalves + "<clipPath id='c' clip-path='url(#share)'><rect width='100' height='100'/></clipPath>"
                  "<rect width='10' height='100' clip-path='url(#c)'/>";
    Clipped picture(clips, "clip-path='url(#c)'", "x='20' width='80' height='100'");
    EXPECT_TRUE(picture.shows(2, 50));
    EXPECT_FALSE(picture.shows(8, 50));
    EXPECT_TRUE(picture.shows(50, 50));
    EXPECT_FALSE(picture.shows(70, 50));
}

} // namespace
