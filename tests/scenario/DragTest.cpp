// Drags over objects that have a gradient.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <sstream>

namespace {

using nlohmann::json;
using tests::Played;
using tests::playWithTool;

constexpr const char* kStops = " 0:65535,0,0 1:0,0,65535\n";
const std::string kLinear =
    "add rect r 100 50 200 100\ngradient r 1 30 0.25 0.5 0.75 0.5" + std::string(kStops);
const std::string kRadial =
    "add rect r 100 50 200 100\ngradient r 2 30 0.25 0.5 0.75 0.5" + std::string(kStops);

json gradientAfter(const std::string& script) {
    return playWithTool(script + "print object r\n")["gradient"];
}

float angleOf(double dh, double dv) {
    return static_cast<float>(-(std::atan2(dv, dh) * (180.0 / std::numbers::pi)));
}

TEST(Drag, GivesTheNegatedAngleOfTheLineAndKeepsAllElse) {
    const json before = gradientAfter(kLinear);
    json expected = before;
    expected["angle"] = static_cast<double>(angleOf(60, 25));
    expected["resource"] = 1;
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 180 95\n"), expected);
}

TEST(Drag, TakesTheLastPointWhateverThePathToIt) {
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 20 20 300 10 180 95\n")["angle"],
              static_cast<double>(angleOf(60, 25)));
}

TEST(Drag, ToTheLeftIsAHalfTurn) {
    EXPECT_EQ(gradientAfter(kLinear + "drag 200 70 150 70\n")["angle"], -180.0);
}

TEST(Drag, ReleasedWithoutMovingLeavesTheGradientAsItWas) {
    EXPECT_EQ(gradientAfter(kLinear + "press 120 70\nrelease\n"), gradientAfter(kLinear));
}

TEST(Drag, BeginsAtThreePixels) {
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 122.9 70\n")["angle"], 30.0);
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 123 70\n")["angle"], 0.0);
}

TEST(Drag, CountsTheWayFromThePressAndNotFromTheLastMove) {
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 122 70 120 70 122 70\n")["angle"], 30.0);
    EXPECT_EQ(gradientAfter(kLinear + "drag 120 70 122 70 124 70\n")["angle"], 0.0);
}

TEST(Drag, WithShiftConstrainsTheLineToMultiplesOfFifteenDegrees) {
    for (const int degrees : {-171, -92, -52, -7, 0, 8, 22, 23, 44, 91, 133, 179}) {
        const double radians = degrees * std::numbers::pi / 180;
        const std::string to =
            std::to_string(200 + 80 * std::cos(radians)) + " " + std::to_string(100 + 80 * std::sin(radians));
        const double constrained = -15.0 * std::round(degrees / 15.0);
        const double angle = gradientAfter(kLinear + "key shift down\ndrag 200 100 " + to + "\n")["angle"];
        EXPECT_NEAR(std::remainder(angle - constrained, 360), 0, 1e-5) << degrees;
    }
}

TEST(Drag, OverAnObjectThatIsNoPolygonLeavesItsGradientYetReplacesAndSelectsIt) {
    const Played played =
        playWithTool("add path r \"M 50 50 H 150 Z\"\ngradient r 1 30 0 0 1 1" + std::string(kStops) +
                     "print object r\ndrag 60 50 100 90\nprint object r\nprint window\n");
    EXPECT_EQ(played.all("gradient")[1], played.all("gradient")[0]);
    EXPECT_EQ(played["window"]["selection"], json::array({"r"}));
    EXPECT_EQ(played["window"]["undoLevels"], 1);
}

TEST(Drag, LooksAtShiftOnEveryPass) {
    const std::string away = "press 120 70\nmove 180 95\n";
    EXPECT_EQ(gradientAfter(kLinear + away +
                            "key shift down\nmove 181 95\nkey shift up\nmove 180 95\nrelease\n")["angle"],
              static_cast<double>(angleOf(60, 25)));
    EXPECT_NEAR(
        gradientAfter(kLinear + away + "key shift down\nmove 181 95\nrelease\n")["angle"].get<double>(), -15,
        1e-5);
}

TEST(Drag, SwitchesSnappingOffAndBackToWhatItWas) {
    for (const std::string grid : {"on", "off"})
        for (const std::string object : {"on", "off"}) {
            const Played played = playWithTool(kLinear + "snap grid " + grid + "\nsnap object " + object + R"(
press 120 70
move 181 96
print window
move 177 93
release
print window
print object r
)");
            const auto windows = played.all("window");
            EXPECT_EQ(windows[0]["gridSnap"], false);
            EXPECT_EQ(windows[0]["objectSnap"], false);
            EXPECT_EQ(windows[1]["gridSnap"], grid == "on");
            EXPECT_EQ(windows[1]["objectSnap"], object == "on");
            EXPECT_EQ(played["gradient"]["angle"], static_cast<double>(angleOf(57, 23)));
        }
}

