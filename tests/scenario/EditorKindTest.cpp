// Kind, direction and centre in the editor.
#include "tests/scenario/Editor.h"
#include "tests/support/Picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using nlohmann::json;
using namespace tests;

const std::string kLinearGradient = "1 30 0.25 0.5 0.75 0.5 0:0,0,0 1:65535,65535,65535";
const std::string kRadialGradient = "2 30 0.25 0.5 0.75 0.5 0:0,0,0 1:65535,65535,65535";
const std::string kOddGradient = "7 30 0.25 0.5 0.75 0.5 0:0,0,0 1:65535,65535,65535";

// The preview is 400 by 176 pixels.
constexpr double kPreviewWidth = 400;
constexpr double kPreviewHeight = 176;

json shownKinds(const std::string& gradient, const std::string& script) {
    return {itemAfter(gradient, script, kLinear)["value"], itemAfter(gradient, script, kRadial)["value"]};
}

TEST(EditorKind, ShowsTheKindOfTheGradient) {
    EXPECT_EQ(shownKinds(kLinearGradient, ""), json({1, 0}));
    EXPECT_EQ(shownKinds(kRadialGradient, ""), json({0, 1}));
}

TEST(EditorKind, AnyOtherKindShowsNeitherUntilOneIsChosen) {
    EXPECT_EQ(shownKinds(kOddGradient, ""), json({0, 0}));
    EXPECT_EQ(shownKinds(kOddGradient, "hit 10\n"), json({1, 0}));
    EXPECT_EQ(shownKinds(kOddGradient, "hit 11\n"), json({0, 1}));
    EXPECT_EQ(gradientAfter(kOddGradient, "")["type"], 7) << "and is kept";
    EXPECT_EQ(gradientAfter(kOddGradient, "hit 10\n")["type"], 1);
    EXPECT_EQ(gradientAfter(kOddGradient, "hit 11\n")["type"], 2);
}

TEST(EditorKind, ChoosingTheKindThatItIsAlreadyStillMarksTheSwatches) {
    const Played played = playWithTool(openEditorOn(kLinearGradient) +
                                       "journal on\nhit 10\nprint journal\nhit 1\nprint object r\n");
    const json journal = played["journal"];
    const std::vector<std::string> first(journal.begin(), journal.begin() + 6);
    EXPECT_THAT(first,
                testing::ElementsAre("SetItemCtlValue(10, 1)", "SetItemCtlValue(11, 0)", "InvalDLogItem(4)",
                                     "InvalDLogItem(7)", "InvalDLogItem(6)", "ModalDialog()"));
    EXPECT_EQ(played["gradient"]["type"], 1);
    const json other =
        playWithTool(openEditorOn(kLinearGradient) + "journal on\nhit 11\nprint journal\nhit 2\n")["journal"];
    EXPECT_EQ(other[0], "SetItemCtlValue(10, 0)");
    EXPECT_EQ(other[1], "SetItemCtlValue(11, 1)");
}

TEST(EditorKind, SwitchingThereAndBackLeavesAngleAndCentreAsTheyWere) {
    for (const std::string& gradient : {kLinearGradient, kRadialGradient}) {
        const json there = gradientAfter(gradient, "hit 11\nhit 10\nhit 11\n");
        EXPECT_EQ(there["angle"], 30.0);
        EXPECT_EQ(there["start"], json({0.25, 0.5}));
        EXPECT_EQ(there["end"], json({0.75, 0.5}));
    }
}

TEST(EditorKind, ADragInThePreviewOfALinearGradientGivesTheNegatedAngleOfItsLine) {
    for (const auto& [dh, dv] :
         {std::pair{60, 25}, {-60, 25}, {60, -25}, {0, 40}, {0, -40}, {40, 0}, {-40, 0}}) {
        const std::string to = std::to_string(200 + dh) + " " + std::to_string(88 + dv);
        const json after = gradientAfter(kLinearGradient, "drag item 7 200 88 " + to + "\n");
        const double expected = -std::atan2(dv, dh) * 180 / std::numbers::pi;
        EXPECT_EQ(after["angle"].get<float>(), static_cast<float>(expected)) << to;
        EXPECT_EQ(after["start"], json({0.25, 0.5})) << "nothing else changes";
        EXPECT_EQ(after["end"], json({0.75, 0.5}));
    }
}

TEST(EditorKind, TheSameLineGivesTheSameAngleInThePreviewAndOnTheCanvas) {
    for (const std::string line : {"10 20 90 75", "90 75 10 20", "60 10 31 80", "20 80 70 13"}) {
        const json inEditor = gradientAfter(kLinearGradient, "drag item 7 " + line + "\n")["angle"];
        const json onCanvas = playWithTool("add rect r 5 5 200 100\ngradient r " + kLinearGradient +
                                           "\ndrag " + line + "\nprint object r\n")["gradient"]["angle"];
        EXPECT_EQ(inEditor, onCanvas) << line;
    }
}

TEST(EditorKind, APressWithoutAMoveInALinearPreviewSetsTheAngleOfALineOfNoLength) {
    EXPECT_EQ(gradientAfter(kLinearGradient, "click item 7 50 50\n")["angle"], 0.0);
}

TEST(EditorKind, ShiftConstrainsTheLineToMultiplesOfFifteenDegrees) {
    for (const auto& [to, degrees] :
         {std::pair{"280 60", -15}, {"280 90", 0}, {"210 150", 75}, {"130 168", 135}}) {
        const std::string drag = "key shift down\ndrag item 7 200 88 " + std::string(to) + "\nkey shift up\n";
        EXPECT_NEAR(gradientAfter(kLinearGradient, drag)["angle"].get<double>(), -degrees, 1e-4) << to;
    }
}

