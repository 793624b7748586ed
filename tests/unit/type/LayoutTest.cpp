#include "tests/unit/type/BoxTypesetter.h"

#include <gtest/gtest.h>

using namespace easel::type;
using easel::drawing::Box;
using easel::drawing::Point;

namespace {

void expectBox(const Box& box, double left, double top, double right, double bottom) {
    EXPECT_NEAR(box.left, left, 1e-9);
    EXPECT_NEAR(box.top, top, 1e-9);
    EXPECT_NEAR(box.right, right, 1e-9);
    EXPECT_NEAR(box.bottom, bottom, 1e-9);
}

std::vector<double> leftSides(const Text& text) {
    std::vector<double> sides;
    for (const Box& box : boxesOf(text))
        sides.push_back(box.left);
    return sides;
}

} // namespace

TEST(TextLayout, LettersStandSideBySideOnTheBaseline) {
    Text text = textOf("ab");
    text.characters[0].x = 100;
    text.characters[0].y = 50;
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 2u);
    expectBox(boxes[0], 100, 30, 110, 50);
    expectBox(boxes[1], 110, 30, 120, 50);
}

TEST(TextLayout, ChunksAreAnchoredEachByItself) {
    Text text = textOf("abcdef");
    for (Character& character : text.characters)
        character.anchor = Anchor::Middle;
    text.characters[0].x = 100;
    text.characters[4].x = 100; // two letters from here on
    EXPECT_EQ(leftSides(text), (std::vector<double>{80, 90, 100, 110, 90, 100}));
    for (Character& character : text.characters)
        character.anchor = Anchor::End;
    EXPECT_EQ(leftSides(text), (std::vector<double>{60, 70, 80, 90, 80, 90}));
}

TEST(TextLayout, TextFromTheRightEndsWhereItStarts) {
    Text text = textOf("ab");
    text.rightToLeft = true;
    text.characters[0].x = 100;
    EXPECT_EQ(leftSides(text), (std::vector<double>{90, 80})); // the first letter is on the right
    text.characters[0].anchor = Anchor::End;
    EXPECT_EQ(leftSides(text), (std::vector<double>{110, 100}));
}

TEST(TextLayout, MovesAddUpAndGoOnInTheNextChunk) {
    Text text = textOf("abcd");
    text.characters[1].dx = 3;
    text.characters[2].dx = 4;
    text.characters[2].dy = 5;
    text.characters[3].x = 200;
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 4u);
    expectBox(boxes[1], 13, -20, 23, 0);
    expectBox(boxes[2], 27, -15, 37, 5);
    expectBox(boxes[3], 200, -15, 210, 5); // its height is not its own
}

TEST(TextLayout, AMoveOfTheFirstLetterMovesTheAnchor) {
    Text text = textOf("ab");
    text.characters[0].dx = 7;
    text.characters[0].anchor = Anchor::Middle;
    EXPECT_EQ(leftSides(text), (std::vector<double>{-3, 7}));
}

TEST(TextLayout, LettersTurnAboutTheirBeginningOnTheBaseline) {
    Text text = textOf("a");
    text.characters[0].x = 100;
    text.characters[0].y = 50;
    text.characters[0].rotate = 90;
    // What was up is to the right now, and what was to the right is down.
    expectBox(boxesOf(text).at(0), 100, 50, 120, 60);
}

TEST(TextLayout, SpacingIsBehindLettersAndBlanksHaveMore) {
    Text text = textOf("a bc");
    text.styles[0].letterSpacing = 2;
    text.styles[0].wordSpacing = 5;
    EXPECT_EQ(leftSides(text), (std::vector<double>{0, 12, 29, 41}));
}

TEST(TextLayout, AWantedLengthWidensTheGapsOnly) {
    Text text = textOf("abcd");
    text.stretched.push_back({0, 3, 50, false});
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 4u);
    EXPECT_NEAR(boxes[2].right - boxes[0].left, 50, 1e-9);
    EXPECT_NEAR(boxes[1].width(), 10, 1e-9);
    EXPECT_NEAR(boxes[1].left, 20, 1e-9);
    EXPECT_NEAR(boxes[3].left, 50, 1e-9); // what follows moves on
}

