// What a scenario says that answers a dialog wrongly, and pictures of dialogs.
#include "tests/scenario/Templates.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tests;
using testing::HasSubstr;

namespace {

const std::string kEditor = "start\nnew 400 300\noptions\n";

// The message of a scenario whose last line cannot be played.
std::string refusal(const Player& player, const std::string& script) {
    const Played played = player.play(script);
    EXPECT_EQ(played.exitCode, 2);
    const auto lines = std::count(script.begin(), script.end(), '\n');
    EXPECT_THAT(played.messages, testing::StartsWith("scenario.easel:" + std::to_string(lines) + ": "));
    return played.messages;
}

TEST(PlayerDialogErrors, ComeForAnswersToAnAlertThatAreNone) {
    const Player player;
    player.playToEnd(inEditor(saveAs("a")));
    const std::string alert = kEditor + saveAs("a");
    EXPECT_THAT(refusal(player, alert + "answer perhaps\n"), HasSubstr("\"perhaps\" is neither yes nor no"));
    EXPECT_THAT(refusal(player, alert + "answer\n"), HasSubstr("yes or no is missing"));
    EXPECT_THAT(refusal(player, alert + "undo\n"),
                HasSubstr("\"undo\" cannot be played while an alert is open"));
}

TEST(PlayerDialogErrors, ComeForRowsAndCommandsThatTheDeletionDialogLacks) {
    const Player player;
    player.playToEnd(inEditor(saveAs("a") + saveAs("b")));
    const std::string list = kEditor + "choose 9 2\n";
    EXPECT_THAT(refusal(player, list + "select 3\n"), HasSubstr("not between"));
    EXPECT_THAT(refusal(player, list + "command later\n"), HasSubstr("\"later\" is neither ok nor cancel"));
    EXPECT_THAT(refusal(player, list + "answer yes\n"), HasSubstr("while the deletion dialog is open"));
    // None of it deleted anything.
    EXPECT_EQ(player.playToEnd(inEditor("choose 9 2\ncommand cancel\nprint templates\n"))["templates"].size(),
              2U);
}

TEST(PlayerDialogErrors, TheMouseMayBeLetGoOfWhileAnAlertIsOpen) {
    const Player player;
    player.playToEnd(inEditor(saveAs("a")));
    player.playToEnd(inEditor(saveAs("a") + "print dialog\nanswer no\n"));
    EXPECT_THAT(refusal(player, kEditor + saveAs("a") + "release\n"), HasSubstr("not held"));
}

TEST(PlayerDialogErrors, ComeForPicturesOfWhatIsNotThere) {
    const Player player;
    EXPECT_THAT(refusal(player, "picture dialog d.png\n"), HasSubstr("no dialog is open"));
    EXPECT_THAT(refusal(player, kEditor + "picture item 99 d.png\n"), HasSubstr("the dialog has no item 99"));
    EXPECT_THAT(refusal(player, kEditor + "picture dialog nowhere/d.png\n"), HasSubstr("nowhere/d.png"));
    EXPECT_THAT(refusal(player, kEditor + "set 99 \"x\"\n"), HasSubstr("99"));
    EXPECT_THAT(refusal(player, kEditor + "hit 99\n"), HasSubstr("99"));
    player.playToEnd(kEditor + "picture dialog d.png\npicture item 4 i.png\nhit 1\n");
    EXPECT_TRUE(contentOf(player.folder() / "d.png").starts_with("\x89PNG"));
    EXPECT_LT(std::filesystem::file_size(player.folder() / "i.png"),
              std::filesystem::file_size(player.folder() / "d.png"));
}

} // namespace
