// The position field of the editor.
#include "tests/scenario/Editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using namespace tests;

const std::string kSelectMiddle = "click item 4 " + onRamp(200) + "\n";

TEST(EditorPosition, TwoDecimalsAreAlwaysShown) {
    EXPECT_EQ(positionAfter("1 0 0.5 0.5 0.5 0.5 0.5:0,0,0 1:1,1,1", ""), "50.00");
    EXPECT_EQ(positionAfter("1 0 0.5 0.5 0.5 0.5 0.123456:0,0,0 1:1,1,1", ""), "12.35");
}

TEST(EditorPosition, MoreThanAHundredBecomesAHundredAndTheFieldIsRewrittenAndSelected) {
    const json field = itemAfter(kThreeStops, kSelectMiddle + "set 5 \"150\"\n", kPosition);
    EXPECT_EQ(field["text"], "100.00");
    EXPECT_EQ(field["selection"], json({0, 6}));
    EXPECT_EQ(stopsAfter(kThreeStops, kSelectMiddle + "set 5 \"150\"\n")[1], json({1.0, 65535, 0, 0}));
}

TEST(EditorPosition, LessThanZeroBecomesZeroAndTheFieldIsRewrittenAndSelected) {
    const json field = itemAfter(kThreeStops, kSelectMiddle + "set 5 \"-5\"\n", kPosition);
    EXPECT_EQ(field["text"], "0.00");
    EXPECT_EQ(field["selection"], json({0, 4}));
    EXPECT_EQ(stopsAfter(kThreeStops, kSelectMiddle + "set 5 \"-5\"\n")[1], json({0.0, 65535, 0, 0}));
}

TEST(EditorPosition, LettersReadAsZeroAndStayInTheField) {
    EXPECT_EQ(positionAfter(kThreeStops, kSelectMiddle + "set 5 \"abc\"\n"), "abc");
    EXPECT_EQ(stopsAfter(kThreeStops, kSelectMiddle + "set 5 \"abc\"\n")[1], json({0.0, 65535, 0, 0}));
}

TEST(EditorPosition, InfinityIsMoreThanAHundredAndNotANumberIsLetters) {
    EXPECT_EQ(positionAfter(kThreeStops, "set 5 \"inf\"\n"), "100.00");
    EXPECT_EQ(positionAfter(kThreeStops, "set 5 \"-inf\"\n"), "0.00");
    EXPECT_EQ(positionAfter(kThreeStops, kSelectMiddle + "set 5 \"nan\"\n"), "nan");
    EXPECT_EQ(stopsAfter(kThreeStops, kSelectMiddle + "set 5 \"nan\"\n")[1], json({0.0, 65535, 0, 0}));
}

TEST(EditorPosition, ANumberInRangeStaysAsItWasTyped) {
    for (const std::string text : {"12.5", "7", " 33", "1e1", "25%", "0", "100"})
        EXPECT_EQ(positionAfter(kThreeStops, "set 5 \"" + text + "\"\n"), text);
}

TEST(EditorPosition, EveryKeystrokeMovesTheStop) {
    const Played played =
        playWithTool(openEditorOn(kThreeStops) + kSelectMiddle +
                     "journal on\ntype \"12.5\"\nprint dialog\nprint journal\nhit 1\nprint object r\n");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["text"], "12.5");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["selection"], json({4, 4}));
    EXPECT_EQ(played["gradient"]["stops"][1], json({0.125, 65535, 0, 0}));
    const json journal = played["journal"];
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "GetDLOGText(5)"), 8) << "twice a keystroke";
}

TEST(EditorPosition, ThePositionIsNarrowedToSinglePrecision) {
    EXPECT_EQ(stopsAfter(kThreeStops, kSelectMiddle + "set 5 \"30\"\n")[1][0], narrowed(0.3));
    EXPECT_NE(narrowed(0.3), 0.3);
}

TEST(EditorPosition, ClearingTheFieldDeletesTheActiveOfThreeStops) {
    const std::string clear = kSelectMiddle + "erase\n";
    EXPECT_EQ(stopsAfter(kThreeStops, clear), json({{0.0, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
    const json field = itemAfter(kThreeStops, clear, kPosition);
    EXPECT_EQ(field["text"], "0.00") << "the first stop is active then";
    EXPECT_EQ(field["selection"], json({0, 4}));
}

TEST(EditorPosition, ClearingTheFieldWithTwoStopsMovesTheActiveOneToZeroAndLeavesTheFieldEmpty) {
    const std::string clear = "click item 4 " + onRamp(400) + "\nerase\n";
    EXPECT_EQ(positionAfter(kTwoStops, clear), "");
    EXPECT_EQ(stopsAfter(kTwoStops, clear), json({{0.0, 0, 0, 0}, {0.0, 65535, 65535, 65535}}));
}

TEST(EditorPosition, ErasingCharacterByCharacterMovesTheStopUntilNothingIsLeft) {
    // "25" to "2" to nothing: at 2 percent before the red one is taken away.
    const std::string typed = kSelectMiddle + "type \"25\"\nerase\n";
    EXPECT_EQ(stopsAfter(kThreeStops, typed)[1], json({narrowed(0.02), 65535, 0, 0}));
    EXPECT_EQ(stopsAfter(kThreeStops, typed + "erase\n").size(), 2u);
}

TEST(EditorPosition, APositionBeyondAnotherStopReordersAtOnceAndTheEditedStopStaysActive) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.25:1,1,1 0.5:2,2,2 0.75:3,3,3";
    EXPECT_EQ(stopsAfter(gradient, kSelectMiddle + "set 5 \"100\"\n"),
              json({{0.25, 1, 1, 1}, {0.75, 3, 3, 3}, {1.0, 2, 2, 2}}));
    EXPECT_EQ(stopsAfter(gradient, kSelectMiddle + "set 5 \"100\"\nset 5 \"0\"\n"),
              json({{0.0, 2, 2, 2}, {0.25, 1, 1, 1}, {0.75, 3, 3, 3}}));
}

TEST(EditorPosition, AClickInTheFieldReadsItAgainWithoutChangingAnything) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.25:0,0,0 1:65535,65535,65535";
    EXPECT_EQ(stopsAfter(gradient, "hit 5\n"), json({{0.25, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
    EXPECT_EQ(positionAfter(gradient, "hit 5\n"), "25.00");
}

TEST(EditorPosition, AClickInTheFieldTakesThePositionThatItShows) {
    // A third shows as 33.33, and reading that back is what the click does.
    EXPECT_EQ(stopsAfter("1 0 0.5 0.5 0.5 0.5 0.3333333:0,0,0 1:1,1,1", "hit 5\n")[0][0], narrowed(0.3333));
}

TEST(EditorPosition, OnlyThePointSeparatesDecimals) {
    EXPECT_EQ(stopsAfter(kTwoStops, "set 5 \"12,5\"\n")[0][0], narrowed(0.12));
    EXPECT_EQ(stopsAfter(kTwoStops, "set 5 \"12.5\"\n")[0][0], 0.125);
}

TEST(EditorPosition, ACharacterThatTheHostLacksIsRefusedWithABeepAndIsNoHit) {
    const Played played =
        playWithTool(openEditorOn(kTwoStops) + "journal on\nprint journal\ntype \"1\u4e2d2\"\n" +
                     "print dialog\nprint window\nprint journal\nhit 2\n");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["text"], "12");
    EXPECT_EQ(played["window"]["beeps"], 1);
    const json journal = played["journal"];
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "ModalDialog()"), 2);
}

} // namespace
