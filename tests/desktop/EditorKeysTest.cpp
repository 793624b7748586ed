// The gradient editor worked with the keyboard alone.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

namespace desktop {
namespace {

using testing::HasSubstr;

class EditorKeysTest : public DesktopTest {
  protected:
    void press(const std::vector<std::string>& keys) {
        for (const std::string& key : keys)
            screen().key(key);
    }
    void press(int times, const std::string& key) {
        for (int i = 0; i < times; ++i)
            screen().key(key);
    }
    // Whether the ring around the ramp shows.
    bool rampHasKeyboard(const Window& editor) const {
        const Picture shown = screen().picture();
        return shown.at(in(editor, {19, 290})) != shown.at(in(editor, {8, 290}));
    }
    // Whether the text of the field is selected.
    bool fieldHasKeyboard(const Window& editor) const {
        return (screen().picture().at(in(editor, {350, 337})) & 0xff0000) < 0x800000;
    }
    // The keyboard is in the position field when the editor opens.
    Window openOnField(double h, double v) {
        const Window editor = openEditor(h, v);
        EXPECT_TRUE(eventually([&] { return fieldHasKeyboard(editor); }));
        return editor;
    }
    // The swatch and the ramp come before the field.
    Window openOnRamp() {
        const Window editor = openOnField(160, 290);
        press(2, "shift+Tab");
        EXPECT_TRUE(eventually([&] { return rampHasKeyboard(editor); }));
        return editor;
    }
    // What the field says while the keyboard is on the ramp, where it is again afterwards.
    bool positionBecomes(const std::string& text) {
        return eventually(
            [&] {
                press(2, "Tab");
                const bool is = positionField() == text;
                press(2, "shift+Tab");
                return is;
            },
            20s);
    }
    // From the ramp.
    void confirm() {
        press({"Tab", "Tab", "Return"});
        EXPECT_TRUE(vanishes("Gradient"));
    }
};

TEST_F(EditorKeysTest, AStopIsAddedMovedAndTakenToTheEnds) {
    startWithDrawing();
    openOnRamp();
    screen().key("Insert");
    EXPECT_TRUE(positionBecomes("50.00"));
    // One pixel of the ramp is a quarter of a percent.
    press(4, "Right");
    EXPECT_TRUE(positionBecomes("51.00"));
    press({"shift+Right", "Page_Up", "Left"});
    EXPECT_TRUE(positionBecomes("55.75"));
    press({"Page_Down", "shift+Left"});
    EXPECT_TRUE(positionBecomes("50.75"));
    // Behind the stop that is at the start, no stop could be taken again.
    screen().key("Home");
    EXPECT_TRUE(positionBecomes("0.25"));
    screen().key("End");
    EXPECT_TRUE(positionBecomes("100.00"));
    closeEditorWith("Escape");
}

TEST_F(EditorKeysTest, StopsAreChosenInTheirOrderAndRemovedUntilTwoAreLeft) {
    startWithDrawing();
    openOnRamp();
    press({"Insert", "Down"});
    EXPECT_TRUE(positionBecomes("100.00"));
    press({"Up", "Up"});
    EXPECT_TRUE(positionBecomes("0.00"));
    int bells = screen().bells();
    screen().key("Up");
    EXPECT_TRUE(eventually([&] { return screen().bells() > bells; })) << "there is none before it";
    press({"Down", "Delete"});
    EXPECT_TRUE(positionBecomes("0.00")) << "the first of the two";
    bells = screen().bells();
    screen().key("Delete");
    EXPECT_TRUE(eventually([&] { return screen().bells() > bells; }));
    const std::string before = contents(drawing());
    confirm();
    EXPECT_EQ(quit(), 0) << "the gradient is what it was";
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(EditorKeysTest, AStopPassesItsNeighborAndStaysTheOneThatMoves) {
    startWithDrawing();
    openOnRamp();
    press({"Insert", "Up"});
    EXPECT_TRUE(positionBecomes("0.00"));
    // Past the stop in the middle, from pixel to pixel around it.
    press(19, "Page_Up");
    press(11, "Right");
    EXPECT_TRUE(positionBecomes("50.25"));
    screen().key("Left");
    EXPECT_TRUE(positionBecomes("49.75")) << "not where the other one is";
    closeEditorWith("Escape");
}

TEST_F(EditorKeysTest, TheColorOfAStopIsChosenFromTheRampAndFromTheSwatch) {
    startWithDrawing();
    const Window editor = openOnRamp();
    screen().key("Return");
    waitForDialog("Color of the gradient stop");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    EXPECT_TRUE(eventually([&] { return rampHasKeyboard(editor); }));
    screen().key("Tab");
    EXPECT_TRUE(eventually([&] { return !rampHasKeyboard(editor); }));
    screen().key("space");
    waitForDialog("Color of the gradient stop");
    screen().key("Escape");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    closeEditorWith("Escape");
}

TEST_F(EditorKeysTest, AStopThatWasJustAddedGetsAColorThatIsSaved) {
    startWithDrawing();
    openOnRamp();
    press({"Insert", "Return"});
    waitForDialog("Color of the gradient stop");
    screen().key("alt+h");
    screen().type("#00ff7f");
    screen().key("Return");
    EXPECT_TRUE(vanishes("Color of the gradient stop"));
    EXPECT_TRUE(getsKeyboard("Gradient"));
    confirm();
    // 0, 255 and 127 of 255 in the 16 bits of the record.
    EXPECT_THAT(saved(), HasSubstr("0 65535 32639"));
}

TEST_F(EditorKeysTest, ALinearGradientIsTurnedAndARadialOneHasItsCentreMoved) {
    startWithDrawing();
    openOnField(160, 290);
    press(3, "shift+Tab");
    press(2, "Left");
    press(2, "Right");
    press(2, "Up");
    // With Shift to the next multiple of 15 degrees.
    press(3, "shift+Up");
    press({"Tab", "Tab", "Tab", "Return"});
    EXPECT_TRUE(vanishes("Gradient"));
    // Upwards, over the rectangle of 200 by 140 at 45 degrees.
    const std::string turned = saved();
    EXPECT_THAT(turned, HasSubstr("1 45 "));

    openOnField(420, 290);
    press(3, "shift+Tab");
    press({"shift+Left", "shift+Left", "Right", "shift+Down", "Up"});
    press({"Tab", "Tab", "Tab", "Return"});
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_NE(saved(), turned);
    // 19 pixels of 400 to the left of the middle, and 9 of 176 below it.
    EXPECT_THAT(contents(drawing()), HasSubstr("0.4525 0.55113"));
}

TEST_F(EditorKeysTest, EveryItemIsReachedInTheOrderTheEyeReads) {
    startWithDrawing();
    openOnField(160, 290);
    // From the field over both buttons to the popup; from there to the kinds.
    press({"Tab", "Tab", "Tab", "Tab", "Tab", "space"});
    press({"Tab", "Tab", "Tab", "Tab", "Return"});
    EXPECT_TRUE(vanishes("Gradient"));
    EXPECT_THAT(saved(), HasSubstr("<radialGradient")) << "the second of the kinds";
}

TEST_F(EditorKeysTest, AClickIntoTheFieldSelectsWhatIsThere) {
    startWithDrawing();
    const Window editor = openOnRamp();
    screen().key("Insert");
    EXPECT_TRUE(positionBecomes("50.00"));
    screen().click(in(editor, EditorItems::position));
    // The window manager hands a click on after the keys that follow it.
    EXPECT_TRUE(eventually([&] { return fieldHasKeyboard(editor); }));
    screen().type("25");
    EXPECT_TRUE(eventually([&] {
        screen().key("ctrl+a");
        return positionField() == "25";
    }));
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
