// What the editor draws: the color swatch, the ramp with its markers, the preview. Pixels are counted by
// hand.
#include "tests/scenario/Editor.h"
#include "tests/scenario/PluginCopy.h"
#include "tests/support/Picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using nlohmann::json;
using namespace tests;

constexpr std::uint32_t kBackground = 0xf2f2f2;
constexpr std::uint32_t kBlack = 0x000000;

// An editor whose ramp item is 212 pixels wide and 40 high at (10, 100), so that the ramp itself is the 200
// by 28 pixels at (16, 100). Nothing else is drawn there.
class SmallRamp : public testing::Test {
  protected:
    SmallRamp() {
        const PluginCopy plugin(modules_.folder());
        plugin.replaceInResources("item=\"4\" bounds=\"264 18 312 430\"",
                                  "item=\"4\" bounds=\"100 10 140 222\"");
        plugin.replaceInResources("item=\"7\" bounds=\"72 24 248 424\"",
                                  "item=\"7\" bounds=\"150 24 248 424\"");
        player_.setPlugin(plugin.module());
    }

    Played edit(const std::string& gradient, const std::string& script) {
        return player_.playToEnd("new 400 300\nstart\n" + openEditorOn(gradient) + script + "hit 2\n");
    }
    Picture dialogAfter(const std::string& gradient, const std::string& script) {
        edit(gradient, script + "picture dialog dialog.png\n");
        return Picture(player_.folder() / "dialog.png");
    }

    Player modules_;
    Player player_;
};

TEST_F(SmallRamp, TheRampLeavesSixPixelsAtEachSideAndTwelveAtTheBottomOfItsItem) {
    const Picture picture = dialogAfter("1 0 0.5 0.5 0.5 0.5 0:65535,0,0 1:65535,0,0", "");
    for (int x = 0; x < 240; ++x) {
        const bool inside = x >= 16 && x < 216;
        EXPECT_EQ(picture.at(x, 100), inside ? kBlack : kBackground) << x;
        EXPECT_EQ(picture.at(x, 127), inside ? kBlack : kBackground) << x;
        const std::uint32_t middle = !inside ? kBackground : x == 16 || x == 215 ? kBlack : 0xff0000;
        EXPECT_EQ(picture.at(x, 114), middle) << x;
        EXPECT_EQ(picture.at(x, 99), kBackground) << "above the item";
        EXPECT_EQ(picture.at(x, 128), kBackground) << "between ramp and markers";
    }
}

std::vector<std::string> apexesIn(const json& journal) {
    std::vector<std::string> apexes;
    for (const std::string entry : journal)
        if (entry.starts_with("QD::MoveTo(") && entry.ends_with(", 129)"))
            apexes.push_back(entry.substr(11, entry.find(',') - 11));
    return apexes;
}

TEST_F(SmallRamp, MarkersStandAtTheTruncatedPlacesOfTheirStopsInTheOrderOfTheListAndTheActiveOneComesLast) {
    const Played played = player_.playToEnd(
        "new 400 300\nstart\njournal on\n" +
        openEditorOn("1 0 0.5 0.5 0.5 0.5 0.5:1,1,1 0:2,2,2 0.333:3,3,3 0.9999:4,4,4 1:5,5,5") +
        "print journal\nhit 2\n");
    EXPECT_THAT(apexesIn(played["journal"]), testing::ElementsAre("116", "16", "82", "215", "216", "116"));
}

TEST_F(SmallRamp, AnOpenMarkerIsAFramedTriangleFivePixelsHigh) {
    const Picture picture = dialogAfter("1 0 0.5 0.5 0.5 0.5 0:0,0,0 0.5:1,1,1 1:2,2,2", "");
    EXPECT_EQ(picture.letters(109, 128, 15, 10, kBackground),
              (std::vector<std::string>{"...............", // 128: the row between
                                        ".......#.......", // 129: the apex at 116
                                        "......#.#......", //
                                        ".....#...#.....", //
                                        "....#.....#....", //
                                        "...#.......#...", //
                                        "..###########..", // 134: from 111 to 121
                                        "...............", //
                                        "...............", //
                                        "..............."}));
}

