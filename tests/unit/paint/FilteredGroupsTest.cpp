// Filtered groups of a drawing as they are painted: where they show, in what order, whole and in parts.
#include "tests/unit/paint/FilterPixels.h"

#include "easel/drawing/Filter.h"
#include "easel/paint/FilterPictures.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/paint/filter/FilterUses.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace easel;
using drawing::Affine;

drawing::Drawing drawingOf(const std::string& content) {
    auto read = svg::readBytes(
        "<svg xmlns='http://www.w3.org/2000/svg' width='80' height='80'>" + content + "</svg>", "test.svg");
    if (read)
        return std::move(*read);
    ADD_FAILURE() << read.error().message();
    return drawing::Drawing::create(1, 1);
}

paint::Surface painted(const drawing::Drawing& drawing, double scale = 1) {
    paint::Surface surface(static_cast<int>(80 * scale), static_cast<int>(80 * scale));
    paint::renderDrawing(drawing, surface.view(), Affine::scaling(scale, scale));
    return surface;
}

paint::Surface paintedText(const std::string& content) {
    return painted(drawingOf(content));
}

// The pixels that show anything.
paint::PixelRect shownBy(const paint::Surface& picture) {
    paint::PixelRect box{.left = 1000, .top = 1000, .right = 0, .bottom = 0};
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.row(y)[x] != 0)
                box = {.left = std::min(box.left, x),
                       .top = std::min(box.top, y),
                       .right = std::max(box.right, x + 1),
                       .bottom = std::max(box.bottom, y + 1)};
    return box;
}

paint::PixelRect rect(int left, int top, int right, int bottom) {
    return {.left = left, .top = top, .right = right, .bottom = bottom};
}

constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kBlue = 0xFF0000FF;

const std::string kFlood = "<feFlood flood-color='red'/>";
// From 20 to 60 across and from 30 to 50 down.
const std::string kRect = "<rect x='20' y='30' width='40' height='20' fill='blue' filter='url(#f)'/>";

TEST(Filters, ShowInTheirRegionAndNowhereElse) {
    const auto shown = [](const std::string& attributes, const std::string& what) {
        return shownBy(paintedText("<filter id='f'" + attributes + ">" + what + "</filter>" + kRect));
    };
    EXPECT_EQ(shown("", kFlood), rect(16, 28, 64, 52)) << "a tenth larger on each side";
    EXPECT_EQ(shown(" x='.5' y='0' width='.25' height='2'", kFlood), rect(40, 30, 50, 70));
    EXPECT_EQ(shown(" filterUnits='userSpaceOnUse' x='1' y='2' width='3' height='5'", kFlood),
              rect(1, 2, 4, 7));
    EXPECT_EQ(shown("", "<feFlood x='30' y='10' width='5' height='30'/>"), rect(30, 28, 35, 40));
    EXPECT_EQ(
        shown(" primitiveUnits='objectBoundingBox'", "<feFlood x='.5' y='.5' width='.25' height='.25'/>"),
        rect(40, 40, 50, 45));
    EXPECT_EQ(shown(" width='0'", kFlood), rect(1000, 1000, 0, 0));
    EXPECT_EQ(shown("", ""), rect(1000, 1000, 0, 0)) << "without steps nothing shows";
    EXPECT_EQ(shown("", "<feFlood x='30' width='5'/><feOffset dx='9'/>"), rect(1000, 1000, 0, 0))
        << "a step reaches as far as what it takes in";
    EXPECT_EQ(shown("", "<feFlood x='30' width='5'/><feOffset dx='9' x='0' width='80'/>"),
              rect(39, 28, 44, 52));
}

TEST(Filters, BlursGoOnWhereTheirInputEnds) {
    const auto shown = [](const std::string& mode) {
        return paintedText("<filter id='f'><feFlood flood-color='red' x='30' y='40' width='9' height='5'/>"
                           "<feGaussianBlur stdDeviation='4' x='0' y='0' width='80' height='80' edgeMode='" +
                           mode + "'/></filter>" + kRect);
    };
    paint::Surface red = plainPicture(80, 80, 0);
    for (int y = 28; y < 52; ++y)
        std::fill(red.row(y) + 16, red.row(y) + 64, kRed);
    EXPECT_TRUE(samePixels(shown("duplicate"), red));
    EXPECT_TRUE(samePixels(shown("wrap"), red));
    EXPECT_NE(shown("none").row(42)[34], kRed);
}

