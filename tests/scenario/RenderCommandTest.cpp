// `easel render`, the program itself: what it writes, and what it says when it cannot.
#include "tests/scenario/Player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

using testing::HasSubstr;
using testing::StartsWith;
using tests::Played;
using tests::Player;

const std::string kDrawing = R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="30">
  <linearGradient id="g"><stop offset="0" stop-color="red"/><stop offset="1" stop-color="blue"/></linearGradient>
  <rect width="40" height="30" fill="url(#g)"/></svg>)svg";

void put(const Player& player, const std::string& name, const std::string& content) {
    std::ofstream(player.folder() / name, std::ios::binary) << content;
}

std::string contentOf(const Player& player, const std::string& name) {
    std::ostringstream content;
    content << std::ifstream(player.folder() / name, std::ios::binary).rdbuf();
    return content.str();
}

// Width and height as the header of a PNG file has them.
std::pair<int, int> pngSize(const std::string& png) {
    const auto number = [&](std::size_t at) {
        int value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value = value * 256 + static_cast<unsigned char>(png.at(at + i));
        return value;
    };
    return {number(16), number(20)};
}

class RenderCommand : public testing::Test {
  protected:
    RenderCommand() { put(player, "in.svg", kDrawing); }

    // The program must fail with a message that names the file and says this.
    void expectRefused(const std::vector<std::string>& arguments, const std::string& file,
                       const std::string& reason) {
        std::vector<std::string> all{"render"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const Played run = player.run(all);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_THAT(run.messages, HasSubstr(file));
        EXPECT_THAT(run.messages, HasSubstr(reason));
        EXPECT_FALSE(std::filesystem::exists(player.folder() / "out.png"));
    }

    Player player;
};

TEST_F(RenderCommand, ThePicturesFormatFollowsTheEndingOfItsName) {
    EXPECT_EQ(player.run({"render", "in.svg", "out.png"}).exitCode, 0);
    EXPECT_THAT(contentOf(player, "out.png"), StartsWith("\x89PNG"));
    EXPECT_EQ(player.run({"render", "in.svg", "out.PDF"}).exitCode, 0);
    EXPECT_THAT(contentOf(player, "out.PDF"), StartsWith("%PDF-"));
    EXPECT_EQ(player.run({"render", "in.svg", "out.svg"}).exitCode, 0);
    EXPECT_THAT(contentOf(player, "out.svg"), HasSubstr("linearGradient"));
}

TEST_F(RenderCommand, WidthAndScaleSetTheSizeInPixels) {
    EXPECT_EQ(player.run({"render", "in.svg", "out.png"}).exitCode, 0);
    EXPECT_EQ(pngSize(contentOf(player, "out.png")), std::pair(40, 30));
    EXPECT_EQ(player.run({"render", "in.svg", "out.png", "--width", "100"}).exitCode, 0);
    EXPECT_EQ(pngSize(contentOf(player, "out.png")), std::pair(100, 75));
    EXPECT_EQ(player.run({"render", "in.svg", "out.png", "--scale", "2.5"}).exitCode, 0);
    EXPECT_EQ(pngSize(contentOf(player, "out.png")), std::pair(100, 75));
}

TEST_F(RenderCommand, TheSameDrawingGivesTheSameBytes) {
    player.run({"render", "in.svg", "one.png", "--scale", "40"});
    player.run({"render", "in.svg", "two.png", "--scale", "40"});
    EXPECT_FALSE(contentOf(player, "one.png").empty());
    EXPECT_EQ(contentOf(player, "one.png"), contentOf(player, "two.png"));
}

TEST_F(RenderCommand, ADrawingThatCannotBeReadIsNamedWithTheReason) {
    expectRefused({"missing.svg", "out.png"}, "missing.svg", "No such file");
    expectRefused({".", "out.png"}, ".", "folder");
    put(player, "empty.svg", "");
    expectRefused({"empty.svg", "out.png"}, "empty.svg", "empty");
    put(player, "cut.svg", kDrawing.substr(0, 90));
    expectRefused({"cut.svg", "out.png"}, "cut.svg", "");
    put(player, "text.svg", "Hello");
    expectRefused({"text.svg", "out.png"}, "text.svg", "");
    put(player, "other.svg", "<html/>");
    expectRefused({"other.svg", "out.png"}, "other.svg", "");
}

TEST_F(RenderCommand, APictureThatCannotBeWrittenIsNamedWithTheReason) {
    expectRefused({"in.svg", "nowhere/out.png"}, "nowhere/out.png", "No such file");
    expectRefused({"in.svg", "out.gif"}, "out.gif", ".png, .pdf or .svg");
    expectRefused({"in.svg", "out"}, "out", ".png, .pdf or .svg");
}

TEST_F(RenderCommand, SizesThatCannotBeAreRefused) {
    expectRefused({"in.svg", "out.png", "--width", "0"}, "out.png", "not a number above 0");
    expectRefused({"in.svg", "out.png", "--scale", "-2"}, "out.png", "not a number above 0");
    expectRefused({"in.svg", "out.png", "--scale", "nan"}, "out.png", "not a number above 0");
    expectRefused({"in.svg", "out.png", "--width", "99999999"}, "out.png", "99999999 by 74999999 pixels");
    expectRefused({"in.svg", "out.png", "--width", "1000000"}, "out.png", "MB of memory");
    expectRefused({"in.svg", "out.png", "--width", "many"}, "--width", "many");
    expectRefused({"in.svg", "out.png", "--width", "10", "--scale", "2"}, "--width", "--scale");
}

TEST_F(RenderCommand, AFailureLeavesTheOldPicture) {
    put(player, "old.png", "old");
    EXPECT_EQ(player.run({"render", "missing.svg", "old.png"}).exitCode, 2);
    EXPECT_EQ(player.run({"render", "in.svg", "old.png", "--scale", "0"}).exitCode, 2);
    EXPECT_EQ(contentOf(player, "old.png"), "old");
}

TEST_F(RenderCommand, AMissingArgumentIsNamed) {
    const Played run = player.run({"render", "in.svg"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_THAT(run.messages, HasSubstr("PICTURE"));
}

} // namespace