TEST_F(SmallRamp, TheActiveMarkerIsFilledAndUnderlinedThreePixelsBelowItsBase) {
    const Picture picture =
        dialogAfter("1 0 0.5 0.5 0.5 0.5 0:0,0,0 0.5:1,1,1 1:2,2,2", "click item 4 106 10\n");
    EXPECT_EQ(picture.letters(109, 128, 15, 13, kBackground),
              (std::vector<std::string>{"...............", //
                                        ".......#.......", // 129
                                        "......###......", //
                                        ".....#####.....", //
                                        "....#######....", //
                                        "...#########...", //
                                        "..###########..", // 134
                                        "...............", //
                                        "...............", //
                                        "..###########..", // 137: eight below the band's top
                                        "...............", //
                                        "...............", //
                                        "..............."}));
    // The first stop's marker was the active one and is open and without underline now.
    EXPECT_EQ(picture.letters(9, 129, 15, 9, kBackground), (std::vector<std::string>{".......#.......", //
                                                                                     "......#.#......", //
                                                                                     ".....#...#.....", //
                                                                                     "....#.....#....", //
                                                                                     "...#.......#...", //
                                                                                     "..###########..", //
                                                                                     "...............", //
                                                                                     "...............", //
                                                                                     "..............."}));
}

TEST_F(SmallRamp, WhereStopsShareAPlaceTheFilledMarkerShows) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.5:1,1,1 0.5:2,2,2 1:3,3,3";
    const Picture picture = dialogAfter(gradient, "");
    EXPECT_EQ(picture.letters(111, 133, 11, 1, kBackground), (std::vector<std::string>{".#########."}));
}

// Nothing but a marker outside of the ramp is ever drawn so far out that it shows where erasing ends. One at
// (16 - 6, 129) reaches from 5 to 15.
TEST_F(SmallRamp, ErasingReachesOnePixelBeyondTheItemAtEachSide) {
    const std::string gradient = "1 0 0.5 0.5 0.5 0.5 0.4:0,0,0 0.6:65535,65535,65535";
    const Picture left = dialogAfter(gradient, "drag item 4 0 10 60 10\n");
    EXPECT_EQ(left.letters(3, 134, 14, 1, kBackground), (std::vector<std::string>{"..####........"}))
        << "from 9 on it is gone";
    // At the other end, one at 216 + 4 reaches from 215 to 225.
    const Picture right = dialogAfter(gradient, "drag item 4 210 10 150 10\n");
    EXPECT_EQ(right.letters(214, 134, 14, 1, kBackground), (std::vector<std::string>{".........###.."}))
        << "up to 222 it is gone";
}

TEST(EditorSwatches, TheRampRunsFromLeftToRightWhateverKindAndDirection) {
    const Player player;
    const std::string stops = " 0.2:65535,0,0 0.5:0,65535,0 1:0,0,65535";
    std::vector<Picture> ramps;
    for (const std::string gradient :
         {"1 0 0.5 0.5 0.5 0.5", "1 77 0.5 0.5 0.5 0.5", "2 0 0.1 0.9 0.1 0.9", "9 0 0 0 1 1"}) {
        player.playToEnd("new 400 300\nstart\n" + openEditorOn(gradient + stops) +
                         "picture item 4 ramp.png\nhit 2\n");
        ramps.emplace_back(player.folder() / "ramp.png");
        EXPECT_EQ(ramps.back(), ramps.front()) << gradient;
    }
    // Pixel x of the ramp shows position (x + 0.5) / 400; the first color fills all before the first stop.
    const Picture& ramp = ramps.front();
    EXPECT_EQ(ramp.at(kRampMargin + 40, 10), 0xff0000u);
    EXPECT_EQ(ramp.at(kRampMargin + 79, 10), 0xff0000u);
    const double position = (140.5 / 400 - 0.2) / 0.3;
    EXPECT_NEAR(ramp.at(kRampMargin + 140, 10) >> 16, 255 * (1 - position), 0.51);
    EXPECT_NEAR(ramp.at(kRampMargin + 140, 10) >> 8 & 0xff, 255 * position, 0.51);
}

TEST(EditorSwatches, ThePreviewShowsKindAndDirection) {
    const Player player;
    const std::string stops = " 0:0,0,0 1:65535,65535,65535";
    const auto preview = [&](const std::string& gradient) {
        player.playToEnd("new 400 300\nstart\n" + openEditorOn(gradient + stops) +
                         "picture item 7 preview.png\nhit 2\n");
        return Picture(player.folder() / "preview.png");
    };
    const Picture across = preview("1 0 0.5 0.5 0.5 0.5");
    EXPECT_EQ(across.width(), 400);
    EXPECT_EQ(across.height(), 176);
    EXPECT_NEAR(across.at(100, 88) & 0xff, 255 * 100.5 / 400, 0.51);
    EXPECT_EQ(across.at(100, 20), across.at(100, 150));
    const Picture radial = preview("2 0 0.25 0.5 0.25 0.5");
    EXPECT_LE(radial.at(100, 88) & 0xff, 1u) << "dark at the centre";
    EXPECT_GE(radial.at(398, 1) & 0xff, 253u) << "light at the farthest corner";
    // Black frame, inside of the item.
    for (const Picture* each : {&across, &radial})
        for (int x = 0; x < 400; ++x) {
            EXPECT_EQ(each->at(x, 0), kBlack);
            EXPECT_EQ(each->at(x, 175), kBlack);
        }
}

