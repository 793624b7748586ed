// Clicks on the drawing with the gradient tool.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using tests::Played;
using tests::playWithTool;

constexpr const char* kShapes = R"(
add rect r 10 10 100 50
add rect linear 10 100 100 50
gradient linear 1 30 0.5 0.5 0.5 0.5 0:65535,0,0 1:0,0,65535
add rect radial 200 100 100 50
gradient radial 2 15 0.25 0.75 0.5 0.5 0:65535,0,0 1:0,0,65535
add line open 300 20 380 20
)";

Played clickOn(const std::string& script) {
    return playWithTool(kShapes + script);
}

TEST(CanvasClick, GivesAnObjectWithoutGradientTheCurrentOneAndASolidBlackPattern) {
    const Played played = clickOn("print object r\nclick 50 30\nprint object r\n");
    ASSERT_EQ(played.answers.size(), 2u);
    EXPECT_EQ(played.answers[0]["fillPattern"], "none");
    EXPECT_EQ(played.answers[0]["gradient"], nullptr);
    const json& after = played.answers[1];
    EXPECT_EQ(after["fillPattern"], "solid-black");
    EXPECT_EQ(after["gradient"]["type"], 1);
    EXPECT_EQ(after["gradient"]["angle"], 0.0);
    EXPECT_EQ(after["gradient"]["start"], json({0.5, 0.5}));
    EXPECT_EQ(after["gradient"]["end"], json({0.5, 0.5}));
    EXPECT_EQ(after["gradient"]["stops"], json({{0.0, 0, 0, 0}, {1.0, 65535, 65535, 65535}}));
}

TEST(CanvasClick, LeavesALinearGradientAsItWasYetReplacesAndSelectsTheObject) {
    const Played played = clickOn(
        "print object linear\njournal on\nclick 50 120\nprint object linear\nprint window\nprint journal\n");
    EXPECT_EQ(played.answers[1], played.answers[0]);
    const json window = played["window"];
    EXPECT_EQ(window["selection"], json::array({"linear"}));
    EXPECT_EQ(window["undoKind"], 3);
    EXPECT_EQ(window["undoLevels"], 1);
    EXPECT_EQ(window["beeps"], 0);
    const json journal = played["journal"];
    const std::vector<std::string> last(journal.end() - 5, journal.end());
    EXPECT_THAT(last, testing::ElementsAre("DeleteUObj(1)", "InsertObj(1)", "SelObject(1)",
                                           "DWindow::InvalSelection()", "SetSelDescrim()"));
}

TEST(CanvasClick, MovesStartAndEndOfAnyOtherGradientToTheClickedPoint) {
    const Played played = clickOn("print object radial\nclick 225 125\nprint object radial\n");
    json expected = played.answers[0]["gradient"];
    expected["start"] = {0.25, 0.5};
    expected["end"] = {0.25, 0.5};
    expected["resource"] = 2;
    EXPECT_EQ(played.answers[1]["gradient"], expected);
    EXPECT_EQ(played.answers[1]["fillPattern"], "solid-black");
}

TEST(CanvasClick, OnEmptyCanvasBeepsOnceAndLeavesNothingSelected) {
    const Played played = clickOn("click 50 30\nprint window\nclick 390 290\nprint window\n");
    const auto windows = played.all("window");
    EXPECT_EQ(windows[0]["selection"], json::array({"r"}));
    EXPECT_EQ(windows[1]["selection"], json::array());
    EXPECT_EQ(windows[1]["beeps"], 1);
    EXPECT_EQ(windows[1]["undoLevels"], 1);
    EXPECT_EQ(windows[1]["undoKind"], 3);
}

TEST(CanvasClick, WithACancelledEditorChangesNothingYetCountsAsHandled) {
    const Played played = clickOn("click 225 125\nprint object linear\nkey option down\nclick 50 120\nhit 2\n"
                                  "key option up\nprint object linear\nprint window\n");
    EXPECT_EQ(played.answers[1], played.answers[0]);
    EXPECT_EQ(played["window"]["selection"], json::array()) << "deselected before the editor opened";
    EXPECT_EQ(played["window"]["undoLevels"], 1) << "that of the first click";
    EXPECT_EQ(played["window"]["beeps"], 0);
}

TEST(CanvasClick, OnAnOpenObjectBeeps) {
    const Played played = clickOn("click 340 20\nprint object open\nprint window\n");
    EXPECT_EQ(played["gradient"], nullptr);
    EXPECT_EQ(played["window"]["beeps"], 1);
}

TEST(CanvasClick, RestoresThePickFilterWhateverTheOutcome) {
    const Played played = clickOn(R"(
filter line ellipse
click 50 30
print window
click 390 290
print window
filter none
drag 50 120 80 140
print window
filter all
click 225 125
print window
filter rect
key option down
click 50 30
hit 2
print window
click 50 30
hit 1
print window
)");
    std::vector<json> filters;
    for (const json& window : played.all("window"))
        filters.push_back(window["pickFilter"]);
    const json all = {"rect", "ellipse", "polygon", "path", "polyline", "line"};
    EXPECT_THAT(filters, testing::ElementsAre(json({"ellipse", "line"}), json({"ellipse", "line"}),
                                              json::array(), all, json({"rect"}), json({"rect"})));
}

