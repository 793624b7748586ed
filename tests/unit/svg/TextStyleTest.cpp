// The properties of text as CSS defines their values.
#include "easel/svg/style/TextStyle.h"
#include "easel/svg/style/Property.h"

#include <gtest/gtest.h>

#include <utility>

using namespace easel::svg;
namespace type = easel::type;

namespace {

constexpr LengthContext kLengths{100, 200, 20, 10};

// The style of an element that states this, in one with the style around.
TextStyle styleWith(Property property, std::string_view value, const TextStyle& around = {}) {
    StatedStyle stated;
    stated.set(property, value, Importance::Normal);
    return around.inherited(stated, kLengths);
}

int weightOf(std::string_view value, int around = 400) {
    TextStyle outer;
    outer.weight = around;
    return styleWith(Property::FontWeight, value, outer).weight;
}

TEST(TextStyle, WeightsAreNumbersWordsOrStepsFromTheWeightAround) {
    EXPECT_EQ(weightOf("normal", 900), 400);
    EXPECT_EQ(weightOf("bold"), 700);
    EXPECT_EQ(weightOf("350"), 350);
    EXPECT_EQ(weightOf("1"), 1);
    EXPECT_EQ(weightOf("1000"), 1000);
    for (const char* none : {"0", "1001", "7 7", "heavy", "600px"})
        EXPECT_EQ(weightOf(none, 333), 333) << none;
}

TEST(TextStyle, BolderAndLighterStepAsTheTableOfCssSays) {
    const int steps[][3] = {{50, 400, 50},   {100, 400, 100}, {349, 400, 100}, {350, 700, 100},
                            {549, 700, 100}, {550, 900, 400}, {749, 900, 400}, {750, 900, 700},
                            {900, 900, 700}, {950, 950, 700}};
    for (const auto& [around, bolder, lighter] : steps) {
        EXPECT_EQ(weightOf("bolder", around), bolder) << around;
        EXPECT_EQ(weightOf("lighter", around), lighter) << around;
    }
}

TEST(TextStyle, SlantsMayHaveAnAngle) {
    EXPECT_EQ(styleWith(Property::FontStyle, "italic").slant, type::Slant::Italic);
    EXPECT_EQ(styleWith(Property::FontStyle, "oblique 10deg").slant, type::Slant::Oblique);
    EXPECT_EQ(styleWith(Property::FontStyle, "slanted").slant, type::Slant::Upright);
}

TEST(TextStyle, WidthsAreWordsOrTheNearestShare) {
    using enum type::Stretch;
    const std::pair<const char*, type::Stretch> widths[] = {{"ultra-condensed", UltraCondensed},
                                                            {"semi-expanded", SemiExpanded},
                                                            {"50%", UltraCondensed},
                                                            {"64%", ExtraCondensed},
                                                            {"100%", Normal},
                                                            {"180%", UltraExpanded},
                                                            {"170%", ExtraExpanded},
                                                            {"wide", Normal},
                                                            {"x%", Normal}};
    for (const auto& [text, width] : widths)
        EXPECT_EQ(styleWith(Property::FontStretch, text).stretch, width) << text;
}

TEST(TextStyle, SpacingIsALengthAShareOfTheSizeOrNone) {
    EXPECT_EQ(styleWith(Property::LetterSpacing, "3").letterSpacing, 3);
    EXPECT_EQ(styleWith(Property::LetterSpacing, "0.5em").letterSpacing, 10);
    EXPECT_EQ(styleWith(Property::WordSpacing, "25%").wordSpacing, 5);
    TextStyle outer;
    outer.wordSpacing = 7;
    EXPECT_EQ(styleWith(Property::WordSpacing, "normal", outer).wordSpacing, 0);
    EXPECT_EQ(styleWith(Property::WordSpacing, "some%", outer).wordSpacing, 7);
    EXPECT_EQ(styleWith(Property::WordSpacing, "wide", outer).wordSpacing, 7);
}

TEST(TextStyle, WordsAreThoseOfTheirProperty) {
    EXPECT_EQ(styleWith(Property::TextAnchor, "MIDDLE").anchor, type::Anchor::Middle);
    EXPECT_EQ(styleWith(Property::TextAnchor, "end").anchor, type::Anchor::End);
    EXPECT_EQ(styleWith(Property::TextAnchor, "left").anchor, type::Anchor::Start);
    EXPECT_EQ(styleWith(Property::WhiteSpace, "pre-line").whiteSpace, WhiteSpace::Collapse);
    EXPECT_EQ(styleWith(Property::WhiteSpace, "break-spaces").whiteSpace, WhiteSpace::Preserve);
    EXPECT_EQ(styleWith(Property::WritingMode, "tb").direction, type::Direction::Vertical);
    EXPECT_EQ(styleWith(Property::WritingMode, "upward").direction, type::Direction::Horizontal);
    EXPECT_EQ(styleWith(Property::GlyphOrientation, "0deg").upright, type::Upright::All);
    EXPECT_EQ(styleWith(Property::TextOrientation, "sideways").upright, type::Upright::None);
    EXPECT_EQ(styleWith(Property::TextOrientation, "askew").upright, type::Upright::ByScript);
    EXPECT_TRUE(styleWith(Property::FontVariant, "small-caps").smallCaps);
    EXPECT_TRUE(styleWith(Property::FontVariant, "SMALL-CAPS").smallCaps);
    EXPECT_FALSE(styleWith(Property::FontVariant, "normal").smallCaps);
    EXPECT_TRUE(styleWith(Property::Direction, "rtl").rightToLeft);
    EXPECT_FALSE(styleWith(Property::Direction, "ltr").rightToLeft);
}

TEST(TextStyle, WhatIsHandedDownStaysUnlessAnotherIsStated) {
    TextStyle outer;
    outer.weight = 700;
    outer.anchor = type::Anchor::End;
    outer.smallCaps = true;
    for (const char* same : {"inherit", "unset", "INHERIT"}) {
        EXPECT_EQ(styleWith(Property::FontWeight, same, outer).weight, 700);
        EXPECT_EQ(styleWith(Property::TextAnchor, same, outer).anchor, type::Anchor::End);
        EXPECT_TRUE(styleWith(Property::FontVariant, same, outer).smallCaps);
    }
    EXPECT_EQ(styleWith(Property::FontWeight, "initial", outer).weight, 400);
    EXPECT_EQ(styleWith(Property::TextAnchor, "initial", outer).anchor, type::Anchor::Start);
    EXPECT_FALSE(styleWith(Property::FontVariant, "initial", outer).smallCaps);
    EXPECT_EQ(styleWith(Property::FontStyle, "italic", outer).weight, 700) << "nothing is said of it";
}

TEST(TextStyle, FamiliesLoseTheirQuotesAndOneThatIsNoNameSpoilsTheList) {
    EXPECT_EQ(familyNames("'DejaVu Sans', \"Noto Sans\" , serif"), "DejaVu Sans,Noto Sans,serif");
    EXPECT_EQ(familyNames("DejaVu Sans"), "DejaVu Sans");
    EXPECT_EQ(familyNames("-my-font, x"), "-my-font,x");
    EXPECT_EQ(familyNames("'', serif"), "serif");
    EXPECT_EQ(familyNames("\\33 D  L\\65tters, 'it\\27s'"), "3D Letters,it's") << "escapes, and one blank";
    for (const char* none : {"", "3D Letters, serif", "serif, 1", "a!b", "-3"})
        EXPECT_EQ(familyNames(none), "") << none;
    TextStyle outer;
    outer.families = "serif";
    EXPECT_EQ(styleWith(Property::FontFamily, "1st", outer).families, "serif");
    EXPECT_EQ(styleWith(Property::FontFamily, "mono", outer).families, "mono");
}

TEST(TextStyle, PlacesOnAxesAreNumbersBehindNamesInQuotes) {
    EXPECT_EQ(parseVariations("\"wght\" 650"), "wght=650");
    EXPECT_EQ(parseVariations(" 'wght' -6.5e1 , \"GRAD\"80 "), "wght=-6.5e1,GRAD=80");
    EXPECT_EQ(parseVariations("Normal"), "");
    for (const char* none : {"", "wght 650", "'wght'", "'wght' x", "'wgh' 3", "'weight' 3", "'wg=t' 3",
                             "'wght' 3,", "'wght' 3 'wdth' 4", "'wght' 3 normal"})
        EXPECT_EQ(parseVariations(none), std::nullopt) << none;
    TextStyle outer;
    outer.variations = "wght=3";
    EXPECT_EQ(styleWith(Property::FontVariationSettings, "x", outer).variations, "wght=3");
    EXPECT_EQ(styleWith(Property::FontVariationSettings, "normal", outer).variations, "");
    EXPECT_EQ(styleWith(Property::Font, "9px serif", outer).variations, "");
    EXPECT_EQ(styleWith(Property::FontVariationSettings, "'wdth' 4", outer).variations, "wdth=4");
}

TEST(TextStyle, BaselinesLieAtTheHeightsOfTheFont) {
    type::FontMetrics metrics;
    metrics.ascent = 0.8;
    metrics.descent = -0.2;
    metrics.xHeight = 0.5;
    metrics.ideographic = -0.12;
    metrics.hanging = 0.7;
    metrics.mathematical = 0.4;
    const std::pair<const char*, double> heights[] = {
        {"alphabetic", 0},    {"ideographic", -0.12}, {"hanging", 0.7},  {"mathematical", 0.4},
        {"middle", 0.25},     {"central", 0.3},       {"text-top", 0.8}, {"top", 0.8},
        {"before-edge", 0.8}, {"bottom", -0.2},       {"center", 0.3}};
    for (const auto& [word, height] : heights) {
        const auto baseline = parseBaseline(word);
        ASSERT_TRUE(baseline) << word;
        EXPECT_NEAR(heightOf(*baseline, metrics), height, 1e-12) << word;
    }
    EXPECT_FALSE(parseBaseline("auto"));
    TextStyle outer;
    outer.baseline = Baseline::Hanging;
    EXPECT_EQ(styleWith(Property::DominantBaseline, "auto", outer).baseline, Baseline::Alphabetic);
}

} // namespace
