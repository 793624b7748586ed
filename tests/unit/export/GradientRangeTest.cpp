// Gradients brought into the range of other formats look the same, and those without extent are one color.
#include "easel/export/GradientRange.h"
#include "easel/drawing/Group.h"
#include "easel/export/MaskAlpha.h"
#include "easel/svg/Document.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace easel;
using drawing::LinearGeometry;
using drawing::RadialGeometry;

drawing::Gradient gradientOf(const drawing::GradientGeometry& geometry, double first, double last) {
    return {geometry, {}, drawing::Spread::Pad, drawing::Ramp({{first, {0, 0, 0}}, {last, {65535, 0, 0}}})};
}

TEST(GradientRange, ALineIsLengthenedToItsOuterStops) {
    const auto within = exports::withinUnitRange(gradientOf(LinearGeometry{{0, 0}, {10, 20}}, -1, 2));
    const auto& line = std::get<LinearGeometry>(within.geometry);
    EXPECT_EQ(line.start, (drawing::Point{-10, -20}));
    EXPECT_EQ(line.end, (drawing::Point{20, 40}));
    EXPECT_EQ(within.ramp.stops().front().position, 0);
    EXPECT_EQ(within.ramp.stops().back().position, 1);
}

TEST(GradientRange, CirclesGrowToTheirOuterStopsButNotBelowNoRadius) {
    const auto growing = exports::withinUnitRange(gradientOf(RadialGeometry{{0, 0}, 1, {4, 0}, 3}, -2, 2));
    const auto& grown = std::get<RadialGeometry>(growing.geometry);
    EXPECT_EQ(grown.radius, 5) << "3 and another 2";
    EXPECT_EQ(grown.centre.x, 8);
    EXPECT_EQ(grown.focusRadius, 0) << "reached half a length before the first circle";
    EXPECT_EQ(grown.focus.x, -2);
    const auto shrinking = exports::withinUnitRange(gradientOf(RadialGeometry{{0, 0}, 3, {4, 0}, 1}, -1, 3));
    const auto& shrunk = std::get<RadialGeometry>(shrinking.geometry);
    EXPECT_EQ(shrunk.focusRadius, 5);
    EXPECT_EQ(shrunk.radius, 0);
    const auto even = exports::withinUnitRange(gradientOf(RadialGeometry{{0, 0}, 2, {4, 0}, 2}, 0, 2));
    EXPECT_EQ(std::get<RadialGeometry>(even.geometry).radius, 2);
    EXPECT_EQ(std::get<RadialGeometry>(even.geometry).centre.x, 8);
}

TEST(GradientRange, WhatLiesWithinOrRepeatsStays) {
    const auto inside = gradientOf(LinearGeometry{{0, 0}, {10, 0}}, 0.25, 0.75);
    EXPECT_EQ(exports::withinUnitRange(inside), inside);
    auto repeated = gradientOf(LinearGeometry{{0, 0}, {10, 0}}, -1, 2);
    repeated.spread = drawing::Spread::Repeat;
    EXPECT_EQ(exports::withinUnitRange(repeated), repeated);
}

