// The commands on gradients in the Edit menu, by their keys, and what stays of a gradient that is edited.
#include "tests/desktop/ShapesTest.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace desktop {
namespace {

using testing::AllOf;
using testing::HasSubstr;

class GradientMenuTest : public ShapesTest {};

TEST_F(GradientMenuTest, AGradientIsPastedOntoSeveralShapesAndOneUndoTakesItBack) {
    std::string before = contents(drawing());
    const std::string opaque = "stop-color=\"#f0d060\"";
    before.replace(before.find(opaque), opaque.size(), opaque + " stop-opacity=\".25\"");
    std::ofstream(drawing()) << before;
    startWithDrawing();
    screen().key("v");
    select({kGradMiddle});
    screen().key("ctrl+shift+c");
    select({kPlainMiddle, kMarkerMiddle});
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(colorVanishes(kPlain));
    EXPECT_TRUE(colorVanishes(kMarker));
    const std::string after = saved();
    for (const char* id : {"plain", "marker"})
        EXPECT_THAT(gradientOf(after, id),
                    AllOf(HasSubstr("#203080"), HasSubstr("#f0d060\" stop-opacity=\"0.25\"")))
            << id;
    screen().key("ctrl+z");
    waitForColor(kPlain);
    waitForColor(kMarker);
    EXPECT_EQ(saved(), before);
}

TEST_F(GradientMenuTest, AGradientIsPickedUpByAClickThatChangesNothing) {
    const std::string translucent = "stop-color=\"#f0d060\" stop-opacity=\"0.25\"";
    replaceInDrawing("stop-color=\"#f0d060\"", translucent);
    startWithDrawing();
    screen().key("ctrl+shift+i");
    screen().click(onScreen(kGradMiddle.x, kGradMiddle.y));
    // Where there is none, the one that was picked up stays.
    screen().key("ctrl+shift+i");
    screen().click(onScreen(kMarkerMiddle.x, kMarkerMiddle.y));
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
    EXPECT_THAT(gradientOf(after, "plain"), AllOf(HasSubstr("#203080"), HasSubstr(translucent)));
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
    const std::string before = contents(drawing());
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
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    EXPECT_TRUE(eventually([&] { return !hasWindow("drawing.svg*"); })) << "nothing has to be saved";
    screen().key("ctrl+shift+z");
    EXPECT_EQ(saved(), before) << "nor is there anything to redo";
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(GradientMenuTest, AnOpacityThatIsTypedCountsOnceAndIsOneStep) {
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().key("v");
    select({kGradMiddle});
    const std::uint32_t opaque = pixelAt(80, 300);
    screen().key("ctrl+shift+o");
    waitForDialog("Opacity");
    // Shown at 5 percent first.
    screen().type("50");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Opacity"));
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    EXPECT_THAT(gradientOf(saved(), "grad"), HasSubstr("stop-opacity=\"0.5\""));
    screen().key("ctrl+z");
    EXPECT_TRUE(eventually([&] { return pixelAt(80, 300) == opaque; }));
    EXPECT_EQ(saved(), before);
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
    replaceInDrawing("r=\"138.924440\"", R"(r="50" fx="520" fr="20")");
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
    // But for the last bit, in which a repaint of a part may differ.
    EXPECT_LE(difference(pixelAt(680, 234), outside), 1) << "beyond its circle nothing changes";
    EXPECT_LT(difference(pixelAt(670, 240), outside), 0x28) << "its edge lets the sky through";
    EXPECT_THAT(gradientOf(saved(), "glow"), HasSubstr("stop-opacity=\"0.95\""));
    // Its middle, 56 to the left of the circle's and 152 above, goes to 152 to the left and 56 below, behind
    // the hills.
    const std::uint32_t green = pixelAt(380, 330) >> 8 & 0xff;
    screen().key("ctrl+shift+t");
    EXPECT_TRUE(eventually([&] { return (pixelAt(380, 330) >> 8 & 0xff) > green + 10; }));
    EXPECT_GT(difference(pixelAt(420, 200), 0xfff3c4), 0x20);
    EXPECT_THAT(gradientOf(saved(), "glow"), HasSubstr("stop-opacity=\"0.95\""));
}

TEST_F(GradientMenuTest, StrokesAreReversedInsteadOfFills) {
    std::string svg = contents(drawing());
    svg.insert(svg.rfind("</svg>"), "<line id=\"line\" x1=\"60\" y1=\"200\" x2=\"560\" y2=\"200\" "
                                    "stroke=\"url(#s)\" stroke-width=\"12\"/>");
    svg.insert(svg.find("</defs>"), "<linearGradient id=\"s\" gradientUnits=\"userSpaceOnUse\" x1=\"60\" "
                                    "x2=\"560\"><stop stop-color=\"#ff0000\"/>"
                                    "<stop offset=\"1\" stop-color=\"#0000ff\"/></linearGradient>");
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    EXPECT_LT(difference(pixelAt(66, 204), 0xff0000), 8);
    const std::uint32_t fill = pixelAt(80, 300);
    screen().key("v");
    select({{310, 200}, kGradMiddle});
    screen().key("ctrl+shift+d");
    screen().key("ctrl+shift+r");
    EXPECT_TRUE(eventually([&] { return difference(pixelAt(66, 204), 0x0000ff) < 8; }));
    EXPECT_EQ(pixelAt(80, 300), fill) << "which is not stroked";
    const std::string after = saved();
    EXPECT_THAT(gradientOf(after, "line"), HasSubstr("stop-color=\"#0000ff\""));
    EXPECT_THAT(gradientOf(after, "grad"), HasSubstr("id=\"l\"")) << "still as the file had it";
    screen().key("ctrl+z");
    EXPECT_TRUE(eventually([&] { return difference(pixelAt(66, 204), 0xff0000) < 8; }));
    EXPECT_EQ(saved(), svg);
}

TEST_F(GradientMenuTest, StrokesArePickedUpPaintedPlainAndLoseTheirGradient) {
    std::string svg = contents(drawing());
    svg.insert(svg.rfind("</svg>"),
               "<path id=\"line\" d=\"M60 200H560\" stroke=\"url(#s)\" stroke-width=\"12\"/>"
               "<path d=\"M60 20H560\" stroke=\"#00aa88\" stroke-width=\"12\"/>");
    svg.insert(svg.find("</defs>"), "<linearGradient id=\"s\" gradientUnits=\"userSpaceOnUse\" x1=\"60\" "
                                    "x2=\"560\"><stop stop-color=\"#ff0000\"/>"
                                    "<stop offset=\"1\" stop-color=\"#0000ff\"/></linearGradient>");
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    screen().key("ctrl+shift+d");
    screen().key("ctrl+shift+i");
    screen().click(onScreen(310, 200));
    screen().key("v");
    select({{310, 20}});
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(becomes({66, 24}, 0xff0000));
    EXPECT_TRUE(becomes({554, 24}, 0x0000ff));
    screen().key("ctrl+shift+k");
    waitForDialog("Plain color");
    screen().key("alt+h");
    screen().key("ctrl+a");
    screen().type("#3c78b4");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Plain color"));
    EXPECT_TRUE(becomes({66, 24}, 0x3c78b4));
    EXPECT_TRUE(becomes({554, 24}, 0x3c78b4));
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    select({{310, 200}});
    screen().key("ctrl+shift+Delete");
    EXPECT_TRUE(becomes({554, 204}, 0xff0000));
}

TEST_F(GradientMenuTest, AnAngleIsTyped) {
    startWithDrawing();
    screen().key("v");
    select({kGradMiddle});
    const std::uint32_t left = pixelAt(64, 230);
    screen().key("ctrl+shift+a");
    waitForDialog("Angle");
    screen().type("90");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Angle"));
    EXPECT_TRUE(eventually([&] { return difference(pixelAt(160, 226), 0xf0d060) < 0x14; })) << "upwards";
    EXPECT_LT(difference(pixelAt(160, 354), 0x203080), 0x14);
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    screen().key("ctrl+z");
    EXPECT_TRUE(eventually([&] { return pixelAt(64, 230) == left; }));
    EXPECT_LT(difference(pixelAt(64, 354), left), 4);
}

TEST_F(GradientMenuTest, APlainColorIsGivenToGradientsAndPlainShapes) {
    startWithDrawing();
    const std::string before = contents(drawing());
    screen().key("v");
    select({kGradMiddle, kMarkerMiddle});
    const std::uint32_t gradient = pixelAt(80, 300);
    screen().key("ctrl+shift+k");
    waitForDialog("Plain color");
    screen().key("alt+h");
    screen().key("ctrl+a");
    screen().type("#3c78b4");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Plain color"));
    EXPECT_TRUE(colorVanishes(kMarker));
    for (const Spot place : {Spot{64, 230}, Spot{250, 350}, kMarkerMiddle})
        EXPECT_TRUE(eventually([&] { return pixelAt(place.x, place.y) == 0x3c78b4U; })) << place.x;
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    screen().key("ctrl+z");
    waitForColor(kMarker);
    EXPECT_TRUE(eventually([&] { return pixelAt(80, 300) == gradient; }));
    EXPECT_EQ(contents(drawing()), before);
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(GradientMenuTest, TenShapesTakeAPastedGradientAndGiveItBackAtOnce) {
    std::string svg = contents(drawing());
    std::vector<Spot> middles;
    for (int i = 0; i < 10; ++i) {
        const Spot at{300 + 28 * (i % 5), 50 + 60 * (i / 5)};
        svg.insert(svg.rfind("</svg>"), "<rect x=\"" + std::to_string(at.x) + "\" y=\"" +
                                            std::to_string(at.y) +
                                            "\" width=\"20\" height=\"50\" fill=\"#00aa88\"/>\n");
        middles.push_back({at.x + 10, at.y + 25});
    }
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    screen().key("v");
    select({kGradMiddle});
    screen().key("ctrl+shift+c");
    select(middles);
    screen().key("ctrl+shift+v");
    EXPECT_TRUE(colorVanishes(0x00aa88));
    for (const Spot middle : middles) {
        // A quarter and three quarters of the way.
        EXPECT_LT(difference(pixelAt(middle.x - 5, middle.y), 0x545878), 0x10);
        EXPECT_LT(difference(pixelAt(middle.x + 5, middle.y), 0xbca868), 0x10);
    }
    screen().key("ctrl+z");
    for (const Spot middle : middles)
        EXPECT_TRUE(eventually([&] { return pixelAt(middle.x, middle.y) == 0x00aa88; }));
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(GradientMenuTest, AGlossyButtonThatIsEditedStaysGlossy) {
    std::string svg = contents(drawing());
    svg.insert(svg.find("</defs>"),
               "<linearGradient id=\"body\" x2=\"0\" y2=\"1\"><stop stop-color=\"#2a6ad0\"/>"
               "<stop offset=\"1\" stop-color=\"#0a2050\"/></linearGradient>"
               "<radialGradient id=\"gloss\" cy=\"0\" r=\"1\"><stop stop-color=\"#ffffff\" "
               "stop-opacity=\".85\"/><stop offset=\"1\" stop-color=\"#ffffff\" stop-opacity=\"0\"/>"
               "</radialGradient>");
    svg.insert(svg.rfind("</svg>"),
               "<rect id=\"button\" x=\"300\" y=\"60\" width=\"180\" height=\"100\" rx=\"30\" "
               "fill=\"url(#body)\"/><rect id=\"shine\" x=\"310\" y=\"64\" width=\"160\" height=\"46\" "
               "rx=\"22\" fill=\"url(#gloss)\"/>");
    std::ofstream(drawing()) << svg;
    startWithDrawing();
    // Away from the edges, on which the frame of what is selected lies.
    const std::uint32_t body = pixelAt(390, 118);
    const std::uint32_t dull = pixelAt(390, 105);
    const std::uint32_t side = pixelAt(320, 84);
    EXPECT_LT(difference(pixelAt(390, 69), 0xcbd9f1), 0x18);
    // The white becomes yellow; how far one sees through it stays.
    const Window editor = openEditor(390, 90);
    screen().click(in(editor, EditorItems::swatch));
    waitForDialog("Color of the gradient stop");
    screen().key("alt+h");
    screen().key("ctrl+a");
    screen().type("#ffff00");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    closeEditorWith("Return");
    EXPECT_TRUE(eventually([&] { return (pixelAt(390, 69) & 0xff) < 0x60; }));
    EXPECT_GT(pixelAt(390, 69) >> 16, 0xb8U);
    EXPECT_LT(difference(pixelAt(390, 105), dull), 0x20) << "at its lower end one still sees the button";
    EXPECT_EQ(pixelAt(390, 118), body);
    constexpr std::uint32_t kRedAndGreen = 0xffff00; // which yellow has as white does
    EXPECT_LT(difference(pixelAt(320, 84) & kRedAndGreen, side & kRedAndGreen), 4) << "as wide as it was";
    EXPECT_THAT(gradientOf(saved(), "shine"), AllOf(HasSubstr("#ffff00\" stop-opacity=\"0.85\""),
                                                    HasSubstr("#ffffff\" stop-opacity=\"0\"")));
}

} // namespace
} // namespace desktop
