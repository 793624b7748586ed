// The forms in which an `image` element may find its picture, and where it shows none.
#include "easel/drawing/Picture.h"
#include "easel/files/Gzip.h"
#include "easel/svg/text/DataUri.h"
#include "tests/support/SmallPictures.h"
#include "tests/unit/svg/ReadHelp.h"

#include <gmock/gmock.h>

namespace {

using namespace easel::drawing;
using easel::svg::base64Text;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kDamaged = "Pictures that are damaged are kept in the file but not shown.";

std::string hrefTo(const std::string& bytes) {
    return " href='data:;base64," + base64Text(bytes) + "'";
}

const std::string kSmallDrawing = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
                                  "<rect width='90' height='10'/></svg>";
const std::string kPixels =
    " href='data:image/png;base64," + std::string(small_pictures::kFourColorsPng) + "'";

Drawing withImage(const std::string& attributes) {
    return readOk(svgFile("<image" + attributes + "/>"));
}

TEST(PictureForms, ADrawingMayBeCompressedOrBeginWithAMarkOrBlanks) {
    std::string wide = "\xff\xfe";
    std::string wideFromTheOtherEnd = "\xfe\xff";
    for (const char c : kSmallDrawing) {
        wide.append({c, '\0'});
        wideFromTheOtherEnd.append({'\0', c});
    }
    for (const std::string& bytes : {kSmallDrawing, " \r\n\t" + kSmallDrawing, "\xEF\xBB\xBF" + kSmallDrawing,
                                     easel::files::packedGzip(kSmallDrawing), wide, wideFromTheOtherEnd}) {
        const Drawing drawing = withImage(hrefTo(bytes));
        ASSERT_EQ(drawing.size(), 1U);
        EXPECT_EQ(drawing.object(0)->bounds, (Box{0, 0, 20, 10}));
        ASSERT_TRUE(drawing.object(0)->markers);
        EXPECT_EQ(drawing.object(0)->markers->size(), 1U);
    }
}

TEST(PictureForms, WhatCannotBeUnpackedOrIsCutOffIsDamaged) {
    std::string packed = easel::files::packedGzip(kSmallDrawing);
    packed.resize(packed.size() - 9);
    EXPECT_THAT(withImage(hrefTo(packed)).notes(), ElementsAre(kDamaged));
    EXPECT_THAT(withImage(hrefTo("\x89PNG\r\n\x1a\n")).notes(), ElementsAre(kDamaged));
    EXPECT_THAT(withImage(" href='data:image/png;base64,Q'").notes(), ElementsAre(kDamaged));
}

TEST(PictureForms, APictureOfNoSizeShowsNothingAndIsNoMistake) {
    for (const std::string& picture : {kPixels, hrefTo(kSmallDrawing)})
        for (const char* size : {" width='0'", " height='0'", " width='0' height='9'", " display='none'"}) {
            const Drawing drawing = withImage(size + picture);
            EXPECT_EQ(drawing.size(), 0U) << size;
            EXPECT_THAT(drawing.notes(), IsEmpty()) << size;
        }
    const std::string empty = "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'/>";
    const Drawing drawing = withImage(hrefTo(empty));
    ASSERT_EQ(drawing.size(), 1U) << "a picture of nothing can be selected and deleted";
    EXPECT_FALSE(drawing.object(0)->markers);
}

TEST(PictureForms, APictureThatIsHiddenHasAPlaceInTheBoxOfItsGroup) {
    for (const std::string& picture : {kPixels, hrefTo(kSmallDrawing)}) {
        const Drawing drawing = readOk(svgFile(
            "<clipPath id='c' clipPathUnits='objectBoundingBox'><rect width='1' height='1'/></clipPath>"
            "<g clip-path='url(#c)'><rect width='10' height='10'/>"
            "<image visibility='hidden' x='30' width='40' height='20'" +
            picture + "/></g>"));
        ASSERT_EQ(drawing.size(), 1U);
        EXPECT_EQ(drawing.object(0)->group->clip->shapes.at(0).outline.bounds(), (Box{0, 0, 70, 20}));
    }
}

TEST(PictureForms, WhatLiesOverTheFrameIsCutOffUnlessItIsToShow) {
    const std::string sliced = " x='10' width='10' height='10' preserveAspectRatio='xMinYMin slice'";
    EXPECT_EQ(withImage(sliced + hrefTo(kSmallDrawing)).object(0)->bounds, (Box{10, 0, 20, 10}));
    EXPECT_EQ(withImage(sliced + " overflow='visible'" + hrefTo(kSmallDrawing)).object(0)->bounds,
              (Box{10, 0, 30, 10}));
}

TEST(PictureForms, ADrawingWithoutASizeTakesTheOneOfItsFrameOrTheUsualOne) {
    const std::string unsized = "<svg xmlns='http://www.w3.org/2000/svg'><rect width='5' height='5'/></svg>";
    EXPECT_EQ(withImage(" width='40' height='30'" + hrefTo(unsized)).object(0)->bounds, (Box{0, 0, 40, 30}));
    // 300 by 150, what CSS gives to pictures that say nothing.
    EXPECT_EQ(withImage(hrefTo(unsized)).object(0)->bounds, (Box{0, 0, 300, 150}));
    EXPECT_EQ(withImage(" width='0'" + hrefTo(unsized)).size(), 0U);
}

TEST(PictureForms, APictureThatLiesBeyondAllNumbersIsNamed) {
    for (const std::string& picture : {kPixels, hrefTo(kSmallDrawing)}) {
        const Drawing drawing = readOk(
            svgFile("<g transform='scale(1e200)'><image transform='scale(1e200)'" + picture + "/></g>"));
        EXPECT_EQ(drawing.size(), 0U);
        EXPECT_THAT(drawing.notes(), ElementsAre(HasSubstr("out of range")));
    }
}

} // namespace