TEST(GradientRange, WithoutExtentItIsTheLastColor) {
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const drawing::GradientGeometry& none : {drawing::GradientGeometry(LinearGeometry{{1, 1}, {1, 1}}),
                                                  {LinearGeometry{{kNan, 1}, {2, 2}}},
                                                  {LinearGeometry{{1, 1}, {2, kInfinity}}},
                                                  {RadialGeometry{{1, 1}, 0, {1, 1}, 0}},
                                                  {RadialGeometry{{1, 1}, 2, {1, 1}, 2}},
                                                  {RadialGeometry{{kNan, 1}, 0, {1, 1}, 2}},
                                                  {RadialGeometry{{1, 1}, 0, {1, kNan}, 2}},
                                                  {RadialGeometry{{1, 1}, kNan, {1, 1}, 2}},
                                                  {RadialGeometry{{1, 1}, 0, {1, 1}, kInfinity}}}) {
        const auto color = exports::onlyColor(gradientOf(none, 0, 1));
        ASSERT_TRUE(color);
        EXPECT_EQ(color->color.red, 65535);
    }
    for (const drawing::GradientGeometry& proper : {drawing::GradientGeometry(LinearGeometry{{1, 1}, {2, 1}}),
                                                    {RadialGeometry{{1, 1}, 0, {1, 1}, 2}},
                                                    {RadialGeometry{{1, 1}, 2, {1, 1}, 0}},
                                                    {RadialGeometry{{1, 1}, 2, {5, 1}, 2}}})
        EXPECT_FALSE(exports::onlyColor(gradientOf(proper, 0, 1)));
    auto flat = gradientOf(LinearGeometry{{1, 1}, {2, 1}}, 0, 1);
    flat.toDrawing = drawing::Affine::scaling(1, 0);
    EXPECT_TRUE(exports::onlyColor(flat));
}

// Whether alpha tells the luminance of a mask that holds this.
bool alphaTells(const std::string& content, const std::string& attributes = "") {
    const auto read = svg::readBytes("<svg xmlns='http://www.w3.org/2000/svg' width='60' "
                                     "height='60'><linearGradient id='g'><stop stop-color='#fff'/><stop "
                                     "offset='1'/></linearGradient><pattern id='p' width='.1' "
                                     "height='.1'><rect width='2' height='2'/></pattern><marker "
                                     "id='k'><path d='M0 0H5V5Z'/></marker><mask id='m' " +
                                         attributes + ">" + content +
                                         "</mask><rect width='60' height='60' mask='url(#m)'/></svg>",
                                     "test.svg");
    return exports::alphaTellsLuminance(*read.value().object(0)->group->mask);
}

const std::string kWhite = "<rect width='40' height='40' fill='#fff'/>";

TEST(MaskAlphaOf, StrokesAndGradientsIsToldLikeThatOfColors) {
    EXPECT_TRUE(alphaTells("<rect x='5' y='5' width='9' height='9' fill='url(#g)'/>"));
    EXPECT_TRUE(alphaTells("<path d='M1 1H9' stroke='#777'/>"));
    EXPECT_TRUE(alphaTells("<path d='M1 1H9' stroke='url(#g)' fill='none'/>"));
    EXPECT_TRUE(alphaTells(kWhite + "<rect x='5' y='5' width='9' height='9' fill='none'/>"));
    EXPECT_FALSE(alphaTells(kWhite + "<rect x='5' y='5' width='9' height='9' fill='url(#g)'/>"));
    EXPECT_FALSE(alphaTells(kWhite + "<rect x='5' y='5' width='9' height='9' fill='none' stroke='#777'/>"));
    EXPECT_FALSE(alphaTells("<rect x='5' y='5' width='9' height='9' fill='#777' stroke='#888'/>"));
}

TEST(MaskAlphaOf, PatternsMarkersAndBlendsIsNotTold) {
    EXPECT_FALSE(alphaTells("<rect width='9' height='9' fill='url(#p)'/>"));
    EXPECT_FALSE(alphaTells("<path d='M0 0H9V9' marker-end='url(#k)' fill='none'/>"));
    EXPECT_FALSE(alphaTells("<g style='mix-blend-mode:multiply'>" + kWhite + "</g>"));
    EXPECT_FALSE(alphaTells("<g style='mix-blend-mode:multiply'><g opacity='.5'>" + kWhite + "</g></g>"));
    EXPECT_TRUE(alphaTells("<g opacity='.5'>" + kWhite + "</g>"));
    EXPECT_FALSE(alphaTells(kWhite, "style='mask-type:alpha'"));
    EXPECT_FALSE(alphaTells(kWhite, "color-interpolation='linearRGB'"));
    std::string many;
    for (int i = 0; i < 1001; ++i)
        many += "<rect width='1' height='1' fill='#fff'/>";
    EXPECT_FALSE(alphaTells(many));
}

} // namespace
