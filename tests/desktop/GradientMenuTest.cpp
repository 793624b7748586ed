// The commands on gradients in the Edit menu, by their keys, and what stays of a gradient that is edited.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace desktop {
namespace {

using testing::AllOf;
using testing::HasSubstr;

constexpr Spot kPlainMiddle{160, 110};
constexpr Spot kMarkerMiddle{540, 60};
constexpr Spot kGradMiddle{160, 290};

class GradientMenuTest : public DesktopTest {
  protected:
    void select(const std::vector<Spot>& places) {
        screen().click(onScreen(places.front().x, places.front().y));
        screen().keyDown("Shift_L");
        for (std::size_t i = 1; i < places.size(); ++i)
            screen().click(onScreen(places[i].x, places[i].y));
        screen().keyUp("Shift_L");
    }
    std::uint32_t pixelAt(double h, double v) { return screen().picture().at(onScreen(h, v)); }
    // A shape and, in the file, the gradient that it refers to.
    static std::string gradientOf(const std::string& svg, const std::string& id) {
        const std::size_t element = svg.find("id=\"" + id + "\"");
        const std::size_t begin = svg.find("url(#", element) + 5;
        const std::string name = svg.substr(begin, svg.find(')', begin) - begin);
        const std::size_t at = svg.find("id=\"" + name + "\"");
        return at == std::string::npos ? std::string() : svg.substr(at, svg.find("Gradient>", at) - at);
    }
};

int difference(std::uint32_t a, std::uint32_t b) {
    int most = 0;
    for (const int shift : {0, 8, 16})
        most = std::max(most,
                        std::abs(static_cast<int>(a >> shift & 0xff) - static_cast<int>(b >> shift & 0xff)));
    return most;
}

TEST_F(GradientMenuTest, AGradientIsPastedOntoSeveralShapesAndOneUndoTakesItBack) {
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().key("v");
    select({kGradMiddle});
    screen().key("ctrl+shift+c");
    select({kPlainMiddle, kMarkerMiddle});
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_TRUE(colorVanishes(kMarker));
    const std::string after = saved();
    for (const char* id : {"plain", "marker"})
        EXPECT_THAT(gradientOf(after, id), AllOf(HasSubstr("#203080"), HasSubstr("#f0d060"))) << id;
    screen().key("ctrl+z");
    waitForColor(kPlain);
    waitForColor(kMarker);
    EXPECT_EQ(saved(), before);
}

TEST_F(GradientMenuTest, AGradientIsPickedUpByAClickThatChangesNothing) {
    startWithDrawing();
    screen().key("ctrl+shift+i");
    screen().click(onScreen(kGradMiddle.x, kGradMiddle.y));
    screen().key("v");
    select({kPlainMiddle});
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("g");
    screen().keyDown("Alt_L");
    screen().keyDown("Shift_L");
    screen().click(onScreen(420, 290));
    screen().keyUp("Shift_L");
    screen().keyUp("Alt_L");
    screen().key("v");
    select({kMarkerMiddle});
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(colorVanishes(kMarker));
    const std::string after = saved();
    EXPECT_THAT(gradientOf(after, "plain"), HasSubstr("#203080"));
    EXPECT_THAT(gradientOf(after, "marker"), HasSubstr("#a02040"));
    EXPECT_THAT(gradientOf(after, "grad"), HasSubstr("id=\"l\"")) << "still as the file had it";
    EXPECT_FALSE(hasWindow("Gradient"));
}

TEST_F(GradientMenuTest, ATemplateIsAppliedAndRemovedLeavingItsFirstColor) {
    const std::filesystem::path ramp = folder() / "ramp.css";
    std::ofstream(ramp) << "linear-gradient(90deg, #0a64c8 0%, #f0f0f0 100%)";
    Process import({EASEL_PROGRAM, "templates", "import", ramp.string(), "--name", "Sea"}, environment(),
                   (folder() / "import.log").string());
    ASSERT_EQ(import.wait(10s), 0);
    startWithDrawing();
    screen().key("v");
    select({kPlainMiddle});
    screen().moveTo(onScreen(300, 200));
    screen().key("ctrl+shift+p");
    ASSERT_TRUE(eventually([&] { return screen().popupAt(onScreen(310, 210)); }));
    screen().key("Down");
    screen().key("Return");
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_TRUE(eventually([&] { return difference(pixelAt(62, 110), 0x0a64c8) < 8; }));
    screen().key("ctrl+shift+Delete");
    EXPECT_TRUE(eventually([&] { return pixelAt(250, 110) == 0x0a64c8; }));
    EXPECT_THAT(saved(), HasSubstr("fill=\"#0a64c8\""));
}

TEST_F(GradientMenuTest, TheCurrentGradientIsAppliedWithoutOpeningTheEditor) {
    startWithDrawing();
    screen().key("v");
    select({kPlainMiddle});
    screen().key("ctrl+shift+g");
    EXPECT_TRUE(colorVanishes(kPlain)) << "though Ctrl, held with a click, would ask for the editor";
    EXPECT_FALSE(hasWindow("Gradient"));
    // The current gradient of a new user runs from black to white.
    EXPECT_TRUE(eventually([&] { return (pixelAt(70, 110) & 0xff) < 0x20; }));
    EXPECT_GT(pixelAt(250, 110) & 0xff, 0xe0U);
}

TEST_F(GradientMenuTest, OpacityIsShownWhileItIsChosenAndCancelBringsItBack) {
    startWithDrawing();
    screen().key("v");
    select({kGradMiddle});
    const std::uint32_t opaque = pixelAt(80, 300);
    screen().key("ctrl+shift+o");
    waitForDialog("Opacity");
    screen().type("0\t");
    EXPECT_TRUE(eventually([&] { return pixelAt(80, 300) == 0xffffff; })) << "the paper";
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Opacity"));
    EXPECT_TRUE(eventually([&] { return pixelAt(80, 300) == opaque; }));
    screen().key("ctrl+s");
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(GradientMenuTest, ADragThatIsBrokenOffIsNoStepForUndoOrRedo) {
    startWithDrawing();
    screen().click(onScreen(kPlainMiddle.x, kPlainMiddle.y));
    EXPECT_TRUE(colorVanishes(kPlain));
    screen().key("ctrl+z");
    waitForColor(kPlain);
    const std::uint32_t before = pixelAt(160, 230);
    screen().moveTo(onScreen(160, 240));
    screen().press();
    screen().glideTo(onScreen(160, 340));
    screen().key("Escape");
    screen().release();
    screen().key("ctrl+shift+z");
    EXPECT_TRUE(colorVanishes(kPlain)) << "what was undone before the drag is redone";
    EXPECT_EQ(pixelAt(160, 230), before) << "and the drag is not";
    screen().key("ctrl+z");
    waitForColor(kPlain);
    screen().key("ctrl+z");
    EXPECT_EQ(pixelAt(160, 230), before);
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

// The notice takes room above the page, which moves down a little.
TEST_F(GradientMenuTest, AChangeThatCostsSomethingIsToldAndNoOther) {
    std::string svg = contents(drawing());
    const std::string exact = "r=\"138.924440\"";
    svg.replace(svg.find(exact), exact.size(), R"(r="50" fx="520" fr="20")");
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    const int top = waitForColor(kPlain).top;
    screen().key("v");
    select({kGradMiddle});
    const std::uint32_t before = pixelAt(64, 300);
    screen().key("ctrl+shift+r");
    EXPECT_TRUE(eventually([&] { return pixelAt(64, 300) != before; }));
    EXPECT_EQ(waitForColor(kPlain).top, top) << "a linear gradient costs nothing";
    select({{420, 290}});
    screen().key("ctrl+shift+r");
    EXPECT_TRUE(eventually([&] { return waitForColor(kPlain).top > top + 5; })) << "the focus has moved";
}

TEST_F(GradientMenuTest, AGlowThatIsDraggedStaysAGlow) {
    std::ifstream sample(std::string(SOURCE_DIR) + "/samples/landscape.svg");
    std::string svg((std::istreambuf_iterator<char>(sample)), {});
    svg.insert(svg.rfind("</svg>"),
               R"(<rect id="plain" x="60" y="40" width="200" height="140" fill="#12c84a"/>)"
               R"(<circle id="marker" cx="540" cy="60" r="30" fill="#c832fa"/>)");
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    const std::uint32_t outside = pixelAt(680, 234);
    screen().drag({onScreen(420, 200), onScreen(470, 260)});
    EXPECT_TRUE(eventually([&] { return difference(pixelAt(420, 200), 0xfff3c4) < 0x20; }))
        << "its bright middle is where the mouse was pressed";
    EXPECT_EQ(pixelAt(680, 234), outside) << "beyond its circle nothing changes";
    EXPECT_LT(difference(pixelAt(670, 240), outside), 0x28) << "its edge lets the sky through";
    EXPECT_THAT(gradientOf(saved(), "glow"), HasSubstr("stop-opacity=\"0.95\""));
}

} // namespace
} // namespace desktop
