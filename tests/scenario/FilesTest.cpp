// Opening, changing, undoing and saving drawings.
#include "tests/scenario/Player.h"
#include "tests/support/Picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <sys/resource.h>

namespace {

using nlohmann::json;
using tests::contentOf;
using tests::Played;
using tests::Player;
using tests::writeContent;

const std::string kTwoShapes =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="90" height="90"><rect width="20" height="20"/>)"
    R"(<rect id="b" x="30" width="20" height="20"/></svg>)";

TEST(Files, ObjectsWithoutAnIdAreCalledByTheirIndex) {
    const Player player;
    writeContent(player.folder() / "two.svg", kTwoShapes);
    const Played played =
        player.playToEnd("open two.svg\nprint window\nprint object @0\nprint object @1\nprint object b\n");
    ASSERT_EQ(played.answers.size(), 4u);
    EXPECT_EQ(played["window"]["objects"], json({"@0", "b"}));
    EXPECT_EQ(played.answers[1]["object"], "@0");
    EXPECT_EQ(played.answers[2]["index"], 1);
    EXPECT_EQ(played.answers[3]["index"], 1);
}

TEST(Files, AGradientSurvivesSavingAndOpening) {
    const Player player;
    const Played played = player.playToEnd(R"(
new 300 200
add ellipse e 150 100 80.5 40
gradient e 2 12.5 0.3 0.7 -0.2 1.25 0:65535,0,1 0.30000000000000004:0,12345,0 1:0,0,65535
print object e
print fit e
save e.svg
open e.svg
print object e
print fit e
)");
    ASSERT_EQ(played.answers.size(), 4u);
    EXPECT_EQ(played.answers[2], played.answers[0]);
    EXPECT_EQ(played.answers[3], played.answers[1]);
}

TEST(Files, APathThatIsNeitherClosedNorFilledTakesNoGradient) {
    const Player player;
    writeContent(player.folder() / "paths.svg",
                 R"(<svg xmlns="http://www.w3.org/2000/svg" width="300" height="90">)"
                 R"(<path id="open" d="M 10 10 C 40 10 40 60 10 60" fill="none" stroke="black"/>)"
                 R"(<path id="closed" d="M 110 10 C 140 10 140 60 110 60 Z" fill="none" stroke="black"/>)"
                 R"(<path id="filled" d="M 210 10 C 240 10 240 60 210 60" fill="red"/></svg>)");
    const Played played = player.playToEnd(R"(
open paths.svg
start
click 20 30
click 120 30
click 220 30
print object open
print object closed
print object filled
print window
)");
    EXPECT_EQ(played["window"]["beeps"], 1);
    EXPECT_EQ(played.answers[0]["gradient"], nullptr);
    EXPECT_NE(played.answers[1]["gradient"], nullptr);
    EXPECT_NE(played.answers[2]["gradient"], nullptr);
}

TEST(Files, SavingMakesADrawingClean) {
    const Player player;
    const Played played = player.playToEnd(R"(
new 300 200
start
print window
add rect r 10 10 50 50
click 20 20
print window
save r.svg
print window
undo
print window
redo
print window
)");
    std::vector<json> dirty;
    for (const json& window : played.all("window"))
        dirty.push_back(window["dirty"]);
    EXPECT_THAT(dirty, testing::ElementsAre(false, true, false, true, false));
}

TEST(Files, ThatCannotBeOpenedAreErrorsThatNameFileAndReason) {
    const Player player;
    writeContent(player.folder() / "text.svg", "not a drawing");
    for (const std::string name : {"missing.svg", "text.svg", "."}) {
        const Played played = player.play("open " + name + "\n");
        EXPECT_EQ(played.exitCode, 2);
        EXPECT_THAT(played.messages, testing::StartsWith("scenario.easel:1: "));
        EXPECT_THAT(played.messages,
                    testing::HasSubstr(name == "." ? player.folder().filename().string() : name));
    }
}

