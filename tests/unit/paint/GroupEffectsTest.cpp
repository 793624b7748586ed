// Masked and blending groups of a drawing as they are painted: whole, in part, and on any ground.
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace easel;

constexpr int kSide = 40;

drawing::Drawing drawingOf(const std::string& content) {
    auto read = svg::readBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='40'>" + content + "</svg>", "test.svg");
    if (read)
        return std::move(*read);
    ADD_FAILURE() << read.error().message();
    return drawing::Drawing::create(1, 1);
}

paint::Surface painted(const drawing::Drawing& drawing, std::uint32_t ground = 0) {
    paint::Surface surface(kSide, kSide);
    surface.clear(ground);
    paint::renderDrawing(drawing, surface.view(), {});
    return surface;
}

std::uint32_t pixelAt(const std::string& content, int x, int y, std::uint32_t ground = 0) {
    return painted(drawingOf(content), ground).row(y)[x];
}

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kHalfRed = 0x80800000;

const std::string kRedUnderMask = "<rect width='40' height='40' fill='red' mask='url(#m)'/>";

TEST(MaskedGroups, ShowAsMuchAsTheMaskIsLightAndOpaque) {
    const std::string mask = "<mask id='m'><rect width='10' height='40' fill='white'/>"
                             "<rect x='10' width='10' height='40' fill='white' opacity='.5'/>"
                             "<rect x='20' width='10' height='40' fill='#808080'/>"
                             "<rect x='30' width='10' height='20' fill='black'/></mask>" +
                             kRedUnderMask;
    const paint::Surface surface = painted(drawingOf(mask));
    EXPECT_EQ(surface.row(5)[5], kRed);
    EXPECT_EQ(surface.row(5)[15], kHalfRed);
    EXPECT_EQ(surface.row(5)[25], kHalfRed);
    EXPECT_EQ(surface.row(5)[35], 0U);
    EXPECT_EQ(surface.row(35)[35], 0U);
}

TEST(MaskedGroups, TakeTheUnitsTheirMasksSay) {
    const std::string group = "<g transform='translate(10 10)' mask='url(#m)'>"
                              "<rect width='10' height='20' fill='red'/>"
                              "<rect visibility='hidden' x='10' width='10' height='20'/></g>";
    // The right half of a box that counts what is hidden is empty; a quarter of it shows.
    const std::string quarter = "<mask id='m' maskContentUnits='objectBoundingBox'>"
                                "<rect width='.25' height='1' fill='white'/></mask>";
    EXPECT_EQ(pixelAt(quarter + group, 14, 15), kRed);
    EXPECT_EQ(pixelAt(quarter + group, 15, 15), 0U);
    // A region of the box, with content in the units of the group.
    const std::string lower = "<mask id='m' y='.5'><rect width='40' height='40' fill='white'/></mask>";
    EXPECT_EQ(pixelAt(lower + group, 15, 19), 0U);
    EXPECT_EQ(pixelAt(lower + group, 15, 20), kRed);
    const std::string region = "<mask id='m' maskUnits='userSpaceOnUse' x='2' y='0' width='4' height='40'>"
                               "<rect width='40' height='40' fill='white'/></mask>";
    EXPECT_EQ(pixelAt(region + group, 11, 15), 0U);
    EXPECT_EQ(pixelAt(region + group, 15, 15), kRed);
    EXPECT_EQ(pixelAt(region + group, 16, 15), 0U);
}

TEST(MaskedGroups, MasksAndClipsNarrowMasks) {
    const std::string masks =
        "<clipPath id='c'><rect width='40' height='20'/></clipPath>"
        "<mask id='n'><rect width='20' height='40' fill='white' fill-opacity='.5'/></mask>"
        "<mask id='m' mask='url(#n)' clip-path='url(#c)'><rect width='40' height='40' fill='white'/></mask>" +
        kRedUnderMask;
    EXPECT_EQ(pixelAt(masks, 10, 10), kHalfRed);
    EXPECT_EQ(pixelAt(masks, 30, 10), 0U);
    EXPECT_EQ(pixelAt(masks, 10, 30), 0U);
}