TEST(Filters, TakeInWhatTheyName) {
    const auto middle = [](const std::string& steps) {
        return paintedText("<filter id='f' color-interpolation-filters='sRGB'>" + steps + "</filter>" + kRect)
            .row(40)[40];
    };
    const std::string merge = "<feMerge><feMergeNode in='a'/><feMergeNode in='SourceGraphic'/></feMerge>";
    EXPECT_EQ(middle("<feFlood result='a'/><feOffset in='SourceGraphic'/>"), kBlue);
    EXPECT_EQ(middle("<feFlood flood-color='red' result='a'/>" + merge), kBlue);
    EXPECT_EQ(
        middle("<feFlood flood-color='red' result='a'/><feOffset in='SourceGraphic'/><feOffset in='a'/>"),
        kRed);
    EXPECT_EQ(middle("<feFlood flood-color='red'/><feOffset in='not there'/>"), kRed);
    EXPECT_EQ(middle("<feOffset in='SourceAlpha'/>"), 0xFF000000U);
    EXPECT_EQ(middle("<feOffset in='BackgroundImage'/>"), 0U);
    EXPECT_EQ(middle("<feOffset in='FillPaint'/>"), kBlue);
    EXPECT_EQ(middle("<feOffset in='StrokePaint'/>"), 0U);
    EXPECT_EQ(middle("<feFlood flood-color='red' flood-opacity='.5'/><feBlend in2='SourceGraphic'/>"),
              0xFF80007FU);
    EXPECT_EQ(middle("<feFlood flood-color='red'/><feBlend in2='SourceGraphic' mode='multiply'/>"),
              0xFF000000U);
    // In linear light, half of the light is more than half of the level.
    EXPECT_EQ(paintedText("<filter id='f'><feFlood flood-color='white' result='a'/><feComposite "
                          "in2='SourceAlpha' operator='arithmetic' k2='.5' k3='.5'/></filter>" +
                          kRect)
                  .row(40)[40],
              0xFFBCBCBCU);
}

TEST(Filters, ShowElementsOfTheFile) {
    const paint::Surface picture =
        paintedText("<defs><rect id='r' x='30' y='35' width='10' height='10' fill='red'/></defs><filter "
                    "id='f'><feImage href='#r'/></filter>" +
                    kRect);
    EXPECT_EQ(shownBy(picture), rect(30, 35, 40, 45));
    EXPECT_EQ(picture.row(40)[35], kRed);
    // An element that its own filter shows is none there.
    const auto circle = drawingOf("<filter id='f'><feImage href='#g'/></filter><g id='g'>" + kRect + "</g>");
    EXPECT_EQ(circle.notes().size(), 1U);
    painted(circle);
}

TEST(Filters, ComeBeforeClipsAndOpacity) {
    const std::string flood = "<filter id='f' x='0' y='0' width='1' height='1'>" + kFlood + "</filter>";
    const std::string clip = "<clipPath id='c'><rect width='40' height='80'/></clipPath>";
    for (const std::string& element :
         {std::string("<rect x='20' y='30' width='40' height='20' opacity='.5' filter='url(#f)' "
                      "clip-path='url(#c)'/>"),
          std::string("<g opacity='.5' filter='url(#f)' clip-path='url(#c)'><rect x='20' y='30' width='40' "
                      "height='20'/></g>")}) {
        const paint::Surface picture = paintedText(flood + clip + element);
        EXPECT_EQ(shownBy(picture), rect(20, 30, 40, 50));
        EXPECT_EQ(picture.row(40)[30], 0x80800000U);
    }
}

TEST(Filters, OfAListWorkOneAfterTheOther) {
    const std::string square = "<rect x='30' y='30' width='20' height='20' fill='blue' style='filter:";
    const std::string moves = "<filter id='f' x='-1' y='-1' width='3' height='3'><feOffset dx='10'/></filter>"
                              "<filter id='h' x='0' y='0' width='1' height='1'><feOffset/></filter>";
    EXPECT_EQ(shownBy(paintedText(moves + square + "url(#f) url(#h)'/>")), rect(40, 30, 50, 50));
    EXPECT_EQ(shownBy(paintedText(moves + square + "url(#h) url(#f)'/>")), rect(40, 30, 60, 50));
    const paint::Surface shadow = paintedText(square + "drop-shadow(20px 0 red) opacity(50%)'/>");
    EXPECT_EQ(shownBy(shadow), rect(30, 30, 70, 50));
    EXPECT_EQ(shadow.row(40)[60], 0x80800000U);
    // One that is not there, or not valid, leaves all of them out.
    for (const std::string list :
         {"url(#f) url(#missing)", "url(#f) blur(-1px)", "blur(3px", "spin(2)", "none"})
        EXPECT_EQ(shownBy(paintedText(moves + square + list + "'/>")), rect(30, 30, 50, 50)) << list;
}

