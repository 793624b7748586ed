// The commands of the gradient menu on fills and strokes, with their way through undo and a saved file.
#include "tests/scenario/Player.h"

#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using tests::Played;
using tests::Player;
using tests::writeContent;

const char* const kStroked =
    "<svg xmlns='http://www.w3.org/2000/svg' width='90' height='90'><linearGradient id='g' "
    "gradientUnits='userSpaceOnUse' x1='8' x2='82'><stop stop-color='red'/>"
    "<stop offset='1' stop-color='blue' stop-opacity='.5'/></linearGradient>"
    "<line id='a' x1='10' y1='9' x2='80' y2='9' stroke='url(#g)' stroke-width='4'/>"
    "<rect id='b' y='30' width='20' height='20' fill='lime' stroke='red'/></svg>";

TEST(StrokeChanges, AreOneStepEachAndComeBackFromTheFile) {
    const Player player;
    writeContent(player.folder() / "stroked.svg", kStroked);
    const Played played = player.playToEnd(R"(
open stroked.svg
change stroke a reverse
print stroke a
change stroke b like stroke a
print window
undo
redo
save saved.svg
open saved.svg
print stroke a
print stroke b
print object b
)");
    const std::vector<json> strokes = played.all("gradient");
    ASSERT_EQ(strokes.size(), 4U);
    EXPECT_EQ(played["window"]["undoLevels"], 2);
    for (int i = 0; i < 3; ++i) {
        const json stops = strokes[static_cast<std::size_t>(i)]["stops"];
        EXPECT_EQ(stops.front(), json({0.0, 0, 0, 65535})) << i;
        EXPECT_EQ(stops.back(), json({1.0, 65535, 0, 0})) << i;
        EXPECT_EQ(strokes[static_cast<std::size_t>(i)]["opacity"], json({{0.0, 0.5}, {1.0, 1.0}})) << i;
    }
    EXPECT_EQ(strokes[3], nullptr) << "its fill is still plain";
}

TEST(StrokeChanges, NeedAStroke) {
    EXPECT_EQ(Player().play("new 9 9\nadd rect r 0 0 5 5\nchange stroke r reverse\n").exitCode, 2);
    EXPECT_EQ(Player().play("new 9 9\nadd line l 0 0 5 5\nchange fill l reverse\n").exitCode, 2);
    EXPECT_EQ(Player().play("new 9 9\nadd line l 0 0 5 5\nchange stroke l wave\n").exitCode, 2);
}

} // namespace
