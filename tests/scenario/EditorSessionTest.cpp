// Opening, confirming and cancelling the editor.
#include "tests/scenario/Editor.h"
#include "tests/scenario/PluginCopy.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

using nlohmann::json;
using namespace tests;

// Something of everything that can be edited.
const std::string kManyEdits =
    "click item 4 106 10\nset 5 \"12.5\"\nhit 6\ncolor 1 2 3\nhit 11\nclick item 7 10 10\n"
    "drag item 4 206 10 300 10\nset 5 \"999\"\n";

TEST(EditorSession, CancelLeavesTheObjectExactlyAsItWas) {
    const Played played = playWithTool("add rect r 100 50 200 100\ngradient r " + kThreeStops +
                                       "\nprint object r\nkey option down\nclick 150 100\nkey option up\n" +
                                       kManyEdits + "hit 2\nprint object r\nprint window\n");
    EXPECT_EQ(played.answers[1], played.answers[0]) << "the very same gradient";
    EXPECT_EQ(played["window"]["undoLevels"], 0);
}

TEST(EditorSession, AScenarioMeetsTheSameTextsWhateverTheUsersLanguageIs) {
    setenv("LANGUAGE", "de", 1);
    setenv("LC_ALL", "de_DE.UTF-8", 1);
    const Played played = playWithTool(openEditorOn(kThreeStops) + "print dialog\nhit 2\n");
    unsetenv("LANGUAGE");
    unsetenv("LC_ALL");
    EXPECT_EQ(played["dialog"]["items"][1]["text"], "Cancel");
    EXPECT_EQ(played["dialog"]["items"][4]["text"], "0.00");
}

TEST(EditorSession, NothingIsChangedBeforeOk) {
    const Played played = playWithTool("add rect r 100 50 200 100\ngradient r " + kThreeStops +
                                       "\nprint object r\nkey option down\nclick 150 100\nkey option up\n" +
                                       kManyEdits + "print object r\nhit 1\nprint object r\n");
    EXPECT_EQ(played.answers[1], played.answers[0]);
    EXPECT_NE(played.answers[2], played.answers[0]);
}

TEST(EditorSession, OkReplacesTheGradientAlsoWhenNothingWasEdited) {
    const Played played =
        playWithTool(openEditorOn(kThreeStops) + "print object r\nhit 1\nprint object r\nprint window\n");
    json after = played["gradient"];
    EXPECT_NE(after["resource"], played.all("gradient")[0]["resource"]) << "a gradient of the plug-in's own";
    after["resource"] = played.all("gradient")[0]["resource"];
    EXPECT_EQ(after, played.all("gradient")[0]);
    EXPECT_EQ(played["window"]["undoLevels"], 1);
    EXPECT_EQ(played["fillPattern"], "solid-black");
}

TEST(EditorSession, AConfirmedEditIsOneStepOfUndo) {
    const Played played = playWithTool(openEditorOn(kThreeStops) + "print object r\n" + kManyEdits +
                                       "hit 1\nundo\nprint object r\nprint window\n");
    EXPECT_EQ(played["gradient"], played.all("gradient")[0]);
    EXPECT_EQ(played["window"]["undoLevels"], 0);
    EXPECT_EQ(played["window"]["redoLevels"], 1);
}

TEST(EditorSession, TheOptionsEditTheCurrentGradientItself) {
    const Played played =
        playWithTool("add rect a 10 10 50 50\nadd rect b 10 110 50 50\noptions\nset 5 \"25\"\nhit 2\n"
                     "click 30 30\noptions\nset 5 \"25\"\nhit 1\nclick 30 130\n"
                     "print object a\nprint object b\n");
    EXPECT_EQ(played.all("gradient")[0]["stops"][0][0], 0.0) << "cancelled";
    EXPECT_EQ(played.all("gradient")[1]["stops"][0][0], 0.25) << "confirmed";
}

