// Masks of luminance where only masks of alpha are known: as outlines where they can be, else as a picture.
#include "OtherPictures.h"
#include "PictureDifference.h"

#include "easel/export/CairoPainter.h"
#include "easel/export/MaskAlpha.h"
#include "easel/paint/RenderDrawing.h"
#include "easel/svg/Document.h"

#include <cairo.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace easel;

drawing::Drawing masked(const std::string& mask) {
    auto read =
        svg::readBytes("<svg xmlns='http://www.w3.org/2000/svg' width='60' height='60'><linearGradient "
                       "id='g'><stop stop-color='#fff'/><stop offset='1' stop-opacity='.2'/>"
                       "</linearGradient><mask id='m'>" +
                           mask + "</mask><rect width='60' height='60' fill='#d40' mask='url(#m)'/></svg>",
                       "test.svg");
    if (read)
        return std::move(*read);
    ADD_FAILURE() << read.error().message();
    return drawing::Drawing::create(1, 1);
}

bool alphaTells(const std::string& mask) {
    return exports::alphaTellsLuminance(*masked(mask).object(0)->group->mask);
}

const std::string kWhite = "<rect width='40' height='40' fill='#fff'/>";
const std::string kBlack = "<rect x='20' y='20' width='20' height='20'/>";
const std::string kGray = "<rect x='30' y='30' width='20' height='20' fill='#777'/>";

TEST(MaskAlpha, TellsLuminanceUnlessSomethingDarkerIsPaintedOver) {
    EXPECT_TRUE(alphaTells(kWhite + "<rect x='45' width='9' height='9' fill='#777'/>"));
    EXPECT_TRUE(alphaTells(kBlack + kGray));
    EXPECT_TRUE(alphaTells(kGray + kWhite));
    EXPECT_FALSE(alphaTells(kWhite + kBlack));
    EXPECT_FALSE(alphaTells(kWhite + kGray));
    // Luminance and opacity that change together are no ramp of alpha.
    EXPECT_FALSE(alphaTells("<rect width='9' height='9' fill='url(#g)'/>"));
}

TEST(MaskAlpha, TellsLuminanceOfStrokesAndOfRampsOfOneOpacity) {
    const std::string ramps = "<linearGradient id='w'><stop stop-color='#fff'/><stop offset='1' "
                              "stop-color='#fff'/></linearGradient>"
                              "<linearGradient id='b'><stop stop-color='#fff'/><stop offset='1' "
                              "stop-color='#999'/></linearGradient>";
    const auto stroke = [](const std::string& color) {
        return "<path d='M 5 5 L 30 30' fill='none' stroke-width='4' stroke='" + color + "'/>";
    };
    EXPECT_TRUE(alphaTells(stroke("#777")));
    EXPECT_TRUE(alphaTells(kWhite + stroke("#fff")));
    EXPECT_FALSE(alphaTells(kWhite + stroke("#777")));
    EXPECT_TRUE(alphaTells(ramps + stroke("url(#b)")));
    EXPECT_TRUE(alphaTells(kWhite + ramps + stroke("url(#w)")));
    EXPECT_FALSE(alphaTells(kWhite + ramps + stroke("url(#b)")));
    EXPECT_TRUE(alphaTells(ramps + "<rect width='9' height='9' fill='url(#b)'/>"));
}

TEST(MaskAlpha, DoesNotTellLuminanceOfWhatHasManyColorsOrIsBlended) {
    const std::string pattern = "<pattern id='p' width='4' height='4' patternUnits='userSpaceOnUse'>"
                                "<rect width='2' height='4' fill='#fff'/></pattern>";
    EXPECT_FALSE(alphaTells(pattern + "<rect width='9' height='9' fill='url(#p)'/>"));
    EXPECT_FALSE(alphaTells(pattern + "<path d='M 5 5 H 30' stroke='url(#p)'/>"));
    EXPECT_FALSE(alphaTells("<marker id='e' markerWidth='3' markerHeight='3'><rect width='3' height='3'/>"
                            "</marker><path d='M 5 5 H 30' stroke='#fff' marker-end='url(#e)'/>"));
    EXPECT_FALSE(alphaTells("<g style='mix-blend-mode:multiply'>" + kWhite + "</g>"));
    EXPECT_TRUE(alphaTells("<g opacity='.5'>" + kWhite + "</g>"));
    EXPECT_TRUE(alphaTells("<rect width='9' height='9' fill='#fff' fill-opacity='0'/>"));
}

TEST(MaskAlpha, IsNotAskedForOfMasksOfAlphaOrOfVeryManyObjects) {
    auto mask = *masked(kWhite).object(0)->group->mask;
    EXPECT_TRUE(exports::alphaTellsLuminance(mask));
    mask.objects.assign(1000, mask.objects.front());
    EXPECT_TRUE(exports::alphaTellsLuminance(mask));
    mask.objects.push_back(mask.objects.front());
    EXPECT_FALSE(exports::alphaTellsLuminance(mask));
    mask.objects.resize(1);
    mask.measure = drawing::MaskMeasure::Alpha;
    EXPECT_FALSE(exports::alphaTellsLuminance(mask));
}

TEST(MaskAlpha, WhatItCannotTellIsMaskedByAPictureThatLooksTheSame) {
    const drawing::Drawing drawing =
        masked(kWhite + kBlack + kGray + "<rect y='44' width='30' height='10' fill='url(#g)'/>");
    paint::Surface ours(60, 60);
    paint::renderDrawing(drawing, ours.view(), {});
    const paint::Surface cairos =
        paintedByCairo(60, 60, [&](cairo_t* cairo) { exports::CairoPainter(cairo).paint(drawing); });
    const PictureDifference found = compare(ours, cairos);
    EXPECT_LE(std::max(found.mostInside, found.mostAtEdges), 3)
        << found.text() << "; " << writePictures("mask-picture", ours, cairos);
    EXPECT_EQ(cairos.row(10)[10], 0xFFDD4400U);
    EXPECT_EQ(cairos.row(25)[25], 0U);
}

} // namespace