TEST(EditorKind, SnappingIsOffWhileTheLineIsDraggedAndThenAsItWas) {
    for (const std::string grid : {"on", "off"})
        for (const std::string object : {"on", "off"}) {
            const Played played = playWithTool(
                "snap grid " + grid + "\nsnap object " + object + "\n" + openEditorOn(kLinearGradient) +
                "press item 7 50 50\nmove item 7 90 60\nprint window\nkey shift down\n" +
                "move item 7 95 60\nrelease\nkey shift up\nprint window\nhit 2\n");
            const json during = played.all("window")[0];
            EXPECT_EQ(during["gridSnap"], false);
            EXPECT_EQ(during["objectSnap"], false);
            EXPECT_EQ(played["window"]["gridSnap"], grid == "on");
            EXPECT_EQ(played["window"]["objectSnap"], object == "on");
        }
}

json centreAfter(const std::string& gradient, const std::string& script) {
    const json after = gradientAfter(gradient, script);
    EXPECT_EQ(after["start"], after["end"]);
    return after["start"];
}

TEST(EditorKind, APressInARadialPreviewSetsTheCentreAsFractionsOfThePreview) {
    EXPECT_EQ(centreAfter(kRadialGradient, "click item 7 0 0\n"), json({0.0, 0.0}));
    EXPECT_EQ(centreAfter(kRadialGradient, "drag item 7 10 10 400 176\n"), json({1.0, 1.0}));
    EXPECT_EQ(centreAfter(kRadialGradient, "click item 7 100 44\n"), json({0.25, 0.25}));
    EXPECT_EQ(gradientAfter(kRadialGradient, "click item 7 100 44\n")["angle"], 30.0);
}

TEST(EditorKind, BeyondThePreviewTheCentreLiesBeyondTheShape) {
    EXPECT_EQ(centreAfter(kRadialGradient, "drag item 7 10 10 -40 500\n"),
              json({-40 / kPreviewWidth, 500 / kPreviewHeight}));
}

TEST(EditorKind, AnyOtherKindIsTreatedAsRadialByAPressInThePreview) {
    EXPECT_EQ(centreAfter(kOddGradient, "click item 7 100 44\n"), json({0.25, 0.25}));
    EXPECT_EQ(gradientAfter(kOddGradient, "click item 7 100 44\n")["type"], 7);
}

TEST(EditorKind, DuringARadialPressThePreviewIsOnlyMarkedAndDrawnAfterTheRelease) {
    const Player player;
    const Played played =
        player.playToEnd("new 400 300\nstart\n" + openEditorOn(kRadialGradient) +
                         "picture item 7 before.png\npress item 7 10 10\nmove item 7 20 20\n"
                         "print dialog\npicture item 7 during.png\nrelease\nprint dialog\n"
                         "picture item 7 after.png\nhit 2\n");
    EXPECT_EQ(itemOf(played.all("dialog")[0], kPreview)["invalid"], true);
    EXPECT_EQ(itemOf(played.all("dialog")[0], kRamp)["invalid"], false);
    EXPECT_EQ(itemOf(played.all("dialog")[1], kPreview)["invalid"], false);
    const Picture before(player.folder() / "before.png");
    EXPECT_EQ(Picture(player.folder() / "during.png"), before);
    EXPECT_FALSE(Picture(player.folder() / "after.png") == before);
}

// The line is on the screen while the host waits for the mouse to leave the point that it is drawn to, so the
// mouse arrives there twice.
TEST(EditorKind, TheRubberBandInvertsThePreviewAndLeavesNoTrace) {
    const Player player;
    player.playToEnd(
        "new 400 300\nstart\n" + openEditorOn(kLinearGradient) +
        "picture item 7 before.png\npress item 7 20 100\nmove item 7 60 100\nmove item 7 60 100\n"
        "picture item 7 line.png\nmove item 7 20 100\npicture item 7 erased.png\nrelease\nhit 2\n");
    const Picture before(player.folder() / "before.png");
    const Picture line(player.folder() / "line.png");
    EXPECT_EQ(Picture(player.folder() / "erased.png"), before);
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x) {
            const bool onLine = y == 100 && x >= 20 && x <= 60;
            ASSERT_EQ(line.at(x, y), onLine ? before.at(x, y) ^ 0xffffff : before.at(x, y)) << x << ' ' << y;
        }
}

TEST(EditorKind, TheRubberBandStaysWithinThePreview) {
    const Player player;
    player.playToEnd(
        "new 400 300\nstart\n" + openEditorOn(kLinearGradient) +
        "picture dialog before.png\npress item 7 20 100\nmove item 7 20 210\nmove item 7 20 210\n"
        "picture dialog line.png\nmove item 7 20 100\nrelease\nhit 2\n");
    const Picture before(player.folder() / "before.png");
    const Picture line(player.folder() / "line.png");
    // The preview lies from (24, 72) to (424, 248) in the dialog.
    EXPECT_EQ(line.at(44, 247), before.at(44, 247) ^ 0xffffff);
    EXPECT_EQ(line.at(44, 248), before.at(44, 248));
    EXPECT_EQ(line.at(44, 270), before.at(44, 270)) << "the ramp below keeps its pixels";
}

} // namespace
