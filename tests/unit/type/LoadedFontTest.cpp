// Fonts that are read from bytes.
#include "easel/type/LoadedFont.h"
#include "tests/support/SmallFont.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using namespace easel::type;
using easel::drawing::Box;

namespace {

std::shared_ptr<LoadedFont> loaded(const std::string& bytes) {
    Typesetter* const typesetter = easel::type::typesetter();
    EXPECT_NE(typesetter, nullptr);
    return typesetter ? typesetter->load(std::string(bytes)) : nullptr;
}

void expectBox(const Box& box, double width, double height) {
    EXPECT_NEAR(box.left, 0, 1e-6);
    EXPECT_NEAR(box.top, -height, 1e-3);
    EXPECT_NEAR(box.right, width, 1e-3);
    EXPECT_NEAR(box.bottom, 0, 1e-6);
}

TEST(LoadedFont, LettersAreAsTheFontHasThem) {
    for (const std::string& bytes : {tests::smallFont(), tests::smallWoff(), tests::smallWoff2()}) {
        const auto font = loaded(bytes);
        ASSERT_TRUE(font);
        EXPECT_TRUE(font->has(U'B'));
        EXPECT_FALSE(font->has(U'C'));
        const auto clusters = font->shape("BA?", {});
        ASSERT_EQ(clusters.size(), 3U);
        expectBox(clusters[0].outline.bounds(), 1, 0.5);
        expectBox(clusters[1].outline.bounds(), 0.5, 0.5);
        expectBox(clusters[2].outline.bounds(), 0.1, 1);
        EXPECT_NEAR(clusters[0].advance, 1.2, 1e-3);
        EXPECT_NEAR(clusters[1].advance, 0.6, 1e-3);
        EXPECT_EQ(clusters[1].begin, 1U);
        EXPECT_EQ(clusters[1].end, 2U);
        // No file that others could find it in.
        ASSERT_TRUE(clusters[0].face);
        EXPECT_EQ(clusters[0].face->file, "");
        EXPECT_NEAR(font->metrics().ascent, 0.8, 1e-3);
        EXPECT_NEAR(font->metrics().descent, -0.2, 1e-3);
    }
}

TEST(LoadedFont, LettersOfMixedDirectionsComeFromLeftToRight) {
    const auto font = loaded(tests::smallFont());
    ASSERT_TRUE(font);
    const auto begins = [&](const std::string& text, bool rightToLeft) {
        Look look;
        look.rightToLeft = rightToLeft;
        std::vector<std::size_t> result;
        for (const Cluster& cluster : font->shape(text, look))
            result.push_back(cluster.begin);
        return result;
    };
    // Two Hebrew letters of two bytes each, a blank, a Latin letter or numbers.
    EXPECT_EQ(begins("\u05d0\u05d1 A", false), (std::vector<std::size_t>{2, 0, 4, 5}));
    EXPECT_EQ(begins("\u05d0\u05d1 A", true), (std::vector<std::size_t>{5, 4, 2, 0}));
    EXPECT_EQ(begins("\u05d0 12 \u05d1", true), (std::vector<std::size_t>{6, 5, 3, 4, 2, 0}));
    EXPECT_TRUE(font->shape("", {}).empty());
}

TEST(LoadedFont, LettersAreMadeBoldAndLeanWhereTheFontHasNoSuch) {
    const auto font = loaded(tests::smallFont());
    ASSERT_TRUE(font);
    Look bold, leaning;
    bold.embolden = true;
    leaning.slant = true;
    EXPECT_NEAR(font->shape("A", bold)[0].outline.bounds().width(), 0.5 + 1.0 / 24, 1e-3);
    // A fifth of its height to the right at the top.
    expectBox(font->shape("A", leaning)[0].outline.bounds(), 0.6, 0.5);
    EXPECT_NEAR(font->shape("A", leaning)[0].outline.points()[0].x, 0, 1e-6);
    expectBox(font->shape("A", {})[0].outline.bounds(), 0.5, 0.5);
}

TEST(LoadedFont, LettersOfSeveralWeightsHaveTheOneThatIsAskedFor) {
    const auto font = loaded(tests::smallVariableFont());
    ASSERT_TRUE(font);
    EXPECT_EQ(font->weights(), (Weights{100, 900}));
    const auto expectWidth = [&](int weight, double width, const std::string& variations = "") {
        Look look;
        look.weight = weight;
        look.variations = variations;
        const auto clusters = font->shape("A", look);
        ASSERT_EQ(clusters.size(), 1U);
        expectBox(clusters[0].outline.bounds(), width, 0.5);
        // Its own, and what is added behind it.
        EXPECT_NEAR(clusters[0].advance, width + 0.1 + (width - 0.5) / 4, 1e-3);
    };
    expectWidth(400, 0.5);
    expectWidth(900, 0.9);
    expectWidth(650, 0.7);
    expectWidth(1000, 0.9);
    expectWidth(100, 0.5);
    // What is said of the axis itself counts more, and the last that is said.
    expectWidth(400, 0.9, "wght=900");
    expectWidth(900, 0.7, "wdth=50,wght=100,wght=650");
    expectWidth(400, 0.9, ",wght=1e9");
    expectWidth(900, 0.9, "wght,wght=,=,wgh=3");
    expectWidth(400, 0.5);
    EXPECT_FALSE(loaded(tests::smallFont())->weights());
}

TEST(LoadedFont, WhatIsNoFontOrTooLargeWhenUnpackedIsRefused) {
    const std::string woff = tests::smallWoff();
    std::string huge = woff;
    huge.replace(16, 4, std::string("\x7F\0\0\0", 4));
    for (const std::string& bytes :
         {std::string(), std::string("wOFF"), std::string("wOF2"), std::string("\0\1\0\0", 4), huge,
          std::string("%!PS-AdobeFont-1.0: Small\n"), "wOF2" + std::string(2 << 20, 'x'),
          std::string("<svg/>")})
        EXPECT_EQ(loaded(bytes), nullptr);
}

TEST(LoadedFont, ThatIsCutOrDamagedIsRefusedOrStillSetsText) {
    for (const std::string& whole :
         {tests::smallFont(), tests::smallWoff(), tests::smallWoff2(), tests::smallVariableFont()})
        for (std::size_t i = 0; i < whole.size(); ++i) {
            std::string changed = whole;
            changed[i] = static_cast<char>(changed[i] ^ 0xFF);
            for (const std::string& bytes : {whole.substr(0, i), changed})
                if (const auto font = loaded(bytes)) {
                    const auto clusters = font->shape("AB \u05d0", {});
                    EXPECT_LE(clusters.size(), 4U);
                    font->metrics();
                }
        }
}

} // namespace