TEST(EditorSwatches, TheSwatchIsTheActiveColorFramedInBlackWithItsShadowOutside) {
    const Player player;
    player.playToEnd("new 400 300\nstart\n" + openEditorOn("1 0 0.5 0.5 0.5 0.5 0:65535,32896,0 1:0,0,0") +
                     "picture item 6 swatch.png\npicture dialog dialog.png\nhit 2\n");
    const Picture swatch(player.folder() / "swatch.png");
    ASSERT_EQ(swatch.width(), 80);
    ASSERT_EQ(swatch.height(), 32);
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 80; ++x) {
            const bool frame = x == 0 || y == 0 || x == 79 || y == 31;
            ASSERT_EQ(swatch.at(x, y), frame ? kBlack : 0xff8000u) << x << ' ' << y;
        }
    // The item lies from (24, 328) to (104, 360).
    const Picture dialog(player.folder() / "dialog.png");
    EXPECT_NE(dialog.at(105, 345), kBackground);
    EXPECT_NE(dialog.at(60, 361), kBackground);
    EXPECT_EQ(dialog.at(23, 345), kBackground);
    EXPECT_EQ(dialog.at(60, 327), kBackground);
    EXPECT_EQ(dialog.at(107, 345), kBackground);
}

TEST(EditorSwatches, WhileAStopIsDraggedRampAndPreviewFollowAndTheSwatchDoesNot) {
    const Player player;
    const Played played = player.playToEnd(
        "new 400 300\nstart\n" + openEditorOn(kThreeStops) +
        "press item 4 206 10\npicture item 4 r1.png\npicture item 6 s1.png\npicture item 7 p1.png\n"
        "move item 4 250 10\npicture item 4 r2.png\npicture item 6 s2.png\npicture item 7 p2.png\n"
        "move item 4 250 60\npicture item 6 s3.png\nprint dialog\nrelease\npicture item 6 s4.png\nhit 2\n");
    const auto shown = [&](const char* name) { return Picture(player.folder() / name); };
    EXPECT_FALSE(shown("r1.png") == shown("r2.png"));
    EXPECT_FALSE(shown("p1.png") == shown("p2.png"));
    EXPECT_EQ(shown("s1.png").at(40, 16), 0xff0000u);
    EXPECT_EQ(shown("s2.png"), shown("s1.png"));
    EXPECT_EQ(shown("s3.png"), shown("s1.png")) << "pulled off, and the first stop is active";
    EXPECT_EQ(itemOf(played["dialog"], kColor)["invalid"], true) << "but marked";
    EXPECT_EQ(shown("s4.png").at(40, 16), kBlack) << "drawn once the button is released";
}

TEST(EditorSwatches, AStopDraggedPastAnotherShowsTheNewOrderAtOnce) {
    const Player player;
    player.playToEnd("new 400 300\nstart\n" + openEditorOn(kThreeStops) +
                     "press item 4 6 10\nmove item 4 306 10\npicture item 4 r.png\nrelease\nhit 2\n");
    EXPECT_EQ(Picture(player.folder() / "r.png").at(56, 10), 0xff0000u) << "red is the first stop now";
}

// Putting a stop back gives it its old color after the editor has taken note of the new one, and nothing
// tells it.
TEST(EditorSwatches, AStopThatCameBackShowsTheRampsColorInTheSwatchUntilTheMouseMovesOn) {
    const Player player;
    const auto swatchAfter = [&](const std::string& drag) {
        player.playToEnd("new 400 300\nstart\n" + openEditorOn(kThreeStops) + drag +
                         "picture item 6 s.png\nhit 2\n");
        return Picture(player.folder() / "s.png").at(40, 16);
    };
    // Without the red stop the ramp goes from black to white, and at 0.75 is this gray.
    EXPECT_EQ(swatchAfter("drag item 4 206 10 206 60 306 10\n"), 0xbfbfbfu);
    EXPECT_EQ(swatchAfter("drag item 4 206 10 206 60 306 10 307 10\n"), 0xff0000u);
    EXPECT_EQ(swatchAfter("drag item 4 206 10 206 60 306 10\nhit 10\n"), 0xbfbfbfu)
        << "drawing it again does not help";
}

} // namespace
