// Escape while something is dragged in the gradient editor, and the line that is dragged there.
#include "tests/desktop/DesktopTest.h"

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {
namespace {

using testing::HasSubstr;

constexpr double kThird = 1 / 3.0;

class BrokenDragTest : public DesktopTest {
  protected:
    // The gradient of #grad gets other stops.
    void writeStops(const std::string& stops) {
        std::string svg = contents(drawing());
        const std::size_t begin = svg.find("<stop");
        svg.replace(begin, svg.find("</linearGradient>") - begin, stops);
        std::ofstream(drawing()) << svg;
    }
    // Presses and moves the mouse and, once the editor shows something else, breaks that off.
    void breakOff(const Window& editor, Spot from, Spot to) {
        const Picture before = screen().picture();
        screen().moveTo(from);
        screen().press();
        screen().glideTo(to);
        EXPECT_TRUE(eventually([&] { return screen().picture().pixels != before.pixels; }));
        screen().key("Escape");
        screen().release();
        EXPECT_TRUE(hasWindow("Gradient")) << "the editor stays";
        screen().moveTo(in(editor, {10, 10}));
    }
};

TEST_F(BrokenDragTest, IsTakenBackAndTheEditorStays) {
    // Two stops in one place, which no whole pixel of the ramp is.
    writeStops(R"(<stop offset="0" stop-color="#203080"/><stop offset="0.3333" stop-color="#ff0000"/>)"
               R"(<stop offset="0.3333" stop-color="#00ff00"/><stop offset="1" stop-color="#f0d060"/>)");
    const std::string before = contents(drawing());
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    const Spot third = onRamp(editor, kThird);
    const Spot below = in(editor, {224, EditorItems::ramp.bottom + 40});
    breakOff(editor, third, onRamp(editor, 0.8));
    EXPECT_EQ(positionField(), "33.33");
    breakOff(editor, third, onRamp(editor, 0.1));
    breakOff(editor, third, below);
    EXPECT_EQ(positionField(), "33.33");
    breakOff(editor, onRamp(editor, 0.6), onRamp(editor, 0.7));
    breakOff(editor, onRamp(editor, 0.6), below);
    breakOff(editor, in(editor, {60, 100}), in(editor, {300, 200}));
    closeEditorWith("Return");
    screen().key("ctrl+s");
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(BrokenDragTest, IsFollowedByDragsThatCount) {
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    breakOff(editor, onRamp(editor, 0.99), onRamp(editor, 0.3));
    screen().drag({onRamp(editor, 0.99), onRamp(editor, 0.5)});
    closeEditorWith("Return");
    const std::string after = saved();
    EXPECT_THAT(after, HasSubstr("data-easel-record"));
    EXPECT_EQ(after.find("offset=\"0.3"), std::string::npos) << after;
    EXPECT_NE(after.find("offset=\"0.5"), std::string::npos) << after;
}

TEST_F(BrokenDragTest, OfACentreLeavesItWhereItWas) {
    const std::string before = contents(drawing());
    startWithDrawing();
    const Window editor = openEditor(420, 290);
    breakOff(editor, in(editor, {100, 100}), in(editor, {300, 200}));
    closeEditorWith("Return");
    screen().key("ctrl+s");
    EXPECT_EQ(quit(), 0) << "nothing to ask about";
    EXPECT_EQ(contents(drawing()), before);
}

TEST_F(BrokenDragTest, InThePreviewHasALineThatIsSeenOverMiddleGray) {
    writeStops(R"(<stop offset="0" stop-color="#808080"/><stop offset="1" stop-color="#7f7f7f"/>)");
    startWithDrawing();
    const Window editor = openEditor(160, 290);
    screen().moveTo(in(editor, {100, 150}));
    screen().press();
    screen().glideTo(in(editor, {300, 150}));
    EXPECT_TRUE(eventually([&] {
        const Picture shown = screen().picture();
        return shown.at(in(editor, {200, 150})) == 0 && shown.at(in(editor, {200, 149})) == 0xffffff &&
               shown.at(in(editor, {200, 151})) == 0xffffff;
    })) << "black between white";
    screen().release();
    EXPECT_TRUE(eventually([&] {
        const std::uint32_t color = screen().picture().at(in(editor, {200, 150}));
        return color == 0x808080 || color == 0x7f7f7f;
    })) << "it goes with the button";
    closeEditorWith("Escape");
}

} // namespace
} // namespace desktop