TEST(EditorSession, AnObjectWithoutGradientIsEditedStartingFromTheCurrentOne) {
    // A current gradient that is not the default one.
    const Played played =
        playWithTool("add rect a 10 10 50 50\noptions\nhit 11\nset 5 \"50\"\nhit 1\n"
                     "key option down\nclick 30 30\nkey option up\nprint dialog\nhit 1\nprint object a\n");
    EXPECT_EQ(itemOf(played["dialog"], kPosition)["text"], "50.00");
    EXPECT_EQ(itemOf(played["dialog"], kRadial)["value"], 1);
    EXPECT_EQ(played["fillPattern"], "solid-black");
    EXPECT_EQ(played["gradient"]["type"], 2);
    EXPECT_EQ(played["gradient"]["stops"], json({{0.5, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
}

TEST(EditorSession, EditingAnObjectLeavesTheCurrentGradientAsItWas) {
    const Played played =
        playWithTool("add rect a 10 10 50 50\nadd rect b 110 10 50 50\nadd rect c 210 10 50 50\n"
                     "gradient c " +
                     kThreeStops +
                     "\noptions\nset 5 \"50\"\nhit 1\nkey option down\n"
                     "click 30 30\nset 5 \"25\"\nhit 11\nhit 1\n"
                     "click 230 30\nset 5 \"10\"\nhit 1\n"
                     "key option up\nclick 130 30\nprint object a\nprint object b\n");
    EXPECT_EQ(played.all("gradient")[0]["stops"][0][0], 0.25);
    EXPECT_EQ(played.all("gradient")[1]["stops"], json({{0.5, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
    EXPECT_EQ(played.all("gradient")[1]["type"], 1);
}

TEST(EditorSession, OpensOnTheFirstStopInTheOrderOfTheList) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.75:3,3,3 0.25:1,1,1";
    EXPECT_EQ(positionAfter(gradient, ""), "75.00");
    const Played played = playWithTool(openEditorOn(gradient) + "hit 6\nprint dialog\ncolor cancel\nhit 2\n");
    EXPECT_EQ(played["dialog"]["color"], json({3, 3, 3}));
}

TEST(EditorSession, OpensWithTheFieldFocusedAndItsTextSelected) {
    const json field = itemAfter(kThreeStops, "", kPosition);
    EXPECT_EQ(field["selection"], json({0, 4}));
    EXPECT_EQ(positionAfter(kThreeStops, "type \"7\"\n"), "7") << "typing replaces it";
}

TEST(EditorSession, ClicksOnTheLabelAndTheSeparatorsChangeNothing) {
    for (const std::string number : {"3", "8", "12"}) {
        const Played played =
            playWithTool(openEditorOn(kThreeStops) + "choose 9 4\nprint dialog\njournal on\nhit " + number +
                         "\nprint dialog\nprint journal\nhit 1\nprint object r\n");
        EXPECT_EQ(played.all("dialog")[1], played.all("dialog")[0]) << number;
        EXPECT_THAT(played["journal"], testing::Each(testing::Eq(json("ModalDialog()")))) << number;
        EXPECT_EQ(played["gradient"]["stops"].size(), 3u);
    }
}

TEST(EditorSession, AColorThatIsPickedIsKeptAtSixteenBits) {
    const Played played =
        playWithTool(openEditorOn(kThreeStops) + "click item 4 206 10\nhit 6\nprint dialog\n" +
                     "color 12345 257 65534\nhit 1\nprint object r\n");
    EXPECT_EQ(played["dialog"]["id"], "color");
    EXPECT_EQ(played["dialog"]["prompt"], "Color of the gradient stop");
    EXPECT_EQ(played["dialog"]["color"], json({65535, 0, 0})) << "the active stop's";
    EXPECT_EQ(played["gradient"]["stops"][1], json({0.5, 12345, 257, 65534}));
}

TEST(EditorSession, ACancelledColorPickerChangesNothing) {
    const Played played =
        playWithTool(openEditorOn(kThreeStops) + "journal on\nhit 6\ncolor cancel\nprint journal\nhit 1\n"
                                                 "print object r\n");
    EXPECT_EQ(played["gradient"]["stops"][0], json({0.0, 0, 0, 0}));
    const json journal = played["journal"];
    EXPECT_THAT(journal, testing::Not(testing::Contains(testing::Eq(json("InvalDLogItem(6)")))));
    EXPECT_THAT(journal, testing::Contains(testing::Eq(json("SetItemCtlValue(9, 4)"))))
        << "the popup is reset anyway";
}

TEST(EditorSession, ADialogThatCannotBeMadeIsACancel) {
    const Player player;
    const PluginCopy plugin(player.folder());
    plugin.replaceInResources("<dialog id=\"5000\"", "<dialog id=\"5001\"");
    Player other;
    other.setPlugin(plugin.module());
    const Played played =
        other.playToEnd("new 400 300\nstart\nadd rect r 100 50 200 100\ngradient r " + kThreeStops +
                        "\nprint object r\nkey option down\nclick 150 100\nkey option up\nprint dialog\n"
                        "options\nprint dialog\nprint object r\nprint window\n");
    EXPECT_EQ(played["dialog"], nullptr);
    EXPECT_EQ(played.all("gradient")[1], played.all("gradient")[0]);
    EXPECT_EQ(played["window"]["undoLevels"], 0);
}

TEST(EditorSession, AScenarioThatFailsInTheEditorCancelsIt) {
    const Player player;
    const Played played =
        player.play("new 400 300\nstart\n" + openEditorOn(kThreeStops) + "set 5 \"40\"\nnonsense\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("scenario.easel:9: "));
}

TEST(EditorSession, AScenarioThatEndsWithTheEditorOpenIsAnError) {
    const Player player;
    const Played played = player.play("new 400 300\nstart\n" + openEditorOn(kThreeStops));
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("dialog is open"));
}

TEST(EditorSession, AScenarioThatEndsInADragInTheEditorIsAnError) {
    for (const std::string press : {"press item 4 206 10\nmove item 4 250 10\n", "press item 7 10 10\n",
                                    "hit 11\npress item 7 10 10\nmove item 7 20 20\n"}) {
        const Played played = Player().play("new 400 300\nstart\n" + openEditorOn(kThreeStops) + press);
        EXPECT_EQ(played.exitCode, 2);
        EXPECT_THAT(played.messages, testing::HasSubstr("the mouse button is held"));
    }
}

TEST(EditorSession, CommandsForDialogsNeedOne) {
    for (const std::string line :
         {"hit 1", "focus 5", "type \"1\"", "erase", "set 5 \"1\"", "choose 9 4", "answer yes",
          "color cancel", "select 1", "command ok", "press item 4 1 1"}) {
        const Played played = Player().play("new 400 300\nstart\n" + line + "\n");
        EXPECT_EQ(played.exitCode, 2) << line;
        EXPECT_THAT(played.messages, testing::HasSubstr("no dialog is open")) << line;
    }
}

TEST(EditorSession, WhatADialogCannotTakeIsAnError) {
    for (const std::string line : {"hit 13", "hit 0", "focus 99", "set 4 \"1\"", "choose 10 1", "choose 9 3",
                                   "choose 9 5", "answer yes", "color cancel", "press item 13 1 1", "undo",
                                   "focus 1\ntype \"1\"", "focus 1\nerase", "quit", "release"}) {
        const Played played = Player().play("new 400 300\nstart\noptions\n" + line + "\n");
        EXPECT_EQ(played.exitCode, 2) << line;
        EXPECT_THAT(played.messages, testing::HasSubstr("scenario.easel:")) << line;
    }
}

TEST(EditorSession, AnEntryThatTheResourcesDisableCannotBeChosen) {
    const Player player;
    const PluginCopy plugin(player.folder());
    plugin.replaceInResources("<entry>Delete Templates", "<entry enabled=\"no\">Delete Templates");
    Player other;
    other.setPlugin(plugin.module());
    const std::string script = "new 400 300\nstart\noptions\nprint dialog\nchoose 9 ";
    const Played refused = other.play(script + "2\n");
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_THAT(refused.messages, testing::HasSubstr("entry 2 of item 9 cannot be chosen"));
    EXPECT_EQ(refused["dialog"]["items"][8]["menu"].size(), 4u) << "it is shown all the same";
    EXPECT_EQ(other.play(script + "4\nhit 2\n").exitCode, 0);
}

TEST(EditorSession, ButtonsAreHitOnlyByAReleaseInsideThem) {
    const Played played =
        playWithTool(openEditorOn(kThreeStops) +
                     "press item 1 5 5\nmove item 1 -20 5\nrelease\nprint dialog\n"
                     "press item 1 5 5\nmove item 1 -20 5\nmove item 1 8 8\nrelease\nprint dialog\n");
    EXPECT_EQ(played.all("dialog")[0]["id"], 5000);
    EXPECT_EQ(played.all("dialog")[1], nullptr);
}

} // namespace