TEST(CanvasClick, PicksTheFrontMostObjectAndKeepsItsPlace) {
    const Played played = playWithTool(R"(
add rect back 10 10 100 100
add rect middle 50 50 100 100
add line above 50 50 150 150
add rect front 300 200 50 50
click 70 60
print window
print object back
print object middle
)");
    EXPECT_EQ(played["window"]["objects"], json({"back", "middle", "above", "front"}));
    const auto gradients = played.all("gradient");
    EXPECT_EQ(gradients[0], nullptr);
    EXPECT_NE(gradients[1], nullptr);
}

TEST(CanvasClick, MeansAnObjectWithinThreePixelsOfItsOutline) {
    const auto beepsAt = [](const std::string& point) {
        return playWithTool("add rect r 100 100 50 50\nclick " + point +
                            "\nprint window\n")["window"]["beeps"];
    };
    EXPECT_EQ(beepsAt("97 120"), 0);
    EXPECT_EQ(beepsAt("96.9 120"), 1);
    EXPECT_EQ(beepsAt("120 153"), 0);
    EXPECT_EQ(beepsAt("120 153.1"), 1);
}

TEST(CanvasClick, MissesTheHoleOfACompoundPath) {
    const std::string ring = "add path ring \"M 20 20 H 120 V 120 H 20 Z M 50 50 V 90 H 90 V 50 Z\"\n";
    const Played played =
        playWithTool(ring + "click 70 70\nprint object ring\nclick 30 70\nprint object ring\nprint window\n");
    const auto gradients = played.all("gradient");
    EXPECT_EQ(gradients[0], nullptr);
    EXPECT_NE(gradients[1], nullptr);
    EXPECT_EQ(played["window"]["beeps"], 1);
}

TEST(CanvasClick, ObjectThatIsNoPolygonKeepsItsGradientYetIsReplacedAndSelected) {
    // A path there and back again has an outline to click on but no inside.
    const Played played = playWithTool(R"(
add path flat "M 50 50 H 150 Z"
gradient flat 2 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535
print object flat
click 60 50
print object flat
print window
)");
    EXPECT_EQ(played.answers[1], played.answers[0]);
    EXPECT_EQ(played["window"]["selection"], json::array({"flat"}));
    EXPECT_EQ(played["window"]["undoLevels"], 1);
}

TEST(CanvasClick, CallsTheHostInTheOrderOfTheSteps) {
    const Played played = clickOn("journal on\nclick 50 30\nprint journal\n");
    EXPECT_THAT(played["journal"].get<std::vector<std::string>>(),
                testing::ElementsAre(
                    "StGrafPortSaver()", "DWindow::GetMacPort()", "QD::SetPort()", "DWindow::UnselectAll()",
                    "DWindow::SetUndo(3)", "GetSelDescrim()", "SetSelDescrim()", "SetOneSelDescrim(1)",
                    "SetOneSelDescrim(2)", "SetOneSelDescrim(3)", "SetOneSelDescrim(4)", "PickObj()",
                    "TessObject::WhatObject()", "IsGradientCapable(1)", "CloneItem()", "NorvU::KeyIsDown(58)",
                    "TessObject::GetGradient()", "kBlackPat()", "TessObject::SetFillPattern()",
                    "TessObject::SetGradient()", "DeleteUObj(0)", "InsertObj(0)", "SelObject(0)",
                    "DWindow::InvalSelection()", "SetSelDescrim()"));
}

TEST(CanvasClick, OnEmptyCanvasCallsTheHostInTheOrderOfTheSteps) {
    const Played played = clickOn("journal on\nclick 390 290\nprint journal\n");
    EXPECT_THAT(played["journal"].get<std::vector<std::string>>(),
                testing::ElementsAre("StGrafPortSaver()", "DWindow::GetMacPort()", "QD::SetPort()",
                                     "DWindow::UnselectAll()", "DWindow::SetUndo(3)", "GetSelDescrim()",
                                     "SetSelDescrim()", "SetOneSelDescrim(1)", "SetOneSelDescrim(2)",
                                     "SetOneSelDescrim(3)", "SetOneSelDescrim(4)", "PickObj()",
                                     "SetSelDescrim()", "SysBeep(1)"));
}

TEST(CanvasClick, IsUndoneAndRedoneAsOneStepWithOrderAndSelection) {
    const Played played = clickOn(R"(
click 225 125
click 50 30
print window
undo
print window
print object r
redo
print window
print object r
)");
    const auto windows = played.all("window");
    EXPECT_EQ(windows[0]["undoLevels"], 2);
    EXPECT_EQ(windows[1]["undoLevels"], 1);
    EXPECT_EQ(windows[1]["redoLevels"], 1);
    EXPECT_EQ(windows[1]["objects"], windows[0]["objects"]);
    EXPECT_EQ(windows[2]["selection"], windows[0]["selection"]);
    const auto gradients = played.all("gradient");
    EXPECT_EQ(gradients[0], nullptr);
    EXPECT_NE(gradients[1], nullptr);
}

} // namespace
