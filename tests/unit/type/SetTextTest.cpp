// The letters that are kept beside the outline that is made of them.
#include "BoxTypesetter.h"

#include <gtest/gtest.h>

using namespace easel::type;

namespace {

SetText setTextOf(const Text& text) {
    BoxTypesetter typesetter;
    return layOut(text, typesetter, [](std::size_t) {}).outlines.front().text;
}

TEST(SetText, EachLetterIsWhereItsOutlineIs) {
    Text text = textOf("abc");
    text.characters[0].x = 100;
    text.characters[0].y = 50;
    text.characters[1].dx = 3;
    const SetText set = setTextOf(text);
    ASSERT_EQ(set.letters.size(), 3U);
    EXPECT_EQ(set.text, "abc");
    EXPECT_EQ(set.letters[0].at, (easel::drawing::Point{100, 50}));
    // Each is 10 wide.
    EXPECT_EQ(set.letters[1].at, (easel::drawing::Point{113, 50}));
    EXPECT_EQ(set.letters[2].at, (easel::drawing::Point{123, 50}));
    EXPECT_EQ(set.glyphs[2].number, static_cast<unsigned>('c'));
    EXPECT_EQ(set.textOf(1, 3), "bc");
    ASSERT_EQ(set.runs.size(), 1U);
    EXPECT_EQ(set.runs[0].fromEms, easel::drawing::Affine::scaling(20, 20));
}

TEST(SetText, ARunEndsWhereTheAngleChanges) {
    Text text = textOf("abcd");
    text.characters[2].rotate = 90;
    text.characters[3].rotate = 90;
    const SetText set = setTextOf(text);
    ASSERT_EQ(set.runs.size(), 2U);
    EXPECT_EQ(set.runs[0].end, 2U);
    EXPECT_EQ(set.runs[1].end, 4U);
    // Up the page, a turned letter has its right.
    EXPECT_EQ(set.runs[1].fromEms,
              easel::drawing::Affine::rotation(90) * easel::drawing::Affine::scaling(20, 20));
}

TEST(SetText, WhatNoFileOfTextMayHoldIsReplaced) {
    SetText set;
    set.add({}, "a\x01\xef\xbf\xbe", {}, {}, 0);
    EXPECT_EQ(set.text, "a\xef\xbf\xbd\xef\xbf\xbd");
}

} // namespace