TEST(TextLayout, AWantedLengthMayStretchTheLetters) {
    Text text = textOf("abc");
    text.stretched.push_back({0, 3, 60, true});
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 3u);
    expectBox(boxes[1], 20, -20, 40, 0);
    expectBox(boxes[2], 40, -20, 60, 0);
}

TEST(TextLayout, AStretchedChunkIsAnchoredByItsNewLength) {
    Text text = textOf("abc");
    text.stretched.push_back({0, 3, 60, true});
    text.characters[0].anchor = Anchor::End;
    EXPECT_EQ(leftSides(text), (std::vector<double>{-60, -40, -20}));
}

TEST(TextLayout, LettersStandOnAPathWithTheirMiddleAndThoseBeyondItAreLeftOut) {
    Text text = textOf("abcd");
    AlongPath along;
    along.end = 4;
    // Down for 20 units, then to the right for 14.
    along.path = easel::drawing::polylinePath({{0, 0}, {0, 20}, {14, 20}});
    text.alongPaths.push_back(along);
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 3u); // the middle of the fourth is at 35
    expectBox(boxes[0], 0, 0, 20, 10);
    expectBox(boxes[2], 0, 0, 10, 20);
}

TEST(TextLayout, AnAnchorOnAPathIsADistanceAlongIt) {
    Text text = textOf("ab");
    AlongPath along;
    along.end = 2;
    along.start = 50;
    along.path = easel::drawing::polylinePath({{0, 0}, {100, 0}});
    text.alongPaths.push_back(along);
    text.characters[0].anchor = Anchor::Middle;
    EXPECT_EQ(leftSides(text), (std::vector<double>{40, 50}));
}

TEST(TextLayout, AVerticalLineRunsDownWithItsMiddleOnTheStart) {
    Text text = textOf("ab");
    text.direction = Direction::Vertical;
    text.characters[0].x = 100;
    text.characters[0].y = 50;
    const auto boxes = boxesOf(text);
    ASSERT_EQ(boxes.size(), 2u);
    // Between 1 em over and 0.25 em under the baseline is the middle, 0.375 em over it, which is 7.5 units.
    expectBox(boxes[0], 92.5, 50, 112.5, 60);
    expectBox(boxes[1], 92.5, 60, 112.5, 70);
}

TEST(TextLayout, ALineUnderLettersOfTwoStylesKeepsItsPlace) {
    Text text = textOf("ab");
    text.styles[0].decorations.push_back({LineKind::Underline, 3, text.styles[0].font, 20, 0});
    text.styles.push_back(text.styles[0]);
    text.styles[1].rise = 8;
    text.styles[1].size = 10;
    text.characters[1].style = 1;
    BoxTypesetter typesetter;
    const PlacedText placed = layOut(text, typesetter, [](std::size_t) {});
    Box lines;
    for (const PaintedOutline& outline : placed.outlines)
        if (!outline.letters) {
            EXPECT_EQ(outline.paint, 3u);
            lines.add(outline.outline.bounds());
        }
    // Its middle is 0.125 em under the baseline, and it is 0.0625 em thick.
    expectBox(lines, 0, 1.875, 15, 3.125);
}

TEST(TextLayout, CellsHoldAscentDescentAndAdvance) {
    const Text text = textOf("ab");
    BoxTypesetter typesetter;
    expectBox(layOut(text, typesetter, [](std::size_t) {}).cells, 0, -20, 20, 5);
}

TEST(TextLayout, LettersThatMoveOneByOneAreNotJoined) {
    Text text = textOf("fi");
    BoxTypesetter typesetter;
    layOut(text, typesetter, [](std::size_t) {});
    EXPECT_TRUE(typesetter.lines.back().runs.front().font->ligatures);
    text.characters[1].dx = 1;
    layOut(text, typesetter, [](std::size_t) {});
    EXPECT_FALSE(typesetter.lines.back().runs.front().font->ligatures);
}

TEST(TextLayout, WhatOutlinesCostIsToldBeforeTheyAreMade) {
    const Text text = textOf("abc");
    BoxTypesetter typesetter;
    std::size_t points = 0;
    layOut(text, typesetter, [&](std::size_t more) { points += more; });
    EXPECT_GE(points, 3u * 4);
    EXPECT_THROW(layOut(text, typesetter, [](std::size_t) { throw 1; }), int);
}