TEST(Files, ThatCannotBeSavedAreErrorsThatNameTheFile) {
    const Player player;
    const Played played = player.play("new 9 9\nadd rect r 1 1 2 2\nsave no/such/folder/r.svg\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("r.svg"));
}

TEST(Files, ExportsInTheFormatThatTheEndingNames) {
    const Player player;
    player.playToEnd("new 40 30\nadd rect r 5 5 20 20\ngradient r 1 0 0 0 1 1 0:65535,0,0 1:65535,0,0\n"
                     "export r.png\nexport r.pdf\nexport r.svg\n");
    const tests::Picture picture(player.folder() / "r.png");
    EXPECT_EQ(picture.width(), 40);
    EXPECT_EQ(picture.height(), 30);
    EXPECT_EQ(picture.at(10, 10), 0xff0000u);
    EXPECT_THAT(contentOf(player.folder() / "r.pdf"), testing::StartsWith("%PDF-"));
    EXPECT_THAT(contentOf(player.folder() / "r.svg"), testing::HasSubstr("<svg"));
}

TEST(Files, OfAnEndingThatIsNoPictureAreNotExported) {
    const Player player;
    const Played played = player.play("new 40 30\nexport r.gif\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("r.gif"));
    EXPECT_FALSE(std::filesystem::exists(player.folder() / "r.gif"));
}

// A click or a drag at random places, as lines of a scenario.
std::string randomEdits(std::mt19937& random, int count) {
    std::uniform_real_distribution<double> h(0, 640);
    std::uniform_real_distribution<double> v(0, 480);
    std::ostringstream edits;
    for (int i = 0; i < count; ++i) {
        edits << (i % 2 == 0 ? "click " : "drag ") << h(random) << ' ' << v(random);
        if (i % 2 != 0)
            edits << ' ' << h(random) << ' ' << v(random);
        edits << '\n';
    }
    return edits.str();
}

TEST(Undo, ThenRedoOfRandomEditsRestoresTheDrawingByteForByte) {
    std::mt19937 random(11);
    const std::string sample = std::string(SOURCE_DIR) + "/samples/practice.svg";
    const Player player;
    for (int round = 0; round < 5; ++round) {
        constexpr int kEdits = 40;
        std::string script = "open \"" + sample + "\"\nstart\n" + randomEdits(random, kEdits) +
                             "save edited.svg\nprint window\n";
        for (int i = 0; i < kEdits; ++i)
            script += "undo\n";
        script += "save undone.svg\nprint window\n";
        for (int i = 0; i < kEdits; ++i)
            script += "redo\n";
        script += "save redone.svg\nprint window\n";
        const Played played = player.playToEnd(script);
        EXPECT_EQ(contentOf(player.folder() / "undone.svg"), contentOf(sample));
        EXPECT_EQ(contentOf(player.folder() / "redone.svg"), contentOf(player.folder() / "edited.svg"));
        EXPECT_NE(contentOf(player.folder() / "redone.svg"), contentOf(sample));
        const auto windows = played.all("window");
        EXPECT_EQ(windows[1]["undoLevels"], 0);
        EXPECT_EQ(windows[1]["redoLevels"], windows[0]["undoLevels"]);
        EXPECT_EQ(windows[2]["undoLevels"], windows[0]["undoLevels"]);
        EXPECT_EQ(windows[2]["objects"], windows[0]["objects"]);
        EXPECT_GT(windows[0]["undoLevels"], 5);
    }
}

TEST(Files, ALimitOnFileSizesEndsASaveWithAMessageThatNamesTheFile) {
    const Player player;
    writeContent(player.folder() / "two.svg", kTwoShapes);
    writeContent(player.folder() / "s.easel", "start\nopen two.svg\nclick 5 5\nsave two.svg\n");
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{100, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    const Played played = player.run({"play", "s.easel", "--plugin", GRADIENT_MODULE});
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(played.exitCode, 2) << "and no signal's number";
    EXPECT_THAT(played.messages, testing::HasSubstr("two.svg: File too large"));
    EXPECT_EQ(contentOf(player.folder() / "two.svg"), kTwoShapes);
}

} // namespace
