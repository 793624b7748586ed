// What of a pattern is painted: one cell that repeats, or those cells that show.
#include "easel/paint/PatternImage.h"
#include "easel/drawing/Object.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

namespace {

using namespace easel;
using drawing::Affine;
using drawing::Box;
using paint::PatternImage;
using paint::PixelRect;

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr PixelRect kArea{.left = 0, .top = 0, .right = 60, .bottom = 60};

// A drawing with a pattern of cells of 10 by 10 on its only shape.
drawing::Drawing patterned(const std::string& pattern, const std::string& content, const std::string& shape) {
    auto read =
        svg::readBytes("<svg xmlns='http://www.w3.org/2000/svg' width='60' height='60'><pattern id='p' "
                       "patternUnits='userSpaceOnUse' width='10' height='10' " +
                           pattern + ">" + content + "</pattern><rect " + shape + " fill='url(#p)'/></svg>",
                       "test.svg");
    if (read)
        return std::move(*read);
    ADD_FAILURE() << read.error().message();
    return drawing::Drawing::create(1, 1);
}

class PatternImageTest : public testing::Test {
  protected:
    const drawing::Pattern& pattern() const {
        return *std::get<drawing::PatternPtr>(drawing_.object(0)->fill);
    }
    PatternImage shown(const Box& filled, const PixelRect& area = kArea, const Affine& toSurface = Affine()) {
        return {pattern(), filled, area, toSurface, cells_};
    }

    drawing::Drawing drawing_ =
        patterned("", "<rect width='5' height='10' fill='red'/>", "width='60' height='60'");
    paint::PatternCells cells_;
};

TEST_F(PatternImageTest, IsNoneWhereNothingCanBeSeen) {
    const Box filled{0, 0, 60, 60};
    EXPECT_TRUE(shown(filled).image());
    EXPECT_FALSE(shown(filled, {}).image());
    EXPECT_FALSE(shown(filled, kArea, Affine::scaling(0, 1)).image());
    // Farther away than cells can be counted.
    EXPECT_FALSE(shown({0, 0, 1e11, 60}).image());
    EXPECT_FALSE(shown({-1e11, 0, 60, 60}).image());
    EXPECT_FALSE(shown({0, 0, 60, 1e11}).image());
    EXPECT_FALSE(shown({0, -1e11, 60, 60}).image());
}

TEST_F(PatternImageTest, RepeatsOneCellThatIsPaintedOnce) {
    const PatternImage first = shown({0, 0, 60, 60});
    const PatternImage again = shown({0, 0, 30, 30});
    ASSERT_TRUE(first.image() && again.image());
    EXPECT_EQ(first.image()->width, 10);
    EXPECT_EQ(first.image()->pixels, again.image()->pixels);
    const PatternImage larger = shown({0, 0, 60, 60}, kArea, Affine::scaling(2, 3));
    ASSERT_TRUE(larger.image());
    EXPECT_EQ(larger.image()->width, 20);
    EXPECT_EQ(larger.image()->height, 30);
    EXPECT_NE(larger.image()->pixels, first.image()->pixels);
}

TEST_F(PatternImageTest, IsAsFineAsTheSurfaceWherePixelsFallTogetherAndFinerElsewhere) {
    const auto widthUnder = [&](const Affine& toSurface) {
        return shown({0, 0, 60, 60}, kArea, toSurface).image()->width;
    };
    EXPECT_EQ(widthUnder(Affine::translation(3, 4)), 10);
    EXPECT_EQ(widthUnder(Affine::translation(0.5, 0)), 20);
    EXPECT_EQ(widthUnder(Affine::translation(0, 0.5)), 20);
    EXPECT_EQ(widthUnder(Affine::scaling(1, 1.05)), 20);
    EXPECT_EQ(widthUnder(Affine::scaling(1.05, 1)), 21);
    EXPECT_EQ(widthUnder(Affine::rotation(0.5)), 10) << "blurred in any case";
    EXPECT_EQ(widthUnder(Affine::scaling(0.01, 1)), 1);
}

TEST(PatternOfOneCell, ShowsWhatReachesInFromItsNeighborsIfItIsToShow) {
    const std::string circle = "<circle r='4' fill='red'/>";
    const auto painted = [&](const std::string& overflow) {
        const auto drawing = patterned(overflow, circle, "x='20' y='20' width='10' height='10'");
        paint::Surface surface(60, 60);
        paint::renderDrawing(drawing, surface.view(), Affine());
        return std::vector{surface.row(21)[21], surface.row(21)[28], surface.row(28)[21],
                           surface.row(28)[28], surface.row(25)[25], surface.row(31)[31]};
    };
    EXPECT_EQ(painted(""), (std::vector{kRed, 0U, 0U, 0U, 0U, 0U}));
    EXPECT_EQ(painted("overflow='visible'"), (std::vector{kRed, kRed, kRed, kRed, 0U, 0U}));
}

} // namespace
