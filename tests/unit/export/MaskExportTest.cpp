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
