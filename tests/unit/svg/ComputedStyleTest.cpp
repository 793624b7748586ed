// The values of style properties, and how they are handed down.
#include "easel/svg/style/ComputedStyle.h"
#include "easel/svg/style/Property.h"

#include <gtest/gtest.h>

#include <utility>

using namespace easel::svg;
using easel::drawing::FillRule;
using easel::drawing::LineCap;
using easel::drawing::LineJoin;
using easel::drawing::PaintStep;
using easel::drawing::Rgb16;

namespace {

// The style of an element that states this, in one with the style around.
ComputedStyle styledWith(Property property, std::string_view value, const ComputedStyle& around = {}) {
    StatedStyle stated;
    stated.set(property, value, Importance::Normal);
    LengthContext lengths{100, 200, around.fontSize, 10};
    return around.inherited(stated, lengths);
}

std::vector<double> dashesOf(std::string_view text) {
    const auto dashes = styledWith(Property::StrokeDasharray, text).dashes;
    return dashes ? *dashes : std::vector<double>();
}

TEST(ComputedStyle, WordsAreReadInAnyCaseAndOthersChangeNothing) {
    EXPECT_EQ(styledWith(Property::FillRule, "EvenOdd").fillRule, FillRule::EvenOdd);
    EXPECT_EQ(styledWith(Property::ClipRule, "evenodd").clipRule, FillRule::EvenOdd);
    ComputedStyle outer;
    outer.fillRule = FillRule::EvenOdd;
    outer.join = LineJoin::Round;
    outer.cap = LineCap::Round;
    outer.first = PaintStep::Stroke;
    EXPECT_EQ(styledWith(Property::FillRule, "nonzero", outer).fillRule, FillRule::NonZero);
    EXPECT_EQ(styledWith(Property::FillRule, "winding", outer).fillRule, FillRule::EvenOdd);
    for (const char* miter : {"miter", "miter-clip", "arcs"})
        EXPECT_EQ(styledWith(Property::StrokeLinejoin, miter, outer).join, LineJoin::Miter) << miter;
    EXPECT_EQ(styledWith(Property::StrokeLinejoin, "bevel", outer).join, LineJoin::Bevel);
    EXPECT_EQ(styledWith(Property::StrokeLinejoin, "round").join, LineJoin::Round);
    EXPECT_EQ(styledWith(Property::StrokeLinejoin, "sharp", outer).join, LineJoin::Round);
    EXPECT_EQ(styledWith(Property::StrokeLinecap, "square", outer).cap, LineCap::Square);
    EXPECT_EQ(styledWith(Property::StrokeLinecap, "butt", outer).cap, LineCap::Butt);
    EXPECT_EQ(styledWith(Property::StrokeLinecap, "round").cap, LineCap::Round);
    EXPECT_EQ(styledWith(Property::StrokeLinecap, "none", outer).cap, LineCap::Round);
    for (const char* fill : {"normal", "fill", "markers", "markers fill stroke", "fill stroke"})
        EXPECT_EQ(styledWith(Property::PaintOrder, fill, outer).first, PaintStep::Fill) << fill;
    EXPECT_EQ(styledWith(Property::PaintOrder, "markers stroke").first, PaintStep::Stroke);
    EXPECT_EQ(styledWith(Property::PaintOrder, "first", outer).first, PaintStep::Stroke);
}

TEST(ComputedStyle, InheritedValuesAreThoseAroundAndInitialOnesThoseOfNoStyle) {
    ComputedStyle outer;
    outer.strokeWidth = 7;
    outer.fillRule = FillRule::EvenOdd;
    outer.fontSize = 40;
    for (const char* word : {"inherit", "unset", ""}) {
        EXPECT_EQ(styledWith(Property::StrokeWidth, word, outer).strokeWidth, 7);
        EXPECT_EQ(styledWith(Property::FillRule, word, outer).fillRule, FillRule::EvenOdd);
        EXPECT_EQ(styledWith(Property::FontSize, word, outer).fontSize, 40);
    }
    EXPECT_EQ(styledWith(Property::StrokeWidth, "initial", outer).strokeWidth, 1);
    EXPECT_EQ(styledWith(Property::FillRule, "initial", outer).fillRule, FillRule::NonZero);
    EXPECT_EQ(styledWith(Property::FontSize, "initial", outer).fontSize, 16);
}

TEST(ComputedStyle, DashesAreLengthsRepeatedToAnEvenCount) {
    EXPECT_EQ(dashesOf("1, 2 3,4"), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(dashesOf("1em 5"), (std::vector<double>{16, 5}));
    EXPECT_EQ(dashesOf("1 2 3"), (std::vector<double>{1, 2, 3, 1, 2, 3}));
    for (const char* solid : {"none", "0 0", "1e308 1e308", "1 -2", "1 long", ""})
        EXPECT_TRUE(dashesOf(solid).empty()) << solid;
    ComputedStyle outer;
    outer.dashes = std::make_shared<const std::vector<double>>(2, 9.0);
    EXPECT_FALSE(styledWith(Property::StrokeDasharray, "none", outer).dashes);
    EXPECT_TRUE(styledWith(Property::StrokeDasharray, "1 -2", outer).dashes) << "a mistake states nothing";
}

TEST(ComputedStyle, FontSizesAreWordsStepsSharesOrLengths) {
    const std::pair<const char*, double> sizes[] = {
        {"xx-small", 9}, {"x-small", 10},  {"small", 13},  {"medium", 16},  {"large", 18},
        {"x-large", 24}, {"xx-large", 32}, {"larger", 36}, {"smaller", 25}, {"50%", 15},
        {"2em", 60},     {"12px", 12},     {"some%", 30},  {"big", 30},     {"%", 30}};
    ComputedStyle outer;
    outer.fontSize = 30;
    for (const auto& [text, size] : sizes)
        EXPECT_NEAR(styledWith(Property::FontSize, text, outer).fontSize, size, 1e-9) << text;
}

TEST(ComputedStyle, PaintsAreColorsServersOrThoseOfTheContext) {
    using Kind = PaintSpec::Kind;
    EXPECT_EQ(parsePaint("none")->kind, Kind::None);
    EXPECT_EQ(parsePaint("currentColor")->kind, Kind::CurrentColor);
    EXPECT_EQ(parsePaint("context-fill")->kind, Kind::ContextFill);
    EXPECT_EQ(parsePaint("context-stroke")->kind, Kind::ContextStroke);
    EXPECT_EQ(parsePaint("#f00")->kind, Kind::Color);
    EXPECT_EQ(parsePaint("#f00")->color.color, (Rgb16{65535, 0, 0}));
    EXPECT_FALSE(parsePaint("no color"));
    const auto server = parsePaint("url(#g)").value();
    EXPECT_EQ(server.kind, Kind::Server);
    EXPECT_EQ(server.serverId, "g");
    EXPECT_EQ(server.fallback, Kind::None);
    EXPECT_EQ(parsePaint("url(#g) lime")->fallback, Kind::Color);
    EXPECT_EQ(parsePaint("url(#g) lime")->color.color, (Rgb16{0, 65535, 0}));
    EXPECT_EQ(parsePaint("url(#g) currentColor")->fallback, Kind::CurrentColor);
    for (const char* without : {"url(#g", "url(#g) url(#h)", "url(#g) nothing known", "url(#g) none"})
        EXPECT_EQ(parsePaint(without)->fallback, Kind::None) << without;
}

TEST(ComputedStyle, OpacitiesAreCutToWhatThereIs) {
    EXPECT_EQ(parseOpacity("0.5", 1), 0.5);
    EXPECT_EQ(parseOpacity("25%", 1), 0.25);
    EXPECT_EQ(parseOpacity("-3", 1), 0);
    EXPECT_EQ(parseOpacity("3", 1), 1);
    EXPECT_EQ(parseOpacity("some", 0.75), 0.75);
}

TEST(ComputedStyle, MiterLimitsBelowOneAreMistakes) {
    EXPECT_EQ(styledWith(Property::StrokeMiterlimit, "1").miterLimit, 1);
    EXPECT_EQ(styledWith(Property::StrokeMiterlimit, "0.9").miterLimit, 4);
    EXPECT_EQ(styledWith(Property::StrokeMiterlimit, "sharp").miterLimit, 4);
}

TEST(ComputedStyle, MistakesInAttributesChangeNothing) {
    ComputedStyle outer;
    outer.fillOpacity = 0.25;
    outer.visible = false;
    outer.smoothPictures = false;
    outer.strokeWidth = 3;
    EXPECT_EQ(styledWith(Property::FillOpacity, "some", outer).fillOpacity, 0.25);
    EXPECT_FALSE(styledWith(Property::Visibility, "perhaps", outer).visible);
    EXPECT_FALSE(styledWith(Property::ImageRendering, "nicely", outer).smoothPictures);
    EXPECT_EQ(styledWith(Property::StrokeWidth, "-1", outer).strokeWidth, 3);
}

TEST(ComputedStyle, WhatIsHiddenOrCollapsedIsNotVisible) {
    EXPECT_FALSE(styledWith(Property::Visibility, "hidden").visible);
    EXPECT_FALSE(styledWith(Property::Visibility, "collapse").visible);
    EXPECT_TRUE(styledWith(Property::Visibility, "visible").visible);
    for (const char* rough : {"optimizeSpeed", "pixelated", "crisp-edges"})
        EXPECT_FALSE(styledWith(Property::ImageRendering, rough).smoothPictures) << rough;
    EXPECT_TRUE(styledWith(Property::ImageRendering, "auto").smoothPictures);
}

TEST(ComputedStyle, TheShorthandOfMarkersIsTheWeakerStatement) {
    ComputedStyle outer;
    outer.markers = {"a", "b", "c"};
    StatedStyle stated;
    stated.set(Property::Marker, "url(#all)", Importance::Normal);
    stated.set(Property::MarkerMid, "inherit", Importance::Normal);
    stated.set(Property::MarkerEnd, "none", Importance::Normal);
    LengthContext lengths;
    EXPECT_EQ(outer.inherited(stated, lengths).markers, (std::array<std::string_view, 3>{"all", "b", ""}));
    EXPECT_EQ(styledWith(Property::MarkerStart, "url(#x)", outer).markers,
              (std::array<std::string_view, 3>{"x", "b", "c"}));
}

} // namespace
