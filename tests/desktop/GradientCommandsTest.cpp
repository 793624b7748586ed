// What each entry of the gradient menu does to a shape, and dialogs and drags that are given up.
#include "tests/desktop/ShapesTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::uint32_t kDark = 0x203080; // the colors of #grad
constexpr std::uint32_t kLight = 0xf0d060;
// Near its edges, which are under the frame of what is selected.
constexpr Spot kLeft{67, 290};
constexpr Spot kRight{253, 290};
constexpr Spot kTop{160, 226};
constexpr Spot kBottom{160, 354};

class GradientCommandsTest : public ShapesTest {
  protected:
    void runOn(Spot shape, const std::string& keys) {
        screen().key("v");
        select({shape});
        screen().key(keys);
    }
    // #round with an ellipse, translucent towards its edge.
    void writeGlassEgg() const {
        replaceInDrawing(R"(gradientUnits="userSpaceOnUse" cx="420" cy="290" r="138.924440")",
                         R"(cx=".5" cy=".5" r=".5")");
        replaceInDrawing("stop-color=\"#a02040\"", R"(stop-color="#a02040" stop-opacity=".2")");
    }
    void importTemplate(const std::string& name, const std::string& gradient) {
        Process program({EASEL_PROGRAM, "templates", "import", write(gradient), "--name", name},
                        environment(), (folder() / "import.log").string());
        ASSERT_EQ(program.wait(10s), 0);
    }
    void openTemplateMenu() {
        screen().moveTo(onScreen(300, 200));
        screen().key("ctrl+shift+p");
        EXPECT_TRUE(eventually([&] { return screen().popupAt(onScreen(310, 210)); }));
    }

  private:
    std::string write(const std::string& gradient) const;
};

std::string GradientCommandsTest::write(const std::string& gradient) const {
    const std::string file = folder() / "template.css";
    std::ofstream(file) << gradient;
    return file;
}

TEST_F(GradientCommandsTest, ReverseExchangesTheEnds) {
    startWithDrawing();
    runOn(kGradMiddle, "ctrl+shift+r");
    EXPECT_TRUE(becomes(kLeft, kLight));
    EXPECT_TRUE(becomes(kRight, kDark));
}

TEST_F(GradientCommandsTest, RotateTurnsALinearGradientCounterClockwise) {
    startWithDrawing();
    runOn(kGradMiddle, "ctrl+shift+t");
    EXPECT_TRUE(becomes(kTop, kLight));
    EXPECT_TRUE(becomes(kBottom, kDark));
}

TEST_F(GradientCommandsTest, SpaceStopsEvenlyMovesAStopIntoTheMiddle) {
    replaceInDrawing("<stop offset=\"1\"", R"(<stop offset=".1" stop-color="#ff0000"/><stop offset="1")");
    startWithDrawing();
    runOn(kGradMiddle, "ctrl+shift+e");
    EXPECT_TRUE(becomes(kGradMiddle, 0xff0000));
    EXPECT_TRUE(becomes(kLeft, kDark));
    EXPECT_TRUE(becomes(kRight, kLight));
}

// At eleven twelfths of the way from the middle to the edge, to the left and above.
constexpr Spot kEggLeft{310, 290};
constexpr Spot kEggTop{420, 226};

TEST_F(GradientCommandsTest, MakeOpaqueTakesTheOpacityAndLeavesTheEllipse) {
    writeGlassEgg();
    startWithDrawing();
    const std::uint32_t glass = pixelAt(kEggLeft.x, kEggLeft.y);
    runOn(kRoundMiddle, "ctrl+shift+f");
    // A twelfth of white and eleven of #a02040.
    EXPECT_TRUE(becomes(kEggLeft, 0xa83350));
    EXPECT_TRUE(becomes(kEggTop, 0xa83350));
    EXPECT_THAT(gradientOf(saved(), "round"), Not(HasSubstr("stop-opacity")));
    screen().key("ctrl+z");
    EXPECT_TRUE(becomes(kEggLeft, glass));
}

TEST_F(GradientCommandsTest, MakeCircularTakesTheEllipseAndLeavesTheOpacity) {
    writeGlassEgg();
    startWithDrawing();
    const auto unevenness = [&] {
        return difference(pixelAt(kEggLeft.x, kEggLeft.y), pixelAt(kEggTop.x, kEggTop.y));
    };
    EXPECT_LT(unevenness(), 6);
    runOn(kRoundMiddle, "ctrl+shift+l");
    EXPECT_TRUE(eventually([&] { return unevenness() > 12; })) << "above is nearer than left";
    EXPECT_THAT(gradientOf(saved(), "round"), HasSubstr("stop-opacity=\"0.2\""));
}

TEST_F(GradientCommandsTest, TheTemplateMenuHasPicturesAndGivesTheOneThatIsChosen) {
    importTemplate("Candy", "linear-gradient(90deg, #fe01c8, #fe01c8)");
    importTemplate("Moss", "linear-gradient(90deg, #2f7003, #2f7003)");
    startWithDrawing();
    screen().key("v");
    select({kPlainMiddle});
    openTemplateMenu();
    EXPECT_GE(waitForColor(0xfe01c8).height(), 12);
    EXPECT_GE(waitForColor(0x2f7003).height(), 12);
    for (const char* key : {"Down", "Down", "Return"})
        screen().key(key);
    EXPECT_TRUE(eventually([&] { return pixelAt(kPlainMiddle.x, kPlainMiddle.y) == 0x2f7003; }));
}

TEST_F(GradientCommandsTest, ApplyCurrentGradientGivesItAsItWasEditedLast) {
    startWithDrawing();
    screen().key("ctrl+g");
    const Window editor = waitForDialog("Current Gradient");
    // A mouse that comes before the editor listens is not heard.
    const auto rightEnd = [&] { return screen().picture().at(onRamp(editor, 0.98)) & 0xff; };
    EXPECT_TRUE(eventually([&] { return rightEnd() > 0xe0; }));
    screen().click(in(editor, EditorItems::radial));
    const Area& preview = EditorItems::preview;
    EXPECT_TRUE(eventually([&] {
        return (screen().picture().at(in(editor, {preview.left + 4, preview.top + 4})) & 0xff) > 0x80;
    })) << "white is in the corners now";
    screen().key("Return");
    EXPECT_TRUE(vanishes("Current Gradient"));
    runOn(kPlainMiddle, "ctrl+shift+g");
    EXPECT_TRUE(becomes(kPlainMiddle, 0x000000)) << "black in the middle";
    EXPECT_GT(pixelAt(62, 42) & 0xff, 0xd0U) << "and white in the corners";
}

TEST_F(GradientCommandsTest, ADialogThatIsCancelledChangesNothing) {
    startWithDrawing();
    runOn(kGradMiddle, "ctrl+shift+a");
    waitForDialog("Angle");
    screen().type("90");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Angle"));
    EXPECT_TRUE(getsKeyboard("drawing.svg"));
    screen().key("ctrl+shift+k");
    waitForDialog("Plain color");
    screen().key("alt+h");
    screen().key("ctrl+a");
    screen().type("#3c78b4");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Plain color"));
    EXPECT_TRUE(becomes(kLeft, kDark));
    EXPECT_TRUE(becomes(kRight, kLight));
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
}

TEST_F(GradientCommandsTest, EscapeLetsTheNextClickBeAnOrdinaryOne) {
    startWithDrawing();
    screen().key("ctrl+shift+i");
    screen().key("Escape");
    screen().click(onScreen(kPlainMiddle.x, kPlainMiddle.y));
    EXPECT_TRUE(colorVanishes(kPlain)) << "it gives the current gradient";
}

TEST_F(GradientCommandsTest, EscapeWhileSeveralAreBeingSelectedBringsTheSelectionBack) {
    startWithDrawing();
    screen().key("v");
    select({kMarkerMiddle});
    screen().moveTo(onScreen(300, 20));
    screen().press();
    screen().glideTo(onScreen(30, 210));
    screen().key("Escape");
    screen().release();
    screen().key("Delete");
    EXPECT_TRUE(colorVanishes(kMarker));
    EXPECT_TRUE(screen().picture().find(kPlain));
}

// Black, white and what lies between.
class RubberBandTest : public GradientCommandsTest, public testing::WithParamInterface<const char*> {};

TEST_P(RubberBandTest, IsSeenOverAnyColor) {
    replaceInDrawing("#203080", GetParam());
    replaceInDrawing("#f0d060", GetParam());
    startWithDrawing();
    const Spot middle = onScreen(kGradMiddle.x, kGradMiddle.y);
    const std::uint32_t ground = screen().picture().at(middle);
    screen().moveTo(onScreen(100, 290));
    screen().press();
    screen().glideTo(onScreen(220, 290));
    // Across the line and a little beyond.
    const auto isSeen = [&] {
        constexpr int kClearly = 0x30;
        const Picture shown = screen().picture();
        for (int y = middle.y - 4; y <= middle.y + 4; ++y)
            if (difference(shown.at({middle.x, y}), ground) > kClearly)
                return true;
        return false;
    };
    EXPECT_TRUE(eventually(isSeen));
    screen().key("Escape");
    screen().release();
    EXPECT_TRUE(eventually([&] { return !isSeen(); })) << "it goes with the drag";
}

INSTANTIATE_TEST_SUITE_P(Colors, RubberBandTest, testing::Values("#000000", "#ffffff", "#808080"));

} // namespace
} // namespace desktop
