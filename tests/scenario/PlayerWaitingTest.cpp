// How a scenario goes on while the plug-in waits.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using tests::Played;
using tests::Player;
using tests::playWithTool;

const std::string kLinear =
    "add rect r 100 50 200 100\ngradient r 1 30 0 0 1 1 0:0,0,0 1:65535,65535,65535\n";

TEST(PlayerWaiting, PrintsAndKeysInMidDragArePlayedAtOnceAndEndNoWait) {
    const Played played = playWithTool(kLinear + R"(
press 150 100
print object r
key shift down
move 180 100
print window
key shift up
move 150 150
print object r
release
print object r
)");
    std::vector<json> angles;
    for (const json& gradient : played.all("gradient"))
        angles.push_back(gradient["angle"]);
    EXPECT_THAT(angles, testing::ElementsAre(30.0, 30.0, -90.0));
}

TEST(PlayerWaiting, NothingIsPlayedForAMouseThatHasMovedAlready) {
    // The move that begins the drag is also the first point of the line; the release then ends it.
    const Played played = playWithTool(kLinear + R"(
journal on
press 150 100
move 180 100
release
print journal
print object r
)");
    EXPECT_EQ(played["gradient"]["angle"], 0.0);
    const auto calls = played["journal"].get<std::vector<std::string>>();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "PolyNewMouse()"), 1);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "StillDown()"), 1);
}

TEST(PlayerWaiting, EachMoveIsOnePassAndTheReleaseEndsTheLast) {
    const Played played = playWithTool(kLinear + R"(
journal on
press 150 100
move 151 100
move 152 101
move 180 100
move 190 120
move 190 120
release
print journal
)");
    const auto calls = played["journal"].get<std::vector<std::string>>();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "BreakHysteresis(606)"), 1);
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "DrawConstructionLine()"), 3);
}

TEST(PlayerWaiting, AClickIsAPressAndARelease) {
    EXPECT_EQ(playWithTool(kLinear + "journal on\nclick 150 100\nprint journal\nprint object r\n")["journal"],
              playWithTool(kLinear +
                           "journal on\npress 150 100\nrelease\nprint journal\nprint object r\n")["journal"]);
}

TEST(PlayerWaiting, ADragIsAPressMovesAndARelease) {
    const std::string steps = "press 150 100\nmove 180 100\nmove 200 130\nrelease\n";
    const std::string after = "print journal\nprint object r\nprint window\n";
    const Played dragged = playWithTool(kLinear + "journal on\ndrag 150 100 180 100 200 130\n" + after);
    const Played stepped = playWithTool(kLinear + "journal on\n" + steps + after);
    EXPECT_EQ(dragged.answers, stepped.answers);
    EXPECT_EQ(dragged.answers.size(), 3u);
}

TEST(PlayerWaiting, ARadialPressTracksNothingAndTheRestOfTheDragIsPlayedAfterIt) {
    const Played played = playWithTool(R"(
add rect r 0 0 100 100
gradient r 2 0 0 0 1 1 0:0,0,0 1:65535,65535,65535
press 25 75
print object r
move 60 60
undo
print object r
release
)");
    const auto gradients = played.all("gradient");
    EXPECT_EQ(gradients[0]["start"], json({0.25, 0.75}));
    EXPECT_EQ(gradients[1]["start"], json({0.0, 0.0}));
}

TEST(PlayerWaiting, AReleaseStillWaitingWhenADialogOpensIsPlayedThereAndHitsNothing) {
    const Played played = playWithTool(kLinear + R"(
key option down
click 150 100
print dialog
hit 11
print dialog
hit 2
key option up
print dialog
print object r
)");
    const auto dialogs = played.all("dialog");
    ASSERT_EQ(dialogs.size(), 3u);
    EXPECT_EQ(dialogs[0]["id"], 5000);
    EXPECT_EQ(dialogs[1]["id"], 5000);
    EXPECT_EQ(dialogs[2], nullptr);
    EXPECT_EQ(played["gradient"]["type"], 1);
}

TEST(PlayerWaiting, TheMovesOfADragThatOpensADialogHitNothingThere) {
    const Played played = playWithTool(kLinear + R"(
key option down
drag 150 100 200 120 250 140
hit 2
key option up
print window
)");
    EXPECT_EQ(played["window"]["undoLevels"], 0);
    EXPECT_EQ(played["window"]["beeps"], 0);
}

TEST(PlayerSession, WordsMayBeQuotedAndLinesCommented) {
    const Played played = playWithTool(
        "add rect \"an \\\"odd\\\" \\\\ id #1\" 1 2 3 4 # not part of it\n\n  \t \nprint window#now\r\n");
    EXPECT_EQ(played["window"]["objects"], json::array({"an \"odd\" \\ id #1"}));
}

TEST(PlayerSession, ReadsStandardInputAndUsesTheWorkingFolder) {
    const Player player;
    const Played played =
        player.run({"play", "-"}, "new 20 10\nadd rect r 1 1 2 2\npicture here.png\nprint window\n");
    EXPECT_EQ(played.exitCode, 0) << played.messages;
    EXPECT_EQ(played["window"]["objects"], json::array({"r"}));
    EXPECT_TRUE(std::filesystem::exists(player.folder() / "here.png"));
}

TEST(PlayerSession, NamesStandardInputInErrors) {
    const Played played = Player().run({"play", "-"}, "\nnonsense\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::StartsWith("-:2: "));
}

TEST(PlayerSession, TakesRelativePathsFromTheScenariosOwnFolder) {
    const Player player;
    tests::writeContent(player.folder() / "sub" / "s.easel", "new 20 10\npicture p.png\n");
    const Played played = player.run({"play", "sub/s.easel"});
    EXPECT_EQ(played.exitCode, 0) << played.messages;
    EXPECT_TRUE(std::filesystem::exists(player.folder() / "sub" / "p.png"));
}

TEST(PlayerSession, BeepsAreCountedOverAllDrawings) {
    const Played played = playWithTool("click 9 9\nnew 20 20\nclick 9 9\nprint window\n");
    EXPECT_EQ(played["window"]["beeps"], 2);
}

TEST(PlayerSession, UndoAndRedoWithNothingLeftChangeNothing) {
    const Played played = playWithTool(kLinear + "print window\nundo\nredo\nprint window\n");
    EXPECT_EQ(played.answers[1], played.answers[0]);
}

TEST(PlayerSession, NumbersReadBackAsTheSameDoubles) {
    const Played played = playWithTool(R"(
add rect r 0 0 10 10
gradient r 2 0.1 0.1 1e-320 -12345678.90123456 3.0000000000000004 0.30000000000000004:1,2,3 inf:4,5,6 nan:7,8,9 -inf:1,1,1
print object r
)");
    const json gradient = played["gradient"];
    EXPECT_EQ(gradient["angle"], static_cast<double>(0.1F));
    EXPECT_EQ(gradient["start"], json({0.1, 1e-320}));
    EXPECT_EQ(gradient["end"], json({-12345678.90123456, 3.0000000000000004}));
    EXPECT_EQ(gradient["stops"],
              json({{0.30000000000000004, 1, 2, 3}, {"inf", 4, 5, 6}, {"nan", 7, 8, 9}, {"-inf", 1, 1, 1}}));
}

} // namespace
