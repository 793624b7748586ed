// Patterns on shapes, pixel by pixel.
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace easel;
using drawing::Affine;
using paint::Surface;

constexpr int kSide = 60;
constexpr std::uint32_t kRed = 0xFFFF0000;

Surface painted(const std::string& content, const Affine& toSurface = Affine()) {
    const auto drawing = svg::readBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='60' height='60'>" + content + "</svg>", "test.svg");
    Surface surface(kSide, kSide);
    EXPECT_TRUE(drawing);
    if (drawing)
        paint::renderDrawing(*drawing, surface.view(), toSurface);
    return surface;
}

std::string filled(const std::string& pattern, const std::string& content) {
    return "<pattern id='p' patternUnits='userSpaceOnUse' " + pattern + ">" + content +
           "</pattern><rect width='60' height='60' fill='url(#p)'/>";
}

int level(std::uint32_t pixel, int shift) {
    return static_cast<int>(pixel >> shift & 0xFF);
}

TEST(Pattern, ShowsItsCellWhereverItRepeats) {
    Surface surface = painted(
        filled("x='3' y='2' width='10' height='8'", "<rect x='1' y='1' width='4' height='3' fill='red'/>"));
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x) {
            const int column = (x - 3 + 10) % 10;
            const int row = (y - 2 + 8) % 8;
            const bool inside = column >= 1 && column < 5 && row >= 1 && row < 4;
            EXPECT_EQ(surface.row(y)[x], inside ? kRed : 0U) << x << ", " << y;
        }
}

TEST(Pattern, RepeatsExactlyWhateverIsInIt) {
    Surface surface = painted(filled("width='12' height='9'",
                                     "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' "
                                     "stop-color='blue'/></linearGradient><circle cx='5' cy='4' r='3.7' "
                                     "fill='url(#g)'/><path d='M0 0L11 8' stroke='green'/>"));
    for (int y = 0; y + 9 < kSide; ++y)
        for (int x = 0; x + 12 < kSide; ++x) {
            EXPECT_EQ(surface.row(y)[x], surface.row(y)[x + 12]);
            EXPECT_EQ(surface.row(y)[x], surface.row(y + 9)[x]);
        }
    EXPECT_NE(surface.row(4)[5], 0U);
}

// Cells of a fraction of a pixel that are filled leave no seam.
TEST(Pattern, HasNoSeamsBetweenCells) {
    for (const double scale : {1.0, 1.37, 0.613, 3.09}) {
        Surface surface =
            painted(filled("x='.3' width='4.7' height='3.9'", "<rect width='5' height='5' fill='red'/>"),
                    Affine::translation(0.21, 0.43) * Affine::scaling(scale, scale));
        const int end = std::min(kSide, static_cast<int>(60 * scale)) - 1;
        for (int y = 1; y < end; ++y)
            for (int x = 1; x < end; ++x)
                EXPECT_EQ(surface.row(y)[x], kRed) << scale << ": " << x << ", " << y;
    }
}

// The phase of a cell of a fraction of a pixel is kept however often it repeats: a stripe covers of each
// column of pixels what it covers of the drawing.
TEST(Pattern, KeepsItsPhaseOverManyCells) {
    constexpr double kPeriod = 6.3;
    Surface surface = painted(filled("width='6.3' height='6.3'", "<rect width='3' height='9' fill='red'/>"));
    double light = 0;
    for (int x = 0; x < kSide; ++x) {
        double covered = 0;
        for (int i = 0; i < 10; ++i)
            covered += std::max(0.0, std::min(x + 1.0, i * kPeriod + 3) - std::max<double>(x, i * kPeriod));
        EXPECT_NEAR(level(surface.row(30)[x], 24) / 255.0, covered, 0.15) << x;
        light += level(surface.row(30)[x], 24) / 255.0 - covered;
    }
    EXPECT_NEAR(light, 0, 0.5);
}

TEST(Pattern, OfOneCellIsAsSharpAsTheDrawing) {
    Surface pattern =
        painted("<pattern id='p' width='1' height='1'><circle cx='20' cy='20' r='11.3'/></pattern>"
                "<rect x='4.4' y='7.7' width='50' height='50' fill='url(#p)'/>");
    Surface plain = painted("<circle cx='24.4' cy='27.7' r='11.3'/>");
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            EXPECT_NEAR(level(pattern.row(y)[x], 24), level(plain.row(y)[x], 24), 1) << x << ", " << y;
}

TEST(Pattern, CutsOffWhatReachesBeyondTheCellUnlessItIsToShow) {
    const std::string circle = "<circle r='4' fill='red'/>";
    Surface cut = painted(filled("width='10' height='10'", circle));
    Surface shown = painted(filled("width='10' height='10' overflow='visible'", circle));
    // The circle about the corner (10, 10): a quarter of it lies in its cell.
    EXPECT_EQ(cut.row(11)[11], kRed);
    EXPECT_EQ(cut.row(8)[11], 0U);
    EXPECT_EQ(cut.row(8)[8], 0U);
    for (const int x : {8, 11})
        for (const int y : {8, 11})
            EXPECT_EQ(shown.row(y)[x], kRed);
}

TEST(Pattern, TurnedIsThePatternOfTheTurnedDrawing) {
    const std::string content = "<rect width='5' height='20' fill='red'/>";
    Surface turned = painted(filled("width='10' height='10' patternTransform='rotate(90)'", content));
    // A quarter turn makes of the columns from 0 to 5 the rows from 0 to 5.
    for (int y = 0; y < kSide; ++y)
        EXPECT_EQ(turned.row(y)[30], y % 10 < 5 ? kRed : 0U) << y;
    // Halfway between, half of what is seen is covered.
    Surface slanted = painted(filled("width='10' height='10' patternTransform='rotate(45)'", content));
    double light = 0;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            light += level(slanted.row(y)[x], 24) / 255.0;
    EXPECT_NEAR(light / (kSide * kSide), 0.5, 0.02);
}

TEST(Pattern, OnAStrokeWithOpacityShowsAsFarAsTheStroke) {
    Surface surface =
        painted("<pattern id='p' patternUnits='userSpaceOnUse' width='10' height='10'><rect "
                "width='5' height='10' fill='red'/></pattern><path d='M0 30H60' stroke='url(#p)' "
                "stroke-width='10' stroke-opacity='.5'/>");
    EXPECT_NEAR(level(surface.row(30)[2], 24), 127.5, 0.6);
    EXPECT_EQ(surface.row(30)[7], 0U);
    EXPECT_EQ(surface.row(20)[2], 0U);
}

TEST(Pattern, InAPatternIsShown) {
    Surface surface =
        painted("<pattern id='a' patternUnits='userSpaceOnUse' width='4' height='4'><rect "
                "width='2' height='4' fill='red'/></pattern>" +
                filled("width='20' height='20'", "<rect width='8' height='8' fill='url(#a)'/>"));
    for (int x = 0; x < kSide; ++x)
        EXPECT_EQ(surface.row(3)[x], x % 20 < 8 && x % 4 < 2 ? kRed : 0U) << x;
}

// However small or large the cells are, and however far away.
TEST(Pattern, OfAnySizeTakesLittleMemory) {
    for (const char* const cell : {"width='1e-7' height='1e-7'", "width='1e8' height='1e8'",
                                   "width='1e8' height='1e-7'", "x='-5e8' y='-4e8' width='30' height='30'"}) {
        Surface surface =
            painted(filled(cell, "<rect width='1e9' height='1e9' fill='red'/>"), Affine::scaling(1000, 1000));
        EXPECT_EQ(surface.row(30)[30], kRed) << cell;
    }
}

} // namespace
