// Color stops in the editor, worked on with the mouse on the ramp.
#include "tests/scenario/Editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using namespace tests;

json stop(double position, int red, int green, int blue) {
    return {position, red, green, blue};
}

const json kBlackAt0 = stop(0, 0, 0, 0);
const json kWhiteAt1 = stop(1, 65535, 65535, 65535);

TEST(EditorStops, AClickTenPixelsFromAStopSelectsItAndElevenPixelsAwayAddsOne) {
    EXPECT_EQ(stopsAfter(kTwoStops, "click item 4 " + onRamp(10) + "\n"), json({kBlackAt0, kWhiteAt1}));
    const json added = stopsAfter(kTwoStops, "click item 4 " + onRamp(11) + "\n");
    ASSERT_EQ(added.size(), 3u);
    EXPECT_EQ(added[1][0], 11 / 400.0) << "a stop that is added is not narrowed";
    for (const int pixels : {390, 190, 210})
        EXPECT_EQ(stopsAfter(kThreeStops, "click item 4 " + onRamp(pixels) + "\n").size(), 3u) << pixels;
    for (const int pixels : {389, 189, 211})
        EXPECT_EQ(stopsAfter(kThreeStops, "click item 4 " + onRamp(pixels) + "\n").size(), 4u) << pixels;
}

TEST(EditorStops, OfTwoStopsEquallyNearTheEarlierOneIsSelected) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0:1,1,1 0.04:2,2,2 1:3,3,3";
    EXPECT_EQ(positionAfter(gradient, "click item 4 " + onRamp(400) + "\nclick item 4 " + onRamp(8) + "\n"),
              "0.00");
    EXPECT_EQ(positionAfter(gradient, "click item 4 " + onRamp(9) + "\n"), "4.00");
}

TEST(EditorStops, AStopThatIsAddedHasTheColorThatTheRampHadThere) {
    const json stops = stopsAfter(kTwoStops, "click item 4 " + onRamp(100) + "\n");
    ASSERT_EQ(stops.size(), 3u);
    EXPECT_EQ(stops[1][0], 0.25);
    for (const int channel : {1, 2, 3})
        EXPECT_NEAR(stops[1][static_cast<std::size_t>(channel)].get<double>(), 65535 / 4.0, 1);
}

TEST(EditorStops, APressInTheMarginCanAddAStopJustOutsideTheRamp) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.5:0,0,0 1:65535,65535,65535";
    const json stops = stopsAfter(gradient, "click item 4 0 10\n");
    ASSERT_EQ(stops.size(), 3u);
    EXPECT_EQ(stops[0][0], -6 / 400.0);
    EXPECT_EQ(positionAfter(gradient, "click item 4 0 10\n"), "-1.50");
    const json moved = stopsAfter(gradient, "drag item 4 0 10 -10 10\n");
    EXPECT_EQ(moved[0][0], 0.0) << "a drag brings it back into the ramp";
}

TEST(EditorStops, WithinFourPixelsOfThePressNothingMoves) {
    for (const std::string to : {"10 10", "6 14", "8 13"})
        EXPECT_EQ(stopsAfter(kTwoStops, "drag item 4 6 10 " + to + "\n"), json({kBlackAt0, kWhiteAt1})) << to;
    EXPECT_EQ(stopsAfter(kTwoStops, "drag item 4 106 10 110 10 106 10\n")[1][0], 0.25)
        << "an added one neither";
}

TEST(EditorStops, BeyondFourPixelsInAnyDirectionTheStopFollows) {
    EXPECT_EQ(stopsAfter(kTwoStops, "drag item 4 6 10 11 10\n")[0][0], narrowed(5 / 400.0));
    EXPECT_EQ(stopsAfter(kTwoStops, "drag item 4 6 10 9 13\n")[0][0], narrowed(3 / 400.0))
        << "the distance counts, not each direction on its own";
}

TEST(EditorStops, OnceMovingAStopFollowsAlsoBackToWhereItBegan) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 246 10 207 10\n")[1][0], narrowed(201 / 400.0));
}

TEST(EditorStops, BeyondTheEndsTheStopStaysAtTheEnd) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 900 10\n")[1], stop(1, 65535, 0, 0))
        << "and still before the white one, as it was";
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 -900 10\n")[1][0], 0.0);
    EXPECT_EQ(positionAfter(kThreeStops, "drag item 4 206 10 900 10\n"), "100.00");
    EXPECT_EQ(positionAfter(kThreeStops, "drag item 4 206 10 -900 10\n"), "0.00");
}