std::uint32_t withFunction(const std::string& function, const std::string& color) {
    return paintedText("<rect width='80' height='80' fill='" + color + "' filter='" + function + "'/>")
        .row(40)[40];
}

TEST(FilterFunctions, FollowTheirFormulas) {
    EXPECT_EQ(withFunction("brightness(50%)", "#804020"), 0xFF402010U);
    EXPECT_EQ(withFunction("contrast(0)", "#804020"), 0xFF808080U);
    EXPECT_EQ(withFunction("invert(1)", "#804020"), 0xFF7FBFDFU);
    EXPECT_EQ(withFunction("opacity(.5)", "#ff0000"), 0x80800000U);
    // The luminance of pure green is 0.7152 of white's.
    EXPECT_EQ(withFunction("grayscale()", "#00ff00"), 0xFFB6B6B6U);
    EXPECT_EQ(withFunction("grayscale(0)", "#804020"), 0xFF804020U);
    EXPECT_EQ(withFunction("saturate(0)", "#00ff00"), 0xFFB6B6B6U) << "0.715 of 255";
    EXPECT_EQ(withFunction("saturate(100%)", "#804020"), 0xFF804020U);
    EXPECT_EQ(withFunction("sepia(1)", "#000000"), 0xFF000000U);
    EXPECT_EQ(withFunction("sepia(1)", "#0000ff"), 0xFF302B21U) << "0.189, 0.168 and 0.131 of 255";
    EXPECT_EQ(withFunction("hue-rotate(1turn)", "#804020"), 0xFF804020U);
    // At half a turn, red keeps its luminance: twice 0.213 less than nothing is left of red itself.
    EXPECT_EQ(withFunction("hue-rotate(180deg)", "#ff0000"), 0xFF006D6DU);
}

const std::string kShadows =
    "<filter id='f' x='-.5' y='-.5' width='2' height='2'><feGaussianBlur stdDeviation='3'/><feOffset "
    "dx='2.3' "
    "dy='3.1'/><feMerge><feMergeNode/><feMergeNode in='SourceGraphic'/></feMerge></filter>";

TEST(FilteredGroups, APartPaintedAnewIsThatPartOfTheWhole) {
    const drawing::Drawing drawing = drawingOf(
        kShadows +
        "<g filter='url(#f)'><rect x='10.3' y='9.7' width='40' height='50' fill='red'/><g opacity='.5' "
        "filter='blur(2px)'><circle cx='40' cy='40' r='20'/></g></g><g transform='rotate(30 60 60)' "
        "filter='url(#f)' opacity='.8'><rect x='50' y='50' width='20' height='20' fill='green'/></g>");
    // Larger than the bands that threads paint.
    constexpr double kScale = 9.3;
    const int side = static_cast<int>(80 * kScale);
    const paint::Surface whole = painted(drawing, kScale);
    for (const auto& part : {rect(100, 90, 400, 700), rect(0, 250, side, 270), rect(399, 0, 401, side)}) {
        paint::Surface again(whole.width(), whole.height());
        paint::renderDrawing(drawing, again.view().clippedTo(part), Affine::scaling(kScale, kScale), 1);
        for (int y = part.top; y < std::min(part.bottom, whole.height()); ++y)
            for (int x = part.left; x < std::min(part.right, whole.width()); ++x)
                ASSERT_EQ(again.row(y)[x], whole.row(y)[x]) << x << ", " << y;
    }
}

TEST(FilteredGroups, WhatComesInFromTheOtherSideNeedNotBeSeen) {
    const drawing::Drawing drawing =
        drawingOf("<filter id='f' x='0' y='0' width='1' height='1'><feGaussianBlur stdDeviation='4' "
                  "edgeMode='wrap'/></filter><path d='M5 5H75V75z' fill='blue' filter='url(#f)'/>");
    const paint::Surface whole = painted(drawing);
    // The part at the left edge, into which the right one comes.
    paint::Surface part(20, 20);
    paint::renderDrawing(drawing, part.view(), Affine::translation(-4, -50));
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(part.row(y)[x], whole.row(50 + y)[4 + x]) << x << ", " << y;
}

