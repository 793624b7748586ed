// How the plug-in registers its tool, and what its messages do.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using tests::Played;
using tests::Player;

TEST(Registration, StartUpAddsOneNamedToolWithItsCallbacks) {
    const Played played = Player().playToEnd("start\nprint palette\n");
    const json tools = played["palette"];
    ASSERT_EQ(tools.size(), 1u);
    EXPECT_EQ(tools[0]["element"], json({5100, 0, 13, 2, 1}));
    EXPECT_EQ(tools[0]["nameCode"], 1024);
    EXPECT_EQ(tools[0]["flags"], json::array({0}));
    EXPECT_EQ(tools[0]["methods"],
              json({"host", "plugin", "none", "plugin", "none", "host", "host", "plugin"}));
    EXPECT_NE(tools[0]["name"], "");
}

TEST(Registration, CallsTheHostInTheOrderOfTheSteps) {
    const Played played = Player().playToEnd("message 0\njournal on\nstart\nprint palette\nprint journal\n");
    const json tool = played["palette"][0];
    const std::string named =
        "AddXTNLToolName(1024, " + tool["tool"].dump() + ", " + tool["name"].dump() + ")";
    const json journal = played["journal"];
    const std::vector<std::string> first(
        journal.begin(), journal.begin() + std::min<long>(7, static_cast<long>(journal.size())));
    EXPECT_THAT(first, testing::ElementsAre("GetIndString(5000, 1)", "GetTPaletteFromWindowRef()",
                                            "AddTool()", named, "GetTool(" + tool["tool"].dump() + ")",
                                            "ToolRec::ToolMethods()", "ToolRec::SetToolFlag(0, true)"));
    // The defaults are read after the tool is there, the template folder's name after the defaults.
    const auto positionOf = [&](const std::string& call) {
        return std::find_if(journal.begin(), journal.end(),
                            [&](const json& line) { return line.get<std::string>().starts_with(call); });
    };
    EXPECT_LT(positionOf("ToolRec::SetToolFlag"), positionOf("GetDefaultsResource"));
    EXPECT_LT(positionOf("GetDefaultsResource"), positionOf("GetIndString(5000, 2)"));
    EXPECT_NE(positionOf("GetIndString(5000, 2)"), journal.end());
}

TEST(Messages, OthersThanStartUpAndShutDownDoNothingAndAnswerZero) {
    const Played played = Player().playToEnd(R"(
message 0
message 3
message -1
message 32767
message -32768
print palette
)");
    EXPECT_EQ(played.all("message").size(), 5u);
    EXPECT_EQ(played.all("result"), std::vector<json>(5, json(0)));
    EXPECT_EQ(played["palette"], json::array());
}

TEST(Messages, OthersCallNothingOfTheHost) {
    const Played played = Player().playToEnd("message 0\njournal on\nmessage 3\nmessage -7\nprint journal\n");
    EXPECT_EQ(played["journal"], json::array());
}

TEST(Messages, StartUpAndShutDownAnswerZero) {
    const Played played = Player().playToEnd("message 1\nmessage 2\n");
    ASSERT_EQ(played.answers.size(), 2u);
    EXPECT_EQ(played.answers[0], json({{"message", 1}, {"result", 0}}));
    EXPECT_EQ(played.answers[1], json({{"message", 2}, {"result", 0}}));
}

TEST(Cursor, IsChosenAfreshFromTheOptionKeyOnEachCall) {
    const Played played = tests::playWithTool(R"(
print window
cursor
print window
key option down
cursor
print window
key option up
print window
cursor
print window
)");
    std::vector<json> cursors;
    for (const json& window : played.all("window"))
        cursors.push_back(window["cursor"]);
    EXPECT_THAT(cursors, testing::ElementsAre(nullptr, 606, 5000, 5000, 606));
}

TEST(Cursor, ShiftMakesNoDifference) {
    EXPECT_EQ(tests::playWithTool("key shift down\ncursor\nprint window\n")["window"]["cursor"], 606);
}

TEST(Quit, UnloadsThePlugInAndStartLoadsItAnew) {
    const Played played = Player().playToEnd("start\nquit\nprint palette\nstart\nprint palette\n");
    const auto palettes = played.all("palette");
    ASSERT_EQ(palettes.size(), 2u);
    EXPECT_EQ(palettes[0].size(), 0u);
    EXPECT_EQ(palettes[1].size(), 1u);
}

TEST(Quit, LeavesTheGradientsOnTheObjects) {
    const Played played = tests::playWithTool(R"(
add rect r 10 10 100 50
click 50 20
print object r
quit
print object r
undo
redo
start
print object r
drag 20 20 60 20
print object r
)");
    const auto gradients = played.all("gradient");
    ASSERT_EQ(gradients.size(), 4u);
    EXPECT_EQ(gradients[1], gradients[0]);
    EXPECT_EQ(gradients[2], gradients[0]);
    EXPECT_EQ(gradients[3]["stops"], gradients[0]["stops"]);
}

} // namespace