TEST(MaskedGroups, AnEmptyMaskHidesAndAMissingOneDoesNot) {
    EXPECT_EQ(pixelAt("<mask id='m'/>" + kRedUnderMask, 20, 20), 0U);
    EXPECT_EQ(pixelAt("<g id='m'/>" + kRedUnderMask, 20, 20), kRed);
    EXPECT_EQ(pixelAt(kRedUnderMask, 20, 20), kRed);
    const std::string white = "<rect width='40' height='40' fill='white'/>";
    EXPECT_EQ(pixelAt("<mask id='m' width='0'>" + white + "</mask>" + kRedUnderMask, 20, 20), 0U);
    // A line has no area that shares could be taken of.
    EXPECT_EQ(pixelAt("<mask id='m'>" + white +
                          "</mask><path d='M0 20H40' stroke='red' stroke-width='9' mask='url(#m)'/>",
                      20, 20),
              0U);
}

const std::string kGrayBelow = "<rect width='40' height='20' fill='#808080'/>";

TEST(BlendingGroups, MeetWhatTheirOwnLayerHolds) {
    const std::string multiplied =
        "<rect width='40' height='40' fill='red' style='mix-blend-mode:multiply'/>";
    EXPECT_EQ(pixelAt(kGrayBelow + multiplied, 20, 10), 0xFF800000U);
    EXPECT_EQ(pixelAt(kGrayBelow + "<g>" + multiplied + "</g>", 20, 10), 0xFF800000U);
    EXPECT_EQ(pixelAt(kGrayBelow + "<g style='isolation:isolate'>" + multiplied + "</g>", 20, 10), kRed);
    EXPECT_EQ(pixelAt(kGrayBelow + "<g opacity='.5'>" + multiplied + "</g>", 20, 30), kHalfRed);
    EXPECT_EQ(pixelAt(kGrayBelow + "<g opacity='.999'>" + multiplied + "</g>", 20, 10), kRed);
}

TEST(BlendingGroups, DoNotMeetWhatTheDrawingIsLaidOn) {
    const std::string content =
        kGrayBelow + "<rect width='40' height='40' fill='red' style='mix-blend-mode:difference'/>";
    EXPECT_EQ(pixelAt(content, 20, 30, 0xFFFFFFFF), kRed);
    EXPECT_EQ(pixelAt(content, 20, 10, 0xFFFFFFFF), 0xFF7F8080U);
}

TEST(GroupEffects, APartPaintedAnewIsThatPartOfTheWhole) {
    const drawing::Drawing drawing = drawingOf(
        "<defs><linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue'/>"
        "</linearGradient><mask id='m'><circle cx='20' cy='20' r='17' fill='#ccc'/></mask></defs>"
        "<rect width='40' height='40' fill='url(#g)'/>"
        "<g style='mix-blend-mode:screen' mask='url(#m)' opacity='.8'><circle cx='15' cy='15' r='12' "
        "fill='#0a0'/><rect x='12' y='12' width='25' height='25' fill='url(#g)'/></g>");
    const paint::Surface whole = painted(drawing, 0xFFFFFFFF);
    paint::Surface part(kSide, kSide);
    part.clear(0xFFFFFFFF);
    paint::renderDrawing(drawing, part.view().clippedTo({.left = 10, .top = 8, .right = 30, .bottom = 31}),
                         {});
    for (int y = 8; y < 31; ++y)
        for (int x = 10; x < 30; ++x)
            ASSERT_EQ(part.row(y)[x], whole.row(y)[x]) << x << ',' << y;
    EXPECT_EQ(part.row(8)[9], 0xFFFFFFFFU);
}

// Each layer of this size takes two megabytes: all at once would be more than there is for them.
TEST(GroupEffects, ManyWideLayersInEachOtherArePaintedInStrips) {
    constexpr int kDepth = 99;
    constexpr int kWide = 16384;
    std::string content = "<rect width='40' height='40' fill='white'/>";
    for (int i = 0; i < kDepth; ++i)
        content = "<g style='isolation:isolate' opacity='.996'>" + content + "</g>";
    const drawing::Drawing drawing = drawingOf(content);
    paint::Surface surface(kWide, kSide);
    paint::renderDrawing(drawing, surface.view(), drawing::Affine::scaling(kWide / 40.0, 1));
    // Each layer takes four thousandths of a level of 255, a whole level once that is rounded, from those
    // above 125 levels.
    const std::uint32_t first = surface.row(0)[0];
    EXPECT_EQ(first >> 24, 255U - kDepth);
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kWide; ++x)
            ASSERT_EQ(surface.row(y)[x], first) << x << ',' << y;
}

} // namespace
