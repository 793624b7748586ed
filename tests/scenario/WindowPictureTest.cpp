// What pictures of the drawing window show.
#include "tests/scenario/Player.h"
#include "tests/support/Picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace {

using tests::Picture;
using tests::Player;

constexpr std::uint32_t kWhite = 0xffffff;
constexpr std::uint32_t kBlack = 0;

int redOf(std::uint32_t pixel) {
    return static_cast<int>(pixel >> 16);
}

TEST(WindowPicture, HasTheSizeOfTheDrawingAndShowsWhitePaper) {
    const Player player;
    player.playToEnd("new 40.5 20\npicture p.png\n");
    const Picture picture(player.folder() / "p.png");
    EXPECT_EQ(picture.width(), 41);
    EXPECT_EQ(picture.height(), 20);
    EXPECT_EQ(picture.at(7, 7), kWhite);
}

TEST(WindowPicture, ShowsAGradientWithEachColorWhereItBelongs) {
    const Player player;
    player.playToEnd(R"(
new 256 40
add rect r 0 10 256 20
gradient r 1 0 0 0 1 1 0:0,65535,0 1:65535,65535,0
picture p.png
)");
    const Picture picture(player.folder() / "p.png");
    for (int x = 0; x < 256; ++x) {
        // The color at the pixel's centre.
        const int red = static_cast<int>(std::lround((x + 0.5) / 256 * 255));
        EXPECT_NEAR(redOf(picture.at(x, 20)), red, 1) << x;
        EXPECT_EQ(picture.at(x, 20) & 0xffff, 0xff00u);
        EXPECT_EQ(picture.at(x, 9), kWhite);
        EXPECT_EQ(picture.at(x, 30), kWhite);
    }
}

constexpr const char* kLinear = R"(
new 200 100
start
add rect r 0 0 200 100
gradient r 1 0 0 0 1 1 0:65535,65535,65535 1:65535,65535,65535
)";

TEST(WindowPicture, ShowsTheLineOfADragAndTakesItAwayAfterwards) {
    const Player player;
    player.playToEnd(std::string(kLinear) + R"(
picture before.png
press 20 50.5
picture pressed.png
move 120 50.5
picture first.png
move 60 50.5
picture second.png
move 60 80
picture third.png
release
picture after.png
)");
    const auto picture = [&](const std::string& name) { return Picture(player.folder() / name); };
    const Picture before = picture("before.png");
    EXPECT_EQ(picture("pressed.png"), before);
    // The first line has no length yet.
    EXPECT_EQ(picture("first.png"), before);
    EXPECT_EQ(picture("second.png").at(70, 50), kBlack);
    EXPECT_EQ(picture("second.png").at(125, 50), kWhite);
    EXPECT_EQ(picture("second.png").at(70, 48), kWhite);
    EXPECT_EQ(picture("third.png").at(40, 50), kBlack);
    EXPECT_EQ(picture("third.png").at(70, 50), kWhite);
    EXPECT_EQ(picture("after.png"), before);
}

TEST(WindowPicture, ShowsTheLineOfADragOnADarkGroundToo) {
    const Player player;
    player.playToEnd(R"(
new 200 100
start
add rect r 0 0 200 100
gradient r 1 0 0 0 1 1 0:0,0,0 1:0,0,0
press 20 50.5
move 120 50.5
move 60 50.5
picture dragged.png
release
)");
    const Picture picture(player.folder() / "dragged.png");
    EXPECT_EQ(picture.at(70, 50), kBlack);
    for (const int beside : {49, 51})
        EXPECT_GT(redOf(picture.at(70, beside)), 0x80) << "a light edge beside the black line";
    for (const int beyond : {48, 52})
        EXPECT_EQ(picture.at(70, beyond), kBlack);
}

TEST(WindowPicture, DoesNotRepaintWhatIsOnlyMarkedWhileTheButtonIsHeld) {
    const Player player;
    player.playToEnd(R"(
new 100 100
start
add rect r 0 0 100 100
gradient r 2 0 0.5 0.5 0.5 0.5 0:0,0,0 1:65535,65535,65535
press 10 10
picture held.png
release
picture released.png
undo
picture undone.png
)");
    const Picture held(player.folder() / "held.png");
    const Picture released(player.folder() / "released.png");
    EXPECT_LT(redOf(held.at(50, 50)), 10);
    EXPECT_GT(redOf(held.at(10, 10)), 150);
    EXPECT_LT(redOf(released.at(10, 10)), 10);
    EXPECT_GT(redOf(released.at(50, 50)), 100);
    EXPECT_EQ(Picture(player.folder() / "undone.png"), held);
}

TEST(WindowPicture, RepaintedInPartsIsTheSameAsPaintedAtOnce) {
    const Player player;
    const std::string shapes = R"(
add ellipse a 60 50 55 40
add polygon b 30 90 150 20 190 95
add path c "M 100 10 C 180 10 180 90 100 90 C 20 90 20 10 100 10 Z"
gradient a 1 20 0 0 1 1 0:65535,0,0 1:0,0,65535
gradient b 2 0 0.3 0.3 0.3 0.3 0:65535,65535,0 1:0,32768,65535
)";
    const std::string edits = "drag 30 40 90 77\nclick 170 80\nclick 100 50\nundo\nundo\nredo\n";
    player.playToEnd("new 200 100\nstart\n" + shapes + "picture p.png\n" + [&] {
        std::string looked;
        for (const char c : edits)
            looked += c == '\n' ? std::string("\npicture p.png\n") : std::string(1, c);
        return looked;
    }());
    const Picture inParts(player.folder() / "p.png");
    player.playToEnd("new 200 100\nstart\n" + shapes + edits + "picture q.png\n");
    EXPECT_EQ(inParts, Picture(player.folder() / "q.png"));
}

TEST(WindowPicture, ThatIsTooLargeIsAnErrorAndNotACrash) {
    const auto played = Player().play("new 1e12 3\npicture p.png\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("too large"));
}

TEST(WindowPicture, ThatCannotBeWrittenIsAnErrorThatNamesTheFile) {
    const auto played = Player().play("new 10 10\npicture no/such/folder/p.png\n");
    EXPECT_EQ(played.exitCode, 2);
    EXPECT_THAT(played.messages, testing::HasSubstr("no/such/folder/p.png"));
}

} // namespace
