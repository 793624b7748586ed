// The tool on gradients that other programs made: only what the gesture is about changes.
#include "tests/scenario/Player.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using nlohmann::json;
using tests::Played;

constexpr const char* kHead = "<svg xmlns='http://www.w3.org/2000/svg' width='400' height='300'><defs>";

// A drawing of one shape "s" that a gradient "g" fills, in a folder of its own.
class OthersGradients : public testing::Test {
  protected:
    std::string file() const { return (folder_ / "in.svg").string(); }
    std::string saved() const { return (folder_ / "out.svg").string(); }

    Played play(const std::string& gradient, const std::string& lines,
                const std::string& shape = "<rect id='s' x='50' y='50' width='200' height='100' "
                                           "fill='url(#g)'/>") {
        tests::writeContent(file(), kHead + gradient + "</defs>" + shape + "</svg>");
        return tests::playWithTool("open " + file() + "\n" + lines);
    }

    tests::TemporaryFolder folder_;
};

constexpr const char* kGlow =
    "<linearGradient id='g'><stop offset='0' stop-color='#ff0000' stop-opacity='0.5'/>"
    "<stop offset='0.5' stop-color='#00ff00' stop-opacity='0'/>"
    "<stop offset='1' stop-color='#0000ff' stop-opacity='1'/></linearGradient>";

// 60 by 20 about (150, 100): flatter than the shape.
constexpr const char* kEllipse =
    "<radialGradient id='g' gradientUnits='userSpaceOnUse' cx='0' cy='0' r='1' "
    "gradientTransform='translate(150 100) scale(60 20)'>"
    "<stop offset='0' stop-color='#ffffff'/><stop offset='1' stop-color='#000000'/></radialGradient>";

TEST_F(OthersGradients, AnOpacityRampIsToldBesideTheRecord) {
    const json gradient = play(kGlow, "print object s\n").answers[0]["gradient"];
    EXPECT_EQ(gradient["type"], 1);
    EXPECT_EQ(gradient["stops"], json({{0.0, 65535, 0, 0}, {0.5, 0, 65535, 0}, {1.0, 0, 0, 65535}}));
    EXPECT_EQ(gradient["opacity"], json({{0.0, 0.5}, {0.5, 0.0}, {1.0, 1.0}}));
    EXPECT_EQ(gradient["ellipse"], nullptr);
}

TEST_F(OthersGradients, AnOpaqueCircularOneHasNoRemainderToTell) {
    const json gradient =
        play("<linearGradient id='g'><stop/><stop offset='1' stop-color='red'/></linearGradient>",
             "print object s\n")
            .answers[0]["gradient"];
    EXPECT_FALSE(gradient.contains("opacity"));
    EXPECT_FALSE(gradient.contains("ellipse"));
}

TEST_F(OthersGradients, ADragTurnsATranslucentGradientAndLeavesColorsAndOpacity) {
    const Played played = play(kGlow, "print object s\ndrag 100 60 100 140\nprint object s\nprint window\n");
    json expected = played.answers[0]["gradient"];
    const json after = played.answers[1]["gradient"];
    EXPECT_EQ(after["angle"], -90.0);
    for (const char* member : {"stops", "opacity", "ellipse", "type"})
        EXPECT_EQ(after[member], expected[member]) << member;
    EXPECT_EQ(played.answers[2]["window"]["dirty"], true);
}

TEST_F(OthersGradients, APressMovesTheCentreOfAnEllipseToThePointAndKeepsItsShape) {
    const Played played = play(kEllipse, "print object s\nclick 100 75\nprint object s\nprint fit s\n");
    const json before = played.answers[0]["gradient"];
    const json after = played.answers[1]["gradient"];
    // The square root of 60 / 20, and of 20 / 60.
    EXPECT_NEAR(after["ellipse"][0], std::sqrt(3.0), 1e-9);
    EXPECT_NEAR(after["ellipse"][3], std::sqrt(1 / 3.0), 1e-9);
    EXPECT_EQ(after["ellipse"], before["ellipse"]);
    EXPECT_EQ(after["end"], json({0.25, 0.25}));
    EXPECT_EQ(after["stops"], before["stops"]);
    EXPECT_EQ(played.answers[2]["end"], json({100.0, 75.0}));
}

TEST_F(OthersGradients, AnEllipseComesBackWhenTheKindDoes) {
    const Played played = play(kEllipse, "key option down\nclick 100 75\nkey option up\nhit 10\nhit 1\n"
                                         "print object s\nkey option down\nclick 100 75\nkey option up\n"
                                         "hit 11\nhit 1\nprint object s\n");
    EXPECT_EQ(played.answers[0]["gradient"]["type"], 1);
    EXPECT_EQ(played.answers[1]["gradient"]["type"], 2);
    EXPECT_EQ(played.answers[0]["gradient"]["ellipse"], played.answers[1]["gradient"]["ellipse"]);
    EXPECT_NE(played.answers[1]["gradient"]["ellipse"], nullptr);
}

TEST_F(OthersGradients, TheEditorOpensOnTheShapesOwnColorsAndOkWithoutAChangeKeepsTheDrawingSaved) {
    const Played played = play(kGlow, "key option down\nclick 100 75\nkey option up\nhit 1\nprint window\n"
                                      "print object s\nsave " +
                                          saved() + "\n");
    EXPECT_EQ(played.answers[0]["window"]["undoLevels"], 1);
    EXPECT_EQ(played.answers[0]["window"]["dirty"], false);
    EXPECT_EQ(played.answers[1]["gradient"]["stops"][0], json({0.0, 65535, 0, 0}));
    EXPECT_EQ(tests::contentOf(saved()), tests::contentOf(file()));
}

TEST_F(OthersGradients, APlainClickOnALinearOneIsAnUndoStepAndNoChange) {
    const Played played = play(kGlow, "click 100 75\nprint window\nundo\nprint window\nredo\nprint window\n");
    EXPECT_EQ(played.answers[0]["window"]["undoLevels"], 1);
    for (const json& answer : played.answers)
        EXPECT_EQ(answer["window"]["dirty"], false);
}

TEST_F(OthersGradients, RecordAndRemainderComeBackToTheBit) {
    for (const char* gradient : {kGlow, kEllipse}) {
        const Played played = play(gradient, "drag 100 60 131 147\nprint object s\nsave " + saved() +
                                                 "\nopen " + saved() + "\nprint object s\n");
        json before = played.answers[0]["gradient"];
        json after = played.answers[1]["gradient"];
        before.erase("resource");
        after.erase("resource");
        EXPECT_EQ(after, before);
        EXPECT_TRUE(after.contains("opacity"));
    }
}

TEST_F(OthersGradients, AGradientGivenToAShapeWithoutOneHasNoRemainder) {
    const Played played =
        play("", "click 100 75\nprint object s\n",
             "<rect id='s' x='50' y='50' width='200' height='100' fill='#123456' fill-opacity='0.5'/>");
    EXPECT_FALSE(played.answers[0]["gradient"].contains("opacity"));
    EXPECT_EQ(played.answers[0]["gradient"]["stops"].size(), 2U);
}

TEST_F(OthersGradients, RepeatsAreUnrolledIntoStops) {
    const json gradient =
        play("<linearGradient id='g' x2='0.25' spreadMethod='reflect'><stop stop-color='#ff0000'/>"
             "<stop offset='1' stop-color='#0000ff'/></linearGradient>",
             "drag 100 60 100 140\nprint object s\n")
            .answers[0]["gradient"];
    EXPECT_GE(gradient["stops"].size(), 5U);
    EXPECT_EQ(gradient["angle"], -90.0);
}

} // namespace