TEST(FilteredGroups, ThatAreTurnedLookAsIfTurnedAfterwards) {
    // A quarter of a turn takes pixels to pixels.
    const std::string content =
        "<g filter='url(#f)'><rect x='20' y='25' width='30' height='10' fill='red'/></g>";
    const paint::Surface straight = paintedText(kShadows + content);
    const paint::Surface turned =
        paintedText(kShadows + "<g transform='rotate(90 40 40)'>" + content + "</g>");
    const paint::Surface mirrored =
        paintedText(kShadows + "<g transform='matrix(-1 0 0 1 80 0)'>" + content + "</g>");
    for (int y = 0; y < 80; ++y)
        for (int x = 0; x < 80; ++x) {
            ASSERT_EQ(turned.row(x)[79 - y], straight.row(y)[x]) << x << ", " << y;
            ASSERT_EQ(mirrored.row(y)[79 - x], straight.row(y)[x]) << x << ", " << y;
        }
}

TEST(FilteredGroups, OfWhichAnObjectChangesAreMarkedWhole) {
    drawing::Drawing drawing =
        drawingOf(kShadows + "<g filter='url(#f)'><rect x='20' y='20' width='10' height='10'/>"
                             "<rect x='50' y='50' width='10' height='10'/></g>");
    drawing::Box marked;
    drawing.setChangeListener([&](const drawing::Box& area) { marked.add(area); });
    drawing.erase(0);
    // The group's box is 20 to 60, and its region half as much larger on each side.
    EXPECT_TRUE(marked.contains({0, 0}));
    EXPECT_TRUE(marked.contains({80, 80}));
    EXPECT_EQ(drawing.objectsWithin({70, 1, 71, 2}).size(), 1U);
    EXPECT_TRUE(drawing.objectsWithin({90, 1, 91, 2}).empty());
}

TEST(FilteredGroups, ArePaintedAgainOnlyWhenTheyChange) {
    const drawing::Drawing drawing =
        drawingOf(kShadows + "<g filter='url(#f)'><rect x='20' y='20' width='30' "
                             "height='30'/><circle r='5'/></g>");
    const drawing::Group& group = *drawing.object(0)->group;
    const std::vector<drawing::ObjectPtr> objects{drawing.object(0), drawing.object(1)};
    paint::FilterPictures pictures;
    int paintings = 0;
    const auto paint = [&](const paint::FilterGrid& grid) {
        ++paintings;
        return std::make_shared<const paint::Surface>(grid.place.width(), grid.place.height());
    };
    const auto ask = [&](const std::vector<drawing::ObjectPtr>& shown, const Affine& map) {
        return pictures.picture(group, shown, map, rect(0, 0, 80, 80), paint).pixels;
    };
    const auto first = ask(objects, {});
    EXPECT_EQ(ask(objects, {}), first);
    EXPECT_EQ(paintings, 1);
    EXPECT_NE(ask({drawing.object(0)}, {}), first);
    EXPECT_NE(ask(objects, Affine::scaling(2, 2)), first);
    EXPECT_EQ(paintings, 3);
}

TEST(FilterGrids, GetCoarserRatherThanLarger) {
    drawing::Filter filter;
    filter.region = {0, 0, 1e6, 1e6};
    filter.steps.push_back({drawing::TileEffect{}, {{}}, filter.region, false});
    constexpr std::size_t kBytes = 1 << 24;
    const auto grid = paint::gridFor(filter, Affine::scaling(100, 100), rect(0, 0, 500, 500), kBytes);
    ASSERT_TRUE(grid);
    const auto bytes = std::size_t{4} * paint::mostPictures(filter) *
                       static_cast<std::size_t>(grid->place.width()) *
                       static_cast<std::size_t>(grid->place.height());
    EXPECT_LE(bytes, kBytes);
    EXPECT_GE(bytes, kBytes / 2);
    // What has no part in the pixels seen is left out where that can be told.
    filter.steps[0].effect = drawing::BlurEffect{{0.1, 0.1}};
    const auto near = paint::gridFor(filter, Affine::scaling(100, 100), rect(0, 0, 500, 500), kBytes);
    ASSERT_TRUE(near);
    EXPECT_LE(near->place.width(), 550);
    EXPECT_EQ(near->toSheet, Affine());
    // Nothing of it is seen.
    EXPECT_FALSE(paint::gridFor(filter, Affine::translation(-2e6, 0), rect(0, 0, 500, 500), kBytes));
}

TEST(FilteredGroups, OfAnySizeArePaintedInBoundedMemory) {
    const drawing::Drawing drawing =
        drawingOf("<filter id='f' filterUnits='userSpaceOnUse' x='-1e8' y='-1e8' width='2e8' "
                  "height='2e8'><feFlood/>"
                  "<feGaussianBlur stdDeviation='1e7 3'/><feTile/><feMorphology operator='dilate' "
                  "radius='1e8'/></filter>" +
                  kRect);
    EXPECT_NE(painted(drawing).row(40)[40], 0U);
}

} // namespace
