// What a scenario that cannot be played says, and how it ends.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;
using tests::Played;
using tests::Player;
using tests::writeContent;

// The message of a scenario that fails, without what must be there in every one.
std::string reasonAtLine(int line, const std::string& script) {
    const Played played = Player().play(script);
    EXPECT_EQ(played.exitCode, 2);
    const std::string place = "scenario.easel:" + std::to_string(line) + ": ";
    EXPECT_THAT(played.messages, StartsWith(place));
    EXPECT_EQ(std::count(played.messages.begin(), played.messages.end(), '\n'), 1) << played.messages;
    return played.messages.substr(std::min(place.size(), played.messages.size()));
}

TEST(PlayerErrors, NameFileLineAndReasonOfTheFirstLineThatCannotBePlayed) {
    EXPECT_EQ(reasonAtLine(3, "new 10 10\n# a comment\nfly away\nfly further\n"),
              "there is no command \"fly\"\n");
}

TEST(PlayerErrors, KeepWhatWasPrintedBefore) {
    const Played played = Player().play("new 10 10\nprint window\nnonsense\nprint window\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_EQ(played.answers.size(), 1u);
}

TEST(PlayerErrors, ComeForEveryKindOfBadArgument) {
    EXPECT_THAT(reasonAtLine(1, "new 10\n"), HasSubstr("H is missing"));
    EXPECT_THAT(reasonAtLine(1, "new ten 10\n"), HasSubstr("\"ten\" is not a number"));
    EXPECT_THAT(reasonAtLine(1, "new 0 10\n"), HasSubstr("above 0"));
    EXPECT_THAT(reasonAtLine(1, "new nan 10\n"), HasSubstr("finite"));
    EXPECT_THAT(reasonAtLine(1, "new 1e999 10\n"), HasSubstr("out of range"));
    EXPECT_THAT(reasonAtLine(1, "new 10 10 10\n"), HasSubstr("unexpected word \"10\""));
    EXPECT_THAT(reasonAtLine(1, "message 40000\n"), HasSubstr("not between"));
    EXPECT_THAT(reasonAtLine(1, "snap sideways on\n"), HasSubstr("neither grid nor object"));
    EXPECT_THAT(reasonAtLine(1, "key caps down\n"), HasSubstr("neither option nor shift"));
    EXPECT_THAT(reasonAtLine(1, "filter rect blob\n"), HasSubstr("no kind \"blob\""));
    EXPECT_THAT(reasonAtLine(1, "print weather\n"), HasSubstr("\"weather\""));
    EXPECT_THAT(reasonAtLine(2, "new 9 9\nadd blob b 1 2\n"), HasSubstr("no kind \"blob\""));
    EXPECT_THAT(reasonAtLine(2, "new 9 9\nadd path p \"M 1 1 L\"\n"), HasSubstr("path data"));
    EXPECT_THAT(reasonAtLine(3, "new 9 9\nadd rect r 1 1 2 2\nadd rect r 1 1 2 2\n"), HasSubstr("already"));
    EXPECT_THAT(reasonAtLine(2, "new 9 9\nprint object none\n"), HasSubstr("no object \"none\""));
    EXPECT_THAT(reasonAtLine(3, "new 9 9\nadd rect r 1 1 2 2\nprint object @1\n"), HasSubstr("@1"));
    EXPECT_THAT(reasonAtLine(3, "new 9 9\nadd rect r 1 1 2 2\ngradient r 1 0 0 0 1 1 half:0,0,0\n"),
                HasSubstr("half"));
    EXPECT_THAT(reasonAtLine(3, "new 9 9\nadd rect r 1 1 2 2\ngradient r 1 0 0 0 1 1 0:0,0,65536\n"),
                HasSubstr("65536"));
}

TEST(PlayerErrors, ComeForWordsThatCannotBeRead) {
    EXPECT_THAT(reasonAtLine(1, "save \"open end\n"), HasSubstr("quote is not closed"));
    EXPECT_THAT(reasonAtLine(1, "save \"a\\n\"\n"), HasSubstr("backslash"));
    EXPECT_THAT(reasonAtLine(2, "new 9 9\nsave \"\xff\"\n"), HasSubstr("UTF-8"));
}

TEST(PlayerErrors, ComeForWhatNeedsADrawingOrATool) {
    EXPECT_THAT(reasonAtLine(1, "add rect r 1 1 2 2\n"), HasSubstr("no drawing is open"));
    EXPECT_THAT(reasonAtLine(2, "new 9 9\nclick 1 1\n"), HasSubstr("no tool is active"));
    EXPECT_THAT(reasonAtLine(4, "new 9 9\nstart\nquit\nclick 1 1\n"), HasSubstr("no tool is active"));
    EXPECT_THAT(reasonAtLine(1, "quit\n"), HasSubstr("not loaded"));
    EXPECT_THAT(reasonAtLine(1, "options\n"), HasSubstr("no tool is active"));
}

TEST(PlayerErrors, ComeForTheMouseOutOfTurn) {
    const std::string before = "new 200 200\nstart\n";
    EXPECT_THAT(reasonAtLine(3, before + "release\n"), HasSubstr("not held"));
    EXPECT_THAT(reasonAtLine(4, before + "press 1 1\npress 2 2\n"), HasSubstr("held already"));
    EXPECT_THAT(reasonAtLine(3, before + "click item 4 1 1\n"), HasSubstr("no dialog is open"));
    EXPECT_THAT(reasonAtLine(3, before + "drag 1 1\n"), HasSubstr("two points"));
    EXPECT_THAT(reasonAtLine(3, before + "drag 1 1 2 2 3\n"), HasSubstr("V is missing"));
}

TEST(PlayerErrors, ComeForAScenarioThatEndsWithTheButtonHeld) {
    // Over empty canvas the tool has returned; over a gradient it is still waiting.
    EXPECT_THAT(reasonAtLine(3, "new 200 200\nstart\npress 1 1\n"), HasSubstr("button is held"));
    EXPECT_THAT(reasonAtLine(5, "new 200 200\nstart\nadd rect r 0 0 99 99\nclick 9 9\npress 9 9\n"),
                HasSubstr("button is held"));
}

TEST(PlayerErrors, ComeForAScenarioThatEndsWithADialogOpen) {
    EXPECT_THAT(reasonAtLine(3, "new 200 200\nstart\noptions\n"), HasSubstr("dialog is open"));
}

TEST(PlayerErrors, ComeForLinesOutOfPlaceWhileTheButtonIsHeld) {
    const std::string tracking = "new 200 200\nstart\nadd rect r 0 0 99 99\nclick 9 9\npress 9 9\n";
    EXPECT_EQ(reasonAtLine(6, tracking + "undo\n"),
              "\"undo\" cannot be played while the mouse button is held\n");
    EXPECT_THAT(reasonAtLine(7, tracking + "move 50 50\nadd rect s 1 1 2 2\n"),
                HasSubstr("\"add\" cannot be played"));
    EXPECT_THAT(reasonAtLine(7, tracking + "move 50 50\nmove 50\n"), HasSubstr("V is missing"));
}

TEST(PlayerErrors, ReleaseTheButtonAndCancelDialogsWithoutShutDown) {
    // An option-click changes the current gradient only when it is confirmed and shut down saves it only with
    // message 2.
    const Player player;
    const Played played = player.play("new 200 200\nstart\noptions\nhit 11\nnonsense\nhit 1\nquit\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, StartsWith("scenario.easel:5: "));
    EXPECT_EQ(player.playToEnd("print defaults\n")["defaults"], json::array());
}

TEST(PlayerErrors, ComeForAScenarioThatIsMissingOrAFolder) {
    const Player player;
    std::filesystem::create_directory(player.folder() / "folder");
    for (const std::string name : {"missing.easel", "folder"}) {
        const Played played = player.run({"play", name});
        EXPECT_EQ(played.exitCode, 2);
        EXPECT_THAT(played.messages, StartsWith(name + ": "));
    }
}

TEST(PlayerErrors, ComeForAModuleThatIsMissingOrNoModule) {
    Player player;
    writeContent(player.folder() / "text.so", "not a module");
    for (const std::string name : {"missing.so", "text.so"}) {
        player.setPlugin(player.folder() / name);
        const Played played = player.play("new 9 9\nprint window\nstart\n");
        EXPECT_EQ(played.exitCode, 2);
        EXPECT_THAT(played.messages,
                    StartsWith("scenario.easel:3: " + (player.folder() / name).string() + ": "));
        EXPECT_EQ(played.answers.size(), 1u);
    }
}

TEST(PlayerErrors, DoNotComeForAScenarioThatEndsWithoutQuit) {
    const Player player;
    player.playToEnd("start\n");
    EXPECT_EQ(player.playToEnd("print defaults\n")["defaults"], json::array());
}

} // namespace
