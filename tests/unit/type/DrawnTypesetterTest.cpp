// Text in fonts that a drawing brings along.
#include "BoxTypesetter.h"

#include "easel/type/DrawnTypesetter.h"

#include <gtest/gtest.h>

using namespace easel::type;
using easel::drawing::rectanglePath;

namespace {

// A glyph of that width.
DrawnGlyph glyphOf(const std::u32string& characters, double width) {
    return {characters, rectanglePath({0, -1, width, 0}), width};
}

DrawnFont fontOf(const std::string& family, int weight = 400) {
    DrawnFont font;
    font.font.families = family;
    font.font.weight = weight;
    return font;
}

class DrawnFonts : public testing::Test {
  protected:
    std::vector<Cluster> shape(const std::string& text, const Font& font, bool rightToLeft = false) {
        DrawnTypesetter typesetter(fonts, others);
        Line line;
        line.text = text;
        line.runs.push_back({text.size(), std::make_shared<const Font>(font)});
        line.rightToLeft = rightToLeft;
        return typesetter.shape(line);
    }
    std::vector<double> advances(const std::string& text, const Font& font) {
        std::vector<double> widths;
        for (const Cluster& cluster : shape(text, font))
            widths.push_back(cluster.advance);
        return widths;
    }

    BoxTypesetter others;
    std::vector<DrawnFont> fonts;
};

using Widths = std::vector<double>;

TEST_F(DrawnFonts, AreForTheirFamilyAlone) {
    fonts.push_back(fontOf("Own"));
    fonts.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Own"}), Widths{2});
    EXPECT_EQ(advances("a", {"oWN"}), Widths{2});
    EXPECT_EQ(advances("a", {"Other"}), Widths{BoxTypesetter::kWidth});
}

TEST_F(DrawnFonts, AFamilyOfTheSystemThatIsNamedBeforeGoesFirst) {
    fonts.push_back(fontOf("Own"));
    fonts.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Boxes,Own"}), Widths{BoxTypesetter::kWidth});
    EXPECT_EQ(advances("a", {"Nowhere,Own"}), Widths{2});
}

TEST_F(DrawnFonts, TheFirstGlyphThatFitsIsTaken) {
    fonts.push_back(fontOf("Own"));
    fonts.back().add(glyphOf(U"ffi", 3));
    fonts.back().add(glyphOf(U"f", 1));
    fonts.back().add(glyphOf(U"ff", 2));
    EXPECT_EQ(advances("fffi", {"Own"}), (Widths{1, 3}));
    EXPECT_EQ(shape("fffi", {"Own"})[1].begin, 1U);
    EXPECT_EQ(shape("fffi", {"Own"})[1].end, 4U);
}

TEST_F(DrawnFonts, WhatOneLacksIsForTheNextFamilyOrASign) {
    fonts.push_back(fontOf("Own"));
    fonts.back().add(glyphOf(U"a", 2));
    fonts.back().add(glyphOf(U"", 7));
    EXPECT_EQ(advances("ab", {"Own"}), (Widths{2, 7}));
    const auto clusters = shape("a\u00e4b", {"Own,Boxes"});
    ASSERT_EQ(clusters.size(), 3U);
    EXPECT_EQ(clusters[1].advance, BoxTypesetter::kWidth);
    EXPECT_EQ(clusters[1].begin, 1U);
    EXPECT_EQ(clusters[2].begin, 3U);
    EXPECT_EQ(clusters[2].end, 4U);
}

TEST_F(DrawnFonts, KerningMovesTheSecondOfAPair) {
    fonts.push_back(fontOf("Own"));
    const std::size_t a = fonts.back().add(glyphOf(U"A", 2));
    const std::size_t v = fonts.back().add(glyphOf(U"V", 2));
    fonts.back().addKerning({a}, {v}, 0.25);
    EXPECT_EQ(advances("AVA", {"Own"}), (Widths{1.75, 2, 2}));
}

TEST_F(DrawnFonts, TheNearestWeightIsTaken) {
    fonts.push_back(fontOf("Own", 400));
    fonts.back().add(glyphOf(U"a", 1));
    fonts.push_back(fontOf("Own", 700));
    fonts.back().add(glyphOf(U"a", 2));
    EXPECT_EQ(advances("a", {"Own", 300}), Widths{1});
    EXPECT_EQ(advances("a", {"Own", 600}), Widths{2});
}

TEST_F(DrawnFonts, FromTheRightLettersComeInTheOtherOrder) {
    fonts.push_back(fontOf("Own"));
    fonts.back().add(glyphOf(U"a", 1));
    fonts.back().add(glyphOf(U"b", 2));
    const auto clusters = shape("ab", {"Own"}, true);
    EXPECT_EQ(clusters[0].advance, 2);
    EXPECT_EQ(clusters[1].advance, 1);
}

TEST_F(DrawnFonts, HaveMeasuresOfTheirOwn) {
    fonts.push_back(fontOf("Own"));
    fonts.back().metrics.ascent = 3;
    DrawnTypesetter typesetter(fonts, others);
    EXPECT_EQ(typesetter.metrics({"Own"}).ascent, 3);
    EXPECT_EQ(typesetter.metrics({"Boxes"}).ascent, 1);
}

} // namespace