TEST(Drag, CallsTheHostInTheOrderOfTheSteps) {
    const Played played = playWithTool(
        kLinear +
        "snap grid on\njournal on\npress 120 70\nmove 150 70\nmove 180 95\nrelease\nprint journal\n");
    auto journal = played["journal"].get<std::vector<std::string>>();
    const auto begin = std::find(journal.begin(), journal.end(), "BreakHysteresis(606)");
    const auto end = std::find(journal.begin(), journal.end(), "DeleteUObj(0)");
    ASSERT_NE(begin, journal.end());
    ASSERT_NE(end, journal.end());
    std::vector<std::string> expected = {
        "BreakHysteresis(606)", "StThemeDrawingState()", "GetGridSnap()",
        "GetObjectSnap()",      "ActiveDrawingWindow()", "CSyncronizedBuffer(true)",
        "QD::RGBForeColor()",   "SetGridSnap(false)",    "SetObjectSnap(false)"};
    // One pass for each of the two points.
    for (int pass = 0; pass < 2; ++pass)
        for (const char* call :
             {"ActiveDrawingWindow()", "DWindow::ScrollWDiag(false)",
              "CSyncronizedBuffer::RefreshAndBeginDrawing()", "CSyncronizedBuffer::GetGEnv()",
              "DrawConstructionLine()", "CSyncronizedBuffer::EndDrawingAndUpdateScreen()", "PolyNewMouse()",
              "NorvU::KeyIsDown(56)", "StillDown()"})
            expected.emplace_back(call);
    for (const char* call :
         {"SetGridSnap(true)", "SetObjectSnap(false)", "ObjToPoly(0.07)", "TessObject::WhatObject()",
          "kBlackPat()", "TessObject::SetFillPattern()", "TessObject::SetGradient()", "RecoverObject()"})
        expected.emplace_back(call);
    EXPECT_EQ(std::vector<std::string>(begin, end), expected);
}

TEST(Drag, RunsTheGradientAlongTheDraggedLineForAnyShapeAndAngle) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> anywhere(20, 280);
    std::ostringstream script;
    std::vector<double> directions;
    for (int i = 0; i < 60; ++i) {
        const double h = anywhere(random);
        const double v = anywhere(random);
        const double angle = anywhere(random);
        directions.push_back(angle);
        script << "add polygon p" << i << ' ' << h << ' ' << v;
        for (int corner = 0; corner < 3; ++corner)
            script << ' ' << anywhere(random) << ' ' << anywhere(random);
        script << "\ngradient p" << i << " 1 0 0 0 1 1" << kStops;
        // The press is on a corner, and every polygon is in front when its turn comes.
        script << "drag " << h << ' ' << v << ' ' << h + 50 * std::cos(angle) << ' '
               << v + 50 * std::sin(angle) << "\n";
        script << "print fit p" << i << "\n";
    }
    const Played played = playWithTool(script.str());
    ASSERT_EQ(played.answers.size(), directions.size());
    for (std::size_t i = 0; i < directions.size(); ++i) {
        const json& fit = played.answers[i];
        const double dh = fit["end"][0].get<double>() - fit["start"][0].get<double>();
        const double dv = fit["end"][1].get<double>() - fit["start"][1].get<double>();
        // Points are written with six digits.
        EXPECT_NEAR(std::remainder(std::atan2(dv, dh) - directions[i], 2 * std::numbers::pi), 0, 1e-4) << i;
    }
}

TEST(RadialPress, AtTheCornersOfTheBoundsGivesZeroAndOne) {
    EXPECT_EQ(gradientAfter(kRadial + "click 100 50\n")["start"], json({0.0, 0.0}));
    EXPECT_EQ(gradientAfter(kRadial + "click 100 50\n")["end"], json({0.0, 0.0}));
    EXPECT_EQ(gradientAfter(kRadial + "click 300 150\n")["start"], json({1.0, 1.0}));
    EXPECT_EQ(gradientAfter(kRadial + "click 300 150\n")["end"], json({1.0, 1.0}));
}

TEST(RadialPress, OutsideTheBoundsGivesFractionsBeyondThem) {
    for (const auto& [click, fractions] : {std::pair("click 98 50\n", json({-0.01, 0.0})),
                                           {"click 302 100\n", json({1.01, 0.5})},
                                           {"click 300 152\n", json({1.0, 1.02})}}) {
        const json gradient = gradientAfter(kRadial + click);
        EXPECT_EQ(gradient["start"], fractions);
        EXPECT_EQ(gradient["end"], fractions);
    }
}

TEST(RadialPress, CallsTheHostInTheOrderOfTheSteps) {
    const Played played = playWithTool(kRadial + "journal on\nclick 150 75\nprint journal\n");
    const auto journal = played["journal"].get<std::vector<std::string>>();
    const auto begin = std::find(journal.begin(), journal.end(), "ObjToPoly(0.07)");
    const auto end = std::find(journal.begin(), journal.end(), "DeleteUObj(0)");
    EXPECT_EQ(std::vector<std::string>(begin, end),
              (std::vector<std::string>{"ObjToPoly(0.07)", "TessObject::WhatObject()", "TessObject::BBox()",
                                        "kBlackPat()", "TessObject::SetFillPattern()",
                                        "TessObject::SetGradient()", "RecoverObject()"}));
}

TEST(RadialPress, TracksNoDrag) {
    EXPECT_EQ(gradientAfter(kRadial + "drag 150 75 290 140\n")["start"], json({0.25, 0.25}));
}

TEST(RadialPress, TreatsEveryKindButLinearAlike) {
    for (const std::string type : {"0", "3", "-1", "77"}) {
        const json gradient = gradientAfter("add rect r 100 50 200 100\ngradient r " + type + " 30 0 0 1 1" +
                                            kStops + "click 150 75\n");
        EXPECT_EQ(gradient["type"].dump(), type);
        EXPECT_EQ(gradient["end"], json({0.25, 0.25}));
    }
}

TEST(RadialPress, OnAnObjectWithoutWidthGivesCoordinatesThatAreNotFinite) {
    const std::string thin = "add rect r 100 50 0 100\ngradient r 2 0 0 0 1 1" + std::string(kStops);
    EXPECT_EQ(gradientAfter(thin + "click 102 75\n")["start"], json({"inf", 0.25}));
    EXPECT_EQ(gradientAfter(thin + "click 98 75\n")["start"], json({"-inf", 0.25}));
    EXPECT_EQ(gradientAfter(thin + "click 100 75\n")["start"], json({"nan", 0.25}));
}

} // namespace
