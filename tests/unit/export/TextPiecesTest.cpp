// Text for other programs to set: together what stands as its font sets it, apart what does not.
#include "tests/unit/type/BoxTypesetter.h"

#include "easel/export/TextPieces.h"

#include <gtest/gtest.h>

using namespace easel;

namespace {

type::SetText setBy(BoxTypesetter& typesetter, const type::Text& text) {
    return type::layOut(text, typesetter, [](std::size_t) {}).outlines.front().text;
}

std::vector<exports::TextPiece> pieces(const type::Text& text) {
    BoxTypesetter typesetter;
    return exports::piecesOf(setBy(typesetter, text), typesetter).value();
}

// Its first letter looks as no other does.
class InitialTypesetter : public BoxTypesetter {
  public:
    std::vector<type::Cluster> shape(const type::Line& line) override {
        std::vector<type::Cluster> clusters = BoxTypesetter::shape(line);
        clusters.front().glyphs.front().number += 1000;
        return clusters;
    }
};

TEST(TextPieces, WhatStandsSideBySideIsOne) {
    type::Text text = textOf("side by side");
    text.characters[0].x = 7;
    const auto found = pieces(text);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].text, "side by side");
    EXPECT_EQ(found[0].begin, (drawing::Point{7, 0}));
    EXPECT_EQ(found[0].size, 20);
    EXPECT_EQ(found[0].frame, drawing::Affine());
    // What shows is the font that was found, whatever was asked for.
    EXPECT_TRUE(found[0].font.families.starts_with("Boxes,"));
}

TEST(TextPieces, WhatIsMovedBeginsAnother) {
    type::Text text = textOf("moved");
    text.characters[2].dx = 5;
    const auto found = pieces(text);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].text, "mo");
    EXPECT_EQ(found[1].text, "ved");
    EXPECT_EQ(found[1].begin, (drawing::Point{25, 0}));
}

TEST(TextPieces, SpacedLettersAreEachInTheirPlace) {
    type::Text text = textOf("abc");
    text.styles[0].letterSpacing = 4;
    const auto found = pieces(text);
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[2].begin, (drawing::Point{28, 0}));
}

TEST(TextPieces, TurnedLettersHaveAFrame) {
    type::Text text = textOf("ab");
    text.characters[1].rotate = 90;
    const auto found = pieces(text);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1].frame, drawing::Affine::rotation(90));
    EXPECT_EQ(found[1].size, 20);
    EXPECT_EQ(found[1].frame(found[1].begin), (drawing::Point{10, 0}));
}

TEST(TextPieces, StretchedLettersKeepTheirHeight) {
    type::Text text = textOf("abcd");
    text.stretched.push_back({0, 4, 80, true});
    const auto found = pieces(text);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].size, 20);
    EXPECT_EQ(found[0].frame, drawing::Affine::scaling(2, 1));
}

TEST(TextPieces, LettersThatLookOtherwiseAloneStayTogetherOrAreNone) {
    InitialTypesetter typesetter;
    EXPECT_EQ(exports::piecesOf(setBy(typesetter, textOf("abc")), typesetter).value().size(), 1U);
    type::Text moved = textOf("abc");
    moved.characters[1].dx = 5;
    EXPECT_FALSE(exports::piecesOf(setBy(typesetter, moved), typesetter));
}

TEST(TextPieces, FacesThatOthersDoNotMakeAreNone) {
    for (const bool bold : {false, true}) {
        BoxTypesetter typesetter;
        type::Face face = *typesetter.face;
        if (bold)
            face.asInFile = false;
        else
            face.shape = drawing::Affine::scaling(0.8, 0.8);
        typesetter.face = std::make_shared<const type::Face>(face);
        EXPECT_FALSE(exports::piecesOf(setBy(typesetter, textOf("abc")), typesetter));
    }
}

} // namespace