TEST(EditorStops, PositionsAreNarrowedWhileTheFieldShowsWhatTheMouseMeant) {
    // 133 of 400 pixels are 0.3325, which single precision does not have.
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 139 10\n")[1][0], narrowed(0.3325));
    EXPECT_NE(narrowed(0.3325), 0.3325);
    EXPECT_EQ(positionAfter(kThreeStops, "drag item 4 206 10 139 10\n"), "33.25");
}

TEST(EditorStops, OneOfTwoStopsPulledBelowTheRampOnlyMovesSideways) {
    const json stops = stopsAfter(kTwoStops, "drag item 4 6 10 106 500\n");
    EXPECT_EQ(stops, json({stop(0.25, 0, 0, 0), kWhiteAt1}));
}

TEST(EditorStops, OneOfThreeStopsGoesTwoPixelsBelowTheItemAndNotOnePixelEarlier) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 206 49\n").size(), 3u);
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 206 50\n"), json({kBlackAt0, kWhiteAt1}));
}

TEST(EditorStops, AStopThatIsReleasedOffTheRampIsGoneAndTheFirstOneIsActive) {
    const std::string drag = "drag item 4 206 10 246 60\n";
    EXPECT_EQ(positionAfter(kThreeStops, drag), "0.00");
    // What is typed next moves the first stop.
    EXPECT_EQ(stopsAfter(kThreeStops, drag + "set 5 \"10\"\n"),
              json({stop(narrowed(0.1), 0, 0, 0), kWhiteAt1}));
}

TEST(EditorStops, AStopThatComesBackHasItsOwnColorAgain) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 206 60 306 10\n"),
              json({kBlackAt0, stop(0.75, 65535, 0, 0), kWhiteAt1}));
}

TEST(EditorStops, AStopCanGoAndComeBackAgainAndAgain) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 206 10 206 60 306 60 306 20 246 10 246 90 106 10\n"),
              json({kBlackAt0, stop(0.25, 65535, 0, 0), kWhiteAt1}));
}

TEST(EditorStops, AStopAddedWhereAnotherIsSortsBeforeIt) {
    const std::string gradient =
        "1 0 0.5 0.5 0.5 0.5 0:0,0,0 0.25:0,65535,0 0.5:65535,0,0 1:65535,65535,65535";
    // Pulled off at 0.5 and brought back exactly over the green one at 0.25.
    EXPECT_EQ(stopsAfter(gradient, "drag item 4 206 10 206 60 106 10\n"),
              json({kBlackAt0, stop(0.25, 65535, 0, 0), stop(0.25, 0, 65535, 0), kWhiteAt1}));
}

TEST(EditorStops, AStopDraggedPastAnotherChangesPlacesWithItAtOnce) {
    EXPECT_EQ(stopsAfter(kThreeStops, "drag item 4 6 10 306 10\n"),
              json({stop(0.5, 65535, 0, 0), stop(0.75, 0, 0, 0), kWhiteAt1}));
    EXPECT_EQ(positionAfter(kThreeStops, "drag item 4 6 10 306 10\n"), "75.00") << "and stays the active one";
}

TEST(EditorStops, TheFirstEditSortsAGradientThatCameUnsorted) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.75:3,3,3 0.25:1,1,1 0.5:2,2,2";
    EXPECT_EQ(stopsAfter(gradient, ""), json({stop(0.75, 3, 3, 3), stop(0.25, 1, 1, 1), stop(0.5, 2, 2, 2)}))
        << "opening alone does not";
    EXPECT_EQ(stopsAfter(gradient, "set 5 \"75\"\n"),
              json({stop(0.25, 1, 1, 1), stop(0.5, 2, 2, 2), stop(0.75, 3, 3, 3)}));
}

TEST(EditorStops, APressSelectsTheWholeFieldForTyping) {
    const json field = itemAfter(kThreeStops, "click item 4 " + onRamp(200) + "\n", kPosition);
    EXPECT_EQ(field["text"], "50.00");
    EXPECT_EQ(field["selection"], json({0, 5}));
}

} // namespace
