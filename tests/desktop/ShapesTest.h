// A test that selects shapes of its drawing and looks at their gradients, on the screen and in the file.
#pragma once

#include "tests/desktop/DesktopTest.h"

namespace desktop {

// Where the shapes of the test's drawing have their middle.
inline constexpr Spot kPlainMiddle{160, 110};
inline constexpr Spot kMarkerMiddle{540, 60};
inline constexpr Spot kGradMiddle{160, 290};
inline constexpr Spot kRoundMiddle{420, 290};

// The largest difference of a channel between two colors.
int difference(std::uint32_t a, std::uint32_t b);

class ShapesTest : public DesktopTest {
  protected:
    // A click, and what the window shows of it.
    static void clickAndSee(Spot place);
    // With the select tool: a click on the first place, and one with Shift on each other.
    void select(const std::vector<Spot>& places);
    std::uint32_t pixelAt(double h, double v) { return screen().picture().at(onScreen(h, v)); }
    // Waits until the color of a place is about this one.
    bool becomes(Spot place, std::uint32_t color);
    // Puts something in the place of the first such text of the drawing's file.
    void replaceInDrawing(const std::string& what, const std::string& by) const;
    // The gradient of a shape as its file has it.
    static std::string gradientOf(const std::string& svg, const std::string& id);
    // What the line at the bottom of the window says, as a picture.
    std::vector<std::uint32_t> statusLine();
    // Waits until the line says something else, and gives that.
    std::vector<std::uint32_t> statusLineAfter(const std::vector<std::uint32_t>& before);
    // What the line above the drawing says, which has to be there.
    std::string notice();
};

} // namespace desktop
